// tarvik-cli overlap --chart, run as a program without a display: the SVG it writes is XML that
// names every channel in use, the PNG is a picture, and any other file name is a usage error.
#include "CliContext.h"
#include "ConfigFile.h"
#include "VirtualValidator.h"
#include "WindowsChartModel.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

struct ProgramRun
{
    int code = -1;
    QString out, err;
};

ProgramRun tarvikCli(const QStringList &args)
{
    QProcess cli;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("DISPLAY"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    env.remove(QStringLiteral("QT_QPA_PLATFORM"));
    cli.setProcessEnvironment(env);
    cli.start(QStringLiteral(TARVIK_CLI_PATH), args);
    ProgramRun r;
    if (!cli.waitForFinished(60000))
        return r;
    r.code = cli.exitStatus() == QProcess::NormalExit ? cli.exitCode() : -1;
    r.out = QString::fromUtf8(cli.readAllStandardOutput());
    r.err = QString::fromUtf8(cli.readAllStandardError());
    return r;
}

} // namespace

TEST(ChartCommand, WritesTheChartAsSvgOrPngWithoutADisplay)
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("v.json"));
    ConfigImage image = VirtualValidator::factoryImage(0x13, 1001);
    image.channels[9] = image.channels[2]; // channel 10 learned the coin of channel 3
    QString error;
    ASSERT_TRUE(saveConfigFile(file, image, &error)) << qPrintable(error);

    const QString svg = dir.filePath(QStringLiteral("chart.svg"));
    const ProgramRun drawn =
        tarvikCli({QStringLiteral("overlap"), file, QStringLiteral("--chart"), svg});
    ASSERT_EQ(drawn.code, kExitOk) << qPrintable(drawn.err);
    // The list is printed as without the chart.
    EXPECT_EQ(drawn.out, QStringLiteral("   1 | C   3 <--> C  10        \n1 Overlapping\n"));

    QFile written(svg);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&written);
    QStringList texts;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("text"))
            texts.append(xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed());
    }
    ASSERT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    // The labels "N: value", or "N" for a channel without a value; the axis is numbered by 50.
    QSet<int> named;
    static const QRegularExpression label(QStringLiteral("^(\\d+)(: .+)?$"));
    for (const QString &text : std::as_const(texts)) {
        const QRegularExpressionMatch m = label.match(text);
        const int number = m.captured(1).toInt();
        if (m.hasMatch() && (!m.captured(2).isEmpty() || number % 50 != 0))
            named.insert(number);
    }
    const QList<int> inUse = WindowsChartModel(image).channelsInUse();
    EXPECT_EQ(inUse.size(), 8);
    EXPECT_EQ(named, QSet<int>(inUse.cbegin(), inUse.cend()));
    EXPECT_TRUE(texts.contains(QStringLiteral("HFU low")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Overlapping channels: 3 <--> 10")));

    const QString png = dir.filePath(QStringLiteral("chart.PNG"));
    ASSERT_EQ(tarvikCli({QStringLiteral("overlap"), file, QStringLiteral("--chart"), png}).code,
              kExitOk);
    QFile picture(png);
    ASSERT_TRUE(picture.open(QIODevice::ReadOnly));
    EXPECT_TRUE(picture.read(8).startsWith("\x89PNG"));

    const ProgramRun bad = tarvikCli({QStringLiteral("overlap"), file, QStringLiteral("--chart"),
                                      dir.filePath(QStringLiteral("chart.jpg"))});
    EXPECT_EQ(bad.code, kExitUsage);
    EXPECT_TRUE(bad.err.contains(QStringLiteral(".png or a .svg"))) << qPrintable(bad.err);
    EXPECT_TRUE(bad.out.isEmpty());
    EXPECT_EQ(tarvikCli({QStringLiteral("overlap"), file, QStringLiteral("--chart")}).code,
              kExitUsage);
}
