// libFuzzer target for the table and index readers. An input is
//   [schema selector][table length, 2 bytes little-endian][table bytes][index bytes]
// and goes through the same reading and index checking as a table opened from disk. A damaged
// table is also rewritten as its repair writes it, and the result must open clean.
// With TARVIK_FUZZ_WRITE_SEEDS=<dir> set, the target writes a seed corpus there and exits.
#include "DbfLayout.h"
#include "DbfTable.h"
#include "MdxIndex.h"
#include "TableRepair.h"
#include "TableSchema.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

QByteArray pack(int selector, const QByteArray &table, const QByteArray &index)
{
    QByteArray input(3, '\0');
    input[0] = char(selector);
    qToLittleEndian<quint16>(quint16(table.size()), input.data() + 1);
    return input + table + index;
}

QByteArray readAll(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void writeSeeds(const QString &out)
{
    QTemporaryDir dir;
    QDir().mkpath(out);
    const QList<const TableSchema *> schemas = TableSchema::all();
    for (int s = 0; s < schemas.size(); ++s) {
        const TableSchema &schema = *schemas.at(s);
        const QString path = QDir(dir.path()).filePath(schema.fileName);
        QString error;
        // tables in byte order and under Western European drivers with their own key order
        const quint8 drivers[] = {0x57, 0x58, 0x12, 0x0F, 0x1B};
        DbfTable::create(path, schema, &error, *LanguageDriver::byId(drivers[s % 5]));
        DbfTable t;
        t.open(path, &schema);
        for (int i = 0; i < (s == 1 ? 70 : 3); ++i) {
            const int rec = t.appendRecord();
            t.setValue(rec, 0, QStringLiteral("%1ey é %2").arg(i % 2 ? u'K' : u'k').arg(i % 5));
            t.setValue(rec, 2, i);
        }
        t.deleteRecord(1);
        t.commit();
        t.close();
        const QByteArray table = readAll(path);
        const QByteArray index = readAll(QDir(dir.path()).filePath(schema.indexFileName));
        for (int selector : {0, s + 1}) {
            QFile f(QDir(out).filePath(QStringLiteral("seed-%1-%2").arg(s).arg(selector)));
            f.open(QIODevice::WriteOnly);
            f.write(pack(selector, table, index));
        }
    }
}

// The repair's rewriting of a damaged table: a table it would write (one that reads back) opens
// clean, with exactly the rows that could be read, field by field, and needs no second repair;
// one that does not read back is refused and never written.
void checkRepair(const DbfTable &damaged, const QByteArray &table, const QByteArray &index,
                 const TableSchema *schema)
{
    // As the repair reads it: with the rows past a lowered count that the index still names.
    const DbfLayout layout = DbfLayout::read(table, index, QStringLiteral("fuzz.dbf"), schema);
    const QByteArray repaired = layout.rebuilt(table, QDate(2024, 2, 29));
    if (!TableRepair::readsBack(repaired, layout, schema))
        return;
    DbfTable t;
    if (!t.openBytes(repaired, {}, schema) || t.isDamaged() ||
        t.recordCount() != damaged.recordCount() || t.fieldCount() != damaged.fieldCount() ||
        DbfLayout::read(repaired, QStringLiteral("fuzz.dbf"), schema).state !=
            DbfLayout::State::Sound)
        std::abort();
    for (int r = 0; r < t.recordCount(); ++r) {
        if (t.isDeleted(r) != damaged.isDeleted(r))
            std::abort();
        for (int f = 0; f < t.fieldCount(); ++f) {
            if (t.rawField(r, f) != damaged.rawField(r, f) ||
                t.field(f).name != damaged.field(f).name)
                std::abort();
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    const QByteArray seeds = qgetenv("TARVIK_FUZZ_WRITE_SEEDS");
    if (!seeds.isEmpty()) {
        writeSeeds(QString::fromLocal8Bit(seeds));
        std::exit(0);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 3)
        return 0;
    const QList<const TableSchema *> schemas = TableSchema::all();
    const int selector = data[0] % (schemas.size() + 1);
    const size_t tableLength = std::min<size_t>(size - 3, size_t(data[1] | data[2] << 8));
    const QByteArray table(reinterpret_cast<const char *>(data) + 3, qsizetype(tableLength));
    const QByteArray index(reinterpret_cast<const char *>(data) + 3 + tableLength,
                           qsizetype(size - 3 - tableLength));

    const TableSchema *schema = selector ? schemas.at(selector - 1) : nullptr;
    DbfTable t;
    if (t.openBytes(table, index, schema)) {
        for (int r = 0; r < std::min(t.recordCount(), 64); ++r) {
            for (int f = 0; f < t.fieldCount(); ++f) {
                (void)t.value(r, f);
                (void)t.text(r, f);
            }
        }
        (void)t.locate(t.field(0).name, QStringLiteral("KEY É 1"));
    }
    if (t.isOpen() && t.isDamaged())
        checkRepair(t, table, index, schema);

    MdxIndex mdx;
    MdxProblem problem;
    if (mdx.parse(index, &problem)) {
        for (int tag = 0; tag < mdx.tags().size(); ++tag) {
            std::vector<MdxKey> keys;
            const LanguageDriver *order = LanguageDriver::byId(mdx.language());
            mdx.readKeys(index, tag, order ? *order : LanguageDriver::none(), keys, &problem);
        }
    }
    return 0;
}
