// tarvik-cli sheet, run as the program it is, its PDF read back with pdftotext.
#include "ConfigFile.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "InProcessCli.h"
#include "PdfText.h"
#include "SimProcess.h"
#include "VirtualValidator.h"

#include <QFile>
#include <gtest/gtest.h>

namespace {

class CliSheet : public CliFixture
{
protected:
    void SetUp() override
    {
        CliFixture::SetUp();
        image = VirtualValidator::factoryImage(0x13, 13579);
        QString error;
        ASSERT_TRUE(saveConfigFile(config, image, &error)) << qPrintable(error);
    }

    const QString config = dir.filePath(QStringLiteral("v.json"));
    const QString pdf = dir.filePath(QStringLiteral("v.pdf"));
    ConfigImage image;
};

TEST_F(CliSheet, WritesTheSheetOfAConfigurationFile)
{
    const CliRun run = runTarvikCli({"sheet", config, "-o", pdf, "--identification", "SHOP-12",
                                     "--description", "Bar du Port", "--language", "EN"});
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.err);
    const QString text = pdfText(pdf);
    EXPECT_TRUE(text.contains(QStringLiteral("13579")));
    EXPECT_TRUE(text.contains(QStringLiteral("SHOP-12")));
    EXPECT_TRUE(text.contains(QStringLiteral("Bar du Port")));

    // What the editor shows for the same file: every channel in use with its value, the prices.
    DefaultEditorServices services;
    EditorModel editor(nullptr, &services);
    editor.loadImage(image, false);
    const QMap<int, QStringList> rows = pdfChannelRows(text);
    int inUse = 0;
    for (int k = 0; k < image.channelCount(); ++k) {
        if (!channelInUse(image.channels[std::size_t(k)].data()))
            continue;
        ++inUse;
        const QString value = editor.control(QStringLiteral("Value%1").arg(k)).text.trimmed();
        // The reference channel has no value: its row is there, with an empty value box.
        EXPECT_TRUE(value.isEmpty() || rows.value(k + 1).contains(value)) << k + 1;
    }
    EXPECT_EQ(rows.size(), inUse);
    for (const char *box : {"Eprix1", "Eprix2", "EPrix3", "Eprix4", "EPrix5", "Eprix6"}) {
        const ControlState &price = editor.control(QLatin1String(box));
        if (price.visible) {
            EXPECT_TRUE(text.contains(price.text.trimmed())) << box;
        }
    }
    // The windows chart, with its legend naming the reference channel.
    EXPECT_TRUE(text.contains(QStringLiteral("Windows chart")));
    EXPECT_TRUE(text.contains(QStringLiteral("Reference channel %1").arg(image.channelCount())));
}

TEST_F(CliSheet, SpeaksTheLanguageAskedFor)
{
    const CliRun run = runTarvikCli({"sheet", config, "-o", pdf, "--language", "FR"});
    ASSERT_EQ(run.exitCode, 0) << qPrintable(run.err);
    const QString text = pdfText(pdf);
    EXPECT_TRUE(text.contains(QStringLiteral("Fiche de configuration")));
    EXPECT_FALSE(text.contains(QStringLiteral("Configuration sheet")));
}

TEST_F(CliSheet, RefusesWhatItCannotDo)
{
    EXPECT_EQ(runTarvikCli({"sheet", config}).exitCode, 2);
    EXPECT_EQ(runTarvikCli({"sheet", config, "-o", pdf, "--language", "XX"}).exitCode, 2);
    EXPECT_EQ(runTarvikCli({"sheet", dir.filePath("none.json"), "-o", pdf}).exitCode, 1);
    const CliRun unwritable =
        runTarvikCli({"sheet", config, "-o", dir.filePath("no/such/dir.pdf")});
    EXPECT_EQ(unwritable.exitCode, 1);
    EXPECT_TRUE(unwritable.err.contains(QStringLiteral("no/such/dir.pdf")));
    EXPECT_FALSE(QFile::exists(pdf));
}

} // namespace
