#include "TDBModule.h"

#include "DbfTable.h"
#include "DbfTableModel.h"
#include "Messages.h"
#include "RowChange.h"
#include "TableLock.h"
#include "TableSchema.h"
#include "UserPrompt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifndef Q_OS_WIN
#include <cerrno>
#include <cstring>
#include <unistd.h>
#endif

namespace {

// The driver a new table takes: the one the directory's other tables share, so that a database
// keeps one text encoding and key order; Tarvik's own otherwise.
const LanguageDriver &sharedDriver(const QString &dir)
{
    const LanguageDriver *shared = nullptr;
    for (const TableSchema *schema : TableSchema::all()) {
        const QString path = DbfTable::findInDirectory(dir, schema->fileName);
        if (!QFileInfo::exists(path))
            continue;
        const LanguageDriver *driver = DbfTable::peekDriver(path);
        if (!driver || driver->id == 0 || (shared && shared != driver))
            return LanguageDriver::standard();
        shared = driver;
    }
    return shared ? *shared : LanguageDriver::standard();
}

bool directoryReadable(const QString &dir, QString *why)
{
#ifdef Q_OS_WIN
    *why = QStringLiteral("access denied");
    return QDir(dir).isReadable();
#else
    if (::access(QFile::encodeName(dir).constData(), R_OK | X_OK) == 0)
        return true;
    *why = QString::fromLocal8Bit(std::strerror(errno));
    return false;
#endif
}

} // namespace

TDBModule::TDBModule(QObject *parent) : QObject(parent)
{
    for (std::size_t i = 0; i < m_tables.size(); ++i) {
        m_tables[i] = std::make_unique<DbfTable>();
        m_sources[i] = std::make_unique<DbfTableModel>(m_tables[i].get());
    }
    MonnayeurSource()->setRecordRemover([this](int rec) { return deleteValidator(rec); });
}

TDBModule::~TDBModule()
{
    // the models watch the tables: they go first
    for (auto &source : m_sources)
        source.reset();
}

bool TDBModule::open(const QString &dataDir, UserPrompt *prompt)
{
    close();
    const TableLock::WaitBudget wait; // one bounded wait for all the tables
    m_dir = QDir::cleanPath(QFileInfo(dataDir).absoluteFilePath());
    QStringList errors;

    bool createdDirectory = false;
    if (!QFileInfo(m_dir).isDir()) {
        if (!QDir().mkpath(m_dir)) {
            errors.append(messageText(Msg::RecordsCannotCreateDirectory, {m_dir}));
        } else {
            createdDirectory = true;
        }
    }
    // A directory that cannot be listed is said as such, not as five missing tables.
    QString why;
    const bool unreadable = errors.isEmpty() && !directoryReadable(m_dir, &why);
    if (unreadable)
        errors.append(
            messageText(Msg::RecordsDirectoryUnreadable, {QDir::toNativeSeparators(m_dir), why}));
    QStringList created;
    const QList<const TableSchema *> schemas = TableSchema::all();
    if (errors.isEmpty()) {
        const LanguageDriver *driver = nullptr; // looked up once a table is missing
        for (const TableSchema *schema : schemas) {
            QString path = DbfTable::findInDirectory(m_dir, schema->fileName);
            if (QFileInfo::exists(path))
                continue;
            // Another program starting at the same time may be making it too: one makes it,
            // the other waits and opens it.
            TableLock lock(path);
            if (!lock.lock(TableLock::Mode::Exclusive)) {
                errors.append(lock.errorString());
                continue;
            }
            path = DbfTable::findInDirectory(m_dir, schema->fileName);
            if (QFileInfo::exists(path))
                continue;
            if (!driver)
                driver = &sharedDriver(m_dir);
            QString error;
            if (DbfTable::create(path, *schema, &error, *driver))
                created.append(schema->fileName);
            else
                errors.append(error);
        }
    }
    // A directory made by this program holds at least a table it made.
    if (createdDirectory && !created.isEmpty())
        m_notices.append(messageText(Msg::RecordsDirectoryCreated, {m_dir}));
    else if (!created.isEmpty())
        m_notices.append(
            messageText(Msg::RecordsTablesCreated, {m_dir, created.join(QStringLiteral(", "))}));

    for (std::size_t i = 0; i < m_tables.size() && !unreadable; ++i) {
        const TableSchema *schema = schemas.at(qsizetype(i));
        DbfTable &table = *m_tables[i];
        if (!table.open(DbfTable::findInDirectory(m_dir, schema->fileName), schema)) {
            if (!errors.contains(table.errorString()))
                errors.append(table.errorString());
        }
        m_notices.append(table.notices());
    }
    // Opened one by one, the validators and their channels may be from two moments.
    refreshValidators();
    m_error = errors.join(QLatin1Char('\n'));

    if (prompt) {
        for (int i = 0; i < m_notices.size(); ++i) {
            const bool creation = i == 0 && !created.isEmpty();
            prompt->tell(m_notices.at(i),
                         creation ? UserPrompt::Kind::Information : UserPrompt::Kind::Warning);
        }
        for (const QString &error : std::as_const(errors))
            prompt->tell(error, UserPrompt::Kind::Error);
    }
    return errors.isEmpty();
}

void TDBModule::close()
{
    for (auto &table : m_tables)
        table->close();
    m_notices.clear();
    m_error.clear();
}

QString TDBModule::refusal(const DbfTable *table)
{
    if (!table->isOpen()) {
        return table->fileName().isEmpty() ? messageText(Msg::TablesUnavailable)
                                           : messageText(Msg::RecordsNotOpen, {table->fileName()});
    }
    return table->isReadOnly() ? table->readOnlyReason() : QString();
}

bool TDBModule::GettoniereBeforeDelete(int rec)
{
    const QString ident = Gettoniere()->text(rec, QStringLiteral("IDENT"));
    for (int row : Channel()->locateAll(QStringLiteral("MONNAYEUR"), ident)) {
        if (!Channel()->deleteRecord(row))
            return false;
    }
    return true;
}

bool TDBModule::deleteValidator(int rec, bool *changedMeanwhile)
{
    DbfTable &validators = *Gettoniere();
    DbfTable &channels = *Channel();
    if (changedMeanwhile)
        *changedMeanwhile = false;
    if (!validators.isOpen() || !channels.isOpen() || rec < 0 || rec >= validators.recordCount())
        return false;
    const QString ident = validators.text(rec, QStringLiteral("IDENT"));
    const QByteArray shown = validators.rawRecord(rec);
    const TableLock::WaitBudget wait;
    TableChangeLock lock({&validators, &channels});
    if (!lock.ok()) {
        m_error = lock.errorString();
        return false;
    }
    // The row as this program last read it: another program may have changed it since.
    rec = RowChange::sameRow(validators, QStringLiteral("IDENT"), ident, shown);
    if (rec < 0) {
        m_error = messageText(Msg::RecordsChangedElsewhere, {ident});
        if (changedMeanwhile)
            *changedMeanwhile = true;
        return false;
    }
    const bool ok = GettoniereBeforeDelete(rec) && validators.deleteRecord(rec);
    if (!ok) {
        m_error = channels.isReadOnly() ? channels.errorString() : validators.errorString();
        return false;
    }
    // One commit of both tables: after a crash the validator is there whole or gone whole.
    return DbfTable::commitTogether({&validators, &channels}, &m_error);
}

void TDBModule::refresh()
{
    const TableLock::WaitBudget wait;
    const TableReadLock together({Gettoniere(), Channel(), DemTable(), DetTablle(), ValueTable()});
    for (auto &table : m_tables)
        table->refresh();
}

void TDBModule::refreshValidators()
{
    const TableLock::WaitBudget wait;
    const TableReadLock together({Gettoniere(), Channel()});
    Gettoniere()->refresh();
    Channel()->refresh();
}
