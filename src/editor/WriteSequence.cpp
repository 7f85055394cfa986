#include "WriteSequence.h"

#include "Commands.h"
#include "Encodings.h"
#include "Messages.h"
#include "ReadSequence.h"
#include "UserPrompt.h"
#include "WriteReport.h"

#include <algorithm>
#include <cmath>

namespace {

void tell(TMonnayeur &link, Msg id, UserPrompt::Kind kind = UserPrompt::Kind::Information)
{
    if (link.prompt())
        link.prompt()->tell(messageText(id), kind);
}

// detail follows "Finished operation!" in the same message.
WriteOutcome finish(TMonnayeur &link, int gauge, const WriteSteps &steps, int channelCount,
                    const QString &detail = {})
{
    const bool finished = gauge == 100;
    if (finished && !detail.isEmpty() && link.prompt())
        link.prompt()->tell(messageText(Msg::FinishedOperation) + u'\n' + detail,
                            UserPrompt::Kind::Information);
    else if (finished)
        tell(link, Msg::FinishedOperation);
    else
        tell(link, Msg::FaultDuringSave, UserPrompt::Kind::Error);
    // A finished write may have had a few steps refused; a fault leaves what it had written.
    tellWriteAftermath(link.prompt(), steps, channelCount, finished);
    return finished ? WriteOutcome::Finished : WriteOutcome::Fault;
}

class Gauge
{
public:
    explicit Gauge(const WriteObserver &observer) : m_observer(observer) {}
    void set(int value)
    {
        m_value = std::min(value, 100); // held at its maximum
        if (m_observer.progress)
            m_observer.progress(m_value);
    }
    void add(int units) { set(m_value + units); }
    int value() const { return m_value; }

private:
    const WriteObserver &m_observer;
    int m_value = 0;
};

ChannelBytes recordBytes(const ChannelRecord &record)
{
    ChannelBytes bytes;
    std::copy_n(record.begin(), bytes.size(), bytes.begin());
    return bytes;
}

// A channel record as the validator keeps it: a short record loses its amplitude window.
ChannelBytes asKept(const ChannelBytes &record, bool longForm)
{
    return longForm ? record : TMonnayeur::widenRecord(TMonnayeur::narrowRecord(record).data());
}

// What the caller asked to be told, or a scratch record nobody reads.
SentBlocks &sentRecord(SentBlocks *sent, SentBlocks &scratch)
{
    SentBlocks &record = sent ? *sent : scratch;
    record = SentBlocks{};
    return record;
}

} // namespace

StepEnd stepEnd(const TMonnayeur &link, bool accepted)
{
    if (accepted)
        return StepEnd::Accepted;
    if (link.linkGood())
        return StepEnd::Refused; // a status other than 0: the exchange itself went well
    return link.lastDataSent() ? StepEnd::Unanswered : StepEnd::Failed;
}

int writeGaugeAfterChannel(int i)
{
    return roundHalfEven((i + 1) * 1.55);
}

WriteOutcome fullWrite(TMonnayeur &link, ConfigImage &image, FullWriteOptions &options,
                       const WriteObserver &observer, SentBlocks *sent)
{
    SentBlocks scratch;
    SentBlocks &record = sentRecord(sent, scratch);
    bool cancelled = !connectLoop(link, true);

    // The validator's last channel (its reference) against the image's.
    if (!cancelled) {
        const int last = image.channelCount() - 1;
        ChannelBytes theirs;
        if (link.ReadChannel(quint8(last), image.longForm(), theirs) &&
            theirs != recordBytes(image.channels[std::size_t(last)])) {
            const QString warning =
                messageText(Msg::LastChannelDiffers, {QString::number(last + 1)});
            bool goOn = true;
            if (options.lastChannelWarning)
                goOn = options.lastChannelWarning(warning);
            else if (link.prompt())
                goOn = link.prompt()->ask(warning, UserPrompt::Kind::Warning,
                                          UserPrompt::Buttons::OkCancel) == UserPrompt::Answer::Ok;
            cancelled = !goOn;
        }
    }
    if (cancelled) {
        tell(link, Msg::OperationCancelled);
        return WriteOutcome::Cancelled;
    }

    if (options.codeTableCheck) {
        const bool bad = std::any_of(image.prices.begin() + 2, image.prices.begin() + 5,
                                     [](quint8 b) { return b == 0 || b == 255; });
        if (bad)
            tell(link, Msg::InvalidCodeTable, UserPrompt::Kind::Warning); // a warning only
    }

    Gauge gauge(observer);
    gauge.set(0);
    link.setLinkGood(true);

    const int count = image.channelCount();
    for (int i = 0; i < count && link.linkGood(); ++i) {
        const ChannelBytes bytes = recordBytes(image.channels[std::size_t(i)]);
        record.channels[std::size_t(i)] = asKept(bytes, image.longForm());
        const bool ok = link.WriteChannel(quint8(i), bytes, image.longForm());
        record.steps.channels[std::size_t(i)] = stepEnd(link, ok);
        if (ok)
            gauge.set(writeGaugeAfterChannel(i));
    }
    // 25 x 1.55 rounds to 39, and 39 + 54 = 93, where 60 channels end.
    if (image.isLight())
        gauge.add(54);

    const Word2 today = EncodeDate16(options.today);
    image.ident[0] = today[0];
    image.ident[1] = today[1];

    // Each step is skipped once the link has failed; the figure is what it adds on success.
    Block6 ownBlock{};
    bool ownBlockRead = false;
    auto ran = [&](StepEnd &end, bool ok, int units) {
        end = stepEnd(link, ok);
        if (ok)
            gauge.add(units);
    };
    if (link.linkGood())
        ownBlockRead = link.ReadBlock(Cmd::ReadBlock2, ownBlock.data());
    if (link.linkGood()) {
        record.options = image.options;
        ran(record.steps.options, link.WriteBlock(Cmd::WriteOptions, image.options.data()), 1);
    }
    if (link.linkGood()) {
        ValueTableBytes values;
        std::copy(image.values.begin(), image.values.end(), values.begin());
        record.values = image.values;
        ran(record.steps.values, link.WriteValueTable(values, &record.steps.valueParts), 1);
    }
    if (link.linkGood()) {
        record.prices = image.prices;
        ran(record.steps.prices, link.WriteBlock(Cmd::WritePrices, image.prices.data()), 1);
    }
    if (link.linkGood()) {
        record.enable = image.enable;
        ran(record.steps.enable, link.WriteBlock(Cmd::WriteEnable, image.enable.data()), 1);
    }
    if (link.linkGood()) {
        // The counters only travel when the option word says so; the step counts either way.
        if (image.options[1] & 0x20) {
            record.counters = image.counters;
            ran(record.steps.counters, link.WriteBlock(Cmd::WriteCounters, image.counters.data()),
                1);
        } else
            gauge.add(1);
    }
    if (link.linkGood()) {
        if (!options.serialOverride) {
            // A validator keeps its own serial number and production date.
            IdentRecord theirs{};
            if (link.ReadBlock(Cmd::ReadIdent, theirs.data())) {
                std::copy(theirs.begin() + 2, theirs.end(), image.ident.begin() + 2);
                gauge.add(2);
            }
        } else {
            options.serialOverride = false;
        }
    }
    if (link.linkGood()) {
        record.ident = image.ident;
        ran(record.steps.ident, link.WriteBlock(Cmd::WriteIdent, image.ident.data()), 1);
    }
    if (link.linkGood() && ownBlockRead)
        ran(record.steps.ownBlock, link.WriteBlock(Cmd::WriteBlock13, ownBlock.data()), 1);

    return finish(link, gauge.value(), record.steps, image.channelCount());
}

ChannelBytes correctedRecord(const quint8 *record, const quint8 *imageReference,
                             const quint8 *targetReference)
{
    ChannelBytes out;
    const bool empty = std::all_of(record, record + 14, [](quint8 b) { return b == 255; });
    if (empty) {
        out.fill(255);
        return out;
    }
    const CloneCorrection correction = cloneCorrection(imageReference, targetReference);
    for (int w = 0; w < 7; ++w) {
        const int hi = 2 * w;
        const int lo = hi + 1;
        const double factor = correction.factors[std::size_t(w)];
        for (int b : {hi, lo}) {
            if (record[b] == 255) {
                out[std::size_t(b)] = 255;
                continue;
            }
            const long scaled = std::lround(record[b] * factor);
            out[std::size_t(b)] = quint8(std::clamp(scaled, 0L, 254L));
        }
    }
    out[14] = record[14];
    return out;
}

WriteOutcome cloneWrite(TMonnayeur &link, const ConfigImage &image, const CloneGroups &groups,
                        const WriteObserver &observer, SentBlocks *sent)
{
    SentBlocks scratch;
    SentBlocks &record = sentRecord(sent, scratch);
    if (!connectLoop(link, true)) {
        tell(link, Msg::OperationCancelled);
        return WriteOutcome::Cancelled;
    }
    link.setLinkGood(true);
    IdentRecord targetIdent{};
    VersionBlock targetVersion{};
    if (!link.ReadBlock(Cmd::ReadIdent, targetIdent.data()) ||
        !link.ReadBlock(Cmd::ReadVersion, targetVersion.data()))
        return finish(link, 0, record.steps, image.channelCount());
    if (targetVersion[0] != image.version[0] || targetVersion[1] != image.version[1]) {
        tell(link, Msg::IncorrectVersion, UserPrompt::Kind::Error);
        return WriteOutcome::IncorrectVersion;
    }
    if (!groups.any())
        return WriteOutcome::NoGroup;

    // The gauge counts the steps that succeeded out of the steps this clone runs: one per
    // channel when the channels group is chosen, one for the validator's own block, one per
    // chosen block group. It reaches 100 exactly when every step succeeded, whatever the groups.
    const int count = image.channelCount();
    const int steps = (groups.channels ? count : 0) + 1 + int(groups.config) + int(groups.values) +
                      int(groups.prices) + int(groups.enable);
    int done = 0;
    Gauge gauge(observer);
    gauge.set(0);
    auto succeeded = [&](StepEnd &end, bool ok) {
        end = stepEnd(link, ok);
        if (!ok)
            return;
        ++done;
        gauge.set(done * 100 / steps);
    };

    if (groups.channels && link.linkGood()) {
        const int ref = image.referenceChannel();
        ChannelBytes targetRef;
        if (link.ReadChannel(quint8(ref), image.longForm(), targetRef)) {
            const quint8 *imageRef = image.channels[std::size_t(ref)].data();
            record.correction = cloneCorrection(imageRef, targetRef.data());
            // Every channel, the reference channel too, goes as the image's record corrected
            // by the ratio of the two reference channels, with the image's substitute.
            for (int i = 0; i < count && link.linkGood(); ++i) {
                const ChannelBytes bytes = correctedRecord(image.channels[std::size_t(i)].data(),
                                                           imageRef, targetRef.data());
                record.channels[std::size_t(i)] = asKept(bytes, image.longForm());
                succeeded(record.steps.channels[std::size_t(i)],
                          link.WriteChannel(quint8(i), bytes, image.longForm()));
            }
        }
    }
    // The target keeps its own block: what command 2 gives goes back with command 12.
    if (link.linkGood()) {
        Block6 own{};
        if (link.ReadBlock(Cmd::ReadBlock2, own.data()) && link.linkGood())
            succeeded(record.steps.ownBlock, link.WriteBlock(Cmd::WriteBlock13, own.data()));
    }
    if (groups.config && link.linkGood()) {
        // Bits 4, 5 and 6 of the second byte are the target's own (outlet, erasable, counting).
        OptionWord theirs{};
        if (link.ReadBlock(Cmd::ReadOptions, theirs.data())) {
            OptionWord word = image.options;
            word[1] = quint8((word[1] & ~0x70) | (theirs[1] & 0x70));
            record.options = word;
            succeeded(record.steps.options, link.WriteBlock(Cmd::WriteOptions, word.data()));
        }
    }
    if (groups.values && link.linkGood()) {
        ValueTableBytes values;
        std::copy(image.values.begin(), image.values.end(), values.begin());
        record.values = image.values;
        succeeded(record.steps.values, link.WriteValueTable(values, &record.steps.valueParts));
    }
    if (groups.prices && link.linkGood()) {
        record.prices = image.prices;
        succeeded(record.steps.prices, link.WriteBlock(Cmd::WritePrices, image.prices.data()));
    }
    if (groups.enable && link.linkGood()) {
        record.enable = image.enable;
        succeeded(record.steps.enable, link.WriteBlock(Cmd::WriteEnable, image.enable.data()));
    }

    // The windows came back changed by the target's sensors: the result says by how much.
    return finish(link, gauge.value(), record.steps, image.channelCount(),
                  record.correction ? correctionText(*record.correction) : QString());
}
