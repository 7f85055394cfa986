#include "WriteReport.h"

#include "Captions.h"
#include "ConfigDiff.h"
#include "Messages.h"
#include "UserPrompt.h"

QString channelRuns(const QList<int> &channels)
{
    QStringList runs;
    for (qsizetype i = 0; i < channels.size();) {
        qsizetype j = i;
        while (j + 1 < channels.size() && channels[j + 1] == channels[j] + 1)
            ++j;
        runs.append(j == i ? QString::number(channels[i] + 1)
                           : QStringLiteral("%1-%2").arg(channels[i] + 1).arg(channels[j] + 1));
        i = j + 1;
    }
    return runs.join(QStringLiteral(", "));
}

namespace {

// The block steps after the channels and the value table, in the order the full write sends
// them, with the name each goes by.
struct BlockStep
{
    StepEnd WriteSteps::*end;
    QString name;
};

QList<BlockStep> blockSteps()
{
    return {{&WriteSteps::options, changeGroupName(ChangeGroup::Config)},
            {&WriteSteps::prices, changeGroupName(ChangeGroup::Prices)},
            {&WriteSteps::enable, changeGroupName(ChangeGroup::Enable)},
            {&WriteSteps::counters, changeGroupName(ChangeGroup::Counters)},
            {&WriteSteps::ident, changeGroupName(ChangeGroup::Identification)},
            {&WriteSteps::ownBlock, captionText(Cap::OwnBlock)}};
}

QList<int> channelsEnding(const WriteSteps &steps, StepEnd end, int channelCount)
{
    QList<int> out;
    for (int k = 0; k < channelCount; ++k) {
        if (steps.channels[std::size_t(k)] == end)
            out.append(k);
    }
    return out;
}

QString channelsGroup(const QList<int> &channels)
{
    return captionText(Cap::WrittenChannels,
                       {changeGroupName(ChangeGroup::Channels), channelRuns(channels)});
}

// Every step that ended so, by group; the value table is one step.
QStringList stepsEnding(const WriteSteps &steps, StepEnd end)
{
    QStringList out;
    const QList<int> channels = channelsEnding(steps, end, kChannels);
    if (!channels.isEmpty())
        out.append(channelsGroup(channels));
    if (steps.values == end)
        out.append(changeGroupName(ChangeGroup::Values));
    for (const BlockStep &step : blockSteps()) {
        if (steps.*step.end == end)
            out.append(step.name);
    }
    return out;
}

} // namespace

QStringList groupsWritten(const WriteSteps &steps, int channelCount)
{
    QStringList out;
    const QList<int> channels = channelsEnding(steps, StepEnd::Accepted, channelCount);
    if (channels.size() == channelCount)
        out.append(changeGroupName(ChangeGroup::Channels));
    else if (!channels.isEmpty())
        out.append(channelsGroup(channels));
    if (steps.valueParts == kValueSlices)
        out.append(changeGroupName(ChangeGroup::Values));
    else if (steps.valueParts > 0)
        out.append(captionText(Cap::WrittenParts,
                               {changeGroupName(ChangeGroup::Values),
                                QString::number(steps.valueParts), QString::number(kValueSlices)}));
    for (const BlockStep &step : blockSteps()) {
        if (steps.*step.end == StepEnd::Accepted)
            out.append(step.name);
    }
    return out;
}

QStringList stepsRefused(const WriteSteps &steps)
{
    return stepsEnding(steps, StepEnd::Refused);
}

QStringList stepsUnanswered(const WriteSteps &steps)
{
    return stepsEnding(steps, StepEnd::Unanswered);
}

void tellWriteAftermath(UserPrompt *prompt, const WriteSteps &steps, int channelCount,
                        bool finished)
{
    if (!prompt)
        return;
    const QString list = QStringLiteral(", ");
    const QStringList refused = stepsRefused(steps);
    if (!refused.isEmpty())
        prompt->tell(messageText(Msg::WriteRefused, {refused.join(list)}),
                     UserPrompt::Kind::Warning);
    if (finished)
        return;
    const QStringList written = groupsWritten(steps, channelCount);
    const QStringList unanswered = stepsUnanswered(steps);
    // Nothing already written is rolled back: say what the validator now holds.
    if (!written.isEmpty())
        prompt->tell(messageText(Msg::WriteIncomplete, {written.join(list)}),
                     UserPrompt::Kind::Warning);
    else if (unanswered.isEmpty())
        prompt->tell(messageText(Msg::WriteNothing), UserPrompt::Kind::Information);
    if (!unanswered.isEmpty())
        prompt->tell(messageText(Msg::WriteUnanswered, {unanswered.join(list)}),
                     UserPrompt::Kind::Warning);
}
