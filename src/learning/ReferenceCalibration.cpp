#include "ReferenceCalibration.h"

#include "Commands.h"
#include "HistoryRecorder.h"
#include "Messages.h"
#include "UserPrompt.h"

namespace ReferenceCalibration {

std::optional<bool> doorOpen(TMonnayeur &link)
{
    StatusWord status{};
    if (!link.ReadBlock(Cmd::ReadStatus, status.data()))
        return std::nullopt;
    return status[2] != 0 || status[3] != 0;
}

LearningSession tokenSession()
{
    LearningSession session(LearningSession::kTokenSamples);
    session.calibrationMode = true;
    session.learningFromCoins = true;
    return session;
}

bool writeReference(TMonnayeur &link, ConfigImage &image, const ChannelBytes &reference,
                    UserPrompt *prompt)
{
    const int channel = image.referenceChannel();
    link.setLinkGood(true);
    const bool saved = link.WriteChannel(quint8(channel), reference, image.longForm());
    if (saved)
        std::copy(reference.begin(), reference.end(), image.channels[std::size_t(channel)].begin());
    if (stepEnd(link, saved) != StepEnd::Failed) {
        ConfigImage written = image;
        std::copy(reference.begin(), reference.end(),
                  written.channels[std::size_t(channel)].begin());
        keepChannelWritten(QStringLiteral("calibrate"), written, channel, saved, prompt);
    }
    if (prompt)
        prompt->tell(messageText(saved ? Msg::ReferenceChannelSaved : Msg::ProgrammingError),
                     saved ? UserPrompt::Kind::Information : UserPrompt::Kind::Error);
    return saved;
}

} // namespace ReferenceCalibration
