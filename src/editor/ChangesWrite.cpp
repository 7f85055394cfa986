#include "ChangesWrite.h"

#include "Commands.h"
#include "Encodings.h"
#include "Messages.h"
#include "TMonnayeur.h"
#include "UserPrompt.h"
#include "WriteReport.h"

#include <algorithm>

namespace {

// A channel record as the validator keeps it: a short record has no amplitude window.
ChannelBytes keptRecord(const ChannelRecord &record, bool longForm)
{
    ChannelBytes bytes;
    std::copy_n(record.begin(), bytes.size(), bytes.begin());
    return longForm ? bytes : TMonnayeur::widenRecord(TMonnayeur::narrowRecord(bytes).data());
}

bool sliceDiffers(const ValueBlock &a, const ValueBlock &b, int slice)
{
    const auto from = std::size_t(slice * kValueSlice);
    return !std::equal(a.begin() + from, a.begin() + from + kValueSlice, b.begin() + from);
}

void tell(TMonnayeur &link, const QString &text, UserPrompt::Kind kind)
{
    if (link.prompt())
        link.prompt()->tell(text, kind);
}

QString familyName(quint8 familyByte)
{
    const QString text = QString::fromLatin1(familyText(familyByte));
    return text.isEmpty() ? QString::asprintf("$%2.2x", familyByte) : text;
}

QString serialOf(const IdentRecord &ident)
{
    ConfigImage image;
    image.ident = ident;
    return QString::number(image.serialNumber());
}

bool miniProgrammed(const IdentRecord &ident)
{
    return ident[0] == 255 && ident[1] == 0;
}

} // namespace

int ChangesPlan::blocks() const
{
    const int records = int(std::count(channels.begin(), channels.end(), true));
    const int slices = int(std::count(valueSlices.begin(), valueSlices.end(), true));
    return records + slices + int(options) + int(prices) + int(enable) + int(counters) +
           int(ident) + int(ownBlock);
}

ChangesPlan planChanges(const ConfigImage &baseline, const ConfigImage &wanted, bool serialOverride)
{
    ChangesPlan plan;
    const bool longForm = wanted.longForm();
    for (int k = 0; k < wanted.channelCount(); ++k) {
        const auto at = std::size_t(k);
        plan.channels[at] = keptRecord(baseline.channels[at], longForm) !=
                            keptRecord(wanted.channels[at], longForm);
    }
    for (int slice = 0; slice < kValueSlices; ++slice)
        plan.valueSlices[std::size_t(slice)] = sliceDiffers(baseline.values, wanted.values, slice);
    plan.options = baseline.options != wanted.options;
    plan.prices = baseline.prices != wanted.prices;
    plan.enable = baseline.enable != wanted.enable;
    // The counters travel only when the option word makes them erasable, as in the full write.
    plan.counters = (wanted.options[1] & 0x20) && baseline.counters != wanted.counters;
    plan.ident = serialOverride && baseline.serialNumber() != wanted.serialNumber();
    plan.ownBlock = baseline.block13 != wanted.block13;
    return plan;
}

QList<ConfigChange> changesSent(const ConfigImage &baseline, const ConfigImage &wanted,
                                const ChangesPlan &plan)
{
    QList<ConfigChange> sent;
    const QList<ConfigChange> all = configDifferences(baseline, wanted);
    for (const ConfigChange &change : all) {
        bool goes = true;
        if (change.group == ChangeGroup::Identification)
            goes = plan.ident && change.key == QLatin1String("ident.serial");
        else if (change.group == ChangeGroup::Counters)
            goes =
                change.key == QLatin1String("counting") || change.key == QLatin1String("erasable")
                    ? plan.options
                    : plan.counters;
        if (goes)
            sent.append(change);
    }
    return sent;
}

bool programmedSince(const IdentRecord &baseline, const IdentRecord &theirs)
{
    if (baseline[0] == theirs[0] && baseline[1] == theirs[1])
        return false;
    if (miniProgrammed(theirs))
        return true; // the adapter leaves no date: it was programmed, and not by this program
    const QDate now = DecodeDate16({theirs[0], theirs[1]});
    if (!now.isValid())
        return false;
    if (miniProgrammed(baseline))
        return true;
    const QDate then = DecodeDate16({baseline[0], baseline[1]});
    return !then.isValid() || now > then;
}

ChangesWriteResult changesWrite(TMonnayeur &link, const ConfigImage &baseline,
                                const ConfigImage &wanted, const ChangesWriteOptions &options,
                                const WriteObserver &observer)
{
    ChangesWriteResult result;
    auto refuse = [&](ChangesRefusal why, const QString &text) {
        result.refusal = why;
        tell(link, text, UserPrompt::Kind::Error);
        return result;
    };
    // A baseline of another model says nothing of what this configuration would change.
    if (baseline.familyNibble() != wanted.familyNibble() ||
        baseline.channelCount() != wanted.channelCount())
        return refuse(
            ChangesRefusal::BaselineOther,
            messageText(Msg::ChangesBaselineOther,
                        {familyName(baseline.familyByte()),
                         QString::number(baseline.channelCount()), familyName(wanted.familyByte()),
                         QString::number(wanted.channelCount())}));

    if (!connectLoop(link, options.askConnect)) {
        result.refusal = ChangesRefusal::NotConnected;
        tell(link, messageText(Msg::OperationCancelled), UserPrompt::Kind::Information);
        return result;
    }
    link.setLinkGood(true);
    IdentRecord theirIdent{};
    VersionBlock theirVersion{};
    if (!link.ReadBlock(Cmd::ReadIdent, theirIdent.data()) ||
        !link.ReadBlock(Cmd::ReadVersion, theirVersion.data())) {
        result.refusal = ChangesRefusal::NotConnected;
        result.outcome = WriteOutcome::Fault;
        tell(link, messageText(Msg::FaultDuringSave), UserPrompt::Kind::Error);
        tellWriteAftermath(link.prompt(), result.sent.steps, wanted.channelCount(), false);
        return result;
    }
    const QString theirSerial = serialOf(theirIdent);
    const QString baselineSerial = QString::number(baseline.serialNumber());
    if (theirSerial != baselineSerial)
        return refuse(ChangesRefusal::OtherValidator,
                      messageText(Msg::ChangesOtherValidator, {theirSerial, baselineSerial}));
    if (theirVersion[0] != baseline.version[0])
        return refuse(ChangesRefusal::OtherValidator,
                      messageText(Msg::ChangesOtherFamily,
                                  {theirSerial, familyName(theirVersion[0]), baselineSerial,
                                   familyName(baseline.version[0])}));
    if (!options.force && programmedSince(baseline.ident, theirIdent)) {
        const QString when = miniProgrammed(theirIdent)
                                 ? messageText(Msg::ByMiniPgm)
                                 : FormatDate16({theirIdent[0], theirIdent[1]});
        return refuse(ChangesRefusal::WrittenSince,
                      messageText(Msg::ChangesWrittenSince, {theirSerial, when}));
    }

    result.plan = planChanges(baseline, wanted, options.serialOverride);
    if (result.plan.empty()) {
        result.refusal = ChangesRefusal::NothingChanged;
        result.outcome = WriteOutcome::Finished;
        tell(link, messageText(Msg::ChangesNothing), UserPrompt::Kind::Information);
        return result;
    }

    if (options.sending)
        options.sending(result.plan);

    // The gauge counts the blocks accepted out of the blocks planned: 100 when all were.
    const ChangesPlan &plan = result.plan;
    SentBlocks &sent = result.sent;
    const int steps = plan.blocks();
    int done = 0;
    auto gauge = [&](int value) {
        if (observer.progress)
            observer.progress(std::min(value, 100));
    };
    gauge(0);
    auto ran = [&](StepEnd &end, bool ok) {
        end = stepEnd(link, ok);
        if (ok)
            gauge(++done * 100 / steps);
    };

    const bool longForm = wanted.longForm();
    for (int k = 0; k < wanted.channelCount() && link.linkGood(); ++k) {
        const auto at = std::size_t(k);
        if (!plan.channels[at])
            continue;
        const ChannelBytes record = keptRecord(wanted.channels[at], true);
        sent.channels[at] = keptRecord(wanted.channels[at], longForm);
        ran(sent.steps.channels[at], link.WriteChannel(quint8(k), record, longForm));
    }
    if (plan.options && link.linkGood()) {
        sent.options = wanted.options;
        ran(sent.steps.options, link.WriteBlock(Cmd::WriteOptions, wanted.options.data()));
    }
    const bool anySlice =
        std::find(plan.valueSlices.begin(), plan.valueSlices.end(), true) != plan.valueSlices.end();
    if (anySlice && link.linkGood()) {
        // Every slice that differs; the value table step is accepted when all of them were.
        sent.values = wanted.values;
        sent.steps.values = StepEnd::Accepted;
        for (int slice = 0; slice < kValueSlices && link.linkGood(); ++slice) {
            if (!plan.valueSlices[std::size_t(slice)])
                continue;
            StepEnd end = StepEnd::NotRun;
            ran(end,
                link.WriteValueSlice(quint8(slice), wanted.values.data() + slice * kValueSlice));
            if (end == StepEnd::Accepted)
                ++sent.steps.valueParts;
            else if (sent.steps.values == StepEnd::Accepted)
                sent.steps.values = end;
        }
    }
    if (plan.prices && link.linkGood()) {
        sent.prices = wanted.prices;
        ran(sent.steps.prices, link.WriteBlock(Cmd::WritePrices, wanted.prices.data()));
    }
    if (plan.enable && link.linkGood()) {
        sent.enable = wanted.enable;
        ran(sent.steps.enable, link.WriteBlock(Cmd::WriteEnable, wanted.enable.data()));
    }
    if (plan.counters && link.linkGood()) {
        sent.counters = wanted.counters;
        ran(sent.steps.counters, link.WriteBlock(Cmd::WriteCounters, wanted.counters.data()));
    }
    if (plan.ident && link.linkGood()) {
        // The serial number the technician gave, on the validator's own production date, with
        // the date of the day as every write of the identification carries.
        IdentRecord ident = theirIdent;
        const Word2 today = EncodeDate16(options.today);
        ident[0] = today[0];
        ident[1] = today[1];
        std::copy(wanted.ident.begin() + 4, wanted.ident.end(), ident.begin() + 4);
        sent.ident = ident;
        ran(sent.steps.ident, link.WriteBlock(Cmd::WriteIdent, ident.data()));
    }
    if (plan.ownBlock && link.linkGood())
        ran(sent.steps.ownBlock, link.WriteBlock(Cmd::WriteBlock13, wanted.block13.data()));

    const bool finished = done == steps;
    if (finished)
        tell(link, messageText(Msg::FinishedOperation), UserPrompt::Kind::Information);
    else
        tell(link, messageText(Msg::FaultDuringSave), UserPrompt::Kind::Error);
    tellWriteAftermath(link.prompt(), sent.steps, wanted.channelCount(), finished);
    result.outcome = finished ? WriteOutcome::Finished : WriteOutcome::Fault;
    return result;
}

VerifyResult verifySentBlocks(TMonnayeur &link, const ConfigImage &baseline, const SentBlocks &sent,
                              const ReadObserver &observer)
{
    // What was not read back stays as the write expects it, so that only what was read counts.
    ConfigImage readBack = expectedAfterWrite(baseline, sent);
    QList<int> channels;
    for (int k = 0; k < kChannels; ++k) {
        if (sent.channels[std::size_t(k)])
            channels.append(k);
    }
    QList<int> slices;
    for (int slice = 0; sent.values && slice < kValueSlices; ++slice) {
        if (sliceDiffers(*sent.values, baseline.values, slice))
            slices.append(slice);
    }
    const int reads = 1 + int(channels.size() + slices.size()) + int(bool(sent.options)) +
                      int(bool(sent.prices)) + int(bool(sent.enable)) + int(bool(sent.counters));
    int done = 0;
    auto read = [&](bool ok) {
        if (ok && observer.progress)
            observer.progress(++done * 100 / reads);
        return ok;
    };
    link.setLinkGood(true);
    bool ok = read(link.ReadBlock(Cmd::ReadIdent, readBack.ident.data()));
    for (int k : channels) {
        ChannelBytes record;
        ok = ok && read(link.ReadChannel(quint8(k), baseline.longForm(), record));
        if (ok)
            std::copy(record.begin(), record.end(), readBack.channels[std::size_t(k)].begin());
    }
    for (int slice : slices)
        ok = ok &&
             read(link.ReadValueSlice(quint8(slice), readBack.values.data() + slice * kValueSlice));
    if (sent.options)
        ok = ok && read(link.ReadBlock(Cmd::ReadOptions, readBack.options.data()));
    if (sent.prices)
        ok = ok && read(link.ReadBlock(Cmd::ReadPrices, readBack.prices.data()));
    if (sent.enable)
        ok = ok && read(link.ReadBlock(Cmd::ReadEnable, readBack.enable.data()));
    if (sent.counters)
        ok = ok && read(link.ReadBlock(Cmd::ReadCounters, readBack.counters.data()));
    if (!ok)
        return {};
    readBack.refreshRecordCopies();
    return compareWithReadBack(readBack, sent);
}
