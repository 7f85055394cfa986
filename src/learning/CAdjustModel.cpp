#include "CAdjustModel.h"

#include "ConfigImage.h"
#include "Learning.h"
#include "Messages.h"

namespace {

constexpr const char *kTitle = QT_TRANSLATE_NOOP("TFormCAdjust", "Channel to adjust");
constexpr const char *kChannel = QT_TRANSLATE_NOOP("TFormCAdjust", "&Channel :");
constexpr const char *kHint = QT_TRANSLATE_NOOP("TFormCAdjust", "0 = searching for nearest");
constexpr const char *kAutomatic = QT_TRANSLATE_NOOP("TFormCAdjust", "&Automatic adjustment :");
constexpr const char *kOk = QT_TRANSLATE_NOOP("TFormCAdjust", "&OK");
constexpr const char *kCancel = QT_TRANSLATE_NOOP("TFormCAdjust", "&Cancel");

const QString kForm = QStringLiteral("TFormCAdjust");

} // namespace

CAdjustModel::CAdjustModel(const ConfigImage &image, UserPrompt *prompt)
    : FormModel("TFormCAdjust", prompt), m_image(image)
{
    c().add(kForm, ControlKind::Label);
    c().add(QStringLiteral("Label1"), ControlKind::Label);
    addSpin(QStringLiteral("SpinEdit1"), 0, 59);
    setSpinValue(QStringLiteral("SpinEdit1"), 1);
    c().setBuddy(QStringLiteral("SpinEdit1"), QStringLiteral("Label1"));
    c().add(QStringLiteral("Label2"), ControlKind::Label);
    c().add(QStringLiteral("CheckBox1"), ControlKind::Check);
    c().setChecked(QStringLiteral("CheckBox1"), true);
    c().add(QStringLiteral("BtnOK"), ControlKind::Button);
    c().add(QStringLiteral("BtnCancel"), ControlKind::Button);
    retranslate();
}

void CAdjustModel::retranslate()
{
    caption(kForm, kTitle);
    caption(QStringLiteral("Label1"), kChannel);
    caption(QStringLiteral("Label2"), kHint);
    caption(QStringLiteral("CheckBox1"), kAutomatic);
    caption(QStringLiteral("BtnOK"), kOk);
    caption(QStringLiteral("BtnCancel"), kCancel);
    flush();
}

void CAdjustModel::BtnOKClick()
{
    const int n = channel();
    // Only the windows but the amplitude's tell whether a channel holds data.
    if (n != 0 && (n > m_image.channelCount() ||
                   !channelInUse(m_image.channels[std::size_t(n - 1)].data()))) {
        tell(messageText(Msg::ChannelEmpty, {QString::number(n)}), UserPrompt::Kind::Warning);
        close(false);
        return;
    }
    close(true);
}

void CAdjustModel::cancel()
{
    close(false);
}

void CAdjustModel::clicked(const QString &name)
{
    if (name == QLatin1String("BtnOK"))
        BtnOKClick();
    else if (name == QLatin1String("BtnCancel"))
        cancel();
    else
        FormModel::clicked(name);
}
