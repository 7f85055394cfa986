#include "HistoryFiles.h"

#include "ConfigFile.h"
#include "DurableFile.h"
#include "TableLock.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

constexpr char kMagic[4] = {'T', 'V', 'H', '1'};
constexpr qsizetype kHeaderSize = 12;
// A record's text is far smaller; a length past this is a damaged header, not a record.
constexpr quint32 kMaxRecordText = 1 << 20;
const QString kImportedNote = QStringLiteral("backups-imported");

// CRC-32 (the polynomial of zip and PNG), to tell a whole record from one cut short.
quint32 crcOf(const QByteArray &bytes)
{
    static const std::array<quint32, 256> table = [] {
        std::array<quint32, 256> t{};
        for (quint32 n = 0; n < 256; ++n) {
            quint32 c = n;
            for (int k = 0; k < 8; ++k)
                c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            t[n] = c;
        }
        return t;
    }();
    quint32 crc = 0xFFFFFFFFu;
    for (const char byte : bytes)
        crc = table[(crc ^ quint8(byte)) & 0xFF] ^ (crc >> 8);
    return crc ^ 0xFFFFFFFFu;
}

template <std::size_t N> void put(QByteArray &out, const std::array<quint8, N> &block)
{
    out.append(reinterpret_cast<const char *>(block.data()), qsizetype(N));
}

template <std::size_t N> void take(const char *&in, std::array<quint8, N> &block)
{
    std::memcpy(block.data(), in, N);
    in += N;
}

// The changed runs of bytes from before to after: [[offset, "hex"], ...]. Runs closer than four
// bytes are joined, since each run costs more than that in the text.
QJsonArray patchOf(const QByteArray &before, const QByteArray &after)
{
    QJsonArray runs;
    qsizetype i = 0;
    const qsizetype n = after.size();
    while (i < n) {
        if (before.at(i) == after.at(i)) {
            ++i;
            continue;
        }
        qsizetype end = i + 1;
        for (qsizetype j = end; j < n && j < end + 4; ++j) {
            if (before.at(j) != after.at(j))
                end = j + 1;
        }
        runs.append(QJsonArray{int(i), QString::fromLatin1(after.mid(i, end - i).toHex())});
        i = end;
    }
    return runs;
}

bool applyPatch(QByteArray &bytes, const QJsonArray &runs)
{
    for (const QJsonValue &value : runs) {
        const QJsonArray run = value.toArray();
        const QByteArray data = QByteArray::fromHex(run.at(1).toString().toLatin1());
        const qsizetype at = run.at(0).toInteger(-1);
        if (run.size() != 2 || at < 0 || data.isEmpty() || at + data.size() > bytes.size())
            return false;
        bytes.replace(at, data.size(), data);
    }
    return true;
}

QByteArray recordBytes(const QByteArray &text)
{
    QByteArray out(kMagic, 4);
    char number[4];
    qToLittleEndian<quint32>(quint32(text.size()), number);
    out.append(number, 4);
    qToLittleEndian<quint32>(crcOf(text), number);
    out.append(number, 4);
    out.append(text);
    return out;
}

// One serial's file, read from the start up to its first record that is not whole.
struct ParsedFile
{
    QList<HistoryEvent> events;
    qint64 validEnd = 0;   // where the whole records end
    QByteArray lastPacked; // the last configuration known, packed; empty when none
};

bool readEventFile(const QString &path, quint32 serial, bool withConfigurations, ParsedFile &parsed,
                   QString *error)
{
    QFile file(path);
    if (!file.exists())
        return true;
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = path + QStringLiteral(": ") + file.errorString();
        return false;
    }
    const QByteArray all = file.readAll();
    qsizetype at = 0;
    while (at + kHeaderSize <= all.size()) {
        const char *head = all.constData() + at;
        if (std::memcmp(head, kMagic, 4) != 0)
            break;
        const quint32 length = qFromLittleEndian<quint32>(head + 4);
        const quint32 crc = qFromLittleEndian<quint32>(head + 8);
        if (length > kMaxRecordText || at + kHeaderSize + qsizetype(length) > all.size())
            break;
        const QByteArray text = all.mid(at + kHeaderSize, length);
        if (crcOf(text) != crc)
            break;
        const QJsonObject o = QJsonDocument::fromJson(text).object();
        HistoryEvent event;
        event.serial = serial;
        event.time = QDateTime::fromMSecsSinceEpoch(o.value(u"t").toInteger(), Qt::UTC);
        event.kind = o.value(u"k").toString();
        event.result = o.value(u"r").toString();
        event.program = o.value(u"p").toString();
        event.machine = o.value(u"m").toString();
        event.user = o.value(u"u").toString();
        event.detail = o.value(u"d").toString();
        // "c": the whole configuration; "x": the bytes changed since the last one; "s": the
        // same as the last one; none of them: not known.
        bool known = true;
        if (o.contains(u"c")) {
            parsed.lastPacked = QByteArray::fromHex(o.value(u"c").toString().toLatin1());
        } else if (o.contains(u"x")) {
            if (parsed.lastPacked.isEmpty() ||
                !applyPatch(parsed.lastPacked, o.value(u"x").toArray()))
                break;
        } else if (!o.contains(u"s") || parsed.lastPacked.isEmpty()) {
            known = false;
        }
        if (known && withConfigurations) {
            ConfigImage image;
            if (!HistoryFiles::unpackConfiguration(parsed.lastPacked, image))
                break;
            event.configuration = image;
        }
        parsed.events.append(event);
        at += kHeaderSize + length;
        parsed.validEnd = at;
    }
    return true;
}

bool sameEvent(const HistoryEvent &a, const HistoryEvent &b)
{
    return a.time == b.time && a.kind == b.kind && a.machine == b.machine;
}

} // namespace

HistoryFiles::HistoryFiles(const QString &dataDirectory)
    : m_dir(QDir(dataDirectory).filePath(QStringLiteral("history")))
{}

QString HistoryFiles::fileOf(quint32 serial) const
{
    return QDir(m_dir).filePath(QString::number(serial) + QStringLiteral(".tvh"));
}

QByteArray HistoryFiles::packConfiguration(const ConfigImage &image)
{
    QByteArray out;
    out.reserve(kPackedSize);
    put(out, image.version);
    put(out, image.ident);
    put(out, image.counters);
    put(out, image.prices);
    put(out, image.options);
    put(out, image.enable);
    put(out, image.values);
    put(out, image.block2);
    put(out, image.block13);
    out.append(char(image.setting8));
    put(out, image.status9);
    for (const ChannelRecord &record : image.channels)
        put(out, record);
    return out;
}

bool HistoryFiles::unpackConfiguration(const QByteArray &bytes, ConfigImage &image)
{
    if (bytes.size() != kPackedSize)
        return false;
    const char *in = bytes.constData();
    take(in, image.version);
    take(in, image.ident);
    take(in, image.counters);
    take(in, image.prices);
    take(in, image.options);
    take(in, image.enable);
    take(in, image.values);
    take(in, image.block2);
    take(in, image.block13);
    image.setting8 = quint8(*in++);
    take(in, image.status9);
    for (ChannelRecord &record : image.channels)
        take(in, record);
    return true;
}

bool HistoryFiles::record(const HistoryEvent &event, QString *error)
{
    QString why;
    auto fail = [&](const QString &reason) {
        if (error)
            *error = reason;
        return false;
    };
    if (!QDir().mkpath(m_dir))
        return fail(QDir::toNativeSeparators(m_dir));
    TableLock lock(QDir(m_dir).filePath(QStringLiteral("events")));
    if (!lock.lock(TableLock::Mode::Exclusive))
        return fail(lock.errorString());

    const QString path = fileOf(event.serial);
    ParsedFile parsed;
    if (!readEventFile(path, event.serial, false, parsed, error))
        return false;
    for (const HistoryEvent &kept : parsed.events) {
        if (sameEvent(kept, event))
            return true;
    }

    QJsonObject o;
    o.insert(QStringLiteral("t"), event.time.toMSecsSinceEpoch());
    o.insert(QStringLiteral("k"), event.kind);
    if (!event.result.isEmpty())
        o.insert(QStringLiteral("r"), event.result);
    o.insert(QStringLiteral("p"), event.program);
    o.insert(QStringLiteral("m"), event.machine);
    o.insert(QStringLiteral("u"), event.user);
    if (!event.detail.isEmpty())
        o.insert(QStringLiteral("d"), event.detail);
    if (event.configuration) {
        const QByteArray packed = packConfiguration(*event.configuration);
        if (parsed.lastPacked.isEmpty())
            o.insert(QStringLiteral("c"), QString::fromLatin1(packed.toHex()));
        else if (packed == parsed.lastPacked)
            o.insert(QStringLiteral("s"), 1);
        else
            o.insert(QStringLiteral("x"), patchOf(parsed.lastPacked, packed));
    }
    const QByteArray bytes = recordBytes(QJsonDocument(o).toJson(QJsonDocument::Compact));

    const bool exists = QFileInfo::exists(path);
    if (!exists) {
        if (!DurableFile::write(path, bytes, &why))
            return fail(QDir::toNativeSeparators(path) + QStringLiteral(": ") + why);
        DurableFile::syncDirectory(m_dir);
        return true;
    }
    // A record cut short by a kill is cut off, so that the new one follows the last whole one.
    if (QFileInfo(path).size() > parsed.validEnd &&
        !DurableFile::truncate(path, parsed.validEnd, &why))
        return fail(QDir::toNativeSeparators(path) + QStringLiteral(": ") + why);
    if (!DurableFile::writeAt(path, parsed.validEnd, bytes, &why)) {
        // A full disk may have taken part of it: what was kept stays as it was.
        QString ignored;
        DurableFile::truncate(path, parsed.validEnd, &ignored);
        return fail(QDir::toNativeSeparators(path) + QStringLiteral(": ") + why);
    }
    return true;
}

std::optional<QList<HistoryEvent>> HistoryFiles::events(quint32 serial, QString *error) const
{
    if (!QFileInfo::exists(fileOf(serial)))
        return QList<HistoryEvent>{};
    TableLock lock(QDir(m_dir).filePath(QStringLiteral("events")));
    if (!lock.lock(TableLock::Mode::Shared)) {
        if (error)
            *error = lock.errorString();
        return std::nullopt;
    }
    ParsedFile parsed;
    if (!readEventFile(fileOf(serial), serial, true, parsed, error))
        return std::nullopt;
    // Recorded in the order they happened, unless two programs' clocks disagree.
    std::stable_sort(parsed.events.begin(), parsed.events.end(),
                     [](const HistoryEvent &a, const HistoryEvent &b) { return a.time < b.time; });
    return parsed.events;
}

std::optional<QList<HistorySerial>> HistoryFiles::serials(QString *error) const
{
    QList<HistorySerial> list;
    const QDir dir(m_dir);
    if (!dir.exists())
        return list;
    TableLock lock(dir.filePath(QStringLiteral("events")));
    if (!lock.lock(TableLock::Mode::Shared)) {
        if (error)
            *error = lock.errorString();
        return std::nullopt;
    }
    static const QRegularExpression name(QStringLiteral("^(\\d{1,10})\\.tvh$"));
    for (const QString &file : dir.entryList({QStringLiteral("*.tvh")}, QDir::Files)) {
        const QRegularExpressionMatch match = name.match(file);
        bool ok = false;
        const quint32 serial = match.hasMatch() ? match.captured(1).toUInt(&ok) : 0;
        if (!ok)
            continue;
        ParsedFile parsed;
        if (!readEventFile(dir.filePath(file), serial, false, parsed, error))
            return std::nullopt;
        if (parsed.events.isEmpty())
            continue;
        list.append({serial, int(parsed.events.size()), parsed.events.constLast()});
    }
    std::sort(list.begin(), list.end(),
              [](const HistorySerial &a, const HistorySerial &b) { return a.serial < b.serial; });
    return list;
}

int HistoryFiles::importBackupsOnce(const QString &backupDirectory, const QString &machine,
                                    const QDateTime &before, QString *error)
{
    const QString note = QDir(m_dir).filePath(kImportedNote);
    if (QFileInfo::exists(note))
        return 0;
    static const QRegularExpression name(
        QStringLiteral("^(\\d{8}-\\d{6}-\\d{3})-serial(\\d{1,10})(-\\d+)?\\.json$"));
    int taken = 0;
    const QDir backups(backupDirectory);
    const QStringList files =
        backups.entryList({QStringLiteral("*-serial*.json")}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const QRegularExpressionMatch match = name.match(file);
        const QDateTime named =
            QDateTime::fromString(match.captured(1), QStringLiteral("yyyyMMdd-HHmmss-zzz"));
        if (!match.hasMatch() || !named.isValid() || named >= before)
            continue;
        ConfigImage image;
        QString ignored;
        // A backup that does not load (empty, left by a full disk) holds nothing to put back.
        if (!loadConfigFile(backups.filePath(file), image, &ignored))
            continue;
        HistoryEvent event;
        event.serial = image.serialNumber();
        // The backups were named in the machine's local time.
        event.time = named.toUTC();
        // Two backups of one millisecond are told apart by their number.
        if (!match.captured(3).isEmpty())
            event.time = event.time.addMSecs(match.captured(3).mid(1).toInt() - 1);
        event.kind = QStringLiteral("backup");
        event.machine = machine;
        event.detail = file;
        event.configuration = image;
        if (!record(event, error))
            return -1;
        ++taken;
    }
    QString why;
    if (!QDir().mkpath(m_dir) ||
        !DurableFile::write(note, QByteArray::number(taken) + '\n', &why)) {
        if (error)
            *error = QDir::toNativeSeparators(note) + QStringLiteral(": ") + why;
        return -1;
    }
    return taken;
}
