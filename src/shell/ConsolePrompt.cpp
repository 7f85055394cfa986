#include "ConsolePrompt.h"

#include <cstdio>

void ConsolePrompt::tell(const QString &text, Kind)
{
    std::fprintf(stderr, "tarvik: %s\n", qPrintable(text));
}

UserPrompt::Answer ConsolePrompt::ask(const QString &text, Kind kind, Buttons buttons)
{
    tell(text, kind);
    return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}
