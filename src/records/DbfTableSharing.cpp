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

// Completes the changes other programs left half done in this table (see CommitJournal).
bool DbfTable::settleJournals()
{
    const QStringList journals = CommitJournal::pendingFor({targetOf(m_path)});
    for (const QString &journal : journals) {
        QString why;
        if (!CommitJournal::settle(journal, &why))
            return fail(Msg::RecordsCannotOpen, {fileName(), why});
    }
    return true;
}

// Reads the table and its index and takes them as the table's content. Under the shared lock
// no program is half way through a commit, so both are from one commit; under this table's
// own exclusive lock no other program writes at all. When the lock cannot be had within the
// wait, nothing is read and the content stays as it was (refused is set).
bool DbfTable::readFromDisk(bool *refused)
{
    const TableLock::WaitBudget budget;
    TableLock shared(m_path);
    auto refuse = [&] {
        m_error = shared.errorString();
        if (refused)
            *refused = true;
        return false;
    };
    if (!m_changeLock) {
        if (!shared.lock(TableLock::Mode::Shared))
            return refuse();
        // A change of several tables that a killed program left half done is completed first.
        if (!CommitJournal::pendingFor({targetOf(m_path)}).isEmpty()) {
            shared.unlock();
            if (!settleJournals()) {
                if (refused)
                    *refused = true;
                return false;
            }
            if (!shared.lock(TableLock::Mode::Shared))
                return refuse();
        }
    }
    if (!QFileInfo(m_path).isFile())
        return fail(Msg::RecordsNotRegularFile, {m_path});
    const DiskStamp tableStamp = stampOf(m_path);
    const DiskStamp indexStamp = stampOf(m_indexPath);
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(Msg::RecordsCannotOpen, {fileName(), file.errorString()});
    const QByteArray bytes = file.readAll();
    file.close();
    QByteArray indexBytes;
    bool haveIndex = false;
    if (indexStamp.size >= 0 && QFileInfo(m_indexPath).isFile()) {
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
    bool refused = false;
    const bool ok = readFromDisk(&refused);
    if (refused)
        return false; // the lock was not had in time: what was read before stays
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

bool DbfTable::takeChangeLock()
{
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
    return true;
}

bool DbfTable::lockForChange()
{
    if (m_changeLock)
        return true;
    QString error;
    if (lockForChange(std::vector<DbfTable *>{this}, &error))
        return true;
    m_error = error;
    return false;
}

bool DbfTable::lockForChange(std::vector<DbfTable *> tables, QString *error)
{
    const TableLock::WaitBudget budget;
    std::sort(tables.begin(), tables.end(), [](const DbfTable *a, const DbfTable *b) {
        return targetOf(a->filePath()) < targetOf(b->filePath());
    });
    QStringList targets;
    for (const DbfTable *table : tables)
        targets.append(targetOf(table->filePath()));
    auto release = [&](std::size_t n) {
        for (std::size_t i = 0; i < n; ++i)
            tables[i]->m_changeLock.reset();
    };
    for (;;) {
        for (std::size_t i = 0; i < tables.size(); ++i) {
            if (!tables[i]->takeChangeLock()) {
                *error = tables[i]->m_error;
                release(i);
                return false;
            }
        }
        // A change that a killed program left half done is completed before anything else;
        // one that also names tables not held here is completed under its own locks.
        const QStringList journals = CommitJournal::pendingFor(targets);
        const bool allHeld =
            std::all_of(journals.begin(), journals.end(), [&](const QString &journal) {
                const QStringList named = CommitJournal::tablesOf(journal);
                return std::all_of(named.begin(), named.end(),
                                   [&](const QString &t) { return targets.contains(t); });
            });
        if (allHeld) {
            for (const QString &journal : journals) {
                QString why;
                if (!CommitJournal::complete(journal, &why)) {
                    *error =
                        messageText(Msg::RecordsCannotWrite, {QFileInfo(journal).fileName(), why});
                    release(tables.size());
                    return false;
                }
            }
            break;
        }
        release(tables.size());
        for (const QString &journal : journals) {
            if (!CommitJournal::settle(journal, error))
                return false;
        }
    }
    for (std::size_t i = 0; i < tables.size(); ++i) {
        DbfTable *table = tables[i];
        // Temporaries of a commit whose program ended before it was decided: the tables on disk
        // are the truth.
        if (!table->m_permissionReadOnly) {
            const QString target = targetOf(table->m_path);
            QFile::remove(target + kTempSuffix);
            QFile::remove(targetOf(table->m_indexPath) + kTempSuffix);
            QFile::remove(target + CommitJournal::suffix() + kTempSuffix);
        }
        if (!table->refresh()) {
            *error = table->errorString();
            for (DbfTable *t : tables)
                t->unlockChange();
            return false;
        }
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
    std::vector<DbfTable *> wanted;
    for (DbfTable *table : tables) {
        if (!table->isLockedForChange()) // held by whoever locked it
            wanted.push_back(table);
    }
    if (DbfTable::lockForChange(wanted, &m_error))
        m_held = wanted;
}

TableChangeLock::~TableChangeLock()
{
    for (DbfTable *table : m_held)
        table->unlockChange();
}

TableReadLock::TableReadLock(std::initializer_list<DbfTable *> tables)
{
    const TableLock::WaitBudget budget;
    std::vector<DbfTable *> order;
    QStringList targets;
    for (DbfTable *table : tables) {
        if (table->isOpen() && !table->isLockedForChange()) {
            order.push_back(table);
            targets.append(DbfTable::targetOf(table->filePath()));
        }
    }
    std::sort(order.begin(), order.end(), [](const DbfTable *a, const DbfTable *b) {
        return DbfTable::targetOf(a->filePath()) < DbfTable::targetOf(b->filePath());
    });
    for (int attempt = 0; attempt < 2; ++attempt) {
        for (DbfTable *table : order) {
            auto lock = std::make_unique<TableLock>(table->filePath());
            // a wait that runs out is said by the reading that follows
            if (lock->lock(TableLock::Mode::Shared))
                m_locks.push_back(std::move(lock));
        }
        // Changes a killed program left half done are completed before the tables are read.
        const QStringList journals = CommitJournal::pendingFor(targets);
        if (journals.isEmpty())
            break;
        m_locks.clear();
        for (const QString &journal : journals) {
            QString why;
            CommitJournal::settle(journal, &why);
        }
    }
}

TableReadLock::~TableReadLock() = default;
