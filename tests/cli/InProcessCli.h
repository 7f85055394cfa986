#pragma once

#include "CliContext.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// tarvik-cli run in-process: its exit code and what it printed.
struct InProcessRun
{
    int code = -1;
    QString out, err;
};

inline InProcessRun runInProcess(const QStringList &args)
{
    InProcessRun r;
    QTextStream out(&r.out);
    QTextStream err(&r.err);
    r.code = runCli(args, out, err);
    return r;
}

// Each test has its own directory, where the backups of its reads and its tables go.
class CliFixture : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "cli_tests";
        static char *argv[] = {name, nullptr};
        if (!QCoreApplication::instance())
            new QCoreApplication(argc, argv);
    }
    void SetUp() override { qputenv("TARVIK_DB", dir.path().toLocal8Bit()); }
    QString path(const char *name) const { return dir.filePath(QLatin1String(name)); }

    QTemporaryDir dir;
};
