#pragma once

#include "WriteSequence.h"

#include <QStringList>

// What the steps of a write tell the technician, in the words of the cloning dialog's groups:
// which groups reached the validator, which it refused, and which went out unanswered. A group
// cut short names the channels or parts that made it ("Channels data (channels 1-12)").
QStringList groupsWritten(const WriteSteps &steps, int channelCount);
QStringList stepsRefused(const WriteSteps &steps);
QStringList stepsUnanswered(const WriteSteps &steps);

// Channel indexes as their numbers, run together: "1-12, 14, 20-25".
QString channelRuns(const QList<int> &channels);

// The messages that follow "Finished operation!" or "Fault during save operation !": what was
// refused, then after a fault what the validator now holds (nothing, or the groups that reached
// it) and what may have reached it unanswered.
void tellWriteAftermath(UserPrompt *prompt, const WriteSteps &steps, int channelCount,
                        bool finished);
