// The configuration sheet: drawn from the editor model as it shows an image, written as a PDF
// and read back with pdftotext.
#include "ConfigSheet.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "Messages.h"
#include "PdfText.h"
#include "RecordingPrompt.h"
#include "VirtualValidator.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// The file dialog and the printer answered as a test wants.
class SheetServices final : public DefaultEditorServices
{
public:
    QString fileName;
    QString printedTo; // "Print..." draws on a PDF writer to this file
    int pagesPrinted = 0;
    SheetChart chart;
    QString saveSheetFileName(const QString &) override { return fileName; }
    void printSheet(const std::function<int(QPagedPaintDevice &)> &paint) override
    {
        QPdfWriter printer(printedTo);
        pagesPrinted = paint(printer);
    }
    SheetChart sheetChart(const ConfigImage &) override { return chart; }
};

class Sheet : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "editor_sheet_tests";
        static char *argv[] = {name, nullptr};
        if (!QCoreApplication::instance())
            new QGuiApplication(argc, argv);
    }
    void SetUp() override { QLocale::setDefault(QLocale::c()); }

    // The editor over an image, its sheet saved through "Save as PDF...": the PDF's text.
    QString savedSheet(EditorModel &editor, const QString &file = QStringLiteral("sheet.pdf"))
    {
        services.fileName = dir.filePath(file);
        EXPECT_TRUE(editor.click(QStringLiteral("BtnPdf")));
        return pdfText(services.fileName);
    }

    QTemporaryDir dir;
    RecordingPrompt prompt;
    SheetServices services;
};

TEST_F(Sheet, ThePdfSaysWhatTheEditorShows)
{
    EditorModel editor(&prompt, &services);
    // Nothing to print before the editor holds a configuration.
    EXPECT_FALSE(editor.control(QStringLiteral("BtnPdf")).enabled);
    EXPECT_FALSE(editor.control(QStringLiteral("BtnPrint")).enabled);
    editor.loadImage(VirtualValidator::factoryImage(0x13, 305419896), false);
    EXPECT_TRUE(editor.control(QStringLiteral("BtnPdf")).enabled);
    editor.type(QStringLiteral("EIdent"), QStringLiteral("SHOP-12"));
    editor.type(QStringLiteral("EDescription"), QStringLiteral("Bar du Port"));

    const QString text = savedSheet(editor);
    ASSERT_FALSE(text.isEmpty());
    EXPECT_TRUE(text.contains(QStringLiteral("Configuration sheet")));
    for (const char *shown : {"ESerial", "LVERSIONH", "LVERSIONS", "LDatePgm", "LDateProduct",
                              "EIdent", "EDescription", "EBase1", "EConversion"})
        EXPECT_TRUE(text.contains(editor.control(QLatin1String(shown)).text.trimmed())) << shown;
    EXPECT_TRUE(text.contains(QStringLiteral("305419896")));

    // Every channel in use, and only those, with the value its box shows.
    const QMap<int, QStringList> rows = pdfChannelRows(text);
    QList<int> inUse;
    for (int k = 0; k < 60; ++k) {
        if (!channelInUse(editor.image().channels[std::size_t(k)].data()))
            continue;
        inUse.append(k + 1);
        const QString value = editor.control(QStringLiteral("Value%1").arg(k)).text.trimmed();
        // The reference channel has no value: its row is there, with an empty value box.
        EXPECT_TRUE(value.isEmpty() || rows.value(k + 1).contains(value))
            << k + 1 << qPrintable(value);
    }
    EXPECT_GE(inUse.size(), 6);
    EXPECT_EQ(rows.keys(), inUse);

    // The prices the editor shows, under their captions.
    int prices = 0;
    for (const char *box : {"Eprix1", "Eprix2", "EPrix3", "Eprix4", "EPrix5", "Eprix6"}) {
        const ControlState &price = editor.control(QLatin1String(box));
        if (!price.visible || price.text.trimmed().isEmpty())
            continue;
        ++prices;
        EXPECT_TRUE(text.contains(price.text.trimmed())) << box;
    }
    EXPECT_GT(prices, 0);
    EXPECT_TRUE(text.contains(editor.control(QStringLiteral("LValueP1")).text.trimmed()));
    EXPECT_TRUE(prompt.told().isEmpty());

    // "Print..." draws the same sheet on the printer the dialog gives.
    services.printedTo = dir.filePath(QStringLiteral("printed.pdf"));
    EXPECT_TRUE(editor.click(QStringLiteral("BtnPrint")));
    EXPECT_GE(services.pagesPrinted, 1);
    EXPECT_EQ(pdfChannelRows(pdfText(services.printedTo)).keys(), inUse);
}

TEST_F(Sheet, TheChannelsListedAreThoseOfTheModel)
{
    // Records past the 25th of a Light validator are carried in the image but are not the
    // validator's.
    for (quint8 family : {quint8(0x33), quint8(0x13)}) {
        ConfigImage image = VirtualValidator::factoryImage(family, 4242);
        for (std::size_t k = 0; k < 60; ++k)
            image.channels[k] = image.channels[0];
        EditorModel editor(&prompt, &services);
        editor.loadImage(image, false);
        const int count = image.channelCount();
        const SheetContent content = sheetContent(editor);
        ASSERT_EQ(content.channels.size(), count);
        EXPECT_EQ(content.channels.last().number, count);
        const QMap<int, QStringList> rows = pdfChannelRows(savedSheet(editor));
        ASSERT_EQ(rows.size(), count);
        EXPECT_EQ(rows.lastKey(), count);
        // A full validator still fits on two pages.
        services.printedTo = dir.filePath(QStringLiteral("printed.pdf"));
        EXPECT_TRUE(editor.click(QStringLiteral("BtnPrint")));
        EXPECT_EQ(services.pagesPrinted, count == 60 ? 2 : 1);
    }
}

TEST_F(Sheet, ABlankConfigurationStillGivesASheet)
{
    EditorModel editor(&prompt, &services);
    editor.loadImage(ConfigImage::blank(), false);
    const QString text = savedSheet(editor);
    ASSERT_FALSE(text.isEmpty());
    EXPECT_TRUE(text.contains(QStringLiteral("No channel in use")));
    EXPECT_TRUE(text.contains(messageText(Msg::NotAvailable)));
    EXPECT_TRUE(pdfChannelRows(text).isEmpty());
    EXPECT_TRUE(text.contains(QStringLiteral("Page 1 of 1")));
}

TEST_F(Sheet, TheChartIsDrawnInItsOwnAreaWhenThereIsOne)
{
    EditorModel editor(&prompt, &services);
    editor.loadImage(VirtualValidator::factoryImage(0x13, 77), false);
    EXPECT_FALSE(savedSheet(editor).contains(QStringLiteral("Windows chart")));

    QList<QRectF> areas;
    services.chart = [&](QPainter &painter, const QRectF &area) {
        areas.append(area);
        painter.drawText(area, Qt::AlignCenter, QStringLiteral("CHART-HERE"));
    };
    const QString text = savedSheet(editor, QStringLiteral("chart.pdf"));
    EXPECT_TRUE(text.contains(QStringLiteral("Windows chart")));
    EXPECT_TRUE(text.contains(QStringLiteral("CHART-HERE")));
    ASSERT_EQ(areas.size(), 1);
    EXPECT_GT(areas.first().width(), areas.first().height());
    // A picture of a page (the user guide's) draws the chart too, at the picture's scale.
    const QImage page = sheetPageImage(sheetContent(editor), editor.sheetOptions(), 1, 72);
    EXPECT_EQ(page.width(), 595);
    EXPECT_TRUE(sheetPageImage(sheetContent(editor), editor.sheetOptions(), 9, 72).isNull());
}

TEST_F(Sheet, ASheetThatCannotBeWrittenSaysSoAndChangesNothing)
{
    EditorModel editor(&prompt, &services);
    editor.loadImage(VirtualValidator::factoryImage(0x13, 77), false);
    const ConfigImage before = editor.image();
    // A directory stands where the file would go.
    services.fileName = dir.path();
    EXPECT_TRUE(editor.click(QStringLiteral("BtnPdf")));
    ASSERT_EQ(prompt.told().size(), 1);
    EXPECT_TRUE(prompt.told().first().startsWith(
        messageText(Msg::SheetNotWritten, {dir.path(), QString()}).section(u':', 0, 0)));
    EXPECT_EQ(editor.image(), before);
    EXPECT_FALSE(editor.flags().configModified);
    // A printer that cannot be drawn on says so too.
    prompt.clear();
    services.printedTo = dir.filePath(QStringLiteral("no/such/printer.pdf"));
    EXPECT_TRUE(editor.click(QStringLiteral("BtnPrint")));
    EXPECT_EQ(services.pagesPrinted, 0);
    EXPECT_EQ(prompt.told(), QStringList{messageText(Msg::SheetNotPrinted)});

    // A sheet written over an older one replaces it whole.
    const QString file = dir.filePath(QStringLiteral("old.pdf"));
    QFile old(file);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("not a sheet");
    old.close();
    EXPECT_TRUE(savedSheet(editor, QStringLiteral("old.pdf")).contains("Configuration sheet"));
}

} // namespace
