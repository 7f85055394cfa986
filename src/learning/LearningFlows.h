#pragma once

#include <QStringList>
#include <functional>

class CAdjustModel;
class LearningServices;
class ProgCoinModel;
class TMonnayeur;
class UserPrompt;
struct ConfigImage;

// Where the learning procedures show their forms: the program opens its windows modally, the
// tests drive the models in their place.
class LearningWindows
{
public:
    virtual ~LearningWindows() = default;
    // The coin learning form, until it closes.
    virtual void runProgCoin(ProgCoinModel &model) = 0;
    // The channel-to-adjust dialog, until it closes.
    virtual void runChannelToAdjust(CAdjustModel &model) = 0;
    // The reference channel notice.
    virtual void showReferenceNotice() = 0;
    // The overlapped channels list beside the windows chart of the configuration.
    virtual void showOverlap(const ConfigImage &image) = 0;
};

// What the procedures work with besides the link and the image.
struct LearningContext
{
    UserPrompt *prompt = nullptr;
    LearningServices *services = nullptr;
    LearningWindows *windows = nullptr;
    bool autoAdjust = false;  // "&Auto adjust": shows "Anal&yse"
    bool directWrite = false; // "&Direct write": "&OK" writes the channel at once
    bool soundOn = false;
    std::function<void()> coinSound;
    // Coin learning starts on this channel (the last one used; 0: none) and tells which
    // channel the form was left on.
    int learnChannel = 0;
    std::function<void(int channel)> learnChannelUsed;
};

// The procedures of the editor's learning buttons. Each returns whether the image changed.
namespace LearningFlows {

// Coin learning: the form in learning mode, ten coins at least.
bool learnCoins(TMonnayeur &link, ConfigImage &image, const LearningContext &context);
// The reference calibration: five golden tokens, then five silver ones, then the write of the
// reference channel. Nothing is written while the door is open or after a cancel.
bool calibrateReference(TMonnayeur &link, ConfigImage &image, const LearningContext &context);
// The channel control: the channel to adjust, then the form in modify mode.
bool controlChannel(TMonnayeur &link, ConfigImage &image, const LearningContext &context);
// The overlapped channels list, or "No overlapping !".
void checkOverlap(const ConfigImage &image, const LearningContext &context);

} // namespace LearningFlows
