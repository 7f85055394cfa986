#include "HistoryFiles.h"

#include "ConfigFile.h"
#include "DurableFile.h"
#include "TableLock.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

constexpr char kMagic[4] = {'T', 'V', 'H', '1'};
constexpr char kTrailerMagic[4] = {'T', 'V', 'H', 'E'};
constexpr qsizetype kHeaderSize = 12;
constexpr qsizetype kTrailerSize = 8;
// A whole configuration again after this many written as changes, so that recording reads only
// the last few records of a long history.
constexpr int kWholeEvery = 32;
constexpr int kMaxWalk = 4 * kWholeEvery;
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
    // The trailer lets the last records be found from the end without reading the file.
    qToLittleEndian<quint32>(quint32(kHeaderSize + text.size() + kTrailerSize), number);
    out.append(number, 4);
    out.append(kTrailerMagic, 4);
    return out;
}

// The text of the whole record at offset at of bytes, or nothing when it is not whole.
std::optional<QByteArray> recordText(const QByteArray &bytes, qsizetype at)
{
    if (at < 0 || at + kHeaderSize + kTrailerSize > bytes.size())
        return std::nullopt;
    const char *head = bytes.constData() + at;
    if (std::memcmp(head, kMagic, 4) != 0)
        return std::nullopt;
    const quint32 length = qFromLittleEndian<quint32>(head + 4);
    const quint32 crc = qFromLittleEndian<quint32>(head + 8);
    const qsizetype total = kHeaderSize + qsizetype(length) + kTrailerSize;
    if (length > kMaxRecordText || at + total > bytes.size())
        return std::nullopt;
    const char *trailer = head + kHeaderSize + length;
    if (qFromLittleEndian<quint32>(trailer) != quint32(total) ||
        std::memcmp(trailer + 4, kTrailerMagic, 4) != 0)
        return std::nullopt;
    QByteArray text(head + kHeaderSize, length);
    if (crcOf(text) != crc)
        return std::nullopt;
    return text;
}

// One serial's records, read from a start up to the first record that is not whole.
struct ParsedFile
{
    QList<HistoryEvent> events;
    qint64 validEnd = 0;   // where the whole records end
    QByteArray lastPacked; // the last configuration known, packed; empty when none
    int sinceWhole = 0;    // configurations written as changes since the last whole one
};

// Reads the records of bytes (which start at offset base of the file) from the first one on.
void parseRecords(const QByteArray &bytes, qint64 base, quint32 serial, bool withConfigurations,
                  ParsedFile &parsed)
{
    qsizetype at = 0;
    parsed.validEnd = base;
    // An event takes a few hundred bytes: room for them all at once.
    parsed.events.reserve(parsed.events.size() + bytes.size() / 160);
    while (const std::optional<QByteArray> text = recordText(bytes, at)) {
        const QJsonObject o = QJsonDocument::fromJson(*text).object();
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
            parsed.sinceWhole = 0;
        } else if (o.contains(u"x") && parsed.lastPacked.isEmpty()) {
            // Read from the middle (the last record alone): the changes have nothing to go on.
            known = false;
        } else if (o.contains(u"x")) {
            if (!applyPatch(parsed.lastPacked, o.value(u"x").toArray()))
                break;
            ++parsed.sinceWhole;
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
        at += kHeaderSize + text->size() + kTrailerSize;
        parsed.validEnd = base + at;
    }
}

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
    parseRecords(file.readAll(), 0, serial, withConfigurations, parsed);
    return true;
}

// What recording needs of a serial's file without reading it all: from the end, back over
// whole records to the last one holding a whole configuration, then those records forward.
// False when the end is not a whole record (a kill cut one short) or the walk is too long: then
// the whole file is read.
bool readRecentRecords(QFile &file, quint32 serial, ParsedFile &parsed)
{
    const qint64 size = file.size();
    qint64 end = size;
    qint64 start = size;
    for (int walked = 0; end > 0; ++walked) {
        if (walked > kMaxWalk || end < kHeaderSize + kTrailerSize || !file.seek(end - kTrailerSize))
            return false;
        const QByteArray trailer = file.read(kTrailerSize);
        if (trailer.size() != kTrailerSize ||
            std::memcmp(trailer.constData() + 4, kTrailerMagic, 4))
            return false;
        const qint64 total = qFromLittleEndian<quint32>(trailer.constData());
        if (total < kHeaderSize + kTrailerSize || total > end || !file.seek(end - total))
            return false;
        const QByteArray record = file.read(total);
        const std::optional<QByteArray> text = recordText(record, 0);
        if (!text)
            return false;
        start = end - total;
        end = start;
        if (QJsonDocument::fromJson(*text).object().contains(u"c"))
            break;
    }
    if (!file.seek(start))
        return false;
    parseRecords(file.readAll(), start, serial, false, parsed);
    return parsed.validEnd == size;
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
    {
        QFile file(path);
        if (file.exists() && !file.open(QIODevice::ReadOnly))
            return fail(QDir::toNativeSeparators(path) + QStringLiteral(": ") + file.errorString());
        if (file.isOpen() && !readRecentRecords(file, event.serial, parsed)) {
            parsed = {};
            if (!file.seek(0))
                return fail(QDir::toNativeSeparators(path) + QStringLiteral(": ") +
                            file.errorString());
            parseRecords(file.readAll(), 0, event.serial, false, parsed);
        }
    }
    // The same event recorded again (a retry after a kill) is kept once.
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
        if (parsed.lastPacked.isEmpty() || parsed.sinceWhole + 1 >= kWholeEvery)
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
    // Recorded in the order they happened, unless two programs' clocks disagree: sorted only
    // then, since every event carries a whole configuration to move.
    const auto earlier = [](const HistoryEvent &a, const HistoryEvent &b) {
        return a.time < b.time;
    };
    if (!std::is_sorted(parsed.events.cbegin(), parsed.events.cend(), earlier))
        std::stable_sort(parsed.events.begin(), parsed.events.end(), earlier);
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
        // Counted by their frames; only the last one's text is read.
        QFile events(dir.filePath(file));
        if (!events.open(QIODevice::ReadOnly)) {
            if (error)
                *error = QDir::toNativeSeparators(events.fileName()) + QStringLiteral(": ") +
                         events.errorString();
            return std::nullopt;
        }
        const QByteArray bytes = events.readAll();
        int count = 0;
        qsizetype at = 0;
        qsizetype last = -1;
        while (const std::optional<QByteArray> text = recordText(bytes, at)) {
            ++count;
            last = at;
            at += kHeaderSize + text->size() + kTrailerSize;
        }
        if (count == 0)
            continue;
        ParsedFile parsed;
        parseRecords(bytes.mid(last), last, serial, false, parsed);
        if (parsed.events.isEmpty())
            continue;
        list.append({serial, count, parsed.events.constLast()});
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
    int count = 0;
    QHash<quint32, QSet<qint64>> taken;
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
        // An import cut short left some of them in already.
        if (!taken.contains(event.serial)) {
            QSet<qint64> &times = taken[event.serial];
            const std::optional<QList<HistoryEvent>> kept = events(event.serial, error);
            if (!kept)
                return -1;
            for (const HistoryEvent &old : *kept) {
                if (old.kind == event.kind)
                    times.insert(old.time.toMSecsSinceEpoch());
            }
        }
        if (taken[event.serial].contains(event.time.toMSecsSinceEpoch()))
            continue;
        if (!record(event, error))
            return -1;
        taken[event.serial].insert(event.time.toMSecsSinceEpoch());
        ++count;
    }
    QString why;
    if (!QDir().mkpath(m_dir) ||
        !DurableFile::write(note, QByteArray::number(count) + '\n', &why)) {
        if (error)
            *error = QDir::toNativeSeparators(note) + QStringLiteral(": ") + why;
        return -1;
    }
    return count;
}
