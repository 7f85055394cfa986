// A long read over a slow line keeps the window alive: between exchanges the window repaints,
// while the user's key, click and close request wait until the read has ended.

#include "ExchangePump.h"
#include "ConfigImage.h"
#include "ReadSequence.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "TMonnayeur.h"
#include "VirtualValidator.h"

#include <QTest>
#include <QTimer>
#include <QWidget>
#include <qpa/qwindowsysteminterface.h>

namespace {

class Watched final : public QWidget
{
public:
    Watched() { setFocusPolicy(Qt::StrongFocus); }
    int paints = 0, keys = 0, clicks = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
    void keyPressEvent(QKeyEvent *) override { ++keys; }
    void mousePressEvent(QMouseEvent *) override { ++clicks; }
};

} // namespace

class ExchangePumpTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void paintsBetweenExchangesWhileInputWaits();
};

void ExchangePumpTest::paintsBetweenExchangesWhileInputWaits()
{
    Watched window;
    window.resize(240, 120);
    window.show();
    window.activateWindow();
    window.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QWindow *handle = window.windowHandle();

    VirtualValidator device;
    SimTransport port(&device);
    LineProfile slow = LineProfile::bench();
    slow.turnaroundMinMs = slow.turnaroundMaxMs = 20;
    port.setLine(slow);
    RecordingPrompt prompt;
    TMonnayeur link(&port, &prompt);
    ExchangePump pump;
    int pumped = 0;
    link.setBetweenExchanges([&pump, &pumped, &window] {
        const int before = window.paints;
        pump.run();
        pumped += window.paints > before ? 1 : 0;
    });

    // What the technician does while the read runs: a key, a click, the close button.
    QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::AsynchronousDelivery>(
        handle, QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    QWindowSystemInterface::handleMouseEvent<QWindowSystemInterface::AsynchronousDelivery>(
        handle, QPointF(10, 10), handle->mapToGlobal(QPointF(10, 10)), Qt::LeftButton,
        Qt::LeftButton, QEvent::MouseButtonPress);
    QWindowSystemInterface::handleCloseEvent<QWindowSystemInterface::AsynchronousDelivery>(handle);
    // The gauge of a read moves: something to repaint all along.
    QTimer gauge;
    gauge.setInterval(10);
    connect(&gauge, &QTimer::timeout, &window, [&window] { window.update(); });
    gauge.start();
    const int paintsBefore = window.paints;

    ConfigImage image = ConfigImage::blank();
    QCOMPARE(readValidator(link, image, false), ReadOutcome::Done);
    QVERIFY2(window.paints - paintsBefore >= 5, qPrintable(QString::number(window.paints)));
    QCOMPARE(window.keys, 0);
    QCOMPARE(window.clicks, 0);
    QVERIFY(window.isVisible());
    QVERIFY(prompt.told().isEmpty());

    // A single exchange between two turns of the event loop, as a coin poll is, serves nothing.
    QTest::qWait(50);
    pumped = 0;
    QVERIFY(link.CheckPresence(true));
    QCOMPARE(pumped, 0);

    // Once the read has ended, what the user did meanwhile is served, in order.
    QCoreApplication::processEvents();
    QCOMPARE(window.keys, 1);
    QCOMPARE(window.clicks, 1);
    QVERIFY(!window.isVisible());
}

QTEST_MAIN(ExchangePumpTest)
#include "ExchangePumpTest.moc"
