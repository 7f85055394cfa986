#include "BenchPanelModel.h"

#include "BenchCommands.h"
#include "ConfigImage.h"
#include "VirtualValidator.h"

#include <QCoreApplication>
#include <memory>
#include <utility>

BenchStatus BenchStatus::of(const VirtualValidator &device)
{
    BenchStatus status;
    status.queuedCoins = device.queuedCoins();
    status.testMode = device.testMode();
    status.miniProgrammer = device.miniProgrammer();
    status.doorOpen = device.doorOpen();
    status.connected = device.connected();
    status.familyByte = device.memory().familyByte();
    status.serial = device.memory().serialNumber();
    return status;
}

BenchPanelModel::BenchPanelModel(Send send, Poll poll, const LineProfile &line, QObject *parent)
    : QObject(parent), m_send(std::move(send)), m_poll(std::move(poll)), m_line(line)
{
    m_status = m_poll();
    // The host takes coins out of the queue as it polls, and its commands switch test mode and
    // the mini-programmer.
    // Without an event loop (a script, a test) the status is read after each action only.
    m_timer.setInterval(250);
    connect(&m_timer, &QTimer::timeout, this, &BenchPanelModel::refresh);
    if (QCoreApplication::instance())
        m_timer.start();
}

std::unique_ptr<BenchPanelModel> BenchPanelModel::inProcess(VirtualValidator *device,
                                                            LineProfile *line)
{
    auto commands = std::make_shared<BenchCommands>(device, [line](const LineProfile &profile) {
        if (line)
            *line = profile;
    });
    return std::make_unique<BenchPanelModel>(
        [commands](const QString &text) { commands->run(text); },
        [device] { return BenchStatus::of(*device); }, line ? *line : LineProfile::instant());
}

void BenchPanelModel::send(const QString &line)
{
    m_send(line);
    refresh();
}

void BenchPanelModel::fitValidator(int familyIndex, quint32 serial)
{
    const quint8 family = kFamilies[qBound(0, familyIndex, 3)];
    send(QStringLiteral("fit 0x%1 %2").arg(family, 2, 16, QLatin1Char('0')).arg(serial));
}

void BenchPanelModel::unplugValidator()
{
    send(QStringLiteral("unplug"));
}

void BenchPanelModel::plugValidator(int familyIndex, quint32 serial)
{
    const quint8 family = kFamilies[qBound(0, familyIndex, 3)];
    send(QStringLiteral("plug %1 0x%2").arg(serial).arg(family, 2, 16, QLatin1Char('0')));
}

void BenchPanelModel::insertCoin(CoinKind kind)
{
    send(QStringLiteral("coin %1").arg(QLatin1String(CoinGenerator::preset(kind).key)));
}

void BenchPanelModel::setDoorOpen(bool open)
{
    send(open ? QStringLiteral("door open") : QStringLiteral("door closed"));
}

void BenchPanelModel::setCablePlugged(bool plugged)
{
    send(plugged ? QStringLiteral("cable in") : QStringLiteral("cable out"));
}

void BenchPanelModel::setMiniProgrammer(bool on)
{
    send(on ? QStringLiteral("mini on") : QStringLiteral("mini off"));
}

void BenchPanelModel::requestFirmware()
{
    send(QStringLiteral("firmware request"));
}

void BenchPanelModel::setLine(LineProfile line)
{
    const auto order = [](int &lo, int &hi) {
        if (lo > hi)
            std::swap(lo, hi);
    };
    order(line.echoMinMs, line.echoMaxMs);
    order(line.turnaroundMinMs, line.turnaroundMaxMs);
    m_line = line;
    send(QStringLiteral("line %1").arg(line.toString()));
}

void BenchPanelModel::refresh()
{
    const BenchStatus now = m_poll();
    if (now == m_status)
        return;
    m_status = now;
    Q_EMIT statusChanged();
}
