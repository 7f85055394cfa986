#include "ToleranceModel.h"

#include "Messages.h"

namespace {

constexpr const char *kKeys[ToleranceModel::kRows] = {
    QT_TRANSLATE_NOOP("TTarvikTolerance", "HFU low min."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "HFU low max."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "HFU high min."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "HFU high max."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "Dimension min."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "Dimension max."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "LF min."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "LF max."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "HFL low min."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "HFL low max."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "HFL high min."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "HFL high max."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "HFL amp min."),
    QT_TRANSLATE_NOOP("TTarvikTolerance", "HFL amp max."),
};
constexpr const char *kTitle = QT_TRANSLATE_NOOP("TTarvikTolerance", "Tolerances");
constexpr const char *kItems = QT_TRANSLATE_NOOP("TTarvikTolerance", "Items");
constexpr const char *kValues = QT_TRANSLATE_NOOP("TTarvikTolerance", "Values");
constexpr const char *kOk = QT_TRANSLATE_NOOP("TTarvikTolerance", "&OK");
constexpr const char *kCancel = QT_TRANSLATE_NOOP("TTarvikTolerance", "&Cancel");

const QString kForm = QStringLiteral("TTarvikTolerance");
const QString kGrid = QStringLiteral("ValueListEditor1");

QString formatted(int value)
{
    return QString::asprintf("%7d", value);
}

} // namespace

ToleranceModel::ToleranceModel(UserPrompt *prompt) : FormModel("TTarvikTolerance", prompt)
{
    c().add(kForm, ControlKind::Label);
    c().add(kGrid, ControlKind::Panel);
    c().add(QStringLiteral("ColItems"), ControlKind::Label, kGrid);
    c().add(QStringLiteral("ColValues"), ControlKind::Label, kGrid);
    for (int row = 0; row < kRows; ++row) {
        c().add(keyName(row), ControlKind::Label, kGrid);
        c().add(valueName(row), ControlKind::Edit, kGrid);
        c().setBuddy(valueName(row), keyName(row));
    }
    c().add(QStringLiteral("BtnOK"), ControlKind::Button);
    c().add(QStringLiteral("BtnCancel"), ControlKind::Button);
    load(Tolerances{});
    retranslate();
}

QString ToleranceModel::keyName(int row)
{
    return QStringLiteral("Key%1").arg(row + 1);
}

QString ToleranceModel::valueName(int row)
{
    return QStringLiteral("Value%1").arg(row + 1);
}

int ToleranceModel::rowOf(const QString &name)
{
    if (!name.startsWith(QLatin1String("Value")))
        return -1;
    bool ok = false;
    const int row = name.mid(5).toInt(&ok) - 1;
    return ok && row >= 0 && row < kRows ? row : -1;
}

void ToleranceModel::retranslate()
{
    caption(kForm, kTitle);
    caption(QStringLiteral("ColItems"), kItems);
    caption(QStringLiteral("ColValues"), kValues);
    for (int row = 0; row < kRows; ++row)
        caption(keyName(row), kKeys[row]);
    caption(QStringLiteral("BtnOK"), kOk);
    caption(QStringLiteral("BtnCancel"), kCancel);
    flush();
}

void ToleranceModel::load(const Tolerances &tolerances)
{
    for (int row = 0; row < kRows; ++row)
        c().setText(valueName(row), formatted(tolerances.values[std::size_t(row)]));
    flush();
}

bool ToleranceModel::parseRow(int row, int &value)
{
    const QString text = control(valueName(row)).text;
    bool ok = false;
    value = text.trimmed().toInt(&ok);
    if (!ok)
        tell(messageText(Msg::NotValidInteger, {text}), UserPrompt::Kind::Error);
    return ok;
}

bool ToleranceModel::readBack(Tolerances &tolerances)
{
    // Row by row: a row that is not an integer stops the reading where it is.
    for (int row = 0; row < kRows; ++row) {
        int value = 0;
        if (!parseRow(row, value))
            return false;
        // No range check: the low eight bits are kept (300 becomes 44).
        tolerances.values[std::size_t(row)] = quint8(value & 0xFF);
    }
    return true;
}

void ToleranceModel::normaliseRow(int row)
{
    int value = 0;
    if (parseRow(row, value))
        c().setText(valueName(row), formatted(value));
}

void ToleranceModel::gridClick()
{
    for (int row = 0; row < kRows; ++row) {
        int value = 0;
        if (!parseRow(row, value))
            return;
        c().setText(valueName(row), formatted(value));
    }
}

void ToleranceModel::left(const QString &name)
{
    const int row = rowOf(name);
    if (row >= 0)
        normaliseRow(row);
}

void ToleranceModel::clicked(const QString &name)
{
    if (name == QLatin1String("BtnOK"))
        close(true);
    else if (name == QLatin1String("BtnCancel"))
        close(false);
}
