#pragma once

#include "ConfigImage.h"
#include "ControlSet.h"
#include "Encodings.h"

#include <QDate>
#include <QDateTime>

class UserPrompt;

// The editor's flags.
struct EditorFlags
{
    bool editChanged = false;    // EditChanged: a box changed since it was entered
    bool configModified = false; // ConfigModified: the image differs from what was read or saved
    bool readOnOpen = false;     // the editor was opened with the request to read
    bool openingRead = false;
    bool readFailed = false;
    bool promptFlag = false;     // a failed connect asks "Connect validator "
    bool serialOverride = false; // the next full write writes the image's serial number
    bool filling = false;        // the form is being refilled from the image
};

// Where the image the Changes window compares with came from.
struct BaselineSource
{
    enum class Kind
    {
        None,    // the blank image the editor starts with
        Read,    // read from the connected validator (or read back after a write)
        Written, // written to it by a write that finished
        Record,  // opened from a saved validator, the validator not read
        File     // opened from a configuration file, the validator not read
    };
    Kind kind = Kind::None;
    QString name;       // the saved validator's identification, or the file's name
    quint32 serial = 0; // the validator's serial number
    QDateTime at;       // when it was read or written
    // Whether the image is what the connected validator held.
    bool fromValidator() const { return kind == Kind::Read || kind == Kind::Written; }
};

// What every group of the editor works on: the controls, the image, the flags and the person.
struct EditorState
{
    ControlSet controls;
    ConfigImage image = ConfigImage::blank();
    // The image as last read, opened or written: what the Changes window compares with.
    ConfigImage baseline = ConfigImage::blank();
    BaselineSource baselineFrom;
    EditorFlags flags;
    UserPrompt *prompt = nullptr;

    void tell(const QString &text) const;
    QString text(const QString &name) const { return controls.state(name).text; }
    bool checked(const QString &name) const { return controls.state(name).checked; }

    // The credit bases of the channel values: base 1 for channels 1 to 30, base 2 above.
    DecimalWord base(int channel) const;
    // The firmware date of the version bytes 1-2; invalid when there is none.
    QDate firmwareDate() const;
    // A word of the value block (the bases), most significant byte first.
    Word2 valueWord(int at) const;
    void setValueWord(int at, Word2 word);

    // Under multi-pulse a coin gives at most five pulses of its substitute channel.
    static constexpr int kMaxPulses = 5;
    // Channel value boxes show their amount right-aligned in 7 places (price boxes in 6).
    static constexpr int kValueWidth = 7;
    // The value byte of substitute channel s (1-based); 0 when s names no channel.
    quint8 substituteValue(int s) const;
    // "The value of channels %d and %d is incompatible for the function multi-pulse ..."
    void tellMultiPulse(int channel, int substitute) const;

    // An amount typed into a value or price box, against its base: above what the base can show
    // it is held at the maximum with "Value over the maximum, it will be correct"; a negative
    // one is refused with its own message and gives nothing. Text that is not a number gives
    // nothing and sets *notNumber, without a message (the caller has its own).
    std::optional<quint8> takeAmount(const QString &text, const DecimalWord &base,
                                     bool *notNumber) const;
    // What an amount box takes, for its tool tip: the base's step and maximum.
    static QString amountTip(const DecimalWord &base, bool channelValue);

    // The output type, the low three bits of the option word's second byte as the radio
    // group's item.
    int outputType() const;
};

// The output type an option word gives, as the type radio group's item (0 to 7).
int outputTypeOf(const OptionWord &options);

// Names of the controls that have one per channel: prefix + channel index.
inline QString channelControl(const char *prefix, int k)
{
    return QLatin1String(prefix) + QString::number(k);
}
