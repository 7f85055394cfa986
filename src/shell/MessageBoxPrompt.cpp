#include "MessageBoxPrompt.h"

#include <QApplication>
#include <QMessageBox>

namespace {

UserPrompt *g_diverted = nullptr;

QMessageBox::Icon iconFor(UserPrompt::Kind kind)
{
    switch (kind) {
    case UserPrompt::Kind::Warning:
        return QMessageBox::Warning;
    case UserPrompt::Kind::Error:
        return QMessageBox::Critical;
    case UserPrompt::Kind::Confirmation:
        return QMessageBox::Question;
    case UserPrompt::Kind::Information:
        break;
    }
    return QMessageBox::Information;
}

QMessageBox::StandardButtons buttonsFor(UserPrompt::Buttons buttons)
{
    switch (buttons) {
    case UserPrompt::Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case UserPrompt::Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case UserPrompt::Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case UserPrompt::Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

UserPrompt::Answer answerFor(int button)
{
    switch (button) {
    case QMessageBox::Ok:
        return UserPrompt::Answer::Ok;
    case QMessageBox::Yes:
        return UserPrompt::Answer::Yes;
    case QMessageBox::No:
        return UserPrompt::Answer::No;
    default:
        return UserPrompt::Answer::Cancel;
    }
}

} // namespace

void MessageBoxPrompt::divertTo(UserPrompt *target)
{
    g_diverted = target;
}

UserPrompt *MessageBoxPrompt::divertedTo()
{
    return g_diverted;
}

void MessageBoxPrompt::tell(const QString &text, Kind kind)
{
    if (g_diverted) {
        g_diverted->tell(text, kind);
        return;
    }
    QMessageBox box(iconFor(kind), QApplication::applicationName(), text, QMessageBox::Ok,
                    m_parent);
    box.exec();
}

UserPrompt::Answer MessageBoxPrompt::ask(const QString &text, Kind kind, Buttons buttons)
{
    if (g_diverted)
        return g_diverted->ask(text, kind, buttons);
    QMessageBox box(iconFor(kind), QApplication::applicationName(), text, buttonsFor(buttons),
                    m_parent);
    return answerFor(box.exec());
}
