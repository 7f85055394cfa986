#include "TableRepair.h"

#include "TableLock.h"

#include "DbfLayout.h"
#include "DbfTable.h"
#include "DurableFile.h"
#include "Messages.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const QString kTempSuffix = QStringLiteral(".tarvik-tmp");

bool readFile(const QString &path, QByteArray *bytes, QString *error)
{
    if (!QFileInfo(path).isFile()) { // a pipe would never end
        *error = messageText(Msg::RecordsNotRegularFile, {path});
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = file.errorString();
        return false;
    }
    *bytes = file.readAll();
    return true;
}

QString indexPathOf(const QString &path, const TableSchema *schema)
{
    const QFileInfo info(path);
    return DbfTable::findInDirectory(info.absolutePath(),
                                     schema ? schema->indexFileName
                                            : info.completeBaseName() + QStringLiteral(".MDX"));
}

} // namespace

// No table is written whose rows cannot be read.

bool TableRepair::readsBack(const QByteArray &rebuilt, const DbfLayout &layout,
                            const TableSchema *schema)
{
    const DbfLayout again = DbfLayout::read(rebuilt, QStringLiteral("rebuilt"), schema);
    if (again.state != DbfLayout::State::Sound || again.rows != layout.rows)
        return false;
    DbfTable t;
    if (!t.openBytes(rebuilt, {}, schema) || t.isDamaged() || t.recordCount() != layout.rows)
        return false;
    for (int r = 0; r < t.recordCount(); ++r) {
        for (int f = 0; f < t.fieldCount(); ++f) {
            // A number or a date that is not blank must read as one.
            const char type = t.field(f).type;
            if ((type == 'N' || type == 'F' || type == 'D') &&
                !t.rawField(r, f).trimmed().isEmpty() && t.value(r, f).isNull())
                return false;
        }
    }
    return true;
}

bool TableRepair::Result::sound() const
{
    return state == State::Sound || state == State::Repaired || state == State::IndexRebuilt ||
           state == State::OrphansRemoved || state == State::ChannelsMissing;
}

QString TableRepair::Result::text() const
{
    switch (state) {
    case State::Sound:
        return messageText(Msg::RepairSound, {fileName});
    case State::Missing:
    case State::Damaged:
    case State::IndexUnusable:
        return problem;
    case State::Unreadable:
        return messageText(Msg::RecordsUnreadable, {problem});
    case State::Repaired:
        return messageText(Msg::RepairDone,
                           {fileName, QString::number(kept), QString::number(unreadable),
                            QDir::toNativeSeparators(backup)});
    case State::IndexRebuilt:
        return messageText(Msg::RepairIndexDone, {fileName, QDir::toNativeSeparators(backup)});
    case State::Failed:
        return messageText(Msg::RepairFailed, {fileName, error});
    case State::Orphans:
    case State::ChannelsMissing:
        return problem;
    case State::OrphansRemoved:
        return messageText(Msg::RepairOrphansRemoved, {fileName, QString::number(unreadable),
                                                       QDir::toNativeSeparators(backup)});
    }
    return problem;
}

TableRepair::TableRepair(const QString &dataDir)
    : m_dir(QDir::cleanPath(QFileInfo(dataDir).absoluteFilePath()))
{}

const TableSchema *TableRepair::tableNamed(const QString &name)
{
    const QString wanted = name.trimmed();
    for (const TableSchema *schema : TableSchema::all()) {
        for (const QString &known :
             {schema->fileName, QFileInfo(schema->fileName).completeBaseName(),
              schema->component}) {
            if (known.compare(wanted, Qt::CaseInsensitive) == 0)
                return schema;
        }
    }
    return nullptr;
}

QList<TableRepair::Result> TableRepair::check(const QList<const TableSchema *> &tables) const
{
    QList<Result> results;
    for (const TableSchema *schema : tables)
        results.append(checkFile(DbfTable::findInDirectory(m_dir, schema->fileName), schema));
    if (tables.contains(&TableSchema::gettoniere()) && tables.contains(&TableSchema::channel()))
        results.append(checkValidators());
    return results;
}

QList<TableRepair::Result> TableRepair::repair(const QList<const TableSchema *> &tables)
{
    QList<Result> results;
    for (const TableSchema *schema : tables)
        results.append(repairFile(DbfTable::findInDirectory(m_dir, schema->fileName), schema));
    if (tables.contains(&TableSchema::gettoniere()) && tables.contains(&TableSchema::channel()))
        results.append(repairValidators());
    return results;
}

TableRepair::Result TableRepair::checkFile(const QString &path, const TableSchema *schema) const
{
    Result r;
    r.fileName = QFileInfo(path).fileName();
    if (!QFileInfo::exists(path)) {
        r.state = State::Missing;
        r.problem = messageText(Msg::RecordsFileMissing, {QDir::toNativeSeparators(path)});
        return r;
    }
    QByteArray table, index;
    QString why;
    if (!readFile(path, &table, &why)) {
        r.state = State::Failed;
        r.error = why;
        r.problem = messageText(Msg::RecordsCannotOpen, {r.fileName, why});
        return r;
    }
    const QString indexPath = indexPathOf(path, schema);
    if (QFileInfo::exists(indexPath))
        readFile(indexPath, &index, &why);
    return examine(path, table, index, schema);
}

TableRepair::Result TableRepair::examine(const QString &path, const QByteArray &table,
                                         const QByteArray &index, const TableSchema *schema) const
{
    Result r;
    r.fileName = QFileInfo(path).fileName();
    const DbfLayout layout = DbfLayout::read(table, index, r.fileName, schema);
    r.kept = layout.rows;
    r.unreadable = layout.unreadable;
    r.problem = layout.problem;
    if (layout.state == DbfLayout::State::Unreadable) {
        r.state = State::Unreadable;
        return r;
    }
    // The fields the table must have, and its index, as an open would find them.
    DbfTable t;
    if (!t.openBytes(table, index, schema)) {
        r.state = State::Unreadable;
        r.problem = t.errorString();
        return r;
    }
    if (layout.state == DbfLayout::State::Damaged) {
        r.state = State::Damaged;
        return r;
    }
    if (!t.indexProblem().isEmpty()) {
        r.state = State::IndexUnusable;
        r.problem =
            messageText(Msg::RepairIndexUnusable,
                        {QFileInfo(indexPathOf(path, schema)).fileName(), t.indexProblem()});
    }
    return r;
}

bool TableRepair::makeBackupDirectory(QString *error)
{
    if (!m_backup.isEmpty())
        return true;
    const QDir backups(QDir(m_dir).filePath(QStringLiteral("backups")));
    const QString stem = QStringLiteral("damaged-") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString name = stem;
    for (int n = 2; backups.exists(name); ++n)
        name = stem + QStringLiteral("-%1").arg(n);
    if (!backups.mkpath(name)) {
        *error = messageText(Msg::RecordsCannotCreateDirectory,
                             {QDir::toNativeSeparators(backups.filePath(name))});
        return false;
    }
    m_backup = backups.filePath(name);
    return true;
}

TableRepair::Result TableRepair::repairFile(const QString &path, const TableSchema *schema)
{
    Result r = checkFile(path, schema);
    if (r.state != State::Damaged && r.state != State::IndexUnusable)
        return r;
    auto failed = [&r](const QString &why) {
        r.state = State::Failed;
        r.error = why;
        return r;
    };

    // No other program may change the table meanwhile; one that has it open waits, or reads
    // the old pair or the new one.
    TableLock lock(path);
    if (!lock.lock(TableLock::Mode::Exclusive))
        return failed(lock.errorString());
    if (!QFileInfo(path).isWritable())
        return failed(messageText(Msg::RecordsReadOnly, {r.fileName}));
    QByteArray table, index;
    QString why;
    const QString indexPath = indexPathOf(path, schema);
    const bool haveIndex = QFileInfo::exists(indexPath);
    if (!readFile(path, &table, &why) || (haveIndex && !readFile(indexPath, &index, &why)))
        return failed(messageText(Msg::RecordsCannotOpen, {r.fileName, why}));
    r = examine(path, table, index, schema); // as it is now that it is ours
    if (r.state != State::Damaged && r.state != State::IndexUnusable)
        return r;
    const bool damaged = r.state == State::Damaged;

    // The damaged files first go aside, as they are.
    if (!makeBackupDirectory(&why))
        return failed(why);
    r.backup = m_backup;
    const QDir backup(m_backup);
    if (!DurableFile::write(backup.filePath(r.fileName), table, &why) ||
        (haveIndex &&
         !DurableFile::write(backup.filePath(QFileInfo(indexPath).fileName()), index, &why)))
        return failed(messageText(Msg::RecordsCannotWrite, {m_backup, why}));
    DurableFile::syncDirectory(m_backup);

    // Then the table with every row that can be read takes the damaged one's place in one step.
    if (damaged) {
        const DbfLayout layout = DbfLayout::read(table, index, r.fileName, schema);
        const QByteArray rebuilt = layout.rebuilt(table, QDate::currentDate());
        if (!readsBack(rebuilt, layout, schema))
            return failed(messageText(Msg::RepairNotReadBack));
        // A linked table stays a link: the file it points to is replaced.
        const QString target = DbfTable::targetOf(path);
        const QString temp = target + kTempSuffix;
        if (!DurableFile::write(temp, rebuilt, &why)) {
            QFile::remove(temp);
            return failed(messageText(Msg::RecordsCannotWrite, {r.fileName, why}));
        }
        QFile::setPermissions(temp, QFile::permissions(target));
        if (!DurableFile::replace(temp, target, &why)) {
            QFile::remove(temp);
            return failed(messageText(Msg::RecordsCannotWrite, {r.fileName, why}));
        }
        DurableFile::syncDirectory(QFileInfo(target).absolutePath());
    }
    lock.unlock();

    // Last the index: opening the table finds it stale or missing and rebuilds it from the
    // table, as after any commit cut short.
    DbfTable repaired;
    if (!repaired.open(path, schema))
        return failed(repaired.errorString());
    if (repaired.isDamaged())
        return failed(repaired.damage());
    if (!repaired.indexProblem().isEmpty())
        return failed(repaired.notices().isEmpty() ? repaired.indexProblem()
                                                   : repaired.notices().constLast());
    // rewritten, but still not writable: a language driver or an index tag this program
    // cannot keep
    if (repaired.isReadOnly())
        return failed(repaired.notices().isEmpty() ? messageText(Msg::RecordsReadOnly, {r.fileName})
                                                   : repaired.notices().constLast());
    r.state = damaged ? State::Repaired : State::IndexRebuilt;
    r.kept = repaired.recordCount();
    return r;
}
