#pragma once

#include <QString>
#include <QStringList>

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
    // A question with buttons of its own: returns the index of the choice pressed, or -1 when
    // the person dismissed the box (the dismiss button, Escape, the window's close). Where
    // there are no buttons to press, the text is told and the box counts as dismissed.
    virtual int choose(const QString &text, Kind kind, const QStringList &choices,
                       const QString &dismiss)
    {
        Q_UNUSED(choices)
        Q_UNUSED(dismiss)
        tell(text, kind);
        return -1;
    }
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
