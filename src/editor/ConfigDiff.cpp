#include "ConfigDiff.h"

#include "Captions.h"
#include "EditorState.h"
#include "Encodings.h"
#include "Messages.h"
#include "MoneyModel.h"
#include "OptionBoxes.h"

#include <algorithm>

namespace {

// A caption as a field name: no accelerator, no trailing colon, single spaces.
QString fieldName(Cap id)
{
    QString text = captionText(id);
    text.remove(u'&');
    text = text.simplified();
    while (text.endsWith(u':'))
        text = text.chopped(1).trimmed();
    return text;
}

QString orEmpty(const QString &text)
{
    const QString t = text.trimmed();
    return t.isEmpty() ? captionText(Cap::DiffEmpty) : t;
}

QString onOff(bool on)
{
    return captionText(on ? Cap::DiffOn : Cap::DiffOff);
}

QString channelWhere(int k)
{
    return captionText(Cap::ChannelNumber, {QString::number(k + 1)}).trimmed();
}

class Differ
{
public:
    Differ(const ConfigImage &a, const ConfigImage &b, QList<ConfigChange> &out)
        : m_a(a), m_b(b), m_out(out)
    {}

    void channels();
    void values();
    void prices();
    void config();
    void enable();
    void identification();
    void counters();

private:
    void add(ChangeGroup group, int channel, QString key, QString where, QString field,
             QString before, QString after)
    {
        if (before == after)
            return;
        m_out.append(ConfigChange{group, channel, std::move(key), std::move(where),
                                  std::move(field), std::move(before), std::move(after)});
    }
    int count() const { return std::max(m_a.channelCount(), m_b.channelCount()); }

    const ConfigImage &m_a;
    const ConfigImage &m_b;
    QList<ConfigChange> &m_out;
};

// The record bytes in the order of the editor's row, with their column captions.
struct RecordField
{
    int byte;
    Cap caption;
    const char *key;
};
constexpr RecordField kRecordFields[] = {
    {Rec::HfuLowMin, Cap::ColHfuLowMin, "hfu_low_min"},
    {Rec::HfuLowMax, Cap::ColHfuLowMax, "hfu_low_max"},
    {Rec::HfuHighMin, Cap::ColHfuHighMin, "hfu_high_min"},
    {Rec::HfuHighMax, Cap::ColHfuHighMax, "hfu_high_max"},
    {Rec::DimMin, Cap::ColDimMin, "dim_min"},
    {Rec::DimMax, Cap::ColDimMax, "dim_max"},
    {Rec::LfMin, Cap::ColLfMin, "lf_min"},
    {Rec::LfMax, Cap::ColLfMax, "lf_max"},
    {Rec::HflLowMin, Cap::ColHflLowMin, "hfl_low_min"},
    {Rec::HflLowMax, Cap::ColHflLowMax, "hfl_low_max"},
    {Rec::HflHighMin, Cap::ColHflHighMin, "hfl_high_min"},
    {Rec::HflHighMax, Cap::ColHflHighMax, "hfl_high_max"},
    {Rec::AmpMin, Cap::ColHflAmpMin, "amp_min"},
    {Rec::AmpMax, Cap::ColHflAmpMax, "amp_max"},
    {Rec::Substitute, Cap::ColSub, "substitute"},
};

void Differ::channels()
{
    for (int k = 0; k < count(); ++k) {
        const ChannelRecord &a = m_a.channels[std::size_t(k)];
        const ChannelRecord &b = m_b.channels[std::size_t(k)];
        if (std::equal(a.begin(), a.begin() + 15, b.begin()))
            continue;
        for (const RecordField &f : kRecordFields) {
            const quint8 x = a[std::size_t(f.byte)];
            const quint8 y = b[std::size_t(f.byte)];
            if (x != y)
                add(ChangeGroup::Channels, k,
                    QStringLiteral("channel.%1.%2").arg(k + 1).arg(QLatin1String(f.key)),
                    channelWhere(k), fieldName(f.caption), orEmpty(ByteToText(0, x)),
                    orEmpty(ByteToText(0, y)));
        }
    }
}

DecimalWord baseOf(const ConfigImage &image, int channel)
{
    const int at = channel < 30 ? Val::Base1 : Val::Base2;
    return FormatDecimalWord({image.values[std::size_t(at)], image.values[std::size_t(at + 1)]});
}

QString ratioText(const ConfigImage &image)
{
    Long4 ratio;
    std::copy_n(image.values.begin() + Val::Conversion, 4, ratio.begin());
    return FormatExponentLong(ratio, baseOf(image, 0).decimals, baseOf(image, 30).decimals);
}

QString channelValueText(const ConfigImage &image, int k)
{
    const DecimalWord base = baseOf(image, k);
    return orEmpty(FormatChannelValue(base.decimals, 0, base.magnitude, image.valueByte(k)));
}

void Differ::values()
{
    if (m_a.values == m_b.values)
        return;
    const QString baseValue = fieldName(Cap::BaseValue);
    for (auto [at, caption, key] : {std::tuple{Val::Base1, Cap::Base1, "base.1"},
                                    std::tuple{Val::Base2, Cap::Base2, "base.2"}}) {
        const std::size_t i = std::size_t(at);
        if (m_a.values[i] != m_b.values[i] || m_a.values[i + 1] != m_b.values[i + 1])
            add(ChangeGroup::Values, -1, QLatin1String(key), baseValue, fieldName(caption),
                orEmpty(baseOf(m_a, at == Val::Base1 ? 0 : 30).text),
                orEmpty(baseOf(m_b, at == Val::Base1 ? 0 : 30).text));
    }
    if (!std::equal(m_a.values.begin() + Val::Conversion, m_a.values.begin() + Val::Conversion + 4,
                    m_b.values.begin() + Val::Conversion))
        add(ChangeGroup::Values, -1, QStringLiteral("ratio"), {}, fieldName(Cap::Ratio),
            orEmpty(ratioText(m_a)), orEmpty(ratioText(m_b)));
    for (int k = 0; k < count(); ++k) {
        if (m_a.valueByte(k) != m_b.valueByte(k))
            add(ChangeGroup::Values, k, QStringLiteral("value.%1").arg(k + 1), channelWhere(k),
                fieldName(Cap::ColValue), channelValueText(m_a, k), channelValueText(m_b, k));
    }
}

bool externalReset(const ConfigImage &image)
{
    // "External reset" shows under types 1 and 4 and is checked while bit 0 is clear.
    const int type = outputTypeOf(image.options);
    return (type == 1 || type == 4) && !(image.options[0] & 0x01);
}

QString priceText(const ConfigImage &image, int slot)
{
    const quint8 byte = image.prices[std::size_t(slot)];
    switch (MoneyModel::slotForm(slot, outputTypeOf(image.options), externalReset(image))) {
    case MoneyModel::SlotForm::Price: {
        const DecimalWord base1 = baseOf(image, 0);
        return orEmpty(FormatChannelValue(base1.decimals, 0, base1.magnitude, byte));
    }
    case MoneyModel::SlotForm::Plain:
        return orEmpty(ByteToText(0, byte));
    case MoneyModel::SlotForm::Tenths:
        return orEmpty(ByteToText(0, byte, true));
    }
    return {};
}

Cap priceCaption(const ConfigImage &image, int slot)
{
    const int type = outputTypeOf(image.options);
    if (slot == 2 && type == 3)
        return image.options[0] & 0x20 ? Cap::ServiceWidthSec : Cap::ServiceWidthMin;
    if (slot == 2 && type == 4)
        return externalReset(image) ? Cap::ResetWidthSec : Cap::MinimumResetWidthMs;
    return Cap(int(Cap::ValueP1) + slot);
}

void Differ::prices()
{
    for (int slot = 0; slot < 6; ++slot) {
        if (m_a.prices[std::size_t(slot)] != m_b.prices[std::size_t(slot)])
            add(ChangeGroup::Prices, -1, QStringLiteral("price.%1").arg(slot + 1), {},
                fieldName(priceCaption(m_b, slot)), priceText(m_a, slot), priceText(m_b, slot));
    }
}

QString outletText(const OptionWord &word)
{
    const bool vending = word[1] & 0x10;
    const bool second = word[1] & 0x08;
    if (vending)
        return captionText(second ? Cap::Vending : Cap::VendingAntiJam);
    return captionText(second ? Cap::Game : Cap::GameFast);
}

bool boxChecked(const OptionBox &box, const OptionWord &word)
{
    const bool set = word[std::size_t(box.byte)] & box.mask;
    return box.activeLow ? !set : set;
}

void Differ::config()
{
    const OptionWord &a = m_a.options;
    const OptionWord &b = m_b.options;
    // Counting and erasable belong to the counters.
    if (a[0] == b[0] && (a[1] & ~0x60) == (b[1] & ~0x60))
        return;
    const qsizetype before = m_out.size();
    const int typeA = outputTypeOf(a);
    const int typeB = outputTypeOf(b);
    add(ChangeGroup::Config, -1, QStringLiteral("type"), {}, fieldName(Cap::Type),
        captionText(kOutputTypeItems[typeA]), captionText(kOutputTypeItems[typeB]));
    add(ChangeGroup::Config, -1, QStringLiteral("outlet"), {}, fieldName(Cap::Outlet),
        outletText(a), outletText(b));
    const bool light = m_b.isLight();
    for (const OptionBox &box : kOptionBoxes) {
        const bool shown = ((box.types >> typeA) & 1) || ((box.types >> typeB) & 1);
        if (!shown || (light && box.caption == Cap::Separator))
            continue;
        const QString name = fieldName(box.caption);
        add(ChangeGroup::Config, -1, QStringLiteral("option.%1").arg(QLatin1String(box.name)), {},
            captionText(Cap::DiffOption, {name}), onOff(boxChecked(box, a)),
            onOff(boxChecked(box, b)));
    }
    // The separator's two outputs of the totalizers.
    if ((typeA != 0 || typeB != 0) && !light) {
        auto normal = [](const OptionWord &w) { return !(w[0] & 0x04) && (w[0] & 0x08); };
        auto inverted = [](const OptionWord &w) { return !(w[0] & 0x04) && !(w[0] & 0x08); };
        for (auto [caption, key, test] : {std::tuple{Cap::NormalOutput, "CheckBox6", +normal},
                                          std::tuple{Cap::InvertedOutput, "CheckBox7", +inverted}})
            add(ChangeGroup::Config, -1, QStringLiteral("option.%1").arg(QLatin1String(key)), {},
                captionText(Cap::DiffOption, {fieldName(caption)}), onOff(test(a)), onOff(test(b)));
    }
    // Bits no box shows still differ: say so in the bits' own words.
    if (m_out.size() == before) {
        auto hex = [](const OptionWord &w) {
            return QString::asprintf("$%4.4x", unsigned(w[0]) << 8 | w[1]);
        };
        add(ChangeGroup::Config, -1, QStringLiteral("option.bits"), {}, fieldName(Cap::OptionBits),
            hex(a), hex(b));
    }
}

void Differ::enable()
{
    if (m_a.enable == m_b.enable)
        return;
    auto state = [](bool on) { return captionText(on ? Cap::DiffEnabled : Cap::DiffDisabled); };
    for (int k = 0; k < count(); ++k)
        add(ChangeGroup::Enable, k, QStringLiteral("enable.%1").arg(k + 1), channelWhere(k), {},
            state(m_a.enableBit(k)), state(m_b.enableBit(k)));
}

QString familyName(const ConfigImage &image)
{
    const QString text = QString::fromLatin1(familyText(image.familyByte()));
    return text.isEmpty() ? QString::asprintf("$%2.2x", image.familyByte()) : text;
}

QString dateText(quint8 high, quint8 low)
{
    if ((high == 0 && low == 0) || (high == 255 && low == 255))
        return captionText(Cap::DiffEmpty);
    return FormatDate16({high, low});
}

QString programmingDate(const ConfigImage &image)
{
    if (image.ident[0] == 255 && image.ident[1] == 0)
        return messageText(Msg::ByMiniPgm);
    return dateText(image.ident[0], image.ident[1]);
}

QString serialText(const ConfigImage &image)
{
    const quint32 serial = image.serialNumber();
    return serial == 0 || serial == 0xFFFFFFFF ? messageText(Msg::NotAvailable)
                                               : QString::number(serial);
}

void Differ::identification()
{
    const ChangeGroup g = ChangeGroup::Identification;
    if (m_a.version[0] != m_b.version[0])
        add(g, -1, QStringLiteral("ident.version"), {}, fieldName(Cap::Version), familyName(m_a),
            familyName(m_b));
    if (m_a.version[1] != m_b.version[1] || m_a.version[2] != m_b.version[2])
        add(g, -1, QStringLiteral("ident.firmware_date"), {}, fieldName(Cap::FirmwareDate),
            dateText(m_a.version[1], m_a.version[2]), dateText(m_b.version[1], m_b.version[2]));
    if (m_a.ident[0] != m_b.ident[0] || m_a.ident[1] != m_b.ident[1])
        add(g, -1, QStringLiteral("ident.programming_date"), {}, fieldName(Cap::ProgrammingDate),
            programmingDate(m_a), programmingDate(m_b));
    if (m_a.ident[2] != m_b.ident[2] || m_a.ident[3] != m_b.ident[3])
        add(g, -1, QStringLiteral("ident.production_date"), {}, fieldName(Cap::ProductionDate),
            dateText(m_a.ident[2], m_a.ident[3]), dateText(m_b.ident[2], m_b.ident[3]));
    if (m_a.serialNumber() != m_b.serialNumber())
        add(g, -1, QStringLiteral("ident.serial"), {}, fieldName(Cap::SerialNumber),
            serialText(m_a), serialText(m_b));
}

void Differ::counters()
{
    const ChangeGroup g = ChangeGroup::Counters;
    auto word = [](const CounterBlock &block, int at) {
        return quint16(block[std::size_t(at)] << 8 | block[std::size_t(at + 1)]);
    };
    auto counter = [](quint16 w) {
        return w == 0xFFFF ? captionText(Cap::Off) : QString::number(w);
    };
    auto limit = [](quint16 w) {
        return w == 0xFFFF ? captionText(Cap::DiffEmpty) : QString::number(w);
    };
    if (m_a.counters != m_b.counters) {
        for (auto [at, caption, key, isLimit] : {std::tuple{0, Cap::Counter1, "counter.1", false},
                                                 std::tuple{2, Cap::VendLimit1, "limit.1", true},
                                                 std::tuple{4, Cap::Counter2, "counter.2", false},
                                                 std::tuple{6, Cap::VendLimit2, "limit.2", true}}) {
            const quint16 x = word(m_a.counters, at);
            const quint16 y = word(m_b.counters, at);
            if (x != y)
                add(g, -1, QLatin1String(key), {}, fieldName(caption),
                    isLimit ? limit(x) : counter(x), isLimit ? limit(y) : counter(y));
        }
    }
    // Counting is on while bit 6 of the option word's second byte is clear; bit 5 makes the
    // counters erasable.
    auto counting = [](const ConfigImage &image) {
        return captionText(image.options[1] & 0x40 ? Cap::Desactived : Cap::Actived);
    };
    add(g, -1, QStringLiteral("counting"), {}, fieldName(Cap::CashCounters), counting(m_a),
        counting(m_b));
    add(g, -1, QStringLiteral("erasable"), {}, fieldName(Cap::Erasable),
        onOff(m_a.options[1] & 0x20), onOff(m_b.options[1] & 0x20));
}

} // namespace

QString ConfigChange::text() const
{
    const QString change = before + QStringLiteral(" → ") + after;
    if (where.isEmpty())
        return field + QStringLiteral(": ") + change;
    if (field.isEmpty())
        return where + QStringLiteral(": ") + change;
    return where + QStringLiteral(": ") + field + u' ' + change;
}

QList<ConfigChange> configDifferences(const ConfigImage &before, const ConfigImage &after)
{
    QList<ConfigChange> out;
    Differ differ(before, after, out);
    differ.channels();
    differ.values();
    differ.prices();
    differ.config();
    differ.enable();
    differ.identification();
    differ.counters();
    return out;
}

namespace {

// Each group's caption and its name for scripts, in the order of ChangeGroup.
struct GroupNames
{
    Cap caption;
    const char *key;
};
constexpr GroupNames kGroupNames[] = {
    {Cap::DiffChannels, "channels"}, {Cap::DiffValues, "values"},
    {Cap::DiffPrices, "prices"},     {Cap::DiffConfig, "config"},
    {Cap::DiffEnable, "enable"},     {Cap::GroupIdent, "identification"},
    {Cap::CashCounters, "counters"},
};
static_assert(std::size(kGroupNames) == std::size_t(ChangeGroup::Counters) + 1,
              "one name per group");

} // namespace

QString changeGroupName(ChangeGroup group)
{
    return fieldName(kGroupNames[std::size_t(group)].caption);
}

const char *changeGroupKey(ChangeGroup group)
{
    return kGroupNames[std::size_t(group)].key;
}
