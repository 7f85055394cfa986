#include "TracingTransport.h"

#include <QDateTime>

TracingTransport::TracingTransport(Transport *inner, QTextStream *log) : m_inner(inner), m_log(log)
{
    m_clock.start();
    line(QStringLiteral("open"), {});
}

void TracingTransport::line(const QString &what, const QByteArray &bytes)
{
    if (!m_log)
        return;
    const QString command =
        m_command < 0 ? QStringLiteral("   -") : QString::asprintf("%4d", m_command);
    *m_log << QDateTime::currentDateTime().toString(QStringLiteral("HH:mm:ss.zzz"))
           << QString::asprintf(" %8lld ms  cmd %s  ", m_clock.elapsed(), qPrintable(command))
           << what;
    if (!bytes.isEmpty())
        *m_log << QLatin1Char(' ') << bytes.toHex(' ');
    *m_log << Qt::endl;
}

qint64 TracingTransport::write(const QByteArray &bytes)
{
    const qint64 n = m_inner->write(bytes);
    line(n == bytes.size() ? QStringLiteral("sent") : QStringLiteral("sent (incomplete)"), bytes);
    return n;
}

QByteArray TracingTransport::read(int count, int firstByteWaitMs)
{
    const QByteArray got = m_inner->read(count, firstByteWaitMs);
    if (got.size() == count)
        line(QStringLiteral("recv"), got);
    else
        line(QStringLiteral("recv %1 of %2 (time-out)").arg(got.size()).arg(count), got);
    return got;
}

void TracingTransport::purge()
{
    line(QStringLiteral("purge"), {});
    m_inner->purge();
}

void TracingTransport::beginExchange(quint8 command)
{
    m_command = command;
    m_inner->beginExchange(command);
}
