#include "DbfTable.h"
#include "DbfTableDetail.h"

#include "CommitJournal.h"
#include "DbfLayout.h"
#include "DurableFile.h"
#include "LanguageDriver.h"
#include "TableLock.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstring>

using namespace dbf_detail;

// ---------------------------------------------------------------------------------------------
// Index upkeep

std::vector<int> DbfTable::sortedRows(int f) const
{
    const int offset = m_fields.at(f).offset;
    const std::size_t length = std::size_t(m_fields.at(f).length);
    std::vector<int> rows = liveRows();
    const LanguageDriver &order = lang();
    std::sort(rows.begin(), rows.end(), [&](int a, int b) {
        const int c = order.compare(record(a) + offset, record(b) + offset, length);
        return c < 0 || (c == 0 && a < b);
    });
    return rows;
}

// The tags' row lists after the pending changes: the untouched rows keep their order, the
// changed and new live rows are sorted and merged in.
std::vector<std::vector<int>> DbfTable::updatedTagRows() const
{
    std::vector<std::vector<int>> result(m_tagFields.size());
    std::vector<char> dirty = m_dirtyMark;
    dirty.resize(std::size_t(m_count), 0);
    std::vector<int> changed;
    for (int r : m_dirtyRows) {
        if (r < m_count && record(r)[0] != '*')
            changed.push_back(r);
    }
    for (std::size_t t = 0; t < m_tagFields.size(); ++t) {
        if (m_tagFields[t] < 0)
            continue;
        const int offset = m_fields.at(m_tagFields[t]).offset;
        const std::size_t length = std::size_t(m_fields.at(m_tagFields[t]).length);
        const LanguageDriver &order = lang();
        auto less = [&](int a, int b) {
            const int c = order.compare(record(a) + offset, record(b) + offset, length);
            return c < 0 || (c == 0 && a < b);
        };
        std::vector<int> kept;
        kept.reserve(m_tagRows[t].size());
        for (int r : m_tagRows[t]) {
            if (r < m_count && !dirty[std::size_t(r)])
                kept.push_back(r);
        }
        std::vector<int> added = changed;
        std::sort(added.begin(), added.end(), less);
        result[t].reserve(kept.size() + added.size());
        std::merge(kept.begin(), kept.end(), added.begin(), added.end(),
                   std::back_inserter(result[t]), less);
    }
    return result;
}

std::vector<MdxKey> DbfTable::tagKeys(int t, const std::vector<int> &rows) const
{
    std::vector<MdxKey> keys;
    const int f = m_tagFields.at(std::size_t(t));
    if (f < 0)
        return keys;
    const int offset = m_fields.at(f).offset;
    const std::size_t length = std::size_t(m_fields.at(f).length);
    const bool unique = m_index.tags().at(t).unique;
    keys.reserve(rows.size());
    for (int r : rows) {
        const char *key = record(r) + offset;
        if (unique && !keys.empty() && lang().compare(keys.back().key, key, length) == 0)
            continue;
        keys.push_back({key, quint32(r + 1)});
    }
    return keys;
}

bool DbfTable::writeIndexTemp(const std::vector<std::vector<int>> &rows, QString *tempPath)
{
    std::vector<std::vector<MdxKey>> keys;
    keys.reserve(rows.size());
    for (std::size_t t = 0; t < rows.size(); ++t)
        keys.push_back(tagKeys(int(t), rows[t]));
    *tempPath = targetOf(m_indexPath) + kTempSuffix;
    QString why;
    const HookAction action = step(CommitStep::WriteIndexTemp);
    if (action == HookAction::Crash)
        return false;
    if (action == HookAction::Fail ||
        !DurableFile::write(*tempPath, m_index.build(keys, QDate::currentDate()), &why)) {
        QFile::remove(*tempPath);
        return fail(Msg::RecordsCannotWrite,
                    {QFileInfo(m_indexPath).fileName(),
                     why.isEmpty() ? QStringLiteral("injected failure") : why});
    }
    if (QFileInfo::exists(m_indexPath))
        QFile::setPermissions(*tempPath, QFile::permissions(targetOf(m_indexPath)));
    return true;
}

// ---------------------------------------------------------------------------------------------
// Committing (see the class comment for the order of the steps)

bool DbfTable::commit()
{
    if (!m_open)
        return fail(Msg::RecordsFileMissing, {m_path});
    if (!hasPendingChanges() && !m_indexNeedsWrite)
        return true;
    if (m_readOnly || m_memoryOnly) {
        m_error = m_readOnlyReason;
        return false;
    }
    if (m_changeLock)
        return commitLocked();
    // Changes made without lockForChange() were made on what was read then.
    TableLock lock(m_path);
    if (!lock.lock(TableLock::Mode::Exclusive)) {
        m_error = lock.errorString();
        return false;
    }
    if (changedOnDisk())
        return fail(Msg::RecordsChangedElsewhere, {fileName()});
    return commitLocked();
}

bool DbfTable::commitLocked()
{
    CommitJournal::Step plan;
    std::vector<std::vector<int>> newRows;
    if (!prepareCommit(&plan, &newRows))
        return false;
    // Rows appended in place are announced first, so that the next program cuts them off
    // should this one die before the record count counts them (other readers read up to the
    // end of the file, not up to the count).
    QString why, journal;
    if (!plan.tail.isEmpty()) {
        const HookAction action = step(CommitStep::WriteJournal);
        if (action == HookAction::Crash)
            return false;
        journal = action == HookAction::Fail
                      ? QString()
                      : CommitJournal::write({plan}, CommitJournal::State::Prepared, &why);
        const bool written = !journal.isEmpty() && writeTail(plan);
        if (!journal.isEmpty() && !written && m_error.isEmpty())
            return false; // the test seam's crash
        if (!written) {
            if (journal.isEmpty())
                fail(Msg::RecordsCannotWrite,
                     {fileName(), why.isEmpty() ? QStringLiteral("injected failure") : why});
            const QString error = m_error;
            abandonCommit(plan);
            if (!journal.isEmpty() && !CommitJournal::complete(journal, &why))
                return false;
            m_error = error;
            return false;
        }
    }
    const CommitJournal::Applied applied = CommitJournal::apply(plan, &why);
    if (applied == CommitJournal::Applied::Crashed)
        return false;
    if (!journal.isEmpty()) {
        if (step(CommitStep::RemoveJournal) == HookAction::Crash)
            return false;
        // Not counted, the rows go again; counted, the journal has nothing left to do (and
        // should its removal be lost, the next program finds the count counting them).
        QString ignored;
        if (applied == CommitJournal::Applied::Failed)
            CommitJournal::complete(journal, &ignored);
        else
            QFile::remove(journal);
    }
    return finishCommit(plan, std::move(newRows), applied, why);
}

// Appends the new rows after the last counted one, flushed; the count does not count them yet.
bool DbfTable::writeTail(const CommitJournal::Step &plan)
{
    m_error.clear();
    QString why;
    const HookAction action = step(CommitStep::AppendRecords);
    if (action == HookAction::Crash)
        return false;
    if (action == HookAction::Fail ||
        !DurableFile::writeAt(plan.table, plan.restoreLength, plan.tail, &why)) {
        return fail(Msg::RecordsCannotWrite,
                    {fileName(), why.isEmpty() ? QStringLiteral("injected failure") : why});
    }
    return true;
}

// Writes everything the commit needs where no reader looks yet: the index temporary, then the
// appended rows after the last counted one or the table's temporary, all flushed.
bool DbfTable::prepareCommit(CommitJournal::Step *plan, std::vector<std::vector<int>> *newRows)
{
    if (m_indexed && (quint8(m_header.at(28)) & 1) == 0) {
        m_header[28] = char(quint8(m_header.at(28)) | 1);
        m_headerDirty = true;
    }
    const QString name = fileName();
    const QString target = targetOf(m_path);
    *newRows = updatedTagRows();
    *plan = {};
    plan->table = target;

    QString indexTemp;
    if (m_indexed && !writeIndexTemp(*newRows, &indexTemp))
        return false;
    if (m_indexed) {
        plan->index = targetOf(m_indexPath);
        plan->indexTemp = indexTemp;
    }
    auto abandon = [&](const QString &why) {
        if (!indexTemp.isEmpty())
            QFile::remove(indexTemp);
        rememberDiskState();
        return fail(Msg::RecordsCannotWrite,
                    {name, why.isEmpty() ? QStringLiteral("injected failure") : why});
    };

    const bool tableChanged = hasPendingChanges();
    qToLittleEndian<quint32>(quint32(m_count), m_header.data() + 4);
    if (tableChanged)
        stampDate(m_header.data() + 1, QDate::currentDate());
    const qint64 committedEnd = m_headerLength + qint64(m_committedCount) * m_recordLength;
    const bool appendOnly = !m_headerDirty && m_originals.isEmpty() && m_count > m_committedCount;
    QString why;

    if (tableChanged && appendOnly) {
        // written by writeTail() once the journal announces it
        plan->tail = m_records.mid(qint64(m_committedCount) * m_recordLength);
        plan->tail.append(kEndOfFile);
        plan->header = m_header.mid(1, 7);
        plan->restoreLength = committedEnd;
        plan->length = committedEnd + plan->tail.size();
    } else if (tableChanged) {
        const QString tableTemp = target + kTempSuffix;
        QByteArray bytes;
        bytes.reserve(m_headerLength + m_records.size() + 1);
        bytes.append(m_header).append(m_records).append(kEndOfFile);
        const HookAction action = step(CommitStep::WriteTableTemp);
        if (action == HookAction::Crash)
            return false;
        if (action == HookAction::Fail || !DurableFile::write(tableTemp, bytes, &why)) {
            QFile::remove(tableTemp);
            return abandon(why);
        }
        QFile::setPermissions(tableTemp, QFile::permissions(target));
        plan->tableTemp = tableTemp;
        plan->length = bytes.size();
    }
    return true;
}

// Drops what a prepared commit wrote: the temporaries (rows after the count are ignored).
void DbfTable::abandonCommit(const CommitJournal::Step &plan)
{
    if (!plan.tableTemp.isEmpty())
        QFile::remove(plan.tableTemp);
    if (!plan.indexTemp.isEmpty())
        QFile::remove(plan.indexTemp);
    rememberDiskState();
}

// Takes the commit's outcome into the table's state.
bool DbfTable::finishCommit(const CommitJournal::Step &plan, std::vector<std::vector<int>> newRows,
                            CommitJournal::Applied applied, const QString &why)
{
    const bool tableChanged = plan.length >= 0;
    if (applied == CommitJournal::Applied::Crashed)
        return false;
    if (applied == CommitJournal::Applied::Failed) {
        abandonCommit(plan);
        return fail(Msg::RecordsCannotWrite,
                    {fileName(), why.isEmpty() ? QStringLiteral("injected failure") : why});
    }
    // From here on the table holds the change; the index follows it.
    rememberDiskState();
    m_committedHeader = m_header;
    m_headerDirty = false;
    m_committedCount = m_count;
    m_originals.clear();
    m_dirtyMark.clear();
    m_dirtyRows.clear();
    m_tagRows = std::move(newRows);
    if (m_indexed) {
        if (applied == CommitJournal::Applied::TableOnly) {
            m_indexNeedsWrite = true;
            m_indexProblem = {Msg::IndexReasonEntries, {}};
            fail(Msg::RecordsCannotWrite,
                 {QFileInfo(m_indexPath).fileName(),
                  why.isEmpty() ? QStringLiteral("injected failure") : why});
            m_notices.append(m_error);
            if (!tableChanged)
                return false;
        } else {
            m_indexNeedsWrite = false;
            m_indexProblem = {};
        }
    }
    if (tableChanged)
        Q_EMIT changed();
    return true;
}

bool DbfTable::commitTogether(std::initializer_list<DbfTable *> tables, QString *error)
{
    std::vector<DbfTable *> changing;
    for (DbfTable *t : tables) {
        if (!t->m_open) {
            *error = messageText(Msg::RecordsFileMissing, {t->m_path});
            return false;
        }
        if (!t->hasPendingChanges() && !t->m_indexNeedsWrite)
            continue;
        if (t->m_readOnly || t->m_memoryOnly || !t->m_changeLock) {
            *error = t->m_readOnly || t->m_memoryOnly
                         ? t->m_readOnlyReason
                         : messageText(Msg::RecordsChangedElsewhere, {t->fileName()});
            return false;
        }
        changing.push_back(t);
    }
    if (changing.size() < 2) {
        if (!changing.empty() && !changing.front()->commit()) {
            *error = changing.front()->errorString();
            return false;
        }
        return true;
    }

    // Everything written where no reader looks yet, then the journal decides.
    std::vector<CommitJournal::Step> plans(changing.size());
    std::vector<std::vector<std::vector<int>>> rows(changing.size());
    for (std::size_t i = 0; i < changing.size(); ++i) {
        if (!changing[i]->prepareCommit(&plans[i], &rows[i])) {
            *error = changing[i]->errorString();
            for (std::size_t j = 0; j < i; ++j)
                changing[j]->abandonCommit(plans[j]);
            return false;
        }
    }
    QString why;
    auto abandonAll = [&](const QString &journal) {
        for (std::size_t i = 0; i < changing.size(); ++i)
            changing[i]->abandonCommit(plans[i]);
        QString ignored;
        if (!journal.isEmpty())
            CommitJournal::complete(journal, &ignored); // cuts the appended rows off again
    };
    auto writeJournal = [&](CommitJournal::State state) {
        const HookAction action = step(CommitStep::WriteJournal);
        if (action == HookAction::Crash)
            return QStringLiteral("crash");
        const QString journal =
            action == HookAction::Fail ? QString() : CommitJournal::write(plans, state, &why);
        if (journal.isEmpty())
            *error = messageText(Msg::RecordsCannotWrite,
                                 {changing.front()->fileName(),
                                  why.isEmpty() ? QStringLiteral("injected failure") : why});
        return journal;
    };
    // Rows appended in place are announced before they are written (see commitLocked()).
    const bool appends = std::any_of(
        plans.begin(), plans.end(), [](const CommitJournal::Step &p) { return !p.tail.isEmpty(); });
    QString prepared;
    if (appends) {
        prepared = writeJournal(CommitJournal::State::Prepared);
        if (prepared == QLatin1String("crash"))
            return false;
        if (prepared.isEmpty()) {
            abandonAll({});
            return false;
        }
        for (std::size_t i = 0; i < changing.size(); ++i) {
            if (!plans[i].tail.isEmpty() && !changing[i]->writeTail(plans[i])) {
                *error = changing[i]->errorString();
                if (changing[i]->errorString().isEmpty())
                    return false; // the test seam's crash
                abandonAll(prepared);
                return false;
            }
        }
    }
    // The change is decided once this journal is on the disk.
    const QString journal = writeJournal(CommitJournal::State::Decided);
    if (journal == QLatin1String("crash"))
        return false;
    if (journal.isEmpty()) {
        abandonAll(prepared);
        return false;
    }

    // Decided: every table takes its part, and the journal goes last.
    bool ok = true;
    for (std::size_t i = 0; i < changing.size(); ++i) {
        why.clear();
        const CommitJournal::Applied applied = CommitJournal::apply(plans[i], &why, false);
        if (applied == CommitJournal::Applied::Crashed)
            return false;
        if (applied == CommitJournal::Applied::Failed) {
            // The journal stays: the next program to take these tables completes the change.
            *error = messageText(Msg::RecordsCannotWrite, {changing[i]->fileName(), why});
            changing[i]->rememberDiskState();
            ok = false;
            continue;
        }
        changing[i]->finishCommit(plans[i], std::move(rows[i]), applied, why);
    }
    if (!ok)
        return false;
    // The renames are made durable before the journal that would redo them goes; should its
    // removal be lost, completing it again changes nothing.
    CommitJournal::syncDirectories(plans);
    if (step(CommitStep::RemoveJournal) == HookAction::Crash)
        return false;
    QFile::remove(journal);
    return true;
}

// ---------------------------------------------------------------------------------------------
// Locating without regard to case

QString DbfTable::foldedKey(int rec, int f) const
{
    return text(rec, f).toCaseFolded();
}

DbfTable::Lookup &DbfTable::lookup(int f) const
{
    if (m_lookups.size() < std::size_t(m_fields.size()))
        m_lookups.resize(std::size_t(m_fields.size()));
    std::unique_ptr<Lookup> &l = m_lookups[std::size_t(f)];
    if (!l) {
        l = std::make_unique<Lookup>();
        for (int r = 0; r < m_count; ++r) {
            if (record(r)[0] != '*')
                l->rows[foldedKey(r, f)].push_back(r);
        }
    }
    return *l;
}

void DbfTable::forgetInLookups(int rec, int onlyField)
{
    for (std::size_t f = 0; f < m_lookups.size(); ++f) {
        if (!m_lookups[f] || (onlyField >= 0 && int(f) != onlyField))
            continue;
        auto rows = m_lookups[f]->rows.find(foldedKey(rec, int(f)));
        if (rows == m_lookups[f]->rows.end())
            continue;
        auto pos = std::lower_bound(rows->begin(), rows->end(), rec);
        if (pos != rows->end() && *pos == rec)
            rows->erase(pos);
    }
}

void DbfTable::noteInLookups(int rec, int onlyField)
{
    if (record(rec)[0] == '*')
        return;
    for (std::size_t f = 0; f < m_lookups.size(); ++f) {
        if (!m_lookups[f] || (onlyField >= 0 && int(f) != onlyField))
            continue;
        std::vector<int> &rows = m_lookups[f]->rows[foldedKey(rec, int(f))];
        rows.insert(std::lower_bound(rows.begin(), rows.end(), rec), rec);
    }
}

int DbfTable::locate(const QString &fieldName, const QString &key) const
{
    const std::vector<int> rows = locateAll(fieldName, key);
    return rows.empty() ? -1 : rows.front();
}

std::vector<int> DbfTable::locateAll(const QString &fieldName, const QString &key) const
{
    const int f = fieldIndex(fieldName);
    if (f < 0)
        return {};
    QString wanted = key;
    while (!wanted.isEmpty() && wanted.back() == QLatin1Char(' '))
        wanted.chop(1);
    if (m_fields.at(f).type != 'C')
        wanted = wanted.trimmed();
    const Lookup &l = lookup(f);
    return l.rows.value(wanted.toCaseFolded());
}
