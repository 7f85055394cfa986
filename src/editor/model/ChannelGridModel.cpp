#include "ChannelGridModel.h"

#include "Captions.h"

const ChannelGridModel::Column ChannelGridModel::kColumnTable[kColumns] = {
    {"EHFUBMIN", Rec::HfuLowMin},
    {"EHFUBMAX", Rec::HfuLowMax},
    {"EHFUHMIN", Rec::HfuHighMin},
    {"EHFUHMAX", Rec::HfuHighMax},
    {"EDIMMIN", Rec::DimMin},
    {"EDIMMAX", Rec::DimMax},
    {"ELFMIN", Rec::LfMin},
    {"ELFMAX", Rec::LfMax},
    {"EHFBMIN", Rec::HflLowMin},
    {"EHFBMAX", Rec::HflLowMax},
    {"EHFHMIN", Rec::HflHighMin},
    {"EHFHMAX", Rec::HflHighMax},
    {"EHFAMIN", Rec::AmpMin},
    {"EHFAMAX", Rec::AmpMax},
    {"Enable", -1},
    {"Value", -1},
    {"Sub", Rec::Substitute},
};

namespace {

constexpr int kEnableColumn = 14;

QString pageName(int page)
{
    return QStringLiteral("Tableau%1").arg(page);
}

// The channel index of a per-channel control name with the given prefix, or -1.
int channelOf(const QString &name, const char *prefix)
{
    const QLatin1String p(prefix);
    if (!name.startsWith(p) || name.size() == p.size())
        return -1;
    bool ok = false;
    const int k = name.mid(p.size()).toInt(&ok);
    return ok && k >= 0 && k < kChannels && name == p + QString::number(k) ? k : -1;
}

} // namespace

void ChannelGridModel::addControls()
{
    ControlSet &c = m_s.controls;
    for (int page = 1; page <= kPages; ++page)
        c.add(pageName(page), ControlKind::Page);
    for (int k = 0; k < kChannels; ++k) {
        const QString page = pageName(k / 10 + 1);
        const QString panel = channelControl("Canal", k);
        c.add(panel, ControlKind::Panel, page);
        c.add(channelControl("LCanal", k), ControlKind::Label, panel);
        for (const Column &column : kColumnTable) {
            const bool check = QLatin1String(column.prefix) == QLatin1String("Enable");
            c.add(channelControl(column.prefix, k), check ? ControlKind::Check : ControlKind::Edit,
                  panel);
        }
        c.setText(channelControl("LCanal", k), QString::number(k + 1));
    }
    retranslate();
}

void ChannelGridModel::retranslate()
{
    ControlSet &c = m_s.controls;
    for (int page = 1; page <= kPages; ++page)
        c.setText(pageName(page), captionText(Cap(int(Cap::Page1) + page - 1)));
    if (m_light)
        showModel(true);
    for (int k = 0; k < kChannels; ++k) {
        const QString channel = captionText(Cap::ChannelNumber, {QString::number(k + 1)});
        for (int col = 0; col < kColumns; ++col)
            c.setAccessibleName(channelControl(kColumnTable[col].prefix, k),
                                channel + captionText(Cap(int(Cap::ColHfuLowMin) + col)));
    }
}

void ChannelGridModel::showModel(bool light)
{
    m_light = light;
    ControlSet &c = m_s.controls;
    // The third page's caption reads "Channel 21 to 25" on the Light model.
    QString third = c.state(pageName(3)).text;
    if (light)
        third.replace(QLatin1String("30"), QLatin1String("25"));
    else
        third.replace(QLatin1String("25"), QLatin1String("30"));
    c.setText(pageName(3), third);
    for (int page = 4; page <= kPages; ++page)
        c.setVisible(pageName(page), !light);
    for (int k = 25; k < 30; ++k)
        c.setVisible(channelControl("Canal", k), !light);
    const int last = kLightChannels - 1;
    c.setEnabled(channelControl("Canal", last), !light);
    c.setEnabled(channelControl("LCanal", last), !light);
    for (const Column &column : kColumnTable)
        c.setEnabled(channelControl(column.prefix, last), !light);
}

void ChannelGridModel::showPage(int page)
{
    if (page >= 1 && page <= kPages)
        m_s.controls.setVisible(pageName(page), true);
}

void ChannelGridModel::display()
{
    ConfigImage &image = m_s.image;
    ControlSet &c = m_s.controls;
    const int count = image.channelCount();
    const DecimalWord base1 = m_s.base(0);
    const DecimalWord base2 = m_s.base(30);
    for (int k = 0; k < count; ++k) {
        ChannelRecord &record = image.channels[std::size_t(k)];
        for (int col = 0; col < kColumns; ++col) {
            const int byte = kColumnTable[col].recordByte;
            if (byte >= 0)
                c.setText(channelControl(kColumnTable[col].prefix, k),
                          ByteToText(3, record[std::size_t(byte)]));
        }
        record[Rec::Value] = image.valueByte(k);
        const DecimalWord &base = k < 30 ? base1 : base2;
        c.setText(channelControl("Value", k),
                  FormatChannelValue(base.decimals, EditorState::kValueWidth, base.magnitude,
                                     record[Rec::Value]));
        c.setToolTip(channelControl("Value", k), EditorState::amountTip(base, true));
        record[Rec::Enabled] = image.enableBit(k) ? 1 : 0;
        c.setChecked(channelControl("Enable", k), record[Rec::Enabled] != 0);
    }
}

QStringList ChannelGridModel::store(const DecimalWord &base1, const DecimalWord &base2,
                                    AmountTrouble *trouble)
{
    ConfigImage &image = m_s.image;
    QStringList notNumbers;
    // All 60 channels, also on the Light model: the hidden boxes still hold their last texts.
    for (int k = 0; k < kChannels; ++k) {
        ChannelRecord &record = image.channels[std::size_t(k)];
        for (int col = 0; col < kColumns; ++col) {
            const int byte = kColumnTable[col].recordByte;
            if (byte < 0)
                continue;
            const QString name = channelControl(kColumnTable[col].prefix, k);
            const auto value = TextToByte(m_s.text(name));
            if (!value)
                notNumbers.append(name);
            record[std::size_t(byte)] = value.value_or(kNotSet);
        }
        const QString valueBox = channelControl("Value", k);
        const DecimalWord &base = k < 30 ? base1 : base2;
        const QString text = m_s.text(valueBox);
        const ChannelAmount amount = CheckChannelAmount(text, base.magnitude, base.decimals);
        if (amount.fit == AmountFit::NotAnAmount)
            notNumbers.append(valueBox);
        if (amount.fit == AmountFit::OverMaximum)
            trouble->overMaximum = true;
        if (amount.fit == AmountFit::Negative)
            trouble->negative.append(text.trimmed());
        else
            image.values[std::size_t(Val::Channel0 + k)] = amount.byte;
        // The hidden boxes of a Light validator may still be checked from an earlier image.
        record[Rec::Enabled] = k < image.channelCount() && m_s.checked(channelControl("Enable", k));
    }
    image.rebuildEnableBitmap();
    return notNumbers;
}

bool ChannelGridModel::isChannelBox(const QString &name)
{
    for (int col = 0; col < kColumns; ++col) {
        if (col != kEnableColumn && channelOf(name, kColumnTable[col].prefix) >= 0)
            return true;
    }
    return false;
}

int ChannelGridModel::channelIndex(const QString &name, const char *prefix)
{
    return channelOf(name, prefix);
}

int ChannelGridModel::channelOfBox(const QString &name)
{
    for (const Column &column : kColumnTable) {
        if (const int k = channelOf(name, column.prefix); k >= 0)
            return k;
    }
    return -1;
}

bool ChannelGridModel::isEnableBox(const QString &name)
{
    return channelOf(name, kColumnTable[kEnableColumn].prefix) >= 0;
}
