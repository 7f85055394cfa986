#include "WriteVerification.h"

#include "Captions.h"
#include "Messages.h"
#include "WriteReport.h"

#include <algorithm>

namespace {

// A refused step the comparison cannot see (the validator's own block and the programming date
// are not compared, and a refused block may already have held what was sent) still left the
// validator without what the write meant to give it: it is a mismatch of its own.
void addRefusedSteps(const WriteSteps &steps, QList<ConfigChange> &mismatches)
{
    auto shown = [&](ChangeGroup group, int channel) {
        return std::any_of(mismatches.begin(), mismatches.end(), [&](const ConfigChange &c) {
            return c.group == group && (channel < 0 || c.channel == channel);
        });
    };
    auto add = [&](ChangeGroup group, int channel, const QString &key, const QString &where,
                   const QString &field) {
        ConfigChange change;
        change.group = group;
        change.channel = channel;
        change.key = QStringLiteral("refused.") + key;
        change.where = where;
        change.field = field;
        change.before = captionText(Cap::DiffSent);
        change.after = captionText(Cap::DiffRefused);
        mismatches.append(change);
    };
    for (int k = 0; k < kChannels; ++k) {
        if (steps.channels[std::size_t(k)] == StepEnd::Refused && !shown(ChangeGroup::Channels, k))
            add(ChangeGroup::Channels, k, QStringLiteral("channel.%1").arg(k + 1),
                captionText(Cap::ChannelNumber, {QString::number(k + 1)}).trimmed(), {});
    }
    const struct
    {
        StepEnd end;
        ChangeGroup group;
        const char *key;
        QString name;
    } blocks[] = {
        {steps.values, ChangeGroup::Values, "values", changeGroupName(ChangeGroup::Values)},
        {steps.options, ChangeGroup::Config, "config", changeGroupName(ChangeGroup::Config)},
        {steps.prices, ChangeGroup::Prices, "prices", changeGroupName(ChangeGroup::Prices)},
        {steps.enable, ChangeGroup::Enable, "enable", changeGroupName(ChangeGroup::Enable)},
        {steps.counters, ChangeGroup::Counters, "counters", changeGroupName(ChangeGroup::Counters)},
        {steps.ident, ChangeGroup::Identification, "identification",
         changeGroupName(ChangeGroup::Identification)},
        {steps.ownBlock, ChangeGroup::Identification, "own_block", captionText(Cap::OwnBlock)},
    };
    for (const auto &block : blocks) {
        // The validator's own block is never compared: its refusal always shows.
        const bool own = qstrcmp(block.key, "own_block") == 0;
        if (block.end == StepEnd::Refused && (own || !shown(block.group, -1)))
            add(block.group, -1, QLatin1String(block.key), {}, block.name);
    }
}

} // namespace

ConfigImage expectedAfterWrite(const ConfigImage &readBack, const SentBlocks &sent)
{
    ConfigImage expected = readBack;
    for (std::size_t k = 0; k < sent.channels.size(); ++k) {
        if (const auto &record = sent.channels[k])
            std::copy(record->begin(), record->end(), expected.channels[k].begin());
    }
    if (sent.options)
        expected.options = *sent.options;
    if (sent.values)
        expected.values = *sent.values;
    if (sent.prices)
        expected.prices = *sent.prices;
    if (sent.enable)
        expected.enable = *sent.enable;
    if (sent.counters)
        expected.counters = *sent.counters;
    if (sent.ident) {
        expected.ident = *sent.ident;
        // The programming date is the validator's to set.
        expected.ident[0] = readBack.ident[0];
        expected.ident[1] = readBack.ident[1];
    }
    expected.refreshRecordCopies();
    return expected;
}

VerifyResult compareWithReadBack(const ConfigImage &readBack, const SentBlocks &sent)
{
    VerifyResult result;
    result.readBack = readBack;
    result.mismatches = configDifferences(expectedAfterWrite(readBack, sent), readBack);
    addRefusedSteps(sent.steps, result.mismatches);
    result.outcome =
        result.mismatches.isEmpty() ? VerifyOutcome::Verified : VerifyOutcome::Mismatches;
    return result;
}

VerifyResult verifyWrite(TMonnayeur &link, const SentBlocks &sent, const ReadObserver &observer)
{
    ConfigImage readBack = ConfigImage::blank();
    if (readValidator(link, readBack, false, observer) != ReadOutcome::Done)
        return {};
    return compareWithReadBack(readBack, sent);
}

QString verificationMessage(const VerifyResult &result, int maxLines)
{
    switch (result.outcome) {
    case VerifyOutcome::ReadBackFailed:
        return messageText(Msg::VerificationFailed);
    case VerifyOutcome::Verified:
        return messageText(Msg::Verified);
    case VerifyOutcome::Mismatches:
        break;
    }
    QStringList lines{messageText(Msg::VerificationMismatch)};
    const qsizetype count = result.mismatches.size();
    const qsizetype shown = maxLines > 0 && count > maxLines ? maxLines - 1 : count;
    for (qsizetype i = 0; i < shown; ++i)
        lines.append(result.mismatches.at(i).text());
    if (shown < count)
        lines.append(messageText(Msg::VerificationMore, {QString::number(count - shown)}));
    return lines.join(u'\n');
}
