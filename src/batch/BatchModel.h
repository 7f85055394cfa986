#pragma once

#include "BatchRun.h"
#include "ControlSet.h"

#include <QColor>
#include <functional>
#include <memory>
#include <optional>

class SoundPlayer;
class UserPrompt;

// The Batch window without its widgets: the source, what to write, how many, Start and Stop, a
// large status for the bench, the counters and the validators done, keyed by the controls'
// object names. The window's timer calls tick() while the batch runs.
class BatchModel final
{
public:
    // Where a batch may take its configuration from.
    struct Sources
    {
        // The editor's configuration, when it holds one.
        std::optional<ConfigImage> editorImage;
        // The file dialog; empty when cancelled.
        std::function<QString()> chooseFile;
        // The validators saved in the tables, and how one is loaded (false: *error says why).
        QStringList saved;
        std::function<bool(const QString &identification, ConfigImage &image, QString *error)>
            loadSaved;
        // The data directory: the log goes into its batches/, the backups into its backups/.
        QString dataDirectory;
    };

    // link null: nothing can start. sounds null: no sound.
    BatchModel(TMonnayeur *link, UserPrompt *prompt, SoundPlayer *sounds, Sources sources);
    ~BatchModel();
    Q_DISABLE_COPY_MOVE(BatchModel)

    const ControlSet &controls() const { return m_controls; }
    const ControlState &control(const QString &name) const { return m_controls.state(name); }
    void type(const QString &name, const QString &text);
    void click(const QString &name);
    void pick(const QString &name, int item);
    // One step of the batch; the window's timer calls it every tickIntervalMs while running().
    void tick();
    bool running() const { return m_run && m_run->running(); }
    static constexpr int kTickIntervalMs = 50;
    // The texts of the current language.
    void retranslate();

    // The validators done, one row each: time, serial number, family, result, seconds, detail.
    struct Row
    {
        QStringList cells;
        BatchResult result = BatchResult::Failed;
    };
    const QList<Row> &rows() const { return m_rows; }
    static QStringList columnTitles();
    // The colour of a result in the table: green verified, red failed or differing, amber
    // skipped.
    static QColor resultColour(BatchResult result);
    static QString resultCaption(BatchResult result);

    // The window repaints these controls; "GridDone" stands for the table.
    std::function<void(const QStringList &changed)> changed;
    // Each validator's result as soon as it is known (the history listens here).
    std::function<void(const BatchValidatorResult &)> validatorDone;
    // The log of the run that started last; empty before.
    QString logPath() const { return m_log ? m_log->path() : QString(); }
    const BatchRun *run() const { return m_run.get(); }

private:
    void build();
    void start();
    bool takeSource(ConfigImage &image, QString &name);
    void showSource();
    void showRun();
    void addRow(const BatchValidatorResult &done);
    void flush();
    void tell(const QString &text);

    TMonnayeur *m_link;
    UserPrompt *m_prompt;
    SoundPlayer *m_sounds;
    Sources m_sources;
    ControlSet m_controls;
    QList<Row> m_rows;
    std::unique_ptr<BatchLog> m_log;
    std::unique_ptr<BatchRun> m_run;
    bool m_gridChanged = false;
};
