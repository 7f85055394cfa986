#include "EditorState.h"

#include "Captions.h"
#include "Messages.h"
#include "UserPrompt.h"

void EditorState::tell(const QString &text) const
{
    if (prompt)
        prompt->tell(text, UserPrompt::Kind::Information);
}

DecimalWord EditorState::base(int channel) const
{
    const int at = channel < 30 ? Val::Base1 : Val::Base2;
    return FormatDecimalWord({image.values[std::size_t(at)], image.values[std::size_t(at + 1)]});
}

QDate EditorState::firmwareDate() const
{
    const quint16 word = quint16(image.version[1] << 8 | image.version[2]);
    if (word == 0 || word == 0xFFFF)
        return {};
    return DecodeDate16({image.version[1], image.version[2]});
}

int EditorState::outputType() const
{
    return outputTypeOf(image.options);
}

int outputTypeOf(const OptionWord &options)
{
    // The low three bits of the second byte give the type; the types 4, 6 and 7 share the code
    // 0 and differ in bits 4 and 5 of the first byte.
    switch (options[1] & 0x07) {
    case 7:
        return 0;
    case 3:
        return 1;
    case 1:
        return 2;
    case 2:
        return 3;
    default:
        switch (options[0] & 0x30) {
        case 0x20:
            return 6;
        case 0x10:
            return 7;
        default:
            return 4;
        }
    }
}

Word2 EditorState::valueWord(int at) const
{
    return {image.values[std::size_t(at)], image.values[std::size_t(at + 1)]};
}

void EditorState::setValueWord(int at, Word2 word)
{
    image.values[std::size_t(at)] = word[0];
    image.values[std::size_t(at + 1)] = word[1];
}

quint8 EditorState::substituteValue(int s) const
{
    return s >= 1 && s <= kChannels ? image.valueByte(s - 1) : 0;
}

void EditorState::tellMultiPulse(int channel, int substitute) const
{
    tell(messageText(
        Msg::MultiPulseIncompatible,
        {QString::number(channel), QString::number(substitute), QString::number(kMaxPulses)}));
}

std::optional<quint8> EditorState::takeAmount(const QString &text, const DecimalWord &base,
                                              bool *notNumber) const
{
    const ChannelAmount amount = CheckChannelAmount(text, base.magnitude, base.decimals);
    *notNumber = amount.fit == AmountFit::NotAnAmount;
    switch (amount.fit) {
    case AmountFit::Fits:
        return amount.byte;
    case AmountFit::OverMaximum:
        tell(messageText(Msg::ValueOverMaximum));
        return amount.byte;
    case AmountFit::Negative:
        tell(messageText(Msg::AmountNegative, {text.trimmed()}));
        return std::nullopt;
    case AmountFit::NotAnAmount:
        break;
    }
    return std::nullopt;
}

QString EditorState::amountTip(const DecimalWord &base, bool channelValue)
{
    const QString step = ChannelValueStep(base.magnitude, base.decimals).trimmed();
    if (step.isEmpty())
        return captionText(Cap::TipNoBase);
    return captionText(channelValue ? Cap::TipChannelValue : Cap::TipAmount,
                       {step, ChannelValueMaximum(base.magnitude, base.decimals).trimmed()});
}
