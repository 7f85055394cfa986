#pragma once

#include "LearningSession.h"

class UserPrompt;

// Calibrating the validator's reference channel with two sets of reference tokens: five golden
// ones give HFU low, LF, DIM, HFL low and the amplitude, five silver ones HFU high and HFL
// high. Nothing is written while the validator's door is open.
namespace ReferenceCalibration {

// The second half of the status word (command 9) is the door: not zero while open. Nothing
// when the status cannot be read.
std::optional<bool> doorOpen(TMonnayeur &link);

// A learning session set up for one pass of tokens.
LearningSession tokenSession();

// Writes the reference record into the reference channel; says "Reference Channel saved !" or
// "Programming Error !". The image's reference channel takes the record when it was saved.
bool writeReference(TMonnayeur &link, ConfigImage &image, const ChannelBytes &reference,
                    UserPrompt *prompt);

} // namespace ReferenceCalibration
