#pragma once

#include "ConfigImage.h"
#include "LineProfile.h"
#include "TMonnayeur.h"
#include "Transport.h"
#include "UserPrompt.h"

#include <QFile>
#include <QMap>
#include <QStringList>
#include <QTextStream>
#include <functional>
#include <memory>
#include <optional>

// Exit codes of tarvik-cli.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUsage = 2;
// A command's own trouble that ends with exit code 2 without the usage line (as diff has it).
inline constexpr int kExitTrouble = 0x102;

// Messages go to stderr; questions are answered by the command's flags (the default answer),
// since nobody sits at the terminal to click.
class CliPrompt final : public UserPrompt
{
public:
    explicit CliPrompt(QTextStream &err) : m_err(err) {}
    void tell(const QString &text, Kind kind) override;
    Answer ask(const QString &text, Kind kind, Buttons buttons) override;
    // A box with buttons of its own is dismissed: a script decides what comes next itself.
    int choose(const QString &text, Kind kind, const QStringList &choices,
               const QString &dismiss) override;
    void setAnswer(Answer a) { m_answer = a; }
    const QStringList &told() const { return m_told; }

private:
    QTextStream &m_err;
    Answer m_answer = Answer::Cancel;
    QStringList m_told;
};

struct GlobalOptions
{
    QString device;
    QString port;       // COMn, as given
    int portNumber = 0; // n of COMn
    // The wait for a count echo or a reply's first byte (--port-timeout).
    int portTimeoutMs = Transport::kDefaultReadTimeoutMs;
    bool simulate = false;
    int simFamily = 0x13;
    // How rough the virtual validator's line is (--sim-line): a bench's by default.
    LineProfile simLine = LineProfile::bench();
    QString dataDir;
    // A data directory or a postgresql:// address (--data-source); it wins over --data-dir.
    QString dataSource;
    QString trace;
};

// What every command gets: the options, the streams, the prompt and, on request, the link.
class CliContext
{
public:
    CliContext(const GlobalOptions &options, QTextStream &out, QTextStream &err,
               bool progressToTerminal);
    ~CliContext();
    Q_DISABLE_COPY_MOVE(CliContext)

    const GlobalOptions &options() const { return m_options; }
    QTextStream &out() { return m_out; }
    QTextStream &err() { return m_err; }
    CliPrompt &prompt() { return m_prompt; }
    bool progressToTerminal() const { return m_progress; }

    // Opens the link the options name (device, port, virtual validator, or the probe).
    // On failure the reason has been printed and nullptr is returned.
    TMonnayeur *openLink();
    Transport *transport() const { return m_link ? m_link->transport() : nullptr; }

    // Shows a gauge on stderr when it is a terminal.
    void showProgress(const QString &label, int percent);
    void endProgress();

private:
    std::unique_ptr<Transport> openTransport(int &comPortNumber);

    GlobalOptions m_options;
    QTextStream &m_out;
    QTextStream &m_err;
    bool m_progress;
    CliPrompt m_prompt;
    std::unique_ptr<Transport> m_transport;
    std::unique_ptr<QFile> m_traceFile;
    std::unique_ptr<QTextStream> m_traceStream;
    std::unique_ptr<Transport> m_tracing;
    std::unique_ptr<TMonnayeur> m_link;
    bool m_progressShown = false;
};

class DataSource;
class DbfTable;
class TDBModule;
// Opens the data source the options name (--data-source, --data-dir, TARVIK_DATA_SOURCE, the
// settings). For a directory, what cannot be opened or opens damaged has been said once, and
// false is returned when one of the tables reads needs is not open; a server is reached on the
// first operation.
bool openDataSource(CliContext &cli, DataSource &source,
                    const QList<DbfTable *(TDBModule::*)() const> &reads = {});

struct ConfigImage;
// Writes an image as a configuration file to path, or to stdout when path is empty.
int writeImageOutput(CliContext &cli, const ConfigImage &image, const QString &path);
// Reads the whole validator through the options' link, with the gauge on the terminal, and
// keeps a backup of the read; false (the reason printed) when the read did not complete.
bool readValidatorImage(CliContext &cli, ConfigImage &image);
// Loads a configuration file, printing why it was refused.
bool readImageInput(CliContext &cli, const QString &path, ConfigImage &image);
// Takes "-o FILE" (or "--output FILE") out of args; false when it has no file name.
bool takeOutputOption(QStringList &args, QString &path);

// A write of a command, for the validator's history: its kind ("write", "clone", "restore"),
// the validator's serial number and what it holds afterwards as far as known without a
// read-back, and a note (the file written).
struct WrittenState
{
    QString kind;
    std::optional<quint32> serial;
    std::optional<ConfigImage> holds;
    QString detail;
};
struct SentBlocks;
enum class WriteOutcome;
// The write's exit code, with its verification unless verify is false, and its event kept in
// the validator's history. A write that finished with a step refused (the write has said which)
// did not give the validator everything: exit 1, with or without the read-back.
int afterWrite(CliContext &cli, TMonnayeur &link, WriteOutcome outcome, bool verify,
               const SentBlocks &sent, const WrittenState &written, bool keep = true);
struct CloneGroups;
// The clone's groups from a comma list of channels, values, prices, config and enable; false with
// the reason for an unknown name or none at all.
bool parseCloneGroups(const QString &list, CloneGroups &groups, QString &error);
// One difference as diff --json gives it.
class QJsonObject;
struct ConfigChange;
QJsonObject changeObject(const ConfigChange &change);
// The differences from before to after as diff prints them (--json as diff --json); the exit
// code diff gives: 0 the same, 1 different.
int printDifferences(CliContext &cli, const ConfigImage &before, const ConfigImage &after,
                     bool json);

struct CliCommand
{
    QString usage; // "read [-o FILE]"
    QString help;
    std::function<int(CliContext &, const QStringList &)> run;
};
using CliCommandTable = QMap<QString, CliCommand>;

// Each group of commands registers itself here.
void registerLinkCommands(CliCommandTable &table);
void registerWriteCommands(CliCommandTable &table);
void registerRecordCommands(CliCommandTable &table);
void registerEditorCommands(CliCommandTable &table);
void registerLearnCommands(CliCommandTable &table);
void registerValueCommands(CliCommandTable &table);
void registerProfileCommands(CliCommandTable &table);
void registerRepairCommands(CliCommandTable &table);
void registerDiffCommands(CliCommandTable &table);
void registerSheetCommands(CliCommandTable &table);
void registerBatchCommands(CliCommandTable &table);
void registerHistoryCommands(CliCommandTable &table);
void registerMigrateCommands(CliCommandTable &table);

// Runs tarvik-cli with the arguments after the program name.
int runCli(const QStringList &arguments, QTextStream &out, QTextStream &err,
           bool progressToTerminal = false);
QString cliUsage(const CliCommandTable &table);
// The command the arguments name, after the global options; empty when there is none.
QString cliCommandName(const QStringList &arguments);
