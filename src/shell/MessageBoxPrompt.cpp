#include "MessageBoxPrompt.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

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

int MessageBoxPrompt::choose(const QString &text, Kind kind, const QStringList &choices,
                             const QString &dismiss)
{
    if (g_diverted)
        return g_diverted->choose(text, kind, choices, dismiss);
    QMessageBox box(iconFor(kind), QApplication::applicationName(), text, QMessageBox::NoButton,
                    m_parent);
    QList<QAbstractButton *> buttons;
    for (const QString &choice : choices) {
        QPushButton *button = box.addButton(choice, QMessageBox::AcceptRole);
        button->setAccessibleName(choice);
        buttons.append(button);
    }
    QPushButton *close = box.addButton(dismiss, QMessageBox::RejectRole);
    close->setAccessibleName(dismiss);
    box.setEscapeButton(close);
    box.setDefaultButton(buttons.isEmpty() ? close : qobject_cast<QPushButton *>(buttons.first()));
    box.exec();
    return int(buttons.indexOf(box.clickedButton()));
}
