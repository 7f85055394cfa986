// tarvik-cli: its command-line rules in-process, and whole runs against tarvik-sim over a
// pseudo-terminal.
#include "ConfigFile.h"
#include "InProcessCli.h"
#include "Messages.h"
#include "SRecords.h"
#include "SimProcess.h"
#include "VirtualValidator.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

namespace {

using InProcess = InProcessRun;

InProcess cli(const QStringList &args)
{
    return runInProcess(args);
}

class Cli : public CliFixture
{};

TEST_F(Cli, UsageErrorsExitWithTwo)
{
    EXPECT_EQ(cli({}).code, kExitUsage);
    EXPECT_EQ(cli({"frobnicate"}).code, kExitUsage);
    EXPECT_EQ(cli({"--device"}).code, kExitUsage);
    EXPECT_EQ(cli({"--simulate", "--port", "COM3", "read"}).code, kExitUsage);
    EXPECT_EQ(cli({"--simulate", "read", "extra"}).code, kExitUsage);
    EXPECT_EQ(cli({"--simulate", "clone", "f.json", "--groups", "prices,nonsense"}).code,
              kExitUsage);
    EXPECT_EQ(cli({"--simulate", "write", "f.json", "--serial", "12x"}).code, kExitUsage);
    const InProcess help = cli({"--help"});
    EXPECT_EQ(help.code, kExitOk);
    EXPECT_TRUE(help.out.contains("read [-o FILE]"));
    const InProcess version = cli({"--version"});
    EXPECT_EQ(version.code, kExitOk);
    EXPECT_EQ(version.out, QStringLiteral("tarvik-cli " TARVIK_VERSION "\n"));
}

TEST_F(Cli, ReadsTheVirtualValidatorInProcess)
{
    const QString file = dir.filePath("v.json");
    const InProcess r = cli({"--sim-family", "0x31", "read", "-o", file});
    ASSERT_EQ(r.code, kExitOk) << qPrintable(r.err);
    ConfigImage image;
    QString error;
    ASSERT_TRUE(loadConfigFile(file, image, &error)) << qPrintable(error);
    EXPECT_EQ(image.channelCount(), 25);

    const InProcess toStdout = cli({"--simulate", "read"});
    EXPECT_EQ(toStdout.code, kExitOk);
    EXPECT_TRUE(toStdout.out.contains("\"format\": \"tarvik-config\""));
}

TEST_F(Cli, EveryReadIsKeptAndAWriteOfAnotherFamilySendsNothing)
{
    const QString file = dir.filePath("v.json");
    ASSERT_EQ(cli({"--simulate", "read", "-o", file}).code, kExitOk);
    EXPECT_EQ(QDir(dir.filePath("backups")).entryList(QDir::Files).size(), 1);

    const QString trace = dir.filePath("trace.txt");
    const InProcess light = cli({"--sim-family", "0x33", "--trace", trace, "write", file});
    EXPECT_EQ(light.code, kExitFailed);
    EXPECT_TRUE(light.err.contains("The file holds a 5.3 validator but a Light validator is "
                                   "connected: nothing was written."));
    QFile sent(trace);
    ASSERT_TRUE(sent.open(QIODevice::ReadOnly));
    EXPECT_FALSE(sent.readAll().contains("cmd    3")) << "no channel was written";
    // --force sends it anyway: the Light validator then refuses channels 26 to 60.
    cli({"--sim-family", "0x33", "--trace", trace, "write", file, "--force"});
    QFile forced(trace);
    ASSERT_TRUE(forced.open(QIODevice::ReadOnly));
    EXPECT_TRUE(forced.readAll().contains("cmd    3"));
}

TEST_F(Cli, ShowAndEditDriveTheEditorOverAFile)
{
    const QString file = dir.filePath("v.json");
    ASSERT_EQ(cli({"--simulate", "read", "-o", file}).code, kExitOk);

    const InProcess shown = cli({"show", file, "EHFUBMIN40", "Enable0", "GroupType"});
    ASSERT_EQ(shown.code, kExitOk) << qPrintable(shown.err);
    const QJsonObject o = QJsonDocument::fromJson(shown.out.toUtf8()).object();
    EXPECT_EQ(o.keys(), (QStringList{"EHFUBMIN40", "Enable0", "GroupType"}));
    EXPECT_EQ(o["EHFUBMIN40"].toObject()["text"].toString(), QString());
    EXPECT_TRUE(o["Enable0"].toObject()["checked"].toBool());
    EXPECT_EQ(o["GroupType"].toObject()["itemIndex"].toInt(), 0);

    const QString out = dir.filePath("w.json");
    const InProcess edited =
        cli({"edit", file, "-o", out, "EHFUBMIN5=300", "Enable0", "ELFMAX2=abc", "ESerial=77"});
    ASSERT_EQ(edited.code, kExitOk) << qPrintable(edited.err);
    EXPECT_TRUE(edited.err.contains("Value must be between 0 and 255"));
    ConfigImage image;
    QString error;
    ASSERT_TRUE(loadConfigFile(out, image, &error)) << qPrintable(error);
    EXPECT_EQ(image.channels[5][3], 44);
    EXPECT_EQ(image.channels[2][4], 255);
    EXPECT_FALSE(image.enableBit(0));
    EXPECT_EQ(image.serialNumber(), 77u);

    // The money and option rules are reached the same way.
    const QString totalizer = dir.filePath("t.json");
    const InProcess typed = cli({"edit", file, "-o", totalizer, "GroupType#1", "RazEnable",
                                 "CounterEnable", "ChkLimit1", "LabeledEdit3=1234.6"});
    ASSERT_EQ(typed.code, kExitOk) << qPrintable(typed.err);
    ASSERT_TRUE(loadConfigFile(totalizer, image, &error)) << qPrintable(error);
    EXPECT_EQ(image.options[0], 0xE6); // type 1, price 1 limit on
    EXPECT_EQ(image.prices[3], 50);
    EXPECT_EQ(image.counters[2], 0x04);
    EXPECT_EQ(image.counters[3], 0xD3);
    const QString moved = dir.filePath("m.json");
    ASSERT_EQ(cli({"edit", file, "-o", moved, "Transfert=2:12:clear"}).code, kExitOk);
    ConfigImage before;
    ASSERT_TRUE(loadConfigFile(file, before, &error));
    ASSERT_TRUE(loadConfigFile(moved, image, &error));
    EXPECT_EQ(image.channels[11], before.channels[1]);
    EXPECT_EQ(image.valueByte(1), 255);
    EXPECT_EQ(cli({"edit", file, "Transfert=2:60"}).code, kExitUsage);
    EXPECT_EQ(cli({"edit", file, "Transfert=2:3:sideways"}).code, kExitUsage);
    const InProcess pulse = cli({"edit", file, "Eprix6=700"});
    EXPECT_TRUE(pulse.err.contains("Value over 630 ms, it will be adjusted!"));

    EXPECT_EQ(cli({"edit", file, "NoSuchBox=1"}).code, kExitUsage);
    EXPECT_EQ(cli({"edit", file, "Enable0=1"}).code, kExitUsage);
    EXPECT_EQ(cli({"edit", file, "GroupType#x"}).code, kExitUsage);
    EXPECT_EQ(cli({"show", file, "NoSuchBox"}).code, kExitUsage);

    // Close after a change asks; the answer writes to the validator named on the command line.
    const InProcess closed =
        cli({"--simulate", "edit", "--answer", "yes", file, "EHFUBMIN6=12", "BitBtn1"});
    EXPECT_TRUE(closed.err.contains("Save on validator? -> yes"));
    EXPECT_TRUE(closed.err.contains("Finished operation!"));
}

TEST_F(Cli, OverlapListsThePairsOfAFile)
{
    const QString file = dir.filePath("v.json");
    ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    QString error;
    ASSERT_TRUE(saveConfigFile(file, image, &error));
    const InProcess none = cli({"overlap", file});
    EXPECT_EQ(none.code, kExitOk);
    EXPECT_EQ(none.out, QStringLiteral("No overlapping !\n"));

    image.channels[9] = image.channels[2]; // channel 10 learned the coin of channel 3
    ASSERT_TRUE(saveConfigFile(file, image, &error));
    const InProcess found = cli({"overlap", file});
    EXPECT_EQ(found.code, kExitOk);
    EXPECT_EQ(found.out, QStringLiteral("   1 | C   3 <--> C  10        \n1 Overlapping\n"));
    EXPECT_EQ(cli({"overlap", dir.filePath("missing.json")}).code, kExitFailed);
}

TEST_F(Cli, BadFilesFailBeforeAnythingIsSent)
{
    const QString bad = dir.filePath("bad.json");
    QFile f(bad);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("{\"format\": \"tarvik-config\", \"formatVersion\": 1}");
    f.close();
    const QString trace = dir.filePath("trace.txt");
    for (const char *command : {"write", "clone"}) {
        const InProcess r = cli({"--simulate", "--trace", trace, command, bad});
        EXPECT_EQ(r.code, kExitFailed);
        EXPECT_TRUE(r.err.contains("blocks: missing")) << qPrintable(r.err);
    }
    const InProcess missing = cli({"--simulate", "firmware", dir.filePath("none.s19")});
    EXPECT_EQ(missing.code, kExitFailed);
    EXPECT_TRUE(missing.err.contains("none.s19"));
    EXPECT_FALSE(QFile::exists(trace)); // the port was never opened
}

const QString notStored =
    QStringLiteral("Not stored in the tables, left not set (ff): version bytes 1-2, ident, "
                   "counters, values bytes 68-74, block2, block13, setting8, status9");

TEST_F(Cli, StoresListsLoadsAndDeletesValidators)
{
    const QString db = dir.filePath("db");
    const QString file = dir.filePath("v.json");
    ASSERT_EQ(cli({"--simulate", "read", "-o", file}).code, kExitOk);
    auto records = [&](QStringList args) { return cli(QStringList{"--data-dir", db} + args); };

    EXPECT_EQ(records({"save", file, "--ident", "ABC", "--description", "bench"}).code, kExitOk);
    const InProcess again = records({"save", file, "--ident", "abc"});
    EXPECT_EQ(again.code, kExitFailed);
    EXPECT_TRUE(again.err.contains("abc exist! Overwrite ?"));
    EXPECT_EQ(records({"save", file, "--ident", ""}).code, kExitFailed);
    EXPECT_EQ(records({"save", file, "--ident", "DEF"}).code, kExitOk);
    EXPECT_EQ(records({"list"}).out, "ABC\tbench\t19\nDEF\t\t19\n");

    // The family, the enable mask from VALID and the values from VALEUR come back; what the
    // tables do not hold is left not set and named.
    const QString back = dir.filePath("back.json");
    const InProcess loadedRun = records({"load", "abc", "-o", back});
    ASSERT_EQ(loadedRun.code, kExitOk);
    EXPECT_EQ(loadedRun.err, notStored + '\n');
    ConfigImage original, loaded;
    QString error;
    ASSERT_TRUE(loadConfigFile(file, original, &error));
    ASSERT_TRUE(loadConfigFile(back, loaded, &error)) << qPrintable(error);
    EXPECT_EQ(loaded.channels, original.channels);
    EXPECT_EQ(loaded.version[0], original.version[0]);
    EXPECT_EQ(loaded.enable, original.enable);
    EXPECT_EQ(std::vector(loaded.values.begin(), loaded.values.begin() + 68),
              std::vector(original.values.begin(), original.values.begin() + 68));
    EXPECT_EQ(loaded.options, original.options);
    EXPECT_EQ(loaded.prices, original.prices);
    EXPECT_EQ(loaded.ident, ConfigImage::blank().ident);

    EXPECT_EQ(records({"delete", "abc"}).code, kExitOk);
    EXPECT_EQ(records({"list"}).out, "DEF\t\t19\n");
    EXPECT_EQ(records({"delete", "ABC"}).code, kExitFailed);
    EXPECT_EQ(records({"load", "nothing"}).code, kExitFailed);
}

// A channel table cut short: every command says so once, list and load work on what is intact,
// writes to it are refused, and repair mends it.
TEST_F(Cli, CutChannelTableIsSaidOnceReadAndRepaired)
{
    const QString db = dir.filePath("db");
    auto records = [&](QStringList args) { return cli(QStringList{"--data-dir", db} + args); };
    ConfigImage image = ConfigImage::blank();
    image.version[0] = 0x13;
    const QString file = dir.filePath(QStringLiteral("v.json"));
    QString error;
    ASSERT_TRUE(saveConfigFile(file, image, &error)) << error.toStdString();
    ASSERT_EQ(records({"save", file, "--ident", "V0"}).code, kExitOk);
    ASSERT_EQ(records({"save", file, "--ident", "V1"}).code, kExitOk);

    // cut three bytes into the 71st of 120 channel rows: V0 keeps its 60, V1 its first 10
    QFile table(QDir(db).filePath("Canaux.dbf"));
    ASSERT_TRUE(table.open(QIODevice::ReadOnly));
    const QByteArray whole = table.readAll();
    table.close();
    const int header = qFromLittleEndian<quint16>(whole.constData() + 8);
    const int record = qFromLittleEndian<quint16>(whole.constData() + 10);
    const QByteArray cut = whole.left(header + 70 * record + 3);
    ASSERT_TRUE(table.open(QIODevice::WriteOnly | QIODevice::Truncate));
    table.write(cut);
    table.close();

    const QString notice = messageText(
        Msg::RecordsDamaged,
        {messageText(Msg::RecordsTruncated, {QStringLiteral("Canaux.dbf"), "70", "120"})});
    const QString refusal = messageText(Msg::RecordsDamagedRefused, {QStringLiteral("Canaux.dbf")});
    const InProcess list = records({"list"});
    EXPECT_EQ(list.code, kExitOk);
    EXPECT_EQ(list.out, "V0\t\t19\nV1\t\t19\n");
    EXPECT_EQ(list.err, notice + '\n');

    const InProcess load = records({"load", "V1", "-o", dir.filePath(QStringLiteral("back.json"))});
    EXPECT_EQ(load.code, kExitOk);
    QStringList lost;
    for (int c = 11; c <= 60; ++c)
        lost.append(QString::number(c));
    EXPECT_EQ(load.err, notice + '\n' +
                            messageText(Msg::SavedChannelsMissing,
                                        {QStringLiteral("V1"), lost.join(QStringLiteral(", "))}) +
                            '\n' + notStored + '\n');

    for (const QStringList &write :
         {QStringList{"save", file, "--ident", "V2"}, QStringList{"delete", "V0"}}) {
        const InProcess refused = records(write);
        EXPECT_EQ(refused.code, kExitFailed);
        EXPECT_EQ(refused.err, notice + '\n' + refusal + '\n');
    }
    EXPECT_EQ(records({"values", "save", "Euro", file}).code, kExitOk); // another table

    EXPECT_EQ(records({"repair", "Nonsense"}).code, kExitUsage);
    const InProcess repair = records({"repair"});
    EXPECT_EQ(repair.code, kExitOk) << repair.out.toStdString();
    const QStringList lines = repair.out.split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 5);
    EXPECT_TRUE(lines.at(1).startsWith(
        QStringLiteral("Canaux.dbf repaired: 70 records kept, 50 could not be read")))
        << lines.at(1).toStdString();
    EXPECT_EQ(lines.at(0), messageText(Msg::RepairSound, {QStringLiteral("Monnayeur.DBF")}));
    const QStringList backups = QDir(QDir(db).filePath(QStringLiteral("backups")))
                                    .entryList({QStringLiteral("damaged-*")}, QDir::Dirs);
    ASSERT_EQ(backups.size(), 1);
    QFile copy(QDir(db).filePath(QStringLiteral("backups/") + backups.first() + "/Canaux.dbf"));
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(copy.readAll(), cut);

    const InProcess after = records({"list"});
    EXPECT_EQ(after.err, QString());
    EXPECT_EQ(records({"delete", "V1"}).code, kExitOk);
    const InProcess one = records({"repair", "canaux"});
    EXPECT_EQ(one.code, kExitOk);
    EXPECT_EQ(one.out, messageText(Msg::RepairSound, {QStringLiteral("Canaux.dbf")}) + '\n');
}

class Families : public Cli, public ::testing::WithParamInterface<const char *>
{};

TEST_P(Families, ReadOverAPseudoTerminal)
{
    SimProcess sim({"--family", GetParam(), "--serial", "4321"});
    ASSERT_FALSE(sim.path().isEmpty());
    const QString file = dir.filePath("read.json");
    const QString trace = dir.filePath("trace.txt");
    const CliRun run = runTarvikCli({"--device", sim.path(), "--trace", trace, "read", "-o", file});
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.err);
    ConfigImage image;
    QString error;
    ASSERT_TRUE(loadConfigFile(file, image, &error)) << qPrintable(error);
    EXPECT_EQ(image.familyByte(), QString(GetParam()).toUInt(nullptr, 0));
    EXPECT_EQ(image.serialNumber(), 4321u);
    QFile traced(trace);
    ASSERT_TRUE(traced.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(traced.readAll());
    EXPECT_TRUE(text.contains("cmd   10  sent 0a")) << qPrintable(text.left(400));
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, Families, ::testing::Values("0x02", "0x13", "0x21", "0x31"));

TEST_F(Cli, ReadWriteReadBackBetweenTwoValidators)
{
    const QString first = dir.filePath("first.json");
    const QString saved = dir.filePath("second-memory.json");
    const QString back = dir.filePath("back.json");
    {
        SimProcess a({"--family", "0x13", "--serial", "1001"});
        ASSERT_EQ(runTarvikCli({"--device", a.path(), "read", "-o", first}).exitCode, 0);
    }
    SimProcess b({"--family", "0x13", "--serial", "1001", "--save", saved});
    const CliRun write = runTarvikCli({"--device", b.path(), "write", first});
    ASSERT_EQ(write.exitCode, 0) << qPrintable(write.err);
    EXPECT_TRUE(write.err.contains("Finished operation!"));
    ASSERT_EQ(runTarvikCli({"--device", b.path(), "read", "-o", back}).exitCode, 0);

    ConfigImage written, reread;
    QString error;
    ASSERT_TRUE(loadConfigFile(first, written, &error));
    ASSERT_TRUE(loadConfigFile(back, reread, &error));
    EXPECT_EQ(reread.channels, written.channels);
    EXPECT_EQ(reread.values, written.values);
    EXPECT_EQ(reread.prices, written.prices);
    EXPECT_EQ(reread.options, written.options);
    EXPECT_EQ(reread.enable, written.enable);
    EXPECT_EQ(reread.serialNumber(), written.serialNumber());
    EXPECT_NE(reread.ident[0], 0xFF); // programmed today, no longer "By Mini-Pgm"
}

TEST_F(Cli, EditorEditsAndWritesAValidatorOverAPseudoTerminal)
{
    SimProcess sim({"--family", "0x23", "--serial", "2002"});
    const QString file = dir.filePath("v.json");
    const QString back = dir.filePath("back.json");
    ASSERT_EQ(runTarvikCli({"--device", sim.path(), "read", "-o", file}).exitCode, 0);
    const CliRun edit =
        runTarvikCli({"--device", sim.path(), "edit", file, "-o", dir.filePath("edited.json"),
                      "EHFUBMIN5=300", "Enable1", "BtnChanges", "SpeedButton8", "BtnChanges"});
    ASSERT_EQ(edit.exitCode, 0) << qPrintable(edit.err);
    // The Changes window before the write lists both edits; after it, none.
    EXPECT_TRUE(edit.err.contains(QRegularExpression(QStringLiteral(
        "Channels data\n  Channel 6: HFU low min \\d+ → 44\nEnable table\n  Channel 2: "
        "enabled → disabled\n"))))
        << qPrintable(edit.err);
    EXPECT_TRUE(edit.err.contains(QRegularExpression(QStringLiteral(
        "Finished operation!\nVerified: the validator holds the configuration.\nSince written to "
        "validator 2002 at \\d\\d:\\d\\d\nNo changes since the configuration was last read, "
        "opened or written."))))
        << qPrintable(edit.err);
    ASSERT_EQ(runTarvikCli({"--device", sim.path(), "read", "-o", back}).exitCode, 0);
    ConfigImage reread;
    QString error;
    ASSERT_TRUE(loadConfigFile(back, reread, &error));
    EXPECT_EQ(reread.channels[5][3], 44);
    EXPECT_FALSE(reread.enableBit(1));
    EXPECT_EQ(reread.enable[0] & 0xF0, 0xF0);
}

TEST_F(Cli, LearnsACoinAndCalibratesTheReferenceOverAPseudoTerminal)
{
    SimProcess sim({"--family", "0x13", "--serial", "1001"});
    const QString out = dir.filePath("learned.json");
    sim.send("coin 0.50 10");
    const CliRun learn = runTarvikCli(
        {"--device", sim.path(), "learn", "10", "--value", "0.50", "-o", out, "--timeout", "30"});
    ASSERT_EQ(learn.exitCode, 0) << qPrintable(learn.err);
    EXPECT_EQ(learn.out.count("matches channel 4"), 10);
    EXPECT_TRUE(learn.err.contains("Values directly saved into validator"));
    ConfigImage learned, reread;
    QString error;
    ASSERT_TRUE(loadConfigFile(out, learned, &error)) << qPrintable(error);
    EXPECT_TRUE(learned.enableBit(9));
    EXPECT_EQ(learned.valueByte(9), 10);
    const QString back = dir.filePath("back.json");
    ASSERT_EQ(runTarvikCli({"--device", sim.path(), "read", "-o", back}).exitCode, 0);
    ASSERT_TRUE(loadConfigFile(back, reread, &error));
    EXPECT_EQ(reread.channels[9], learned.channels[9]);

    // Too few coins before the time-out: nothing is written.
    sim.send("coin 0.50 2");
    const CliRun shortOf =
        runTarvikCli({"--device", sim.path(), "learn", "11", "--samples", "3", "--timeout", "2"});
    EXPECT_EQ(shortOf.exitCode, 1);
    EXPECT_TRUE(shortOf.err.contains("2 of 3 samples"));

    sim.send("coin golden 5");
    sim.send("coin silver 5");
    const CliRun calibrate = runTarvikCli({"--device", sim.path(), "calibrate", "--timeout", "30"});
    EXPECT_EQ(calibrate.exitCode, 0) << qPrintable(calibrate.err);
    EXPECT_TRUE(calibrate.err.contains("Prepare the golden tokens."));
    EXPECT_TRUE(calibrate.err.contains("Reference Channel saved !"));

    sim.send("door open");
    const CliRun door = runTarvikCli({"--device", sim.path(), "calibrate", "--timeout", "5"});
    EXPECT_EQ(door.exitCode, 1);
    EXPECT_TRUE(door.err.contains("Door open, no data will be transfered ;"));
}

TEST_F(Cli, DeviceThatStopsAnsweringFailsQuicklyAndWritesNoFile)
{
    SimProcess sim({"--family", "0x13", "--silent-after", "20"});
    const QString file = dir.filePath("never.json");
    QElapsedTimer clock;
    clock.start();
    const CliRun read = runTarvikCli({"--device", sim.path(), "read", "-o", file});
    EXPECT_EQ(read.exitCode, 1);
    EXPECT_TRUE(read.err.contains("Internal or Comunication Error")) << qPrintable(read.err);
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_LT(clock.elapsed(), 10000);

    const CliRun none = runTarvikCli({"--device", dir.filePath("no-such-tty"), "read"});
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_TRUE(none.err.contains("no-such-tty"));
}

TEST_F(Cli, CablePulledDuringWrite)
{
    const QString image = dir.filePath("image.json");
    ASSERT_EQ(cli({"--simulate", "read", "-o", image}).code, kExitOk);
    SimProcess sim({"--family", "0x13", "--silent-after", "30"});
    QElapsedTimer clock;
    clock.start();
    const CliRun write = runTarvikCli({"--device", sim.path(), "write", image});
    EXPECT_EQ(write.exitCode, 1);
    EXPECT_TRUE(write.err.contains("Fault during save operation !")) << qPrintable(write.err);
    EXPECT_TRUE(write.err.contains("partly written"));
    EXPECT_LT(clock.elapsed(), 10000);
}

TEST_F(Cli, ProbeFindsTheValidatorThroughThePortMap)
{
    SimProcess sim({"--family", "0x21"});
    QStringList map;
    for (int n = 1; n <= 9; ++n)
        map << QStringLiteral("COM%1=%2").arg(n).arg(n == 4 ? sim.path() : dir.filePath("none"));
    const CliRun probe = runTarvikCli({"probe"}, 60000, map.join(','));
    EXPECT_EQ(probe.exitCode, 0) << qPrintable(probe.err);
    EXPECT_EQ(probe.out.trimmed(), "COM4");
    const CliRun read = runTarvikCli({"--port", "COM4", "read"}, 60000, map.join(','));
    EXPECT_EQ(read.exitCode, 0) << qPrintable(read.err);

    map[3] = QStringLiteral("COM4=") + dir.filePath("none");
    const CliRun nobody = runTarvikCli({"probe"}, 60000, map.join(','));
    EXPECT_EQ(nobody.exitCode, 1);
    const CliRun busy = runTarvikCli({"--port", "COM4", "read"}, 60000, map.join(','));
    EXPECT_EQ(busy.exitCode, 1);
    EXPECT_TRUE(busy.err.contains("Comunication Port COM4 isn't free or Setting error."));
}

TEST_F(Cli, FirmwareStreamsTheFileAsStored)
{
    const QByteArray firmware = sRecordFirmware(40);
    const QString file = dir.filePath("fw.s19");
    QFile f(file);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(firmware);
    f.close();

    const QString received = dir.filePath("received.bin");
    {
        SimProcess mini({"--mini-programmer", "--firmware-out", received});
        const CliRun run = runTarvikCli({"--device", mini.path(), "firmware", file});
        EXPECT_EQ(run.exitCode, 0) << qPrintable(run.err);
        EXPECT_TRUE(run.out.contains("Upgrade over..."));
    }
    QFile got(received);
    ASSERT_TRUE(got.open(QIODevice::ReadOnly));
    EXPECT_EQ(got.readAll(), firmware);

    SimProcess stopping({"--mini-programmer", "--stop-after-block", "3"});
    const CliRun stopped = runTarvikCli({"--device", stopping.path(), "firmware", file});
    EXPECT_EQ(stopped.exitCode, 1);
    EXPECT_TRUE(stopped.err.contains("Operation cancelled by operator"));
}

} // namespace
