#pragma once

#include "CoinGenerator.h"
#include "LineProfile.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>

class VirtualValidator;

// What the bench shows of the virtual validator: the coins waiting in the slot, test mode, the
// mini-programmer, the door, the cable and the validator fitted.
struct BenchStatus
{
    int queuedCoins = 0;
    bool testMode = false;
    bool miniProgrammer = false;
    bool doorOpen = false;
    bool connected = true;
    quint8 familyByte = 0x13;
    quint32 serial = 1001;

    static BenchStatus of(const VirtualValidator &device);
    bool operator==(const BenchStatus &) const = default;
};

// The bench panel without its widgets: every action becomes a bench command line ("coin
// euro050", "cable out") for whatever serves the validator, in this process or in tarvik-sim
// --window beside the program, and the status is polled back, so that the panel follows what
// the host's commands and a script's lines changed.
class BenchPanelModel final : public QObject
{
    Q_OBJECT
public:
    using Send = std::function<void(const QString &line)>;
    using Poll = std::function<BenchStatus()>;
    BenchPanelModel(Send send, Poll poll, const LineProfile &line, QObject *parent = nullptr);

    // A bench for a validator in this process: the commands act on it at once, and a new line
    // is written into *line (which the port follows), when given.
    static std::unique_ptr<BenchPanelModel> inProcess(VirtualValidator *device, LineProfile *line);

    static constexpr quint8 kFamilies[] = {0x03, 0x13, 0x23, 0x33};

    const BenchStatus &status() const { return m_status; }
    const LineProfile &line() const { return m_line; }

    // A factory-fresh validator of kFamilies[familyIndex] with this serial number.
    void fitValidator(int familyIndex, quint32 serial);
    // The validator in place is unplugged and keeps its memory; plugging a serial number brings
    // that validator back as it was, or a factory-fresh one of kFamilies[familyIndex].
    void unplugValidator();
    void plugValidator(int familyIndex, quint32 serial);
    void insertCoin(CoinKind kind);
    void setDoorOpen(bool open);
    void setCablePlugged(bool plugged);
    void setMiniProgrammer(bool on);
    // The mini-programmer asks the host for a firmware file (request code 11).
    void requestFirmware();
    // A range typed upside down still means "between these two".
    void setLine(LineProfile line);
    // Reads the status now (the model also does it four times a second).
    void refresh();

Q_SIGNALS:
    void statusChanged();

private:
    void send(const QString &line);

    Send m_send;
    Poll m_poll;
    LineProfile m_line;
    BenchStatus m_status;
    QTimer m_timer;
};
