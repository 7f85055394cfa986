// The check of a validator's two tables against each other: channel rows whose validator row is
// gone, and validators without channel rows, which older versions could leave after a crash
// between the commits of the two tables.
#include "TableRepair.h"

#include "DbfTable.h"
#include "DurableFile.h"
#include "Messages.h"
#include "TableLock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <map>
#include <memory>

namespace {

struct Findings
{
    std::vector<int> orphanRows;            // channel rows of no validator
    std::map<QString, QString> orphanNames; // by folded identification
    QStringList channelless;                // validators without channel rows
};

Findings findIn(const DbfTable &validators, const DbfTable &channels)
{
    Findings f;
    QSet<QString> idents, withChannels;
    for (int r : validators.liveRows())
        idents.insert(validators.text(r, QStringLiteral("IDENT")).toCaseFolded());
    for (int r : channels.liveRows()) {
        const QString ident = channels.text(r, QStringLiteral("MONNAYEUR"));
        withChannels.insert(ident.toCaseFolded());
        if (!idents.contains(ident.toCaseFolded())) {
            f.orphanRows.push_back(r);
            f.orphanNames.emplace(ident.toCaseFolded(), ident);
        }
    }
    for (int r : validators.liveRows()) {
        const QString ident = validators.text(r, QStringLiteral("IDENT"));
        if (!withChannels.contains(ident.toCaseFolded()))
            f.channelless.append(ident);
    }
    return f;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

} // namespace

QList<TableRepair::Result> TableRepair::checkValidators() const
{
    TableRepair reader(*this); // a check writes nothing, not even a backup directory
    return reader.validators(false);
}

QList<TableRepair::Result> TableRepair::repairValidators()
{
    return validators(true);
}

QList<TableRepair::Result> TableRepair::validators(bool repair)
{
    const TableSchema &vs = TableSchema::gettoniere();
    const TableSchema &cs = TableSchema::channel();
    const QString vPath = DbfTable::findInDirectory(m_dir, vs.fileName);
    const QString cPath = DbfTable::findInDirectory(m_dir, cs.fileName);
    if (!QFileInfo(vPath).isFile() || !QFileInfo(cPath).isFile())
        return {};
    DbfTable validators, channels;
    std::unique_ptr<TableChangeLock> lock;
    if (repair) {
        // Opened as the program opens them: a change another program left half done is
        // completed first.
        if (!validators.open(vPath, &vs) || !channels.open(cPath, &cs) || validators.isReadOnly() ||
            channels.isReadOnly())
            return {};
        lock = std::make_unique<TableChangeLock>(
            std::initializer_list<DbfTable *>{&validators, &channels});
        if (!lock->ok()) {
            Result r;
            r.fileName = channels.fileName();
            r.state = State::Failed;
            r.error = lock->errorString();
            return {r};
        }
    } else {
        // Read as they are, both at one moment; nothing is written.
        TableLock first(DbfTable::targetOf(cPath) < DbfTable::targetOf(vPath) ? cPath : vPath);
        TableLock second(DbfTable::targetOf(cPath) < DbfTable::targetOf(vPath) ? vPath : cPath);
        first.lock(TableLock::Mode::Shared);
        second.lock(TableLock::Mode::Shared);
        const QString cIndex = DbfTable::findInDirectory(m_dir, cs.indexFileName);
        const QString vIndex = DbfTable::findInDirectory(m_dir, vs.indexFileName);
        if (!validators.openBytes(contents(vPath), contents(vIndex), &vs) ||
            !channels.openBytes(contents(cPath), contents(cIndex), &cs))
            return {};
    }
    if (validators.isDamaged() || channels.isDamaged())
        return {}; // said, and repaired, per table
    const Findings f = findIn(validators, channels);
    QList<Result> results;
    if (!f.orphanRows.empty()) {
        Result r;
        r.fileName = QFileInfo(cPath).fileName();
        r.unreadable = qint64(f.orphanRows.size());
        QStringList names;
        for (const auto &[folded, name] : f.orphanNames)
            names.append(name);
        r.state = State::Orphans;
        r.problem = messageText(
            Msg::RepairOrphanChannels,
            {r.fileName, QString::number(f.orphanRows.size()), names.join(QStringLiteral(", "))});
        if (repair) {
            // The table goes aside as it is, then the rows go in one commit.
            QString why;
            const QString cIndex = channels.indexPath();
            if (!makeBackupDirectory(&why)) {
                r.state = State::Failed;
                r.error = why;
            } else if (!DurableFile::write(QDir(m_backup).filePath(r.fileName), contents(cPath),
                                           &why) ||
                       (QFileInfo(cIndex).isFile() &&
                        !DurableFile::write(QDir(m_backup).filePath(QFileInfo(cIndex).fileName()),
                                            contents(cIndex), &why))) {
                r.state = State::Failed;
                r.error = messageText(Msg::RecordsCannotWrite, {m_backup, why});
            } else {
                bool ok = true;
                for (int row : f.orphanRows)
                    ok = ok && channels.deleteRecord(row);
                if (ok && channels.commit()) {
                    r.state = State::OrphansRemoved;
                    r.backup = m_backup;
                } else {
                    r.state = State::Failed;
                    r.error = channels.errorString();
                }
            }
        }
        results.append(r);
    }
    if (!f.channelless.isEmpty()) {
        Result r;
        r.fileName = QFileInfo(vPath).fileName();
        r.state = State::ChannelsMissing;
        r.problem = messageText(Msg::RepairChannelless,
                                {r.fileName, f.channelless.join(QStringLiteral(", "))});
        results.append(r);
    }
    return results;
}
