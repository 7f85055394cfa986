#include "ProfilCModel.h"

#include "ConfigImage.h"
#include "DirectoryRecords.h"
#include "EditorState.h"
#include "Messages.h"
#include "ProfileStore.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

namespace {

constexpr const char *kContext = "TFormProfilC";

struct Caption
{
    const char *name;
    ControlKind kind;
    const char *parent;
    const char *text;
};

// The form's fixed controls: the profile's settings, the tolerance grid, the list of stored
// profiles and the buttons.
constexpr Caption kCaptions[] = {
    {"TFormProfilC", ControlKind::Label, "", QT_TRANSLATE_NOOP("TFormProfilC", "Coin Profile")},
    {"LabelName", ControlKind::Label, "", QT_TRANSLATE_NOOP("TFormProfilC", "&Name :")},
    {"EditName", ControlKind::Edit, "", nullptr},
    {"LabelDescription", ControlKind::Label, "",
     QT_TRANSLATE_NOOP("TFormProfilC", "&Description :")},
    {"EditDescription", ControlKind::Edit, "", nullptr},
    {"LabelSubstitution", ControlKind::Label, "",
     QT_TRANSLATE_NOOP("TFormProfilC", "Substitution channel :")},
    {"CheckEnable", ControlKind::Check, "", QT_TRANSLATE_NOOP("TFormProfilC", "&Enable")},
    {"LabelValue", ControlKind::Label, "", QT_TRANSLATE_NOOP("TFormProfilC", "&Value : ")},
    {"EditValue", ControlKind::Edit, "", nullptr},
    {"RadioPriceLine", ControlKind::Radio, "", nullptr},
    {"GroupTolerances", ControlKind::Group, "", QT_TRANSLATE_NOOP("TFormProfilC", "Tolerances")},
    {"GridTolerances", ControlKind::Panel, "GroupTolerances", nullptr},
    {"ColToleranceKey", ControlKind::Label, "GridTolerances",
     QT_TRANSLATE_NOOP("TFormProfilC", "Description")},
    {"ColToleranceValue", ControlKind::Label, "GridTolerances",
     QT_TRANSLATE_NOOP("TFormProfilC", "Values")},
    {"GridProfiles", ControlKind::Radio, "", nullptr},
    {"ColItems", ControlKind::Label, "GridProfiles", QT_TRANSLATE_NOOP("TFormProfilC", "Items")},
    {"ColDescription", ControlKind::Label, "GridProfiles",
     QT_TRANSLATE_NOOP("TFormProfilC", "Description")},
    {"DBNavigator1", ControlKind::Panel, "", nullptr},
    {"DBNavigator1First", ControlKind::Button, "DBNavigator1", nullptr},
    {"DBNavigator1Prior", ControlKind::Button, "DBNavigator1", nullptr},
    {"DBNavigator1Next", ControlKind::Button, "DBNavigator1", nullptr},
    {"DBNavigator1Last", ControlKind::Button, "DBNavigator1", nullptr},
    {"DBNavigator1Delete", ControlKind::Button, "DBNavigator1", nullptr},
    {"BtnOpen", ControlKind::Button, "", QT_TRANSLATE_NOOP("TFormProfilC", "&Open")},
    {"BtnSave", ControlKind::Button, "", QT_TRANSLATE_NOOP("TFormProfilC", "&Save")},
    {"BtnExit", ControlKind::Button, "", QT_TRANSLATE_NOOP("TFormProfilC", "&Exit")},
    {"BtnCancel", ControlKind::Button, "", QT_TRANSLATE_NOOP("TFormProfilC", "&Cancel")},
};

// The rows of the tolerance grid: those of the tolerance dialog, with row 4 spelt as this form
// has always spelt it.
constexpr const char *kToleranceKeys[ProfilCModel::kToleranceRows] = {
    QT_TRANSLATE_NOOP("TFormProfilC", "HFU low min."),
    QT_TRANSLATE_NOOP("TFormProfilC", "HFU low max."),
    QT_TRANSLATE_NOOP("TFormProfilC", "HFU high min."),
    QT_TRANSLATE_NOOP("TFormProfilC", "Hfu high max."),
    QT_TRANSLATE_NOOP("TFormProfilC", "Dimension min."),
    QT_TRANSLATE_NOOP("TFormProfilC", "Dimension max."),
    QT_TRANSLATE_NOOP("TFormProfilC", "LF min."),
    QT_TRANSLATE_NOOP("TFormProfilC", "LF max."),
    QT_TRANSLATE_NOOP("TFormProfilC", "HFL low min."),
    QT_TRANSLATE_NOOP("TFormProfilC", "HFL low max."),
    QT_TRANSLATE_NOOP("TFormProfilC", "HFL high min."),
    QT_TRANSLATE_NOOP("TFormProfilC", "HFL high max."),
    QT_TRANSLATE_NOOP("TFormProfilC", "HFL amp min."),
    QT_TRANSLATE_NOOP("TFormProfilC", "HFL amp max."),
};
// The navigator's buttons show pictures: their names are their hints.
constexpr std::pair<const char *, const char *> kNavigator[] = {
    {"DBNavigator1", QT_TRANSLATE_NOOP("TFormProfilC", "Record navigator")},
    {"DBNavigator1First", QT_TRANSLATE_NOOP("TFormProfilC", "First record")},
    {"DBNavigator1Prior", QT_TRANSLATE_NOOP("TFormProfilC", "Prior record")},
    {"DBNavigator1Next", QT_TRANSLATE_NOOP("TFormProfilC", "Next record")},
    {"DBNavigator1Last", QT_TRANSLATE_NOOP("TFormProfilC", "Last record")},
    {"DBNavigator1Delete", QT_TRANSLATE_NOOP("TFormProfilC", "Delete record")},
};
constexpr const char *kPriceLines[] = {QT_TRANSLATE_NOOP("TFormProfilC", "&P1"),
                                       QT_TRANSLATE_NOOP("TFormProfilC", "P2")};

const QString kSpin = QStringLiteral("SpinSub");
const QString kValue = QStringLiteral("EditValue");
const QString kPriceLine = QStringLiteral("RadioPriceLine");
const QString kGrid = QStringLiteral("GridTolerances");
const QString kProfiles = QStringLiteral("GridProfiles");

// The width the coin learning form shows values in.
constexpr int kValueWidth = 6;

} // namespace

QString ProfilCModel::toleranceName(int row)
{
    return QStringLiteral("Tolerance%1").arg(row + 1);
}

QString ProfilCModel::toleranceKeyName(int row)
{
    return QStringLiteral("ToleranceKey%1").arg(row + 1);
}

DecimalWord ProfilCModel::valueBase(const ConfigImage &image, int channel)
{
    const int at = channel >= 31 ? Val::Base2 : Val::Base1;
    return FormatDecimalWord({image.values[std::size_t(at)], image.values[std::size_t(at + 1)]});
}

ProfilCModel::ProfilCModel(ProfileStore &store, UserPrompt *prompt, int channel,
                           const ConfigImage &image)
    : ProfilCModel(std::make_unique<DirectoryRecords>(store.module(), store.prompt()), prompt,
                   channel, image)
{}

ProfilCModel::ProfilCModel(std::unique_ptr<RecordStore> own, UserPrompt *prompt, int channel,
                           const ConfigImage &image)
    : ProfilCModel(*own, prompt, channel, image)
{
    m_own = std::move(own);
}

ProfilCModel::~ProfilCModel() = default;

ProfilCModel::ProfilCModel(RecordStore &store, UserPrompt *prompt, int channel,
                           const ConfigImage &image)
    : FormModel(kContext, prompt), m_store(store), m_base(valueBase(image, channel))
{
    build();
    retranslate();
    refreshProfiles();
    flush();
}

void ProfilCModel::build()
{
    ControlSet &controls = c();
    for (const Caption &caption : kCaptions) {
        controls.add(QLatin1String(caption.name), caption.kind, QLatin1String(caption.parent));
        if (qstrcmp(caption.name, "LabelSubstitution") == 0)
            addSpin(kSpin, 0, 31);
    }
    for (int row = 0; row < kToleranceRows; ++row) {
        controls.add(toleranceKeyName(row), ControlKind::Label, kGrid);
        controls.add(toleranceName(row), ControlKind::Edit, kGrid);
        controls.setBuddy(toleranceName(row), toleranceKeyName(row));
    }
    controls.setBuddy(QStringLiteral("EditName"), QStringLiteral("LabelName"));
    controls.setBuddy(QStringLiteral("EditDescription"), QStringLiteral("LabelDescription"));
    controls.setBuddy(kSpin, QStringLiteral("LabelSubstitution"));
    controls.setBuddy(kValue, QStringLiteral("LabelValue"));
    controls.setChecked(QStringLiteral("CheckEnable"), true);
    const Tolerances defaults;
    for (int row = 0; row < kToleranceRows; ++row)
        showTolerance(row, defaults.values[std::size_t(row)]);
}

void ProfilCModel::retranslate()
{
    for (const Caption &caption : kCaptions) {
        if (caption.text)
            this->caption(QLatin1String(caption.name), caption.text);
    }
    for (int row = 0; row < kToleranceRows; ++row)
        caption(toleranceKeyName(row), kToleranceKeys[row]);
    c().setItems(kPriceLine, {tr(kPriceLines[0]), tr(kPriceLines[1])});
    for (const auto &[name, hint] : kNavigator) {
        if (qstrcmp(name, "DBNavigator1") != 0)
            c().setToolTip(QLatin1String(name), tr(hint));
        c().setAccessibleName(QLatin1String(name), tr(hint));
    }
    // The value's unit and largest amount, from the base of the channel the profile is for.
    c().setToolTip(kValue, EditorState::amountTip(m_base, true));
    flush();
}

// ---- the list of profiles ------------------------------------------------------------------

void ProfilCModel::refreshProfiles()
{
    m_profiles.clear();
    QStringList names;
    for (const ProfileStore::Entry &entry : m_store.profiles()) {
        m_profiles.append({entry.name, entry.description});
        names.append(entry.name);
    }
    // Emptied first, so that the view shows the list again even when only a description
    // changed.
    c().setItems(kProfiles, {});
    c().setItems(kProfiles, names);
    const int selected = control(kProfiles).itemIndex;
    if (selected >= names.size())
        c().setItemIndex(kProfiles, int(names.size()) - 1);
    else if (selected < 0 && !names.isEmpty())
        c().setItemIndex(kProfiles, 0);
}

QString ProfilCModel::profileDescription(int row) const
{
    return row >= 0 && row < m_profiles.size() ? m_profiles.at(row).second : QString();
}

// ---- value and tolerances -------------------------------------------------------------------

void ProfilCModel::valueExit()
{
    if (!m_valueChanged)
        return;
    m_valueChanged = false;
    const ChannelAmount amount =
        CheckChannelAmount(control(kValue).text, m_base.magnitude, m_base.decimals);
    std::optional<quint8> byte;
    if (amount.fit == AmountFit::NotAnAmount || amount.fit == AmountFit::Negative)
        tell(messageText(Msg::ValueBetween0And255), UserPrompt::Kind::Warning);
    else
        byte = amount.byte;
    // An amount past the base's 252 steps is held at the largest, and said.
    if (amount.fit == AmountFit::OverMaximum)
        tell(messageText(Msg::ValueOverMaximum), UserPrompt::Kind::Warning);
    c().setText(kValue, FormatChannelValue(m_base.decimals, kValueWidth, m_base.magnitude,
                                           byte.value_or(kNotSet)));
    c().setItemIndex(kPriceLine, -1);
}

void ProfilCModel::showTolerance(int row, int value)
{
    c().setText(toleranceName(row), QString::asprintf("%7d", value));
}

bool ProfilCModel::normaliseRows(int from, int to)
{
    for (int row = from; row < to; ++row) {
        const QString text = control(toleranceName(row)).text;
        bool ok = false;
        const int value = text.trimmed().toInt(&ok);
        if (!ok) {
            tell(messageText(Msg::NotValidInteger, {text}), UserPrompt::Kind::Error);
            return false;
        }
        showTolerance(row, value);
    }
    return true;
}

std::optional<std::array<int, ProfilCModel::kToleranceRows>> ProfilCModel::toleranceValues()
{
    std::array<int, kToleranceRows> values{};
    for (int row = 0; row < kToleranceRows; ++row) {
        const QString text = control(toleranceName(row)).text;
        bool ok = false;
        values[std::size_t(row)] = text.trimmed().toInt(&ok);
        if (!ok) {
            tell(messageText(Msg::NotValidInteger, {text}), UserPrompt::Kind::Error);
            return std::nullopt;
        }
    }
    return values;
}

int ProfilCModel::toleranceRowOf(const QString &name) const
{
    for (int row = 0; row < kToleranceRows; ++row) {
        if (name == toleranceName(row))
            return row;
    }
    return -1;
}

// ---- what a person does ---------------------------------------------------------------------

void ProfilCModel::typed(const QString &name, const QString &text)
{
    FormModel::typed(name, text);
    if (name == kValue) {
        m_valueChanged = true;
        c().setItemIndex(kPriceLine, -1);
    }
}

void ProfilCModel::left(const QString &name)
{
    if (name == kValue)
        valueExit();
    else if (name == kGrid)
        normaliseRows(0, kToleranceRows);
    else if (const int row = toleranceRowOf(name); row >= 0)
        normaliseRows(row, row + 1);
}

void ProfilCModel::clicked(const QString &name)
{
    FormModel::clicked(name);
    if (name == QLatin1String("BtnOpen"))
        BtnOpenClick();
    else if (name == QLatin1String("BtnSave"))
        BtnSaveClick();
    else if (name == QLatin1String("BtnExit"))
        BtnExitClick();
    else if (name == QLatin1String("BtnCancel"))
        BtnCancelClick();
    else if (name.startsWith(QLatin1String("DBNavigator1")))
        navigate(name.mid(12));
}

void ProfilCModel::navigate(const QString &button)
{
    const int count = int(m_profiles.size());
    const int row = control(kProfiles).itemIndex;
    if (count == 0)
        return;
    if (button == QLatin1String("First"))
        c().setItemIndex(kProfiles, 0);
    else if (button == QLatin1String("Prior"))
        c().setItemIndex(kProfiles, std::max(row - 1, 0));
    else if (button == QLatin1String("Next"))
        c().setItemIndex(kProfiles, std::min(row + 1, count - 1));
    else if (button == QLatin1String("Last"))
        c().setItemIndex(kProfiles, count - 1);
    else if (button == QLatin1String("Delete") && row >= 0 && row < count)
        deleteProfile(row);
}

void ProfilCModel::deleteProfile(int row)
{
    if (!m_store.canChangeProfiles()) {
        tell(m_store.errorString(), UserPrompt::Kind::Error);
        return;
    }
    if (ask(messageText(Msg::DeleteRecord), UserPrompt::Buttons::OkCancel) !=
        UserPrompt::Answer::Ok)
        return;
    if (!m_store.removeProfile(m_profiles.at(row).first))
        tell(m_store.errorString(), UserPrompt::Kind::Error);
    // The row after the deleted one takes its place, or the last row.
    refreshProfiles();
    c().setItemIndex(kProfiles, std::min(row, int(m_profiles.size()) - 1));
}

void ProfilCModel::picked(const QString &name, int item)
{
    FormModel::picked(name, item);
    // The selector shows its price line in the value box, as the coin learning form does.
    if (name == kPriceLine) {
        m_valueChanged = false;
        c().setText(kValue,
                    FormatChannelValue(0, kValueWidth, 1, item == 0 ? kValuePrice1 : kValuePrice2));
    }
}

void ProfilCModel::GridTolerancesClick()
{
    act([this] { normaliseRows(0, kToleranceRows); });
}

// ---- the buttons ----------------------------------------------------------------------------

void ProfilCModel::BtnOpenClick()
{
    const int row = control(kProfiles).itemIndex;
    if (row < 0 || row >= m_profiles.size())
        return;
    const std::optional<ProfileRecord> p = m_store.loadProfile(m_profiles.at(row).first);
    if (!p) {
        if (!m_store.errorString().isEmpty())
            tell(m_store.errorString(), UserPrompt::Kind::Error);
        return;
    }
    c().setText(QStringLiteral("EditName"), p->name);
    c().setText(QStringLiteral("EditDescription"), p->description);
    setSpinValue(kSpin, p->substitute);
    c().setChecked(QStringLiteral("CheckEnable"), p->enabled);
    const quint8 byte = p->value && *p->value >= 0 && *p->value < 256 ? quint8(*p->value) : kNotSet;
    c().setText(kValue, FormatChannelValue(m_base.decimals, kValueWidth, m_base.magnitude, byte));
    c().setItemIndex(kPriceLine, byte == kValuePrice1 ? 0 : byte == kValuePrice2 ? 1 : -1);
    m_valueChanged = false;
    const Tolerances defaults;
    for (int row = 0; row < kToleranceRows; ++row)
        showTolerance(row,
                      p->tolerances[std::size_t(row)].value_or(defaults.values[std::size_t(row)]));
}

void ProfilCModel::BtnSaveClick()
{
    // The value box may still hold the focus: its text is taken as if it had been left.
    valueExit();
    const auto values = toleranceValues();
    if (!values)
        return;
    ProfileRecord p;
    p.name = control(QStringLiteral("EditName")).text;
    p.description = control(QStringLiteral("EditDescription")).text;
    p.substitute = spinValue(kSpin);
    p.enabled = control(QStringLiteral("CheckEnable")).checked;
    const quint8 byte = ParseChannelValue(control(kValue).text, m_base.magnitude, m_base.decimals)
                            .value_or(kNotSet);
    if (byte != kNotSet)
        p.value = byte;
    for (int row = 0; row < kToleranceRows; ++row)
        p.tolerances[std::size_t(row)] = (*values)[std::size_t(row)];
    flush();
    if (m_store.saveProfile(p) != ProfileStore::Outcome::Saved)
        return;
    refreshProfiles();
    for (int row = 0; row < m_profiles.size(); ++row) {
        if (m_profiles.at(row).first.compare(p.name.trimmed(), Qt::CaseInsensitive) == 0) {
            c().setItemIndex(kProfiles, row);
            break;
        }
    }
}

void ProfilCModel::BtnExitClick()
{
    valueExit();
    const auto values = toleranceValues();
    if (!values)
        return;
    CoinProfile profile;
    profile.name = control(QStringLiteral("EditName")).text.trimmed();
    profile.description = control(QStringLiteral("EditDescription")).text;
    profile.substitute = spinValue(kSpin);
    profile.value = control(kValue).text;
    profile.priceLine = control(kPriceLine).itemIndex;
    // The learning tolerances are bytes: the low eight bits of each row.
    for (int row = 0; row < kToleranceRows; ++row)
        profile.tolerances.values[std::size_t(row)] = quint8((*values)[std::size_t(row)]);
    m_result = profile;
    close(true);
}

void ProfilCModel::BtnCancelClick()
{
    m_result.reset();
    close(false);
}
