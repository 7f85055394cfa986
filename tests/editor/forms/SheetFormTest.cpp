// "Print..." and "Save as PDF..." on the editor window over the in-process virtual validator,
// driven by the buttons' names.
#include "Captions.h"
#include "EditorModel.h"
#include "GuiEditorServices.h"
#include "Messages.h"
#include "PdfText.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "TFormData.h"
#include "VirtualValidator.h"

#include <QApplication>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

class SheetFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }

    void theSheetIsSavedAsPdfAndPreviewedForPrinting()
    {
        QTemporaryDir dir;
        const QString file = dir.filePath(QStringLiteral("sheet.pdf"));
        VirtualValidator device(0x13, 24680);
        SimTransport port(&device);
        port.setLatencyMs(0);
        RecordingPrompt prompt;
        TMonnayeur link(&port, &prompt);
        GuiEditorServices services(prompt, nullptr);
        TFormData form(prompt, services, &link);
        services.setWindow(&form);
        auto *pdf = form.findChild<QPushButton *>(QStringLiteral("BtnPdf"));
        auto *print = form.findChild<QPushButton *>(QStringLiteral("BtnPrint"));
        QVERIFY(pdf && print);
        QCOMPARE(pdf->accessibleName(), captionText(Cap::SaveSheetPdf));
        QCOMPARE(print->accessibleName(), captionText(Cap::PrintSheet));
        // Before the read the editor holds no configuration.
        QVERIFY(!pdf->isEnabled());
        QVERIFY(!print->isEnabled());

        form.model().flags().readOnOpen = true;
        form.show();
        QVERIFY(QTest::qWaitFor([&] { return form.hasOpened(); }));
        QVERIFY(pdf->isEnabled());
        QVERIFY(print->isEnabled());

        // A value typed and not yet left is on the sheet: the button stores the box first.
        form.model().type(QStringLiteral("EIdent"), QStringLiteral("SHOP-7"));
        form.model().type(QStringLiteral("Sub2"), QStringLiteral("9"));
        GuiEditorServices::setNextSaveFileName(file);
        QTest::mouseClick(pdf, Qt::LeftButton);
        QVERIFY(prompt.told().isEmpty());
        const QString text = pdfText(file);
        QVERIFY(text.contains(QStringLiteral("24680")));
        QVERIFY(text.contains(QStringLiteral("SHOP-7")));
        QCOMPARE(form.model().image().channels[2][Rec::Substitute], 9);
        QVERIFY(!pdfChannelRows(text).isEmpty());

        // Cancelling the dialog writes nothing.
        QFile::remove(file);
        GuiEditorServices::setNextSaveFileName(QString());
        QTest::mouseClick(pdf, Qt::LeftButton);
        QVERIFY(!QFile::exists(file));
        QVERIFY(prompt.told().isEmpty());

        // "Print..." shows the sheet in the print preview, from which the printer is chosen.
        int previewPages = -1;
        QTimer::singleShot(0, &form, [&] {
            QTRY_VERIFY(QApplication::activeModalWidget());
            auto *preview = qobject_cast<QPrintPreviewDialog *>(QApplication::activeModalWidget());
            QVERIFY(preview);
            auto *pages = preview->findChild<QPrintPreviewWidget *>();
            QTRY_VERIFY(pages && pages->pageCount() > 0);
            previewPages = pages->pageCount();
            preview->reject();
        });
        QTest::mouseClick(print, Qt::LeftButton);
        QCOMPARE(previewPages, 1);
        QVERIFY(prompt.told().isEmpty());

        form.model().flags().configModified = false;
        QVERIFY(form.close());
    }
};

QTEST_MAIN(SheetFormTest)
#include "SheetFormTest.moc"
