#include "CommitJournal.h"

#include "DbfTableDetail.h"
#include "DurableFile.h"
#include "TableLock.h"
#include "WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cerrno>
#include <memory>

using namespace dbf_detail;

namespace CommitJournal {

namespace {

const QString kSuffix = QStringLiteral(".tarvik-journal");
constexpr int kVersion = 1;

// Cuts rows appended after the count off again, unless the count counts them already (a table
// committed alone writes its count before it removes its journal).
bool cutBack(const Step &s, QString *error)
{
    QFile file(s.table);
    if (!QFileInfo(s.table).isFile() || !file.open(QIODevice::ReadOnly))
        return true; // nothing of ours to cut
    const QByteArray header = file.read(8);
    file.close();
    if (header.size() == 8 && header.mid(1, 7) == s.header)
        return true;
    if (file.size() <= s.restoreLength + 1)
        return true;
    return DurableFile::truncate(s.table, s.restoreLength, error) &&
           DurableFile::writeAt(s.table, s.restoreLength, QByteArray(1, kEndOfFile), error);
}

} // namespace

QString suffix()
{
    return kSuffix;
}

QString write(const std::vector<Step> &steps, State state, QString *error)
{
    QJsonArray tables;
    QStringList names;
    for (const Step &s : steps) {
        names.append(s.table);
        tables.append(QJsonObject{{QStringLiteral("table"), s.table},
                                  {QStringLiteral("tableTemp"), s.tableTemp},
                                  {QStringLiteral("header"), QString::fromLatin1(s.header.toHex())},
                                  {QStringLiteral("length"), double(s.length)},
                                  {QStringLiteral("index"), s.index},
                                  {QStringLiteral("indexTemp"), s.indexTemp},
                                  {QStringLiteral("restoreLength"), double(s.restoreLength)}});
    }
    std::sort(names.begin(), names.end());
    const QString journal = names.first() + kSuffix;
    const QString temp = journal + kTempSuffix;
    const QByteArray bytes =
        QJsonDocument(QJsonObject{{QStringLiteral("version"), kVersion},
                                  {QStringLiteral("decided"), state == State::Decided},
                                  {QStringLiteral("tables"), tables}})
            .toJson(QJsonDocument::Indented);
    if (state == State::Prepared) {
        // Not flushed: it matters after a crash of the program, when the system still holds
        // it. Lost to a power cut, it leaves rows after the count, which the count hides from
        // Tarvik and from readers that honour it, as any commit cut short before.
        QFile file(temp);
        errno = 0;
        // A buffered write reports a full disk only when it is flushed: a journal that did not
        // reach the file whole must not let the rows it announces be written.
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            file.write(bytes) != bytes.size() || !file.flush()) {
            const int failure = errno;
            *error = failure != 0 ? WholeFile::reason(failure) : file.errorString();
            file.close();
            QFile::remove(temp);
            return {};
        }
        errno = 0;
        file.close();
        if (file.error() != QFileDevice::NoError) {
            const int failure = errno;
            *error = failure != 0 ? WholeFile::reason(failure) : file.errorString();
            QFile::remove(temp);
            return {};
        }
        if (!DurableFile::replace(temp, journal, error)) {
            QFile::remove(temp);
            return {};
        }
        return journal;
    }
    if (!DurableFile::write(temp, bytes, error) || !DurableFile::replace(temp, journal, error)) {
        QFile::remove(temp);
        return {};
    }
    DurableFile::syncDirectory(QFileInfo(journal).absolutePath());
    return journal;
}

bool read(const QString &journal, std::vector<Step> *steps, State *state)
{
    QFile file(journal);
    if (!QFileInfo(journal).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    if (root.value(QStringLiteral("version")).toInt() != kVersion)
        return false;
    if (state)
        *state = root.value(QStringLiteral("decided")).toBool() ? State::Decided : State::Prepared;
    steps->clear();
    for (const QJsonValue &v : root.value(QStringLiteral("tables")).toArray()) {
        const QJsonObject o = v.toObject();
        Step s;
        s.table = o.value(QStringLiteral("table")).toString();
        s.tableTemp = o.value(QStringLiteral("tableTemp")).toString();
        s.header = QByteArray::fromHex(o.value(QStringLiteral("header")).toString().toLatin1());
        s.length = qint64(o.value(QStringLiteral("length")).toDouble(-1));
        s.index = o.value(QStringLiteral("index")).toString();
        s.indexTemp = o.value(QStringLiteral("indexTemp")).toString();
        s.restoreLength = qint64(o.value(QStringLiteral("restoreLength")).toDouble(-1));
        if (s.table.isEmpty() || (!s.header.isEmpty() && s.header.size() != 7))
            return false;
        steps->push_back(s);
    }
    return !steps->empty();
}

void syncDirectories(const std::vector<Step> &steps)
{
    // Renamed tables only: a lost index rename leaves an index the next open finds stale.
    QStringList dirs;
    for (const Step &s : steps) {
        const QString dir = QFileInfo(s.table).absolutePath();
        if (!s.tableTemp.isEmpty() && !dirs.contains(dir))
            dirs.append(dir);
    }
    for (const QString &dir : std::as_const(dirs))
        DurableFile::syncDirectory(dir);
}

Applied apply(const Step &s, QString *error, bool durable)
{
    using Hook = DbfTable::HookAction;
    if (s.length >= 0 && s.tableTemp.isEmpty()) {
        // appended rows: the record count makes them visible; writing it again changes nothing
        const Hook action = step(DbfTable::CommitStep::UpdateHeader);
        if (action == Hook::Crash)
            return Applied::Crashed;
        if (action == Hook::Fail || !DurableFile::writeAt(s.table, 1, s.header, error))
            return Applied::Failed;
        DurableFile::truncate(s.table, s.length, error);
    } else if (s.length >= 0) {
        // a temporary that is gone was renamed already
        if (QFileInfo::exists(s.tableTemp)) {
            const Hook action = step(DbfTable::CommitStep::ReplaceTable);
            if (action == Hook::Crash)
                return Applied::Crashed;
            if (action == Hook::Fail || !DurableFile::replace(s.tableTemp, s.table, error))
                return Applied::Failed;
            if (durable)
                DurableFile::syncDirectory(QFileInfo(s.table).absolutePath());
        }
    }
    if (!s.index.isEmpty() && QFileInfo::exists(s.indexTemp)) {
        const Hook action = step(DbfTable::CommitStep::ReplaceIndex);
        if (action == Hook::Crash)
            return Applied::Crashed;
        // Should this rename be lost, the next open finds the index stale and rebuilds it.
        if (action == Hook::Fail || !DurableFile::replace(s.indexTemp, s.index, error)) {
            QFile::remove(s.indexTemp);
            return Applied::TableOnly;
        }
    }
    return Applied::Done;
}

bool complete(const QString &journal, QString *error)
{
    std::vector<Step> steps;
    State state = State::Prepared;
    if (!read(journal, &steps, &state)) {
        // Written whole or not at all: one that cannot be read was not written by this program.
        QFile::remove(journal);
        return true;
    }
    if (state == State::Prepared) {
        for (const Step &s : steps) {
            if (!s.tableTemp.isEmpty())
                QFile::remove(s.tableTemp);
            if (!s.indexTemp.isEmpty())
                QFile::remove(s.indexTemp);
            if (s.restoreLength >= 0 && !cutBack(s, error))
                return false;
        }
        QFile::remove(journal);
        DurableFile::syncDirectory(QFileInfo(journal).absolutePath());
        return true;
    }
    for (const Step &s : steps) {
        QString why;
        const Applied applied = apply(s, &why, false);
        if (applied == Applied::Crashed)
            return false;
        if (applied == Applied::Failed) {
            *error = why;
            return false;
        }
    }
    syncDirectories(steps);
    const DbfTable::HookAction action = step(DbfTable::CommitStep::RemoveJournal);
    if (action == DbfTable::HookAction::Crash)
        return false;
    // Should the removal be lost, the journal is completed again, which changes nothing.
    QFile::remove(journal);
    return true;
}

QStringList pendingFor(const QStringList &tables)
{
    QStringList dirs, found;
    for (const QString &t : tables) {
        const QString dir = QFileInfo(t).absolutePath();
        if (!dirs.contains(dir))
            dirs.append(dir);
    }
    for (const QString &dir : std::as_const(dirs)) {
        const QStringList names =
            QDir(dir).entryList({QStringLiteral("*") + kSuffix}, QDir::Files | QDir::Hidden);
        for (const QString &name : names) {
            const QString journal = QDir(dir).filePath(name);
            const QStringList named = tablesOf(journal);
            if (named.isEmpty() || std::any_of(named.begin(), named.end(), [&](const QString &t) {
                    return tables.contains(t);
                }))
                found.append(journal);
        }
    }
    return found;
}

QStringList tablesOf(const QString &journal)
{
    std::vector<Step> steps;
    QStringList names;
    if (read(journal, &steps)) {
        for (const Step &s : steps)
            names.append(s.table);
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool settle(const QString &journal, QString *error)
{
    std::vector<std::unique_ptr<TableLock>> locks;
    for (const QString &table : tablesOf(journal)) {
        auto lock = std::make_unique<TableLock>(table);
        if (!lock->lock(TableLock::Mode::Exclusive)) {
            *error = lock->errorString();
            return false;
        }
        locks.push_back(std::move(lock));
    }
    // Another program may have completed it meanwhile.
    if (!QFileInfo::exists(journal))
        return true;
    return complete(journal, error);
}

} // namespace CommitJournal
