#include "WriteVerification.h"

#include "Messages.h"

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
