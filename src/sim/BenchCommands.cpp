#include "BenchCommands.h"

#include "BenchPanelModel.h"
#include "LineProfile.h"
#include "VirtualValidator.h"

#include <algorithm>
#include <optional>

namespace {

BenchCommands::Reply failure(const QString &text)
{
    return {{}, text};
}

} // namespace

QString BenchCommands::help()
{
    return QStringLiteral(
        "coin NAME [COUNT]  insert COUNT coins (1 unless given); NAME is 0.05, 0.10, 0.20, 0.50,\n"
        "                   1.00 or 2.00 (or euro005 ... euro200), golden or silver (tokens)\n"
        "door open|closed   open or close the validator's door\n"
        "cable out|in       pull the cable or plug it back in\n"
        "unplug [after N]   unplug the validator now, or right after it has accepted N more\n"
        "                   writes; it keeps its memory on the rack\n"
        "plug [SERIAL] [FAMILY]  plug a validator in: one plugged before comes back with the\n"
        "                   memory and family it had, a new serial is factory-fresh (FAMILY as\n"
        "                   in fit, the family of the last one unless given); no serial: a new "
        "one\n"
        "fit FAMILY SERIAL  a factory-fresh validator of family byte FAMILY (0x03, 0x13, 0x23,\n"
        "                   0x33) with serial number SERIAL, the door as it was\n"
        "mini on|off        switch the mini-programmer (firmware upgrade) on or off\n"
        "firmware request   the mini-programmer asks for a firmware file (request code 11)\n"
        "line LINE          the line from now on: bench, instant, or bench changed by a comma\n"
        "                   list (pace,turnaround=MIN-MAX,...), as tarvik-sim --line\n"
        "status             print what the validator shows: coins waiting, test mode, the\n"
        "                   mini-programmer, the door, the cable, its family and serial number\n"
        "help               list these commands\n");
}

BenchCommands::Reply BenchCommands::run(QStringView line)
{
    // Tabs and a carriage return from a script written elsewhere separate words too.
    QStringList words = line.toString().simplified().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    const QString command = words.takeFirst().toLower();
    const QString argument = words.size() == 1 ? words[0].toLower() : QString();
    if (command == QLatin1String("coin"))
        return coin(words);
    if (command == QLatin1String("door")) {
        if (argument != QLatin1String("open") && argument != QLatin1String("closed"))
            return failure(QStringLiteral("door needs \"open\" or \"closed\""));
        m_device->setDoorOpen(argument == QLatin1String("open"));
        return {};
    }
    if (command == QLatin1String("cable")) {
        if (argument != QLatin1String("out") && argument != QLatin1String("in"))
            return failure(QStringLiteral("cable needs \"out\" or \"in\""));
        m_device->setConnected(argument == QLatin1String("in"));
        return {};
    }
    if (command == QLatin1String("fit"))
        return fit(words);
    if (command == QLatin1String("plug"))
        return plug(words);
    if (command == QLatin1String("unplug"))
        return unplug(words);
    if (command == QLatin1String("mini")) {
        if (argument != QLatin1String("on") && argument != QLatin1String("off"))
            return failure(QStringLiteral("mini needs \"on\" or \"off\""));
        m_device->setMiniProgrammer(argument == QLatin1String("on"));
        return {};
    }
    if (command == QLatin1String("firmware")) {
        if (argument != QLatin1String("request"))
            return failure(QStringLiteral("firmware needs \"request\""));
        m_device->requestFirmware();
        return {};
    }
    if (command == QLatin1String("line"))
        return changeLine(words);
    if (command == QLatin1String("status") && words.isEmpty()) {
        const BenchStatus now = BenchStatus::of(*m_device);
        const auto onOff = [](bool on) {
            return on ? QStringLiteral("on") : QStringLiteral("off");
        };
        return {QStringLiteral("coins %1, test mode %2, mini-programmer %3, door %4, cable %5, "
                               "family 0x%6, serial %7\n")
                    .arg(now.queuedCoins)
                    .arg(onOff(now.testMode), onOff(now.miniProgrammer),
                         now.doorOpen ? QStringLiteral("open") : QStringLiteral("closed"),
                         now.connected ? QStringLiteral("in") : QStringLiteral("out"))
                    .arg(now.familyByte, 2, 16, QLatin1Char('0'))
                    .arg(now.serial),
                {}};
    }
    if (command == QLatin1String("help") && words.isEmpty())
        return {help(), {}};
    return failure(QStringLiteral("unknown command \"%1\"; \"help\" lists the commands")
                       .arg(line.trimmed().toString()));
}

BenchCommands::Reply BenchCommands::coin(QStringList arguments)
{
    // "0.50 EUR" as the panel writes it is two words.
    if (arguments.size() >= 2 &&
        arguments[1].compare(QLatin1String("eur"), Qt::CaseInsensitive) == 0)
        arguments.removeAt(1);
    if (arguments.isEmpty() || arguments.size() > 2)
        return failure(QStringLiteral("coin needs a name and an optional count, such as "
                                      "\"coin 0.50 3\" or \"coin golden\""));
    const std::optional<CoinKind> kind = CoinGenerator::kindNamed(arguments[0]);
    if (!kind)
        return failure(QStringLiteral("no coin named \"%1\"; the names are 0.05 to 2.00, "
                                      "golden and silver")
                           .arg(arguments[0]));
    int count = 1;
    if (arguments.size() == 2) {
        bool ok = false;
        count = arguments[1].toInt(&ok);
        if (!ok || count < 1 || count > kMostCoins)
            return failure(QStringLiteral("the count of coins is a number from 1 to %1, not \"%2\"")
                               .arg(kMostCoins)
                               .arg(arguments[1]));
    }
    for (int i = 0; i < count; ++i)
        m_device->insertCoin(*kind);
    return {};
}

BenchCommands::Reply BenchCommands::fit(const QStringList &arguments)
{
    bool familyOk = false;
    bool serialOk = false;
    const uint family = arguments.size() == 2 ? arguments[0].toUInt(&familyOk, 0) : 0;
    const qulonglong serial = arguments.size() == 2 ? arguments[1].toULongLong(&serialOk, 0) : 0;
    if (!familyOk || family > 0xFF || !serialOk || serial > 0xFFFFFFFFu)
        return failure(QStringLiteral("fit needs a family byte and a serial number, such as "
                                      "\"fit 0x13 1001\""));
    const bool door = m_device->doorOpen();
    m_device->setMemory(VirtualValidator::factoryImage(quint8(family), quint32(serial)));
    m_device->setDoorOpen(door);
    m_inPlace = quint32(serial);
    m_inPlaceKnown = true;
    return {};
}

BenchCommands::Reply BenchCommands::changeLine(const QStringList &arguments)
{
    if (!m_onLine)
        return failure(QStringLiteral("this bench cannot change its line"));
    QString why;
    const std::optional<LineProfile> profile = LineProfile::parse(arguments.join(QString()), &why);
    if (arguments.isEmpty() || !profile)
        return failure(
            QStringLiteral("line: %1").arg(why.isEmpty() ? QStringLiteral("needs a line") : why));
    m_onLine(*profile);
    return {};
}

void BenchCommands::shelve()
{
    const quint32 serial = m_inPlaceKnown ? m_inPlace : m_device->memory().serialNumber();
    m_rack.insert(serial, m_device->memory());
}

BenchCommands::Reply BenchCommands::unplug(const QStringList &arguments)
{
    if (arguments.isEmpty()) {
        m_device->setUnplugAfterWrites(0);
        return run(u"cable out");
    }
    bool ok = false;
    const int writes = arguments.size() == 2 ? arguments[1].toInt(&ok) : 0;
    if (arguments[0].toLower() != QLatin1String("after") || !ok || writes < 1)
        return failure(QStringLiteral("unplug needs nothing or \"after N\" with N from 1, such as "
                                      "\"unplug after 10\""));
    m_device->setUnplugAfterWrites(writes);
    return {};
}

BenchCommands::Reply BenchCommands::plug(const QStringList &arguments)
{
    if (arguments.size() > 2)
        return failure(QStringLiteral("plug needs an optional serial number and family byte, "
                                      "such as \"plug 2003 0x13\""));
    bool ok = true;
    std::optional<quint32> serial;
    if (!arguments.isEmpty()) {
        const qulonglong n = arguments[0].toULongLong(&ok, 0);
        if (!ok || n > 0xFFFFFFFFu)
            return failure(QStringLiteral("the serial number is a number from 0 to 4294967295, "
                                          "not \"%1\"")
                               .arg(arguments[0]));
        serial = quint32(n);
    }
    quint8 family = m_device->memory().familyByte();
    if (arguments.size() == 2) {
        const uint f = arguments[1].toUInt(&ok, 0);
        if (!ok || f > 0xFF)
            return failure(
                QStringLiteral("the family is a byte such as 0x13, not \"%1\"").arg(arguments[1]));
        family = quint8(f);
    }
    shelve();
    if (!serial) {
        // A new one: past every serial seen so far.
        quint32 next = m_device->memory().serialNumber();
        for (auto it = m_rack.cbegin(); it != m_rack.cend(); ++it)
            next = std::max(next, it.key());
        serial = next + 1;
    }
    // One plugged before keeps its own family.
    const auto known = m_rack.constFind(*serial);
    run(u"cable out");
    m_device->clearFaults();
    m_device->setUnplugAfterWrites(0);
    if (known != m_rack.cend()) {
        const bool door = m_device->doorOpen();
        m_device->setMemory(*known);
        m_device->setDoorOpen(door);
        m_inPlace = *serial;
        m_inPlaceKnown = true;
    } else {
        fit({QStringLiteral("0x%1").arg(family, 2, 16, QLatin1Char('0')),
             QString::number(*serial)});
    }
    run(u"cable in");
    return {};
}
