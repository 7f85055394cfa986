#pragma once

#include "ConfigDiff.h"

#include <QList>
#include <QString>
#include <functional>
#include <utility>

struct EditorState;

// The Changes window: what the next full write would change on the validator, that is every
// field of the editor's image that differs from the image as last read, opened or written,
// grouped as the cloning dialog groups them.
class ChangesModel final
{
public:
    // copyForm copies the form into the image as the writes do, so that a box typed into but
    // not yet left counts.
    ChangesModel(const EditorState &editor, std::function<void()> copyForm);

    struct Line
    {
        QString text;
        bool heading = false; // a group's name; the changes of the group follow it
    };

    // Takes the form into the image, then lists the differences.
    void open();
    // Lists again without touching the image (the language changed).
    void list();

    const QList<ConfigChange> &changes() const { return m_changes; }
    // The group names and the changes under them, one line each; when there is no change,
    // the one line that says so.
    const QList<Line> &lines() const { return m_lines; }
    // What the list compares with, one line above it: "Since read from validator 1001 at
    // 10:42", or where the configuration was opened from when the validator was not read.
    const QString &since() const { return m_since; }
    QString title() const;
    QString closeCaption() const;

    // The write the window offers for what it lists: "Write changes" when the editor knows
    // what the connected validator holds, the whole write ("Write validator") when it does
    // not. Pressing it closes the window and the editor writes.
    enum class Offer
    {
        None,
        Changes,
        Whole
    };
    void setOffer(Offer offer) { m_offer = offer; }
    Offer offer() const { return m_changes.isEmpty() ? Offer::None : m_offer; }
    QString writeCaption() const;
    void requestWrite() { m_requested = offer(); }
    Offer takeWriteRequest() { return std::exchange(m_requested, Offer::None); }

private:
    const EditorState &m_editor;
    std::function<void()> m_copyForm;
    QList<ConfigChange> m_changes;
    QList<Line> m_lines;
    QString m_since;
    Offer m_offer = Offer::None;
    Offer m_requested = Offer::None;
};
