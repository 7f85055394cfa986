#include "MdxIndex.h"

#include "LanguageDriver.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>

namespace {

quint32 le32(const char *p)
{
    return qFromLittleEndian<quint32>(p);
}
quint16 le16(const char *p)
{
    return qFromLittleEndian<quint16>(p);
}
void put32(char *p, quint32 v)
{
    qToLittleEndian(v, p);
}
void put16(char *p, quint16 v)
{
    qToLittleEndian(v, p);
}

QString cString(const char *p, int max)
{
    int n = 0;
    while (n < max && p[n] != '\0')
        ++n;
    return QString::fromLatin1(p, n).trimmed();
}

void putCString(char *p, const QString &s, int max)
{
    const QByteArray bytes = s.toLatin1().left(max);
    std::memset(p, 0, std::size_t(max));
    std::memcpy(p, bytes.constData(), std::size_t(bytes.size()));
}

void putDate(char *p, const QDate &d)
{
    p[0] = char(std::clamp(d.year() - 1900, 0, 255));
    p[1] = char(d.month());
    p[2] = char(d.day());
}

// Offsets inside one entry of the tag table; a level-7 index has 33-character tag names.
struct TagEntryLayout
{
    int nameLength, keyFormat, links, reserved, keyType;
};
constexpr TagEntryLayout kEntry4{11, 15, 16, 19, 20};
constexpr TagEntryLayout kEntry7{33, 37, 38, 41, 42};

// Tag header offsets.
constexpr int kRoot = 0, kPagesUsed = 4, kKeyFormat = 8, kKeyType = 9, kKeyLength = 12,
              kMaxKeys = 14, kItemLength = 18, kSerial = 20, kUniqueByte = 23, kExpression = 24,
              kExpressionMax = 220, kForExists = 245, kKeyExists = 246, kFirstNode = 248,
              kLastNode = 252;

constexpr int kMaxDepth = 32;

int itemLengthFor(int keyLength)
{
    return (keyLength + 4 + 3) & ~3;
}

struct TreeWalk
{
    const QByteArray &bytes;
    const MdxTag &tag;
    const LanguageDriver &order;
    int blockBytes;
    std::vector<MdxKey> &out;
    std::vector<char> visited;
    int leafDepth = -1;
    MdxProblem problem;

    bool fail(Msg reason)
    {
        problem = {reason, {}};
        return false;
    }

    int compare(const char *a, const char *b) const
    {
        return order.compare(a, b, std::size_t(tag.keyLength));
    }

    // Visits the subtree at page; lo and hi receive its lowest and highest keys.
    bool node(quint32 page, int depth, const char *&lo, const char *&hi)
    {
        if (depth > kMaxDepth || page < 4)
            return fail(Msg::IndexReasonPages);
        const qint64 at = qint64(page) * MdxIndex::kPageBytes;
        if (at + blockBytes > bytes.size() || page >= visited.size() || visited[page])
            return fail(Msg::IndexReasonPages);
        visited[page] = 1;
        const char *block = bytes.constData() + at;
        const quint32 n = le32(block);
        if (n > quint32(tag.maxKeys))
            return fail(Msg::IndexReasonPages);
        auto entry = [&](quint32 i) { return block + 8 + qint64(i) * tag.itemLength; };
        const bool interior = n < quint32(tag.maxKeys) && le32(entry(n)) != 0;

        if (!interior) {
            if (leafDepth < 0)
                leafDepth = depth;
            if (depth != leafDepth || (n == 0 && depth > 0))
                return fail(Msg::IndexReasonPages);
            lo = hi = nullptr;
            for (quint32 i = 0; i < n; ++i) {
                const char *key = entry(i) + 4;
                if (!out.empty() && compare(out.back().key, key) > 0)
                    return fail(Msg::IndexReasonOrder);
                out.push_back({key, le32(entry(i))});
            }
            if (n > 0) {
                lo = entry(0) + 4;
                hi = entry(n - 1) + 4;
            }
            return true;
        }

        const char *separator = nullptr;
        for (quint32 i = 0; i <= n; ++i) {
            const char *childLo = nullptr;
            const char *childHi = nullptr;
            if (!node(le32(entry(i)), depth + 1, childLo, childHi))
                return false;
            if (!childLo)
                return fail(Msg::IndexReasonPages);
            if (separator && compare(childLo, separator) < 0)
                return fail(Msg::IndexReasonOrder);
            if (i < n) {
                separator = entry(i) + 4;
                if (compare(childHi, separator) > 0)
                    return fail(Msg::IndexReasonOrder);
            }
            if (i == 0)
                lo = childLo;
            hi = childHi;
        }
        return true;
    }
};

} // namespace

QString MdxProblem::text() const
{
    if (!isSet())
        return {};
    return messageText(reason, arg.isEmpty() ? QStringList{} : QStringList{arg});
}

bool MdxIndex::parse(const QByteArray &bytes, MdxProblem *problem)
{
    auto fail = [&](Msg reason, const QString &arg = {}) {
        if (problem)
            *problem = {reason, arg};
        m_tags.clear();
        return false;
    };
    m_tags.clear();
    if (bytes.size() < kHeaderBytes)
        return fail(Msg::IndexReasonHeader);
    m_header = bytes.left(kHeaderBytes);
    const char *h = m_header.constData();
    if (version() != 2 && version() != 3)
        return fail(Msg::IndexReasonHeader);
    m_blockPages = le16(h + 20);
    if (m_blockPages < 1 || m_blockPages > 64 || le16(h + 22) != m_blockPages * kPageBytes)
        return fail(Msg::IndexReasonHeader);
    m_tagSize = quint8(h[26]);
    const int used = le16(h + 28);
    if (m_tagSize < 32 || m_tagSize > 64 || tagSlotOffset(used) > kHeaderBytes)
        return fail(Msg::IndexReasonHeader);
    const TagEntryLayout &layout = level7Layout() ? kEntry7 : kEntry4;
    const int bb = blockBytes();

    for (int t = 0; t < used; ++t) {
        const char *e = h + tagSlotOffset(t);
        MdxTag tag;
        tag.tableEntry = QByteArray(e, m_tagSize);
        tag.headerPage = int(le32(e));
        tag.name = cString(e + 4, layout.nameLength);
        if (tag.name.isEmpty())
            return fail(Msg::IndexReasonHeader);
        const qint64 at = qint64(quint32(tag.headerPage)) * kPageBytes;
        if (tag.headerPage < 4 || at + bb > bytes.size())
            return fail(Msg::IndexReasonHeader);
        tag.headerBlock = bytes.mid(at, bb);
        const char *th = tag.headerBlock.constData();
        tag.rootPage = int(le32(th + kRoot));
        tag.keyFormat = quint8(th[kKeyFormat]);
        tag.keyType = th[kKeyType];
        tag.keyLength = le16(th + kKeyLength);
        tag.maxKeys = le16(th + kMaxKeys);
        tag.itemLength = le16(th + kItemLength);
        tag.unique = (tag.keyFormat & 0x40) != 0 || th[kUniqueByte] != 0;
        tag.descending = (tag.keyFormat & 0x08) != 0;
        tag.filtered = th[kForExists] != 0;
        tag.expression = cString(th + kExpression, kExpressionMax);
        if (tag.keyLength < 1 || tag.itemLength < tag.keyLength + 4 || tag.maxKeys < 2 ||
            8 + qint64(tag.maxKeys) * tag.itemLength > bb)
            return fail(Msg::IndexReasonTag, tag.name);
        m_tags.append(tag);
    }
    return true;
}

bool MdxIndex::readKeys(const QByteArray &bytes, int t, const LanguageDriver &order,
                        std::vector<MdxKey> &out, MdxProblem *problem) const
{
    const MdxTag &tag = m_tags.at(t);
    TreeWalk walk{bytes, tag, order, blockBytes(), out, {}, -1, {}};
    walk.visited.assign(std::size_t(bytes.size() / kPageBytes + 1), 0);
    const char *lo = nullptr;
    const char *hi = nullptr;
    if (tag.rootPage < 0 || !walk.node(quint32(tag.rootPage), 0, lo, hi)) {
        if (problem)
            *problem = walk.problem.isSet() ? walk.problem : MdxProblem{Msg::IndexReasonPages, {}};
        return false;
    }
    return true;
}

MdxIndex MdxIndex::blank(bool level7, const QString &baseName, quint8 language)
{
    MdxIndex index;
    char *h = index.m_header.data();
    h[0] = char(level7 ? 3 : 2);
    putDate(h + 1, QDate::currentDate());
    putCString(h + 4, baseName, 16);
    put16(h + 20, 2);
    put16(h + 22, 1024);
    h[24] = 1;  // production index
    h[25] = 48; // tag slots
    index.m_tagSize = level7 ? 48 : 32;
    h[26] = char(index.m_tagSize);
    h[31] = char(language);
    putDate(h + 44, QDate::currentDate());
    h[529] = 1;
    index.m_blockPages = 2;
    return index;
}

int MdxIndex::tagIndex(const QString &name) const
{
    for (int t = 0; t < m_tags.size(); ++t) {
        if (m_tags.at(t).name.compare(name, Qt::CaseInsensitive) == 0)
            return t;
    }
    return -1;
}

void MdxIndex::addTag(const QString &name, const QString &field, int keyLength, bool unique)
{
    if (tagSlotOffset(int(m_tags.size()) + 1) > kHeaderBytes)
        return;
    const TagEntryLayout &layout = level7Layout() ? kEntry7 : kEntry4;
    MdxTag tag;
    tag.name = name.toUpper();
    tag.expression = field.toUpper();
    tag.tableEntry = QByteArray(m_tagSize, '\0');
    char *e = tag.tableEntry.data();
    putCString(e + 4, tag.name, layout.nameLength);
    e[layout.keyFormat] = 0x10;
    e[layout.reserved] = 0x02;
    e[layout.keyType] = 'C';
    tag.headerBlock = QByteArray(blockBytes(), '\0');
    char *th = tag.headerBlock.data();
    th[kKeyType] = 'C';
    th[kKeyFormat] = 0x10;
    th[kSerial] = 1;
    putCString(th + kExpression, tag.expression, kExpressionMax);
    th[kKeyExists] = 1;
    m_tags.append(tag);
    setKeyLength(int(m_tags.size()) - 1, keyLength);
    setUnique(int(m_tags.size()) - 1, unique);
    relinkTagTree();
}

void MdxIndex::setUnique(int t, bool unique)
{
    MdxTag &tag = m_tags[t];
    char *th = tag.headerBlock.data();
    if (unique) {
        th[kKeyFormat] = char(quint8(th[kKeyFormat]) | 0x40);
        if (th[kUniqueByte] == 0)
            th[kUniqueByte] = 1;
    } else {
        th[kKeyFormat] = char(quint8(th[kKeyFormat]) & ~0x60);
        th[kUniqueByte] = 0;
    }
    tag.keyFormat = quint8(th[kKeyFormat]);
    tag.unique = unique;
}

void MdxIndex::setKeyLength(int t, int keyLength)
{
    MdxTag &tag = m_tags[t];
    tag.keyLength = keyLength;
    tag.itemLength = itemLengthFor(keyLength);
    tag.maxKeys = (blockBytes() - 12) / tag.itemLength;
    char *th = tag.headerBlock.data();
    put16(th + kKeyLength, quint16(tag.keyLength));
    put16(th + kMaxKeys, quint16(tag.maxKeys));
    put16(th + kItemLength, quint16(tag.itemLength));
}

// The tag table doubles as a binary tree ordered by tag name: each entry names its left and
// right children and its parent by tag number (from 1; 0 = none).
void MdxIndex::relinkTagTree()
{
    const int links = (level7Layout() ? kEntry7 : kEntry4).links;
    for (MdxTag &tag : m_tags)
        std::memset(tag.tableEntry.data() + links, 0, 3);
    for (int t = 1; t < m_tags.size(); ++t) {
        int cur = 0;
        for (;;) {
            const bool left = m_tags.at(t).name < m_tags.at(cur).name;
            char *slot = m_tags[cur].tableEntry.data() + links + (left ? 0 : 1);
            if (*slot == 0) {
                *slot = char(t + 1);
                m_tags[t].tableEntry[links + 2] = char(cur + 1);
                break;
            }
            cur = quint8(*slot) - 1;
        }
    }
}

QByteArray MdxIndex::build(const std::vector<std::vector<MdxKey>> &keys, const QDate &today) const
{
    const int bp = m_blockPages;
    const int bb = blockBytes();
    auto ceilDiv = [](qint64 a, qint64 b) { return (a + b - 1) / b; };

    // Size the file first: header, one header block per tag, then every tag's nodes.
    std::vector<qint64> nodeCounts(std::size_t(m_tags.size()), 0);
    qint64 totalPages = kHeaderBytes / kPageBytes;
    for (int t = 0; t < m_tags.size(); ++t) {
        const qint64 m = m_tags.at(t).maxKeys;
        qint64 level = std::max<qint64>(1, ceilDiv(qint64(keys.at(std::size_t(t)).size()), m));
        qint64 nodes = level;
        while (level > 1) {
            level = ceilDiv(level, m);
            nodes += level;
        }
        nodeCounts[std::size_t(t)] = nodes;
        totalPages += (1 + nodes) * bp;
    }

    QByteArray out(totalPages * kPageBytes, '\0');
    char *base = out.data();
    std::memcpy(base, m_header.constData(), kHeaderBytes);
    qint64 next = kHeaderBytes / kPageBytes;
    std::vector<qint64> headerPages;
    for (int t = 0; t < m_tags.size(); ++t) {
        headerPages.push_back(next);
        next += bp;
    }

    struct Built
    {
        qint64 page;
        const char *high;
    };
    for (int t = 0; t < m_tags.size(); ++t) {
        const MdxTag &tag = m_tags.at(t);
        const std::vector<MdxKey> &tagKeys = keys.at(std::size_t(t));
        const qint64 m = tag.maxKeys;
        const std::size_t keyLength = std::size_t(tag.keyLength);
        auto entry = [&](qint64 page, qint64 i) {
            return base + page * kPageBytes + 8 + i * tag.itemLength;
        };

        // Leaves, the keys spread evenly over as few leaves as hold them.
        std::vector<Built> level;
        const qint64 n = qint64(tagKeys.size());
        const qint64 leaves = std::max<qint64>(1, ceilDiv(n, m));
        qint64 k = 0;
        for (qint64 i = 0; i < leaves; ++i) {
            const qint64 count = n / leaves + (i < n % leaves ? 1 : 0);
            const qint64 page = next;
            next += bp;
            put32(base + page * kPageBytes, quint32(count));
            for (qint64 j = 0; j < count; ++j, ++k) {
                char *e = entry(page, j);
                put32(e, tagKeys[std::size_t(k)].recno);
                std::memcpy(e + 4, tagKeys[std::size_t(k)].key, keyLength);
            }
            level.push_back({page, count > 0 ? tagKeys[std::size_t(k - 1)].key : nullptr});
        }

        // Interior levels: up to m children each, m - 1 keys and the extra last pointer.
        while (level.size() > 1) {
            const qint64 s = qint64(level.size());
            const qint64 groups = ceilDiv(s, m);
            std::vector<Built> upper;
            qint64 c = 0;
            for (qint64 g = 0; g < groups; ++g) {
                const qint64 children = s / groups + (g < s % groups ? 1 : 0);
                const qint64 page = next;
                next += bp;
                put32(base + page * kPageBytes, quint32(children - 1));
                for (qint64 j = 0; j < children; ++j, ++c) {
                    char *e = entry(page, j);
                    put32(e, quint32(level[std::size_t(c)].page));
                    if (level[std::size_t(c)].high)
                        std::memcpy(e + 4, level[std::size_t(c)].high, keyLength);
                }
                upper.push_back({page, level[std::size_t(c - 1)].high});
            }
            level.swap(upper);
        }

        char *th = base + headerPages[std::size_t(t)] * kPageBytes;
        std::memcpy(th, tag.headerBlock.constData(), std::size_t(bb));
        put32(th + kRoot, quint32(level.front().page));
        put32(th + kPagesUsed, quint32((1 + nodeCounts[std::size_t(t)]) * bp));
        th[kSerial] = char(quint8(th[kSerial]) + 1);
        put32(th + kFirstNode, 0);
        put32(th + kLastNode, 0);

        char *e = base + tagSlotOffset(t);
        std::memcpy(e, tag.tableEntry.constData(), std::size_t(m_tagSize));
        put32(e, quint32(headerPages[std::size_t(t)]));
    }

    put16(base + 28, quint16(m_tags.size()));
    put32(base + 32, quint32(totalPages));
    put32(base + 36, 0); // no free list: every page is in use
    put32(base + 40, 0);
    putDate(base + 44, today);
    return out;
}
