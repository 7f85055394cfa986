// The Batch window over its model through one validator: the in-process virtual validator is
// plugged while the batch polls, and the window's status, table, counters, sound and log follow;
// Stop ends the run with the window ready for the next.
#include "BatchModel.h"
#include "ConfigFile.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "SoundPlayer.h"
#include "TFormBatch.h"
#include "TMonnayeur.h"
#include "VirtualValidator.h"

#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

namespace {

class HeardSounds final : public SoundPlayer
{
public:
    void play(Sound sound) override { heard.append(sound); }
    QList<Sound> heard;
};

} // namespace

class BatchWindowTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void oneValidatorFromPlugToUnplug();
    void whatCannotStartSaysWhyAndStartsNothing();
};

void BatchWindowTest::oneValidatorFromPlugToUnplug()
{
    QTemporaryDir data;
    VirtualValidator device(0x13, 1003);
    device.setConnected(false);
    SimTransport port(&device);
    port.setReadTimeout(20);
    RecordingPrompt prompt;
    TMonnayeur link(&port, &prompt);

    ConfigImage source = VirtualValidator::factoryImage(0x13, 1000);
    source.prices = PriceBlock{0x11, 0x12, 0x13, 0x14, 0x15, 0x16};
    BatchModel::Sources sources;
    sources.editorImage = source;
    sources.dataDirectory = data.path();
    HeardSounds sounds;
    BatchModel model(&link, &prompt, &sounds, sources);
    QList<BatchValidatorResult> results;
    model.validatorDone = [&](const BatchValidatorResult &done) { results.append(done); };
    TFormBatch form(model);
    form.show();

    auto *status = form.findChild<QLabel *>(QStringLiteral("LblStatus"));
    auto *start = form.findChild<QPushButton *>(QStringLiteral("BtnStart"));
    auto *stop = form.findChild<QPushButton *>(QStringLiteral("BtnStop"));
    auto *close = form.findChild<QPushButton *>(QStringLiteral("BtnClose"));
    auto *grid = form.findChild<QTableWidget *>(QStringLiteral("GridDone"));
    QVERIFY(status && start && stop && close && grid);
    QVERIFY(!stop->isEnabled());
    // A screen reader names every control.
    const QList<QWidget *> widgets = form.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        // The table's own parts (its corner button) are the table's.
        const bool control = qobject_cast<QAbstractButton *>(widget) ||
                             qobject_cast<QLineEdit *>(widget) ||
                             qobject_cast<QComboBox *>(widget) || widget == grid;
        if (!control || widget->objectName().isEmpty())
            continue;
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(widget);
        QVERIFY(face);
        QVERIFY2(!face->text(QAccessible::Name).isEmpty(), qPrintable(widget->objectName()));
    }

    QTest::mouseClick(start, Qt::LeftButton);
    QTRY_COMPARE(status->text(), QStringLiteral("Plug the next validator"));
    QVERIFY(!close->isEnabled());
    QVERIFY(!start->isEnabled());
    QVERIFY(results.isEmpty());

    device.setConnected(true);
    QTRY_COMPARE_WITH_TIMEOUT(status->text(), QStringLiteral("1003 verified: unplug it"), 60000);
    QCOMPARE(grid->rowCount(), 1);
    QCOMPARE(grid->item(0, 1)->text(), QStringLiteral("1003"));
    QCOMPARE(grid->item(0, 3)->text(), QStringLiteral("Verified"));
    QCOMPARE(grid->item(0, 3)->background().color(),
             BatchModel::resultColour(BatchResult::Verified));
    QCOMPARE(form.findChild<QLabel *>(QStringLiteral("LblVerified"))->text(),
             QStringLiteral("Verified: 1"));
    QCOMPARE(sounds.heard, QList<Sound>{Sound::Coin});
    // Nothing was asked of anybody: the run's messages went to its log.
    QVERIFY2(prompt.all().isEmpty(), qPrintable(prompt.all().join(u'\n')));

    // The one place where the result is known: what it holds now, and its backup.
    QCOMPARE(results.size(), 1);
    QVERIFY(results[0].holds);
    QCOMPARE(results[0].holds->prices, source.prices);
    QCOMPARE(device.memory().prices, source.prices);
    QCOMPARE(device.memory().serialNumber(), 1003u);
    ConfigImage backup;
    QVERIFY(loadConfigFile(results[0].backupFile, backup, nullptr));
    QCOMPARE(backup.prices, VirtualValidator::factoryImage(0x13, 1003).prices);

    // The log's row was on the disk as soon as the result showed.
    QFile log(model.logPath());
    QVERIFY(model.logPath().startsWith(QDir(data.path()).filePath(QStringLiteral("batches/"))));
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QStringList rows = QString::fromUtf8(log.readAll()).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(rows.size(), 2);
    QVERIFY2(rows[1].contains(QStringLiteral(",1003,0x13,verified,")), qPrintable(rows[1]));

    // Unplugged, the next one is asked for; Stop ends the run and the settings come back.
    device.setConnected(false);
    QTRY_COMPARE(status->text(), QStringLiteral("Plug the next validator"));
    QTest::mouseClick(stop, Qt::LeftButton);
    QTRY_COMPARE(status->text(),
                 QStringLiteral("Batch finished: 1 verified, 0 failed, 0 skipped."));
    QVERIFY(start->isEnabled());
    QVERIFY(close->isEnabled());
    QVERIFY(!stop->isEnabled());
}

void BatchWindowTest::whatCannotStartSaysWhyAndStartsNothing()
{
    QTemporaryDir data;
    VirtualValidator device(0x13, 1003);
    SimTransport port(&device);
    RecordingPrompt prompt;
    TMonnayeur link(&port, &prompt);
    BatchModel::Sources sources;
    sources.dataDirectory = data.path();
    sources.saved = {QStringLiteral("SHOP-12"), QStringLiteral("GONE")};
    sources.loadSaved = [](const QString &identification, ConfigImage &image, QString *) {
        image = VirtualValidator::factoryImage(0x13, 1000);
        return identification == QLatin1String("SHOP-12");
    };
    sources.chooseFile = [] { return QStringLiteral("/nowhere/route.json"); };
    BatchModel model(&link, &prompt, nullptr, sources);
    // Without the editor's configuration, a file is asked for.
    QCOMPARE(model.control(QStringLiteral("GroupSource")).itemIndex, 1);

    auto refused = [&](const QString &why) {
        prompt.clear();
        model.click(QStringLiteral("BtnStart"));
        QVERIFY(!model.running());
        QCOMPARE(prompt.told().size(), 1);
        QVERIFY2(prompt.told().first().contains(why), qPrintable(prompt.told().first()));
    };
    refused(QStringLiteral("Choose the configuration to write."));
    model.click(QStringLiteral("BtnBrowse"));
    QCOMPARE(model.control(QStringLiteral("ESourceFile")).text,
             QStringLiteral("/nowhere/route.json"));
    refused(QStringLiteral("/nowhere/route.json"));
    model.pick(QStringLiteral("GroupSource"), 2);
    QVERIFY(model.control(QStringLiteral("CbSaved")).visible);
    QVERIFY(!model.control(QStringLiteral("ESourceFile")).visible);
    model.pick(QStringLiteral("CbSaved"), 1);
    refused(QStringLiteral("No validator is stored as GONE."));
    model.pick(QStringLiteral("CbSaved"), 0);
    for (const char *group : {"ChkChannels", "ChkValues", "ChkPrices", "ChkConfig", "ChkEnable"})
        model.click(QLatin1String(group));
    refused(QStringLiteral("Choose at least one group to write, or the full write."));
    // The full write needs no group; the groups are then not offered.
    model.click(QStringLiteral("ChkFull"));
    QVERIFY(!model.control(QStringLiteral("ChkPrices")).enabled);
    model.type(QStringLiteral("ECount"), QStringLiteral("many"));
    refused(QStringLiteral("How many validators: a number from 0 to 9999."));
    model.type(QStringLiteral("ECount"), QStringLiteral("2"));
    prompt.clear();
    model.click(QStringLiteral("BtnStart"));
    QVERIFY(model.running());
    QVERIFY(prompt.told().isEmpty());
    QVERIFY(model.logPath().contains(QStringLiteral("-SHOP-12.csv")));
    QVERIFY(!model.control(QStringLiteral("GroupSource")).enabled);
    // The settings stay as they were while it runs.
    model.click(QStringLiteral("ChkFull"));
    QVERIFY(model.control(QStringLiteral("ChkFull")).checked);
}

QTEST_MAIN(BatchWindowTest)
#include "BatchWindowTest.moc"
