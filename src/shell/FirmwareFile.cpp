#include "FirmwareFile.h"

#include "UserPrompt.h"

#include <QFileInfo>

namespace {

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

// The reason a record is not one, or Msg::Count_ when it is.
Msg checkRecord(QByteArrayView record)
{
    if (record.size() < 2 || record[0] != 'S' || record[1] < '0' || record[1] > '9')
        return Msg::SRecordBadStart;
    const QByteArrayView pairs = record.sliced(2);
    for (char c : pairs)
        if (hexValue(c) < 0)
            return Msg::SRecordBadHex;
    if (pairs.size() % 2 != 0 || pairs.size() < 2)
        return Msg::SRecordBadCount;
    const qsizetype bytes = pairs.size() / 2;
    auto byteAt = [&](qsizetype i) {
        return hexValue(pairs[2 * i]) * 16 + hexValue(pairs[2 * i + 1]);
    };
    // The address is 2 bytes (S0, S1, S5, S9), 3 (S2, S6, S8) or 4 (S3, S7); the count covers
    // the address, the data and the checksum.
    static constexpr int kAddressBytes[10] = {2, 2, 3, 4, 0, 2, 3, 4, 3, 2};
    const int count = byteAt(0);
    if (count != bytes - 1 || count < kAddressBytes[record[1] - '0'] + 1)
        return Msg::SRecordBadCount;
    int sum = 0;
    for (qsizetype i = 0; i < bytes - 1; ++i)
        sum += byteAt(i);
    if ((~sum & 0xFF) != byteAt(bytes - 1))
        return Msg::SRecordBadChecksum;
    return Msg::Count_;
}

} // namespace

FirmwareFileCheck checkFirmwareFile(const QByteArray &firmware)
{
    FirmwareFileCheck check;
    int records = 0;
    int lineNumber = 0;
    qsizetype start = 0;
    while (start < firmware.size()) {
        qsizetype end = firmware.indexOf('\n', start);
        if (end < 0)
            end = firmware.size();
        QByteArrayView line(firmware.constData() + start, end - start);
        start = end + 1;
        ++lineNumber;
        if (line.endsWith('\r'))
            line = line.chopped(1);
        if (line.isEmpty())
            continue;
        const Msg reason = checkRecord(line);
        if (reason != Msg::Count_) {
            check.line = lineNumber;
            check.reason = reason;
            return check;
        }
        ++records;
    }
    check.empty = records == 0;
    check.ok = !check.empty;
    return check;
}

QString FirmwareFileCheck::message(const QString &fileName) const
{
    const QString name = QFileInfo(fileName).fileName();
    if (empty)
        return messageText(Msg::FirmwareEmpty, {name});
    return messageText(Msg::FirmwareNotSRecord, {name, QString::number(line), messageText(reason)});
}

bool confirmFirmwareTransfer(UserPrompt &prompt, const QString &fileName,
                             const QByteArray &firmware)
{
    const FirmwareFileCheck check = checkFirmwareFile(firmware);
    const QString name = QFileInfo(fileName).fileName();
    if (!check.ok) {
        prompt.tell(check.message(fileName), UserPrompt::Kind::Error);
        return false;
    }
    if (firmware.size() > kLargeFirmwareBytes &&
        prompt.ask(messageText(Msg::FirmwareLarge, {name, QString::number(firmware.size())}),
                   UserPrompt::Kind::Confirmation,
                   UserPrompt::Buttons::OkCancel) != UserPrompt::Answer::Ok)
        return false;
    return prompt.ask(messageText(Msg::FirmwareUpgradeMode, {name}), UserPrompt::Kind::Confirmation,
                      UserPrompt::Buttons::OkCancel) == UserPrompt::Answer::Ok;
}
