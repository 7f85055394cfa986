#include "ReadSequence.h"

#include "Commands.h"
#include "Messages.h"
#include "TMonnayeur.h"
#include "UserPrompt.h"

#include <cmath>

int roundHalfEven(double x)
{
    return int(std::nearbyint(x)); // the default rounding mode is to nearest, ties to even
}

int readGaugeAfterChannel(int i)
{
    return roundHalfEven(i * 1.5) + 12;
}

bool connectLoop(TMonnayeur &link, bool ask)
{
    while (!link.CheckPresence(false)) {
        UserPrompt *prompt = link.prompt();
        if (!ask || !prompt)
            return false;
        if (prompt->ask(messageText(Msg::ConnectValidator), UserPrompt::Kind::Information,
                        UserPrompt::Buttons::OkCancel) != UserPrompt::Answer::Ok)
            return false;
    }
    return true;
}

ReadOutcome readValidator(TMonnayeur &link, ConfigImage &target, bool promptFlag,
                          const ReadObserver &observer)
{
    int gauge = 0;
    auto setGauge = [&](int value) {
        gauge = std::min(value, 100);
        if (observer.progress)
            observer.progress(gauge);
    };

    // With the prompt flag clear one failed try ends the loop, and the second connect below
    // reports the failure.
    if (!connectLoop(link, promptFlag) && promptFlag)
        return ReadOutcome::Cancelled;
    if (!link.CheckPresence(true))
        return ReadOutcome::Cancelled;

    link.setLinkGood(true);
    link.strayBytesAfterReplies(); // what came before the read is not the read's
    setGauge(0);

    ConfigImage image = target;
    if (link.ReadBlock(Cmd::ReadVersion, image.version.data())) {
        if (observer.familyKnown)
            observer.familyKnown(image.isLight());
    }
    setGauge(gauge + 1);

    // Every step is skipped once the link has failed; each one that ran moves the gauge.
    auto step = [&](auto &&read) {
        if (!link.linkGood())
            return;
        read();
        setGauge(gauge + 1);
    };
    step([&] { link.ReadBlock(Cmd::ReadIdent, image.ident.data()); });
    step([&] { link.ReadBlock(Cmd::ReadCounters, image.counters.data()); });
    step([&] { link.ReadBlock(Cmd::ReadPrices, image.prices.data()); });
    step([&] { link.ReadBlock(Cmd::ReadOptions, image.options.data()); });
    step([&] { link.ReadBlock(Cmd::ReadEnable, image.enable.data()); });
    step([&] {
        ValueTableBytes values;
        std::copy(image.values.begin(), image.values.end(), values.begin());
        link.ReadValueTable(values);
        std::copy(values.begin(), values.end(), image.values.begin());
    });
    step([&] { link.ReadBlock(Cmd::ReadBlock2, image.block2.data()); });
    step([&] { link.ReadBlock(Cmd::ReadBlock13, image.block13.data()); });
    step([&] { link.ReadBlock(Cmd::ReadSetting8, &image.setting8); });
    step([&] { link.ReadBlock(Cmd::ReadStatus, image.status9.data()); });

    const int count = image.channelCount();
    for (int i = 0; i < count && link.linkGood(); ++i) {
        if (i % 10 == 0 && observer.pageReached)
            observer.pageReached(i / 10 + 1);
        ChannelBytes record;
        if (link.ReadChannel(quint8(i), image.longForm(), record))
            std::copy(record.begin(), record.end(), image.channels[std::size_t(i)].begin());
        setGauge(readGaugeAfterChannel(i));
    }
    // A 25-channel read ends where a 60-channel one does.
    if (image.isLight())
        setGauge(gauge + 54);

    if (!link.linkGood())
        return ReadOutcome::Failed;
    // A byte found behind a reply that was taken whole: some block may be shifted by it.
    if (link.strayBytesAfterReplies()) {
        if (UserPrompt *prompt = link.prompt())
            prompt->tell(messageText(Msg::ReadingErrorFromValidator), UserPrompt::Kind::Error);
        link.setLinkGood(false);
        return ReadOutcome::Failed;
    }
    image.refreshRecordCopies();
    target = image;
    return ReadOutcome::Done;
}
