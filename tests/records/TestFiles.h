#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <gtest/gtest.h>

// Whole files, and the independent readers run as programs, for the records tests.
namespace testfiles {

inline QByteArray readAll(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline void writeAll(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(bytes);
}

// Puts text, right-aligned as a number field holds it, into the field at `offset` (`width`
// bytes) of the first row of a closed table's file, as another tool might leave it.
inline void spoilFirstRow(const QString &path, int offset, int width, const QByteArray &text)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    QByteArray bytes = f.readAll();
    ASSERT_GT(bytes.size(), 10);
    const int headerLength = quint8(bytes[8]) | quint8(bytes[9]) << 8;
    // The first row starts right after the header; offset counts its deletion flag.
    bytes.replace(headerLength + offset, width, text.rightJustified(width).right(width));
    f.seek(0);
    f.write(bytes);
}

struct ToolRun
{
    int exitCode = -1; // -1: it did not end, or crashed
    QByteArray out;
    QByteArray err;
};

inline ToolRun runTool(const QString &program, const QStringList &arguments)
{
    QProcess p;
    p.start(program, arguments);
    ToolRun result;
    if (p.waitForFinished(120000) && p.exitStatus() == QProcess::NormalExit)
        result.exitCode = p.exitCode();
    result.out = p.readAllStandardOutput();
    result.err = p.readAllStandardError();
    return result;
}

// The program's output; the test fails unless it exits 0.
inline QByteArray run(const QString &program, const QStringList &arguments)
{
    const ToolRun r = runTool(program, arguments);
    if (r.exitCode != 0) {
        ADD_FAILURE() << program.toStdString() << " failed: " << r.err.toStdString()
                      << r.out.toStdString();
        return {};
    }
    return r.out;
}

} // namespace testfiles
