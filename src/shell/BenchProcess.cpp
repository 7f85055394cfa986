#include "BenchProcess.h"

#include <QCoreApplication>
#include <QDir>

namespace {
// The bench prints its port as soon as it has opened it; a loaded machine may take a while.
constexpr int kStartMs = 30000;
} // namespace

BenchProcess::~BenchProcess()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    // The end of its input closes the panel; a bench that hangs is ended.
    m_process.closeWriteChannel();
    if (!m_process.waitForFinished(3000)) {
        m_process.terminate();
        if (!m_process.waitForFinished(3000))
            m_process.kill();
        m_process.waitForFinished(1000);
    }
}

QString BenchProcess::besideProgram()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("tarvik-sim"));
}

bool BenchProcess::start(const QString &program, const QString &line, const QString &language,
                         QString *error)
{
    QStringList arguments{QStringLiteral("--window"), QStringLiteral("--quiet"),
                          QStringLiteral("--end-with-parent"), QStringLiteral("--line"), line};
    if (!language.isEmpty())
        arguments << QStringLiteral("--language") << language;
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program, arguments);
    if (!m_process.waitForStarted(kStartMs)) {
        *error = m_process.errorString();
        return false;
    }
    while (!m_process.canReadLine() && m_process.state() == QProcess::Running &&
           m_process.waitForReadyRead(kStartMs)) {
    }
    m_portPath = QString::fromLocal8Bit(m_process.readLine()).trimmed();
    if (m_portPath.isEmpty()) {
        *error = QStringLiteral("%1 did not name its port").arg(program);
        return false;
    }
    return true;
}
