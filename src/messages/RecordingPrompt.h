#pragma once

#include "UserPrompt.h"

#include <QList>
#include <QStringList>
#include <functional>

// Records every message and question, and answers from a queue set in advance; when the queue is
// empty it answers the default answer. Used by the tests and by scripted runs.
class RecordingPrompt final : public UserPrompt
{
public:
    explicit RecordingPrompt(Answer defaultAnswer = Answer::Cancel) : m_default(defaultAnswer) {}

    void tell(const QString &text, Kind) override { m_told.append(text); }
    Answer ask(const QString &text, Kind, Buttons) override
    {
        m_asked.append(text);
        return m_answers.isEmpty() ? m_default : m_answers.takeFirst();
    }

    int choose(const QString &text, Kind, const QStringList &choices,
               const QString &dismiss) override
    {
        m_asked.append(text);
        m_choices.append(choices + QStringList{dismiss});
        if (beforeChoice)
            beforeChoice();
        return m_chosen.isEmpty() ? -1 : m_chosen.takeFirst();
    }

    // The choices of the boxes with buttons of their own, pressed in turn (-1: dismissed);
    // when the queue is empty the box is dismissed.
    // Runs when a box with buttons of its own shows, before it is answered (the cable is
    // plugged back while the box is open).
    std::function<void()> beforeChoice;
    void setNextChoices(const QList<int> &chosen) { m_chosen = chosen; }
    // The buttons each such box offered, its dismiss button last.
    const QList<QStringList> &choices() const { return m_choices; }
    void setNextAnswers(const QList<Answer> &answers) { m_answers = answers; }
    void setDefaultAnswer(Answer a) { m_default = a; }
    const QStringList &told() const { return m_told; }
    const QStringList &asked() const { return m_asked; }
    QStringList all() const { return m_told + m_asked; }
    void clear()
    {
        m_told.clear();
        m_asked.clear();
        m_choices.clear();
    }

private:
    Answer m_default;
    QList<Answer> m_answers;
    QStringList m_told;
    QStringList m_asked;
    QList<int> m_chosen;
    QList<QStringList> m_choices;
};
