#pragma once

#include "UserPrompt.h"

class QWidget;

// The program's message boxes: the one place that opens a QMessageBox. Tests (and --smoke)
// divert every message and question to another prompt, which answers in place of the user.
class MessageBoxPrompt final : public UserPrompt
{
public:
    explicit MessageBoxPrompt(QWidget *parent = nullptr) : m_parent(parent) {}

    void tell(const QString &text, Kind kind = Kind::Information) override;
    Answer ask(const QString &text, Kind kind, Buttons buttons) override;
    int choose(const QString &text, Kind kind, const QStringList &choices,
               const QString &dismiss) override;

    // Every message box of every MessageBoxPrompt goes to target instead (nullptr: shown).
    static void divertTo(UserPrompt *target);
    static UserPrompt *divertedTo();

private:
    QWidget *m_parent;
};
