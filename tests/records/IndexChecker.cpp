#include "IndexChecker.h"

#include <QFile>
#include <QSet>
#include <algorithm>
#include <cstring>
#include <functional>

namespace {

quint32 u32(const QByteArray &b, qint64 at)
{
    if (at < 0 || at + 4 > b.size())
        return 0;
    const auto *p = reinterpret_cast<const uchar *>(b.constData() + at);
    return quint32(p[0]) | quint32(p[1]) << 8 | quint32(p[2]) << 16 | quint32(p[3]) << 24;
}

quint16 u16(const QByteArray &b, qint64 at)
{
    const auto *p = reinterpret_cast<const uchar *>(b.constData() + at);
    return quint16(p[0] | p[1] << 8);
}

QString zstr(const QByteArray &b, qint64 at, int max)
{
    QByteArray s = b.mid(at, max);
    const int nul = s.indexOf('\0');
    if (nul >= 0)
        s.truncate(nul);
    return QString::fromLatin1(s).trimmed();
}

struct Field
{
    QString name;
    int offset;
    int length;
};

} // namespace

QStringList checkIndex(const QString &tablePath, const QString &indexPath,
                       const QList<ExpectedTag> &expected)
{
    QStringList problems;
    QFile tf(tablePath), xf(indexPath);
    if (!tf.open(QIODevice::ReadOnly) || !xf.open(QIODevice::ReadOnly))
        return {QStringLiteral("cannot read the files")};
    const QByteArray dbf = tf.readAll();
    const QByteArray mdx = xf.readAll();

    // the table
    const bool level7 = dbf.at(0) == 0x04;
    const int headerLength = u16(dbf, 8);
    const int recordLength = u16(dbf, 10);
    const int count = int(u32(dbf, 4));
    QList<Field> fields;
    int offset = 1;
    for (int at = level7 ? 68 : 32; dbf.at(at) != 0x0D; at += level7 ? 48 : 32) {
        const int length = uchar(dbf.at(at + (level7 ? 33 : 16)));
        fields.append({zstr(dbf, at, level7 ? 32 : 11), offset, length});
        offset += length;
    }
    if ((dbf.at(28) & 1) == 0)
        problems << QStringLiteral("the table does not name its production index");
    if (uchar(mdx.at(31)) != uchar(dbf.at(29)))
        problems << QStringLiteral("language drivers differ");

    // the index header
    const int blockPages = u16(mdx, 20);
    const int blockBytes = blockPages * 512;
    const int tagSize = uchar(mdx.at(26));
    const int tags = u16(mdx, 28);
    const quint32 totalPages = u32(mdx, 32);
    if (qint64(totalPages) * 512 != mdx.size())
        problems << QStringLiteral("page count %1 does not match the file").arg(totalPages);
    QSet<quint32> used;
    for (quint32 p = 0; p < 4; ++p)
        used.insert(p);
    auto claim = [&](quint32 page) {
        if (qint64(page) * 512 + blockBytes > mdx.size())
            return false;
        for (int i = 0; i < blockPages; ++i) {
            if (used.contains(page + quint32(i)))
                return false;
            used.insert(page + quint32(i));
        }
        return true;
    };

    QStringList names;
    for (int t = 0; t < tags; ++t) {
        const int slot = 512 + (t + 1) * tagSize;
        const QString name = zstr(mdx, slot + 4, tagSize > 32 ? 33 : 11);
        names << name;
        const quint32 headerPage = u32(mdx, slot);
        if (!claim(headerPage)) {
            problems << name + QStringLiteral(": tag header page out of place");
            continue;
        }
        const qint64 h = qint64(headerPage) * 512;
        const quint32 root = u32(mdx, h);
        const int keyLength = u16(mdx, h + 12);
        const int maxKeys = u16(mdx, h + 14);
        const int item = u16(mdx, h + 18);
        const bool unique = (uchar(mdx.at(h + 8)) & 0x40) != 0;
        if (unique != (mdx.at(h + 23) != 0))
            problems << name + QStringLiteral(": unique flags disagree");
        for (const ExpectedTag &e : expected) {
            if (e.name == name && e.unique != unique)
                problems << name + QStringLiteral(": unique flag wrong");
        }
        const QString expression = zstr(mdx, h + 24, 220);
        const auto field = std::find_if(fields.begin(), fields.end(),
                                        [&](const Field &f) { return f.name == expression; });
        if (field == fields.end() || field->length != keyLength) {
            problems << name + QStringLiteral(": key does not match a field");
            continue;
        }

        // walk
        QList<QPair<QByteArray, quint32>> leaves;
        int leafDepth = -1;
        std::function<bool(quint32, int, QByteArray &)> walk = [&](quint32 page, int depth,
                                                                   QByteArray &high) -> bool {
            if (depth > 20 || !claim(page))
                return false;
            const qint64 at = qint64(page) * 512;
            const int n = int(u32(mdx, at));
            if (n > maxKeys)
                return false;
            auto ptr = [&](int i) { return u32(mdx, at + 8 + qint64(i) * item); };
            auto key = [&](int i) { return mdx.mid(at + 8 + qint64(i) * item + 4, keyLength); };
            if (n < maxKeys && ptr(n) != 0) {
                for (int i = 0; i <= n; ++i) {
                    QByteArray childHigh;
                    if (!walk(ptr(i), depth + 1, childHigh))
                        return false;
                    if (i < n && key(i) != childHigh)
                        problems << name +
                                        QStringLiteral(": separator differs from child's high key");
                    high = childHigh;
                }
                return true;
            }
            if (leafDepth >= 0 && leafDepth != depth)
                problems << name + QStringLiteral(": leaves at different depths");
            leafDepth = depth;
            for (int i = 0; i < n; ++i)
                leaves.append({key(i), ptr(i)});
            high = n ? key(n - 1) : QByteArray();
            return true;
        };
        QByteArray high;
        if (!walk(root, 0, high)) {
            problems << name + QStringLiteral(
                                   ": a page is out of the file, too full or reached twice");
            continue;
        }
        for (int i = 1; i < leaves.size(); ++i) {
            if (leaves[i - 1] > leaves[i])
                problems << name + QStringLiteral(": keys out of order at %1").arg(i);
        }
        QList<QPair<QByteArray, quint32>> wanted;
        for (int r = 0; r < count; ++r) {
            const QByteArray rec = dbf.mid(headerLength + qint64(r) * recordLength, recordLength);
            if (rec.at(0) != '*')
                wanted.append({rec.mid(field->offset, field->length), quint32(r + 1)});
        }
        std::sort(wanted.begin(), wanted.end());
        if (unique) {
            wanted.erase(
                std::unique(wanted.begin(), wanted.end(),
                            [](const auto &a, const auto &b) { return a.first == b.first; }),
                wanted.end());
        }
        if (leaves != wanted)
            problems << name + QStringLiteral(": %1 entries where the table gives %2")
                                   .arg(leaves.size())
                                   .arg(wanted.size());
    }
    for (const ExpectedTag &e : expected) {
        if (!names.contains(e.name))
            problems << e.name + QStringLiteral(": tag missing");
    }
    if (problems.isEmpty() && quint32(used.size()) != totalPages)
        problems << QStringLiteral("%1 of %2 pages are not reachable")
                        .arg(totalPages - quint32(used.size()))
                        .arg(totalPages);
    return problems;
}
