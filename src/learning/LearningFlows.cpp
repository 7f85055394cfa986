#include "LearningFlows.h"

#include "CAdjustModel.h"
#include "Messages.h"
#include "ProgCoinModel.h"
#include "ReferenceCalibration.h"

namespace {

ProgCoinSetup setupFor(ProgCoinSetup::Mode mode, const LearningContext &context)
{
    ProgCoinSetup setup;
    setup.mode = mode;
    setup.analyseShown = context.autoAdjust;
    setup.directWrite = context.directWrite;
    setup.soundOn = context.soundOn;
    return setup;
}

void tell(const LearningContext &context, Msg message,
          UserPrompt::Kind kind = UserPrompt::Kind::Information)
{
    if (context.prompt)
        context.prompt->tell(messageText(message), kind);
}

// The validator's door must be shut: its status word reads zero.
bool doorShut(TMonnayeur &link, const LearningContext &context)
{
    const std::optional<bool> open = ReferenceCalibration::doorOpen(link);
    if (open && *open)
        tell(context, Msg::DoorOpen, UserPrompt::Kind::Warning);
    return open && !*open;
}

// One pass of reference tokens; the learned windows, or nothing after a cancel.
std::optional<ChannelBytes> tokenPass(TMonnayeur &link, ConfigImage &image,
                                      const LearningContext &context, TokenSet set)
{
    LearningSession session = ReferenceCalibration::tokenSession();
    ProgCoinModel form(session, image, &link, context.prompt, context.services,
                       setupFor(ProgCoinSetup::Mode::Calibration, context));
    form.coinSound = context.coinSound;
    form.lockForCalibration(set);
    form.FormActivate();
    context.windows->runProgCoin(form);
    if (!form.accepted())
        return std::nullopt;
    return form.learnResult();
}

} // namespace

namespace LearningFlows {

bool learnCoins(TMonnayeur &link, ConfigImage &image, const LearningContext &context)
{
    if (!context.windows)
        return false;
    LearningSession session(LearningSession::kCoinSamples);
    session.learningFromCoins = true;
    ProgCoinSetup setup = setupFor(ProgCoinSetup::Mode::Learning, context);
    setup.startChannel = context.learnChannel;
    ProgCoinModel form(session, image, &link, context.prompt, context.services, setup);
    form.coinSound = context.coinSound;
    form.FormActivate();
    context.windows->runProgCoin(form);
    // The next learning starts where this one was left.
    if (context.learnChannelUsed && form.channel() != 0)
        context.learnChannelUsed(form.channel());
    return form.imageChanged();
}

bool calibrateReference(TMonnayeur &link, ConfigImage &image, const LearningContext &context)
{
    if (!context.windows)
        return false;
    if (!link.CheckPresence(false)) {
        tell(context, Msg::ConnectValidator, UserPrompt::Kind::Warning);
        return false;
    }
    const int reference = image.referenceChannel();
    if (!channelInUse(image.channels[std::size_t(reference)].data()))
        context.windows->showReferenceNotice();
    if (!doorShut(link, context))
        return false;

    ChannelBytes record;
    record.fill(255);
    tell(context, Msg::PrepareGoldenTokens);
    const std::optional<ChannelBytes> golden = tokenPass(link, image, context, TokenSet::Golden);
    if (!golden)
        return false;
    takeReferenceWindows(record, *golden, TokenSet::Golden);

    tell(context, Msg::PrepareSilverTokens);
    const std::optional<ChannelBytes> silver = tokenPass(link, image, context, TokenSet::Silver);
    if (!silver)
        return false;
    takeReferenceWindows(record, *silver, TokenSet::Silver);

    return ReferenceCalibration::writeReference(link, image, record, context.prompt);
}

bool controlChannel(TMonnayeur &link, ConfigImage &image, const LearningContext &context)
{
    if (!context.windows)
        return false;
    while (!link.CheckPresence(false)) {
        if (!context.prompt ||
            context.prompt->ask(messageText(Msg::ConnectValidator), UserPrompt::Kind::Warning,
                                UserPrompt::Buttons::OkCancel) == UserPrompt::Answer::Cancel)
            return false;
    }
    if (!doorShut(link, context))
        return false;

    CAdjustModel choice(image, context.prompt);
    context.windows->runChannelToAdjust(choice);
    if (!choice.accepted())
        return false;
    LearningSession session(LearningSession::kCoinSamples);
    session.learningFromCoins = choice.automaticAdjustment();
    ProgCoinModel form(session, image, &link, context.prompt, context.services,
                       setupFor(ProgCoinSetup::Mode::Modify, context));
    form.coinSound = context.coinSound;
    form.setControlChannel(choice.channel());
    form.FormActivate();
    context.windows->runProgCoin(form);
    return form.imageChanged();
}

void checkOverlap(const ConfigImage &image, const LearningContext &context)
{
    // Nothing has been read yet: there is nothing to compare.
    if (image == ConfigImage::blank())
        return;
    if (overlappingPairs(image).isEmpty())
        tell(context, Msg::NoOverlapping);
    else if (context.windows)
        context.windows->showOverlap(image);
}

} // namespace LearningFlows
