// tarvik-cli clone against tarvik-sim over a pseudo-terminal: the target's own configuration is
// kept among the backups before anything is written (unless --no-backup or the setting says
// otherwise), and the result names the correction its sensors brought to the windows.
#include "CloneTarget.h"
#include "ConfigFile.h"
#include "InProcessCli.h"
#include "SimProcess.h"
#include "VirtualValidator.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

class CloneCommand : public CliFixture
{
protected:
    QStringList kept() const
    {
        return QDir(dir.filePath(QStringLiteral("backups")), QStringLiteral("*-serial1004.json"))
            .entryList();
    }
};

TEST_F(CloneCommand, KeepsTheTargetFirstAndPrintsTheCorrection)
{
    // Validator 1000's configuration onto validator 1004, whose sensors read higher.
    const ConfigImage source = VirtualValidator::factoryImage(0x13, 1000);
    const ConfigImage target = VirtualValidator::factoryImage(0x13, 1004);
    const QString file = path("source.json");
    ASSERT_TRUE(saveConfigFile(file, source, nullptr));
    SimProcess sim({"--family", "0x13", "--serial", "1004"});
    ASSERT_FALSE(sim.path().isEmpty());

    const CliRun clone = runTarvikCli({"--device", sim.path(), "clone", file}, 120000);
    ASSERT_EQ(clone.exitCode, 0) << qPrintable(clone.err);
    // Before the clone, and what its read-back found after it.
    ASSERT_EQ(kept().size(), 2) << qPrintable(clone.err);
    const QString backup = dir.filePath(QStringLiteral("backups/")) + kept().first();
    ConfigImage before;
    ASSERT_TRUE(loadConfigFile(backup, before, nullptr));
    EXPECT_EQ(before.channels, target.channels);
    EXPECT_EQ(before.serialNumber(), 1004u);
    // The backup is said before the write's result, and the result names the correction.
    const QString correction =
        correctionText(cloneCorrection(source.channels[59].data(), target.channels[59].data()));
    const qsizetype keptAt =
        clone.err.indexOf("The validator's own configuration was kept in " + backup + ".\n");
    const qsizetype finishedAt = clone.err.indexOf("Finished operation!\n" + correction + "\n");
    EXPECT_GE(keptAt, 0) << qPrintable(clone.err);
    EXPECT_GT(finishedAt, keptAt) << qPrintable(clone.err);
    EXPECT_TRUE(correction.startsWith(
        QStringLiteral("Windows corrected for this validator's sensors: HFU low \u00d7")));

    // --no-backup, and the setting switched off, keep nothing more.
    const CliRun bare =
        runTarvikCli({"--device", sim.path(), "clone", file, "--no-backup"}, 120000);
    EXPECT_EQ(bare.exitCode, 0) << qPrintable(bare.err);
    EXPECT_FALSE(bare.err.contains("was kept")) << qPrintable(bare.err);
    QTemporaryDir config;
    ASSERT_TRUE(QDir(config.path()).mkpath(QStringLiteral("Brunfeld")));
    QFile settings(config.filePath(QStringLiteral("Brunfeld/Tarvik.conf")));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("[DefaultSettings]\nCloneBackup=false\n");
    settings.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), config.path());
    const CliRun off =
        runTarvikCliIn(environment, {"--device", sim.path(), "clone", file, "--groups", "prices"});
    EXPECT_EQ(off.exitCode, 0) << qPrintable(off.err);
    EXPECT_FALSE(off.err.contains("was kept")) << qPrintable(off.err);
    EXPECT_EQ(kept().size(), 2);
}

} // namespace
