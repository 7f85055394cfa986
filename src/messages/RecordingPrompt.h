#pragma once

#include "UserPrompt.h"

#include <QList>
#include <QStringList>

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

    void setNextAnswers(const QList<Answer> &answers) { m_answers = answers; }
    void setDefaultAnswer(Answer a) { m_default = a; }
    const QStringList &told() const { return m_told; }
    const QStringList &asked() const { return m_asked; }
    QStringList all() const { return m_told + m_asked; }
    void clear()
    {
        m_told.clear();
        m_asked.clear();
    }

private:
    Answer m_default;
    QList<Answer> m_answers;
    QStringList m_told;
    QStringList m_asked;
};
