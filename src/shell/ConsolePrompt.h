#pragma once

#include "UserPrompt.h"

// Writes messages to the error stream and answers Cancel or No: for runs without a user.
class ConsolePrompt final : public UserPrompt
{
public:
    void tell(const QString &text, Kind kind = Kind::Information) override;
    Answer ask(const QString &text, Kind kind, Buttons buttons) override;
};
