#include "DbfLayout.h"

#include "DbfTableDetail.h"

#include "MdxIndex.h"
#include "Messages.h"
#include "TableSchema.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>

namespace {

constexpr int kFixedHeader = 32;
constexpr int kFixedHeader7 = 68;
constexpr int kDescriptor = 32;
constexpr int kDescriptor7 = 48;
constexpr char kFieldEnd = 0x0D;
constexpr char kEndOfFile = 0x1A;
constexpr int kMaxFields = 1024;
const quint8 kDefaultDriver = LanguageDriver::standard().id; // the driver new tables get

using dbf_detail::cName;

int fixedWidth(char type)
{
    switch (type) {
    case 'L':
        return 1;
    case 'D':
        return 8;
    case 'I':
    case '+':
        return 4;
    case 'O':
    case '@':
        return 8;
    default:
        return 0;
    }
}

// The descriptor list as the file holds it: the valid descriptors from the first one, and how
// the list ends.
struct Descriptors
{
    QList<DbfField> fields;
    qint64 end = -1;  // where the end mark is; -1 when the list does not end
    QString badField; // the first descriptor that is not valid, when one is not
    bool cut = false; // the file ends inside the list
};

Descriptors scanDescriptors(const QByteArray &bytes, bool level7)
{
    Descriptors d;
    const int size = level7 ? kDescriptor7 : kDescriptor;
    qint64 pos = level7 ? kFixedHeader7 : kFixedHeader;
    int offset = 1;
    for (;;) {
        if (pos >= bytes.size() || (bytes.at(pos) != kFieldEnd && pos + size > bytes.size())) {
            d.cut = true;
            return d;
        }
        if (bytes.at(pos) == kFieldEnd) {
            d.end = pos;
            return d;
        }
        const char *p = bytes.constData() + pos;
        DbfField f;
        f.name = cName(p, level7 ? 32 : 11);
        f.type = p[level7 ? 32 : 11];
        f.length = quint8(p[level7 ? 33 : 16]);
        f.decimals = quint8(p[level7 ? 34 : 17]);
        f.offset = offset;
        f.descriptorOffset = int(pos);
        const int fixedLength = fixedWidth(f.type);
        if (d.fields.size() >= kMaxFields || f.name.isEmpty() || f.length == 0 || f.type < '+' ||
            f.type > 'Z' || (fixedLength && f.length != fixedLength)) {
            d.badField = f.name.isEmpty() ? QString::number(d.fields.size() + 1) : f.name;
            return d;
        }
        offset += f.length;
        d.fields.append(f);
        pos += size;
    }
}

int recordLengthOf(const QList<DbfField> &fields)
{
    int length = 1;
    for (const DbfField &f : fields)
        length += f.length;
    return length;
}

bool liveOrDeleted(char mark)
{
    return mark == ' ' || mark == '*';
}

// How many rows from offset start with a live or deleted mark, up to limit (0: every whole
// row of the file).
int markedRows(const QByteArray &bytes, qint64 offset, int recordLength, qint64 limit)
{
    if (offset > bytes.size())
        return 0;
    qint64 rows = (bytes.size() - offset) / recordLength;
    if (limit > 0)
        rows = std::min(rows, limit);
    int n = 0;
    while (n < rows && liveOrDeleted(bytes.at(offset + qint64(n) * recordLength)))
        ++n;
    return n;
}

// Whether the bytes from `from` to `to` are the zeros some engines put after the end mark (a
// header length pointing into the first row is not).
bool paddingOnly(const QByteArray &bytes, qint64 from, qint64 to)
{
    for (qint64 i = from; i < to && i < bytes.size(); ++i) {
        if (bytes.at(i) != '\0')
            return false;
    }
    return true;
}

// A field length another tool spoilt (255 in place of 30): the one field whose length, set
// back to the width the table is known to have, makes the fields add up to the record length.
// Its descriptor is mended in header too. False when no single field does.
bool mendFieldLength(QList<DbfField> &fields, QByteArray &header, int recordLength,
                     const TableSchema *schema, bool level7)
{
    if (!schema || recordLength <= 1)
        return false;
    const int total = recordLengthOf(fields);
    for (int i = 0; i < fields.size(); ++i) {
        const FieldDef *def = nullptr;
        for (const FieldDef &known : schema->fields) {
            if (known.name.compare(fields.at(i).name, Qt::CaseInsensitive) == 0)
                def = &known;
        }
        if (!def || def->dbaseWidth() == fields.at(i).length ||
            total - fields.at(i).length + def->dbaseWidth() != recordLength)
            continue;
        fields[i].length = def->dbaseWidth();
        const int at = fields.at(i).descriptorOffset + (level7 ? 33 : 16);
        if (at < header.size())
            header[at] = char(def->dbaseWidth());
        int offset = 1;
        for (DbfField &f : fields) {
            f.offset = offset;
            offset += f.length;
        }
        return true;
    }
    return false;
}

// A descriptor for a field the table is known to have, as a new table gets it.
QByteArray schemaDescriptor(const FieldDef &def, const TableSchema &schema, bool level7)
{
    QByteArray d(level7 ? kDescriptor7 : kDescriptor, '\0');
    const QByteArray name = def.name.toLatin1().left(level7 ? 31 : 10);
    std::memcpy(d.data(), name.constData(), std::size_t(name.size()));
    d[level7 ? 32 : 11] = def.dbaseType();
    d[level7 ? 33 : 16] = char(def.dbaseWidth());
    d[level7 ? 34 : 17] = char(def.dbaseDecimals());
    for (const TagDef &tag : schema.tags) {
        if (tag.field.compare(def.name, Qt::CaseInsensitive) == 0)
            d[level7 ? 37 : 31] = 1;
    }
    return d;
}

} // namespace

DbfLayout DbfLayout::read(const QByteArray &bytes, const QString &fileName,
                          const TableSchema *schema)
{
    DbfLayout l;
    const qint64 size = bytes.size();
    if (size > 0 && bytes.at(0) != 0x03 && bytes.at(0) != 0x04) {
        l.problem = messageText(Msg::RecordsNotDbase, {fileName});
        return l;
    }
    l.level7 = size > 0 && bytes.at(0) == 0x04;
    const int fixed = l.level7 ? kFixedHeader7 : kFixedHeader;
    const int descriptorSize = l.level7 ? kDescriptor7 : kDescriptor;
    const char *h = bytes.constData();
    const bool countKnown = size >= 8;
    const qint64 count = countKnown ? qFromLittleEndian<quint32>(h + 4) : 0;
    const int declaredHeader = size >= 10 ? qFromLittleEndian<quint16>(h + 8) : 0;
    const int declaredRecord = size >= 12 ? qFromLittleEndian<quint16>(h + 10) : 0;
    const Descriptors d = scanDescriptors(bytes, l.level7);

    // The header as written. A file that ends before its header does, with no room for a row
    // after the descriptors, was cut inside its header.
    const bool headerCut = size < fixed + 1 || d.cut ||
                           (d.end >= 0 && declaredHeader > size && !d.fields.isEmpty() &&
                            size - (d.end + 1) < recordLengthOf(d.fields));
    if (headerCut)
        l.problem = messageText(Msg::RecordsHeaderTruncated, {fileName});
    else if (!d.badField.isEmpty())
        l.problem = messageText(Msg::RecordsBadField, {fileName, d.badField});
    else if (d.fields.isEmpty() || declaredHeader < fixed + 1 || d.end >= declaredHeader ||
             declaredHeader > size || recordLengthOf(d.fields) != declaredRecord ||
             (!l.level7 && !paddingOnly(bytes, d.end + 1, declaredHeader)))
        l.problem = messageText(Msg::RecordsBadHeader, {fileName});
    if (l.problem.isEmpty()) {
        l.fields = d.fields;
        l.recordLength = declaredRecord;
        l.rowsOffset = declaredHeader;
        l.header = bytes.left(declaredHeader);
        const qint64 available = (size - declaredHeader) / declaredRecord;
        l.rows = int(std::min(count, available));
        if (count <= available) {
            l.state = State::Sound;
            return l;
        }
        l.state = State::Damaged;
        l.unreadable = count - available;
        l.problem = messageText(Msg::RecordsTruncated,
                                {fileName, QString::number(l.rows), QString::number(count)});
        qToLittleEndian<quint32>(quint32(l.rows), l.header.data() + 4);
        return l;
    }

    // Recovering a header that does not parse: from a whole descriptor list first.
    QList<qint64> offsets; // where the rows may start, most likely first
    const bool wholeList = d.end >= 0 && !d.fields.isEmpty() && recordLengthOf(d.fields) <= 0xFFFF;
    QByteArray mended = bytes.left(d.end + 1);
    QList<DbfField> fields = d.fields;
    const bool lengthMended = d.end >= 0 && !fields.isEmpty() &&
                              recordLengthOf(fields) != declaredRecord &&
                              mendFieldLength(fields, mended, declaredRecord, schema, l.level7);
    if (wholeList) {
        l.fields = fields;
        if (l.level7 && declaredHeader > d.end && declaredHeader <= size)
            offsets.append(declaredHeader); // after the field properties
        offsets.append(d.end + 1);
        if (!l.level7)
            offsets.append(d.end + 2); // some engines put a zero after the end mark
        if (declaredHeader > d.end && declaredHeader <= size && !lengthMended &&
            paddingOnly(bytes, d.end + 1, declaredHeader))
            offsets.append(declaredHeader);
    } else if (schema) {
        // Then from the fields the table is known to have, keeping the descriptors that are
        // still there while they agree with them.
        l.header = QByteArray(fixed, '\0');
        std::memcpy(l.header.data(), h, std::size_t(std::min<qint64>(size, fixed)));
        l.header[0] = char(l.level7 ? 0x04 : 0x03);
        if (size <= 28)
            l.header[28] = char(schema->tags.isEmpty() ? 0 : 1);
        if (size <= 29)
            l.header[29] = char(kDefaultDriver);
        if (l.level7 && size < 64 && cName(l.header.constData() + 32, 32).isEmpty())
            std::memcpy(l.header.data() + 32, "DBWINUS0", 8);
        bool agree = true;
        int offset = 1;
        for (int i = 0; i < schema->fields.size(); ++i) {
            const FieldDef &def = schema->fields.at(i);
            agree = agree && i < d.fields.size() &&
                    d.fields.at(i).name.compare(def.name, Qt::CaseInsensitive) == 0;
            DbfField f;
            if (agree) {
                f = d.fields.at(i);
                l.header.append(bytes.mid(f.descriptorOffset, descriptorSize));
            } else {
                f.name = def.name;
                f.type = def.dbaseType();
                f.length = def.dbaseWidth();
                f.decimals = def.dbaseDecimals();
                l.header.append(schemaDescriptor(def, *schema, l.level7));
            }
            f.offset = offset;
            f.descriptorOffset = int(l.header.size()) - descriptorSize;
            offset += f.length;
            l.fields.append(f);
        }
        l.header.append(kFieldEnd);
        if (declaredRecord == recordLengthOf(l.fields) && declaredHeader >= l.header.size() &&
            declaredHeader <= size)
            offsets.append(declaredHeader);
        offsets.append(l.header.size());
    } else {
        return l;
    }

    // The rows start where they line up best: every row marked, or else the most rows marked.
    l.recordLength = recordLengthOf(l.fields);
    const qint64 limit = count > 0 ? count : 0; // rows past a count are not the table's
    l.rowsOffset = std::min(offsets.constFirst(), size);
    int best = -1;
    for (qint64 offset : std::as_const(offsets)) {
        const int marked = markedRows(bytes, offset, l.recordLength, limit);
        const qint64 whole = offset <= size ? (size - offset) / l.recordLength : 0;
        if (marked > best) {
            best = marked;
            l.rowsOffset = std::min(offset, size);
        }
        if (marked == std::min(whole, limit > 0 ? limit : whole))
            break;
    }
    l.rows = std::max(best, 0);
    if (wholeList) // the header runs up to the rows, with what follows the end mark
        l.header = mended + bytes.mid(d.end + 1, std::max<qint64>(l.rowsOffset - d.end - 1, 0));
    const qint64 rest = size - l.rowsOffset;
    const bool partRow = rest % l.recordLength > 1 ||
                         (rest % l.recordLength == 1 && bytes.at(size - 1) != kEndOfFile);
    const qint64 meant =
        countKnown ? std::max<qint64>(count, l.rows) : rest / l.recordLength + (partRow ? 1 : 0);
    l.unreadable = meant - l.rows;
    l.state = State::Damaged;
    qToLittleEndian<quint32>(quint32(l.rows), l.header.data() + 4);
    qToLittleEndian<quint16>(quint16(l.header.size()), l.header.data() + 8);
    qToLittleEndian<quint16>(quint16(l.recordLength), l.header.data() + 10);
    return l;
}

QByteArray DbfLayout::rebuilt(const QByteArray &bytes, const QDate &today) const
{
    QByteArray out = header;
    out[1] = char(std::clamp(today.year() - 1900, 0, 255));
    out[2] = char(today.month());
    out[3] = char(today.day());
    out.append(bytes.mid(rowsOffset, qint64(rows) * recordLength));
    out.append(kEndOfFile);
    return out;
}

DbfLayout DbfLayout::read(const QByteArray &bytes, const QByteArray &index, const QString &fileName,
                          const TableSchema *schema)
{
    DbfLayout l = read(bytes, fileName, schema);
    // Only a file holding whole rows past its count needs its index looked at.
    if (l.state != State::Sound || index.isEmpty() || l.recordLength <= 0 ||
        (bytes.size() - l.rowsOffset) / l.recordLength <= l.rows)
        return l;
    // The highest record the index names.
    MdxIndex mdx;
    MdxProblem problem;
    if (!mdx.parse(index, &problem))
        return l;
    const LanguageDriver *driver = LanguageDriver::byId(mdx.language());
    quint32 named = 0;
    for (int t = 0; t < mdx.tags().size(); ++t) {
        std::vector<MdxKey> keys;
        if (!mdx.readKeys(index, t, driver ? *driver : LanguageDriver::none(), keys, &problem))
            continue;
        for (const MdxKey &key : keys)
            named = std::max(named, key.recno);
    }
    if (qint64(named) <= l.rows)
        return l;
    // Kept only when the file still holds every one of them, each a live or deleted row.
    const int whole = markedRows(bytes, l.rowsOffset, l.recordLength, 0);
    if (whole < qint64(named))
        return l;
    l.problem = messageText(Msg::RecordsRowsPastCount,
                            {fileName, QString::number(l.rows), QString::number(named)});
    l.rows = int(named);
    l.state = State::Damaged;
    qToLittleEndian<quint32>(quint32(l.rows), l.header.data() + 4);
    return l;
}
