// tarvik-cli diff: files that differ in one field of each group, identical files, bad files, and
// a read of the virtual validator as one side.
#include "ConfigFile.h"
#include "ConfigImage.h"
#include "InProcessCli.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

namespace {

class DiffCommand : public CliFixture
{
protected:
    // A read of the virtual validator, saved as a file, and the image in it.
    QString validatorFile(ConfigImage &image)
    {
        const QString path = dir.filePath(QStringLiteral("validator.json"));
        const InProcessRun r = runInProcess(
            {"--simulate", "--sim-line", "instant", "--data-dir", dir.path(), "read", "-o", path});
        EXPECT_EQ(r.code, kExitOk) << qPrintable(r.err);
        QString error;
        EXPECT_TRUE(loadConfigFile(path, image, &error)) << qPrintable(error);
        return path;
    }
    QString save(const char *name, const ConfigImage &image)
    {
        const QString path = dir.filePath(QLatin1String(name));
        QString error;
        EXPECT_TRUE(saveConfigFile(path, image, &error)) << qPrintable(error);
        return path;
    }
};

TEST_F(DiffCommand, OneFieldOfEachGroupGivesThatFieldAndExitsOne)
{
    ConfigImage image;
    const QString original = validatorFile(image);
    const InProcessRun same = runInProcess({"diff", original, original});
    EXPECT_EQ(same.code, 0);
    EXPECT_TRUE(same.out.isEmpty()) << qPrintable(same.out);

    ConfigImage changed = image;
    changed.channels[4][Rec::HfuLowMin] = 70;
    changed.values[Val::Channel0 + 6] = 20;
    changed.prices[5] = 11;
    changed.options[0] ^= 0x04; // "Separator"
    changed.enable[6] ^= 0x08;  // channel 12
    changed.setSerialNumber(4711);
    changed.counters[0] = 0;
    changed.counters[1] = 9;
    const InProcessRun diff = runInProcess({"diff", original, save("changed.json", changed)});
    EXPECT_EQ(diff.code, 1) << qPrintable(diff.err);
    const QStringList lines = diff.out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 7) << qPrintable(diff.out);
    EXPECT_TRUE(lines[0].startsWith("Channel 5: HFU low min ")) << qPrintable(lines[0]);
    EXPECT_TRUE(lines[0].endsWith(" → 70"));
    EXPECT_TRUE(lines[1].startsWith("Channel 7: Value ")) << qPrintable(lines[1]);
    EXPECT_TRUE(lines[2].startsWith("Value P6: ")) << qPrintable(lines[2]);
    EXPECT_TRUE(lines[3].startsWith("Option 'Separator': ")) << qPrintable(lines[3]);
    EXPECT_TRUE(lines[4].startsWith("Channel 12: ")) << qPrintable(lines[4]);
    EXPECT_TRUE(lines[5].endsWith(" → 4711")) << qPrintable(lines[5]);
    EXPECT_EQ(lines[6], QStringLiteral("Counter 1: OFF → 9"));

    // The same for scripts, one object per difference, with its group.
    const InProcessRun json =
        runInProcess({"diff", original, dir.filePath("changed.json"), "--json"});
    EXPECT_EQ(json.code, 1);
    const QJsonObject root = QJsonDocument::fromJson(json.out.toUtf8()).object();
    EXPECT_FALSE(root.value("same").toBool());
    const QJsonArray changes = root.value("changes").toArray();
    ASSERT_EQ(changes.size(), 7);
    QStringList groups;
    for (const QJsonValue &v : changes)
        groups.append(v.toObject().value("group").toString());
    EXPECT_EQ(groups.join(u','), "channels,values,prices,config,enable,identification,counters");
    EXPECT_EQ(changes[0].toObject().value("channel").toInt(), 5);
    EXPECT_EQ(changes[0].toObject().value("after").toString(), "70");
}

TEST_F(DiffCommand, BadInputExitsTwoWithTheReadersMessage)
{
    ConfigImage image;
    const QString good = validatorFile(image);
    QFile bad(dir.filePath("bad.json"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write(R"({"format":"tarvik-config","formatVersion":1,"blocks":{"prices":"zz"}})");
    bad.close();
    const InProcessRun r = runInProcess({"diff", good, bad.fileName()});
    EXPECT_EQ(r.code, 2);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(r.err.contains("bad.json")) << qPrintable(r.err);
    EXPECT_FALSE(r.err.contains("usage:")) << "a bad file is not a bad command line";

    EXPECT_EQ(runInProcess({"diff", good}).code, 2);
    EXPECT_EQ(runInProcess({"diff", good, good, good}).code, 2);
    EXPECT_EQ(runInProcess({"diff", good, good, "--colour"}).code, 2);
    EXPECT_EQ(runInProcess({"diff", good, dir.filePath("missing.json")}).code, 2);
}

TEST_F(DiffCommand, TheValidatorAsOneSide)
{
    ConfigImage image;
    const QString file = validatorFile(image);
    const InProcessRun same = runInProcess({"--simulate", "--sim-line", "instant", "--data-dir",
                                            dir.path(), "diff", "validator", file});
    EXPECT_EQ(same.code, 0) << qPrintable(same.out + same.err);
    image.prices[0] = 24;
    const InProcessRun differs =
        runInProcess({"--simulate", "--sim-line", "instant", "--data-dir", dir.path(), "diff",
                      "validator", save("edited.json", image)});
    EXPECT_EQ(differs.code, 1);
    EXPECT_TRUE(differs.out.startsWith("Value P1: ")) << qPrintable(differs.out);
}

} // namespace
