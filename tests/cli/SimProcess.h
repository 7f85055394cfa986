#pragma once

#include "LoadedMachine.h"

#include <QProcess>
#include <QString>
#include <QStringList>

// tarvik-sim running on a pseudo-terminal; path() is its slave side.
class SimProcess
{
public:
    explicit SimProcess(const QStringList &arguments)
    {
        m_process.start(QStringLiteral(TARVIK_SIM_PATH), arguments + QStringList{"--quiet"});
        if (!m_process.waitForStarted(5000))
            return;
        while (!m_process.canReadLine() && m_process.waitForReadyRead(5000)) {
        }
        m_path = QString::fromLocal8Bit(m_process.readLine()).trimmed();
    }
    ~SimProcess() { stop(); }

    const QString &path() const { return m_path; }
    // A line for the bench on the simulator's standard input ("coin golden 5").
    void send(const QByteArray &line)
    {
        m_process.write(line + '\n');
        m_process.waitForBytesWritten(2000);
    }
    // Ends the simulator cleanly, so that it saves its memory when asked to.
    void stop()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.terminate();
        if (!m_process.waitForFinished(5000))
            m_process.kill();
        m_process.waitForFinished(2000);
    }

private:
    QProcess m_process;
    QString m_path;
};

struct CliRun
{
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs the built tarvik-cli as its own process, in the environment given. A run over a port
// waits kTestPortTimeoutMs for the simulator's first byte unless it names its own time-out.
inline CliRun runTarvikCliIn(const QProcessEnvironment &environment, const QStringList &arguments,
                             int timeoutMs = 60000)
{
    QStringList args = arguments;
    if ((args.contains(QLatin1String("--device")) || args.contains(QLatin1String("--port"))) &&
        !args.contains(QLatin1String("--port-timeout")))
        args = QStringList{QStringLiteral("--port-timeout"), QString::number(kTestPortTimeoutMs)} +
               args;
    QProcess cli;
    cli.setProcessEnvironment(environment);
    cli.start(QStringLiteral(TARVIK_CLI_PATH), args);
    CliRun run;
    if (!cli.waitForFinished(timeoutMs)) {
        cli.kill();
        cli.waitForFinished(2000);
        return run;
    }
    run.exitCode = cli.exitStatus() == QProcess::NormalExit ? cli.exitCode() : -1;
    run.out = QString::fromUtf8(cli.readAllStandardOutput());
    run.err = QString::fromUtf8(cli.readAllStandardError());
    return run;
}

// The same in this process's environment, with the port map TARVIK_PORTS when one is given.
inline CliRun runTarvikCli(const QStringList &arguments, int timeoutMs = 60000,
                           const QString &portMap = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!portMap.isEmpty())
        environment.insert(QStringLiteral("TARVIK_PORTS"), portMap);
    return runTarvikCliIn(environment, arguments, timeoutMs);
}
