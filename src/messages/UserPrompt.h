#pragma once

#include <QString>

// The one way the core speaks to the person at the bench: the GUI answers with message boxes,
// the CLI with stderr and its flags, the tests with a recorder. The core never opens a window.
class UserPrompt
{
public:
    enum class Kind
    {
        Information,
        Warning,
        Error,
        Confirmation
    };
    enum class Buttons
    {
        Ok,
        OkCancel,
        YesNo,
        YesNoCancel
    };
    enum class Answer
    {
        Ok,
        Cancel,
        Yes,
        No
    };

    virtual ~UserPrompt() = default;

    // A plain message box with an OK button.
    virtual void tell(const QString &text, Kind kind = Kind::Information) = 0;
    // A question; returns the button pressed.
    virtual Answer ask(const QString &text, Kind kind, Buttons buttons) = 0;
};

// Says nothing and answers Cancel (or No): for probes and background work.
class SilentPrompt final : public UserPrompt
{
public:
    void tell(const QString &, Kind) override {}
    Answer ask(const QString &, Kind, Buttons buttons) override
    {
        return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    }
};
