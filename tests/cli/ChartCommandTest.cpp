// tarvik-cli overlap --chart, run as a program without a display: the SVG it writes is XML that
// names every channel in use, the PNG is a picture, and any other file name is a usage error.
#include "CliContext.h"
#include "ConfigFile.h"
#include "SimProcess.h"
#include "VirtualValidator.h"
#include "WindowsChartModel.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

// Run as on a machine with no display at all.
CliRun runWithoutDisplay(const QStringList &args)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("DISPLAY"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    env.remove(QStringLiteral("QT_QPA_PLATFORM"));
    return runTarvikCliIn(env, args);
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
    const CliRun drawn =
        runWithoutDisplay({QStringLiteral("overlap"), file, QStringLiteral("--chart"), svg});
    ASSERT_EQ(drawn.exitCode, kExitOk) << qPrintable(drawn.err);
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
    ASSERT_EQ(runWithoutDisplay({QStringLiteral("overlap"), file, QStringLiteral("--chart"), png})
                  .exitCode,
              kExitOk);
    QFile picture(png);
    ASSERT_TRUE(picture.open(QIODevice::ReadOnly));
    EXPECT_TRUE(picture.read(8).startsWith("\x89PNG"));

    const CliRun bad =
        runWithoutDisplay({QStringLiteral("overlap"), file, QStringLiteral("--chart"),
                           dir.filePath(QStringLiteral("chart.jpg"))});
    EXPECT_EQ(bad.exitCode, kExitUsage);
    EXPECT_TRUE(bad.err.contains(QStringLiteral(".png or a .svg"))) << qPrintable(bad.err);
    EXPECT_TRUE(bad.out.isEmpty());
    EXPECT_EQ(
        runWithoutDisplay({QStringLiteral("overlap"), file, QStringLiteral("--chart")}).exitCode,
        kExitUsage);
}
