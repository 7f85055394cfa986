#pragma once

#include "ConfigDiff.h"
#include "HistoryStore.h"

#include <QList>
#include <QString>
#include <functional>
#include <optional>

class UserPrompt;

// The History window of one validator: its events oldest first, each with what changed since
// the one before in the editor's words; any two compared; "Restore" puts a chosen state back.
// Controls: GridHistory (the events; one row chosen shows its changes, two their comparison),
// ListDifferences with LabelDifferences above it, BtnRestore (only where the opener can write),
// BtnClose.
class HistoryModel final
{
public:
    HistoryModel(const HistoryStore &store, UserPrompt *prompt);

    // Reads the serial's events; false (said through the prompt) when the history cannot be
    // read.
    bool load(quint32 serial);
    quint32 serial() const { return m_serial; }
    const QList<HistoryEvent> &events() const { return m_events; }

    struct Row
    {
        QString time; // local time
        QString kind;
        QString result;
        QString program; // program, machine and user
        QString changes; // the first change, and how many there are
    };
    const QList<Row> &rows() const { return m_rows; }
    static QStringList columnTitles();
    QString title() const;

    // What changed at event index (0-based) since the last event before it that knew the
    // configuration; nothing when either is not known.
    std::optional<QList<ConfigChange>> changesAt(int index) const;
    // From event a to event b (0-based); nothing when either holds no configuration.
    std::optional<QList<ConfigChange>> compare(int a, int b) const;

    // The lines under LabelDifferences: the chosen event's changes (one row chosen) or the
    // comparison (two rows chosen).
    void choose(const QList<int> &rows);
    const QString &differencesHeading() const { return m_heading; }
    const QStringList &differences() const { return m_lines; }

    // Restore: write puts a configuration on the validator and says whether it did; holds is
    // what the validator holds now as the opener knows it (nothing: the newest configuration of
    // the history).
    void setRestore(std::function<bool(const ConfigImage &)> write,
                    std::function<std::optional<ConfigImage>()> holds = {});
    bool restoreAvailable() const { return bool(m_write); }
    bool restoreEnabled() const;
    // Shows what will change and asks; on Yes writes the chosen event's configuration, then
    // reads the history again. True when it was written.
    bool restore();

    // The event's kind and result in the chosen language.
    static QString kindText(const QString &kind);
    static QString resultText(const QString &result);

private:
    std::optional<ConfigImage> newestConfiguration() const;
    QString eventTime(int index) const;

    const HistoryStore &m_store;
    UserPrompt *m_prompt;
    quint32 m_serial = 0;
    QList<HistoryEvent> m_events;
    QList<Row> m_rows;
    QList<int> m_chosen;
    QString m_heading;
    QStringList m_lines;
    std::function<bool(const ConfigImage &)> m_write;
    std::function<std::optional<ConfigImage>()> m_holds;
};
