#include "IdentityModel.h"

#include "Captions.h"
#include "Messages.h"

namespace {

struct LabelledBox
{
    const char *label;
    const char *box;
    ControlKind kind;
    Cap caption;
};

constexpr LabelledBox kRows[] = {
    {"LSerial", "ESerial", ControlKind::Edit, Cap::SerialNumber},
    {"LVersion", "LVERSIONH", ControlKind::Label, Cap::Version},
    {"LFirmwareDate", "LVERSIONS", ControlKind::Label, Cap::FirmwareDate},
    {"LProgrammingDate", "LDatePgm", ControlKind::Label, Cap::ProgrammingDate},
    {"LProductionDate", "LDateProduct", ControlKind::Label, Cap::ProductionDate},
    {"LIdent", "EIdent", ControlKind::Edit, Cap::Identification},
    {"LDescription", "EDescription", ControlKind::Edit, Cap::Description},
};

// A gate opens when the firmware date is strictly later than its threshold. Both dates go
// through the same text form, so that they are read alike.
bool laterThan(const QDate &firmware, const QDate &threshold)
{
    return firmware > ParseUserDate(FormatUserDate(threshold));
}

} // namespace

void IdentityModel::addControls()
{
    ControlSet &c = m_s.controls;
    c.add(QStringLiteral("GroupIdent"), ControlKind::Group);
    for (const LabelledBox &row : kRows) {
        c.add(QLatin1String(row.label), ControlKind::Label, QStringLiteral("GroupIdent"));
        c.add(QLatin1String(row.box), row.kind, QStringLiteral("GroupIdent"));
        c.setBuddy(QLatin1String(row.box), QLatin1String(row.label));
    }
    retranslate();
}

void IdentityModel::retranslate()
{
    ControlSet &c = m_s.controls;
    c.setText(QStringLiteral("GroupIdent"), captionText(Cap::GroupIdent));
    for (const LabelledBox &row : kRows)
        c.setText(QLatin1String(row.label), captionText(row.caption));
}

void IdentityModel::display()
{
    ControlSet &c = m_s.controls;
    const ConfigImage &image = m_s.image;

    // An unknown family leaves the text as it was.
    const QString family = QString::fromLatin1(familyText(image.familyByte()));
    if (!family.isEmpty())
        c.setText(QStringLiteral("LVERSIONH"), family);

    const QDate firmware = m_s.firmwareDate();
    c.setText(QStringLiteral("LVERSIONS"), firmware.isValid()
                                               ? FormatDate16({image.version[1], image.version[2]})
                                               : messageText(Msg::NotAvailable));

    const bool byMiniPgm = image.ident[0] == 255 && image.ident[1] == 0;
    c.setText(QStringLiteral("LDatePgm"), byMiniPgm
                                              ? messageText(Msg::ByMiniPgm)
                                              : FormatDate16({image.ident[0], image.ident[1]}));
    c.setText(QStringLiteral("LDateProduct"), FormatDate16({image.ident[2], image.ident[3]}));

    const quint32 serial = image.serialNumber();
    c.setText(QStringLiteral("ESerial"), serial == 0 || serial == 0xFFFFFFFF
                                             ? messageText(Msg::NotAvailable)
                                             : QString::number(serial));
    applyGates();
}

void IdentityModel::applyGates()
{
    const QString text = m_s.text(QStringLiteral("LVERSIONS"));
    if (text == messageText(Msg::NotAvailable))
        return;
    const QDate firmware = ParseUserDate(text);
    if (!firmware.isValid())
        return;
    m_gates.testValue = laterThan(firmware, QDate(2002, 1, 2));
    m_gates.separatorGroup = laterThan(firmware, QDate(2002, 5, 14));
    m_gates.jamInhibition = laterThan(firmware, QDate(2002, 3, 26));
    m_gates.multiPulse = laterThan(firmware, QDate(2002, 6, 2));
}

void IdentityModel::store()
{
    bool ok = false;
    const qint64 serial = m_s.text(QStringLiteral("ESerial")).trimmed().toLongLong(&ok);
    if (ok)
        m_s.image.setSerialNumber(quint32(serial));
}
