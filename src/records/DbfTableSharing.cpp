// Sharing a table with other programs: reading it under the shared lock, noticing that another
// program changed it, and the exclusive lock around one change (see the class comment).
#include "DbfTable.h"
#include "DbfTableDetail.h"

#include "TableLock.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

using namespace dbf_detail;

QString DbfTable::diskStateKey() const
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6")
        .arg(m_tableStamp.id)
        .arg(m_tableStamp.size)
        .arg(m_tableStamp.modified)
        .arg(m_indexStamp.id)
        .arg(m_indexStamp.size)
        .arg(m_indexStamp.modified);
}

DbfTable::DiskStamp DbfTable::stampOf(const QString &path)
{
#ifdef Q_OS_WIN
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    return {info.birthTime().toMSecsSinceEpoch(), info.size(),
            info.lastModified().toMSecsSinceEpoch()};
#else
    struct stat st
    {};
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return {};
    return {qint64(st.st_ino), qint64(st.st_size),
            qint64(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec};
#endif
}

void DbfTable::rememberDiskState()
{
    m_tableStamp = stampOf(m_path);
    m_indexStamp = stampOf(m_indexPath);
}

bool DbfTable::changedOnDisk() const
{
    return !m_memoryOnly &&
           (stampOf(m_path) != m_tableStamp || stampOf(m_indexPath) != m_indexStamp);
}

QByteArray DbfTable::rawRecord(int rec) const
{
    if (rec < 0 || rec >= m_count)
        return {};
    return QByteArray(record(rec), m_recordLength);
}

// Reads the table and its index and takes them as the table's content. Under the shared lock
// no program is half way through a commit, so both are from one commit; under this table's
// own exclusive lock no other program writes at all.
bool DbfTable::readFromDisk()
{
    TableLock shared(m_path);
    // A wait that runs out reads all the same: the check of the index then tells.
    if (!m_changeLock)
        shared.lock(TableLock::Mode::Shared);
    const DiskStamp tableStamp = stampOf(m_path);
    const DiskStamp indexStamp = stampOf(m_indexPath);
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(Msg::RecordsCannotOpen, {fileName(), file.errorString()});
    const QByteArray bytes = file.readAll();
    file.close();
    QByteArray indexBytes;
    bool haveIndex = false;
    if (indexStamp.size >= 0) {
        QFile indexFile(m_indexPath);
        if (indexFile.open(QIODevice::ReadOnly)) {
            indexBytes = indexFile.readAll();
            haveIndex = true;
        }
    }
    shared.unlock();

    resetContent();
    m_notices.clear();
    m_readOnly = m_permissionReadOnly;
    m_readOnlyReason.clear();
    if (m_permissionReadOnly) {
        m_readOnlyReason = messageText(Msg::RecordsReadOnly, {fileName()});
        m_notices.append(m_readOnlyReason);
    }
    if (!parseTable(bytes, haveIndex ? &indexBytes : nullptr) || !checkSchema())
        return false;
    attachIndex(haveIndex ? &indexBytes : nullptr);
    m_tableStamp = tableStamp;
    m_indexStamp = indexStamp;
    return true;
}

bool DbfTable::refresh()
{
    if (!m_open || m_memoryOnly || !changedOnDisk())
        return true;
    if (!QFileInfo::exists(m_path))
        return fail(Msg::RecordsFileMissing, {m_path});
    const bool ok = readFromDisk();
    if (!ok) {
        // What the file now holds cannot be read at all: the table is no longer open.
        const QString error = m_error;
        m_open = false;
        resetContent();
        m_error = error;
    }
    Q_EMIT changed();
    return ok;
}

bool DbfTable::lockForChange()
{
    if (m_changeLock)
        return true;
    if (!m_open || m_memoryOnly) {
        m_error = m_memoryOnly ? m_readOnlyReason : messageText(Msg::RecordsFileMissing, {m_path});
        return false;
    }
    auto lock = std::make_unique<TableLock>(m_path);
    if (!lock->lock(TableLock::Mode::Exclusive)) {
        m_error = lock->errorString();
        return false;
    }
    m_changeLock = std::move(lock);
    // Temporaries of a commit whose program ended half way: the pair on disk is the truth.
    if (!m_permissionReadOnly) {
        QFile::remove(m_path + kTempSuffix);
        QFile::remove(m_indexPath + kTempSuffix);
    }
    if (!refresh()) {
        unlockChange();
        return false;
    }
    return true;
}

void DbfTable::unlockChange()
{
    if (hasPendingChanges())
        rollback();
    m_changeLock.reset();
}

TableChangeLock::TableChangeLock(std::initializer_list<DbfTable *> tables)
{
    std::vector<DbfTable *> order(tables);
    std::sort(order.begin(), order.end(),
              [](const DbfTable *a, const DbfTable *b) { return a->filePath() < b->filePath(); });
    for (DbfTable *table : order) {
        if (table->isLockedForChange())
            continue; // held by whoever locked it
        if (!table->lockForChange()) {
            m_error = table->errorString();
            break;
        }
        m_held.push_back(table);
    }
    if (!m_error.isEmpty()) {
        for (DbfTable *table : m_held)
            table->unlockChange();
        m_held.clear();
    }
}

TableChangeLock::~TableChangeLock()
{
    for (DbfTable *table : m_held)
        table->unlockChange();
}

TableReadLock::TableReadLock(std::initializer_list<DbfTable *> tables)
{
    std::vector<DbfTable *> order;
    for (DbfTable *table : tables) {
        if (table->isOpen() && !table->isLockedForChange())
            order.push_back(table);
    }
    std::sort(order.begin(), order.end(),
              [](const DbfTable *a, const DbfTable *b) { return a->filePath() < b->filePath(); });
    for (DbfTable *table : order) {
        auto lock = std::make_unique<TableLock>(table->filePath());
        // a wait that runs out reads all the same, as a single table does
        if (lock->lock(TableLock::Mode::Shared))
            m_locks.push_back(std::move(lock));
    }
}

TableReadLock::~TableReadLock() = default;
