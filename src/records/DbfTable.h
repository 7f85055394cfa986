#pragma once

#include "CommitJournal.h"
#include "LanguageDriver.h"
#include "MdxIndex.h"
#include "TableSchema.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>
#include <vector>

class TableLock;

// One field descriptor of a table.
struct DbfField
{
    QString name;
    char type = 'C';
    int length = 0;
    int decimals = 0;
    int offset = 0;           // of its first byte in a record (byte 0 is the deletion flag)
    int descriptorOffset = 0; // of its descriptor in the header
};

// A dBase table (.dbf) with its production index (.MDX), held in memory and written back whole
// on every commit.
//
// Reads level 3/4/5 tables (byte 0 = 0x03, 32-byte field descriptors) and level 7 tables
// (byte 0 = 0x04, 48-byte descriptors, binary 'I' and 'O' numbers). Rows stay in file order; a
// deleted row keeps its place with the '*' flag. Changes are made in memory and reach the disk
// on commit(), which rewrites the table and rebuilds every tag of its index. Every header byte
// the change does not concern (level, language driver, field flags, level-7 properties) is
// kept, so a table written back differs from the original only in what changed.
//
// Crash safety. A commit writes the new index to "<index>.tarvik-tmp" and flushes it first.
// Then the table:
//  - when the change only appends rows, the new rows are written after the last row in place
//    and flushed, and only then the record count in the header (7 bytes in the first sector,
//    written in one piece) and flushed again. Until the count is written every dBase reader
//    still sees the old rows: bytes after the last counted row are ignored.
//  - otherwise the whole table goes to "<table>.tarvik-tmp", is flushed, and is renamed over
//    the table.
// Last, the index temporary is renamed over the index. The table is thus always either the
// old or the new one, and it is the truth: the index is derived from it. A crash before the
// table step leaves the old pair (the temporaries go when a program next takes the table's
// lock); a crash after it leaves the new table with the old index, which the next open finds
// stale, because it checks every tag of the index against the table, and rebuilds, giving the
// new pair (the next commit of any program rewrites the index as well). A damaged or missing
// index is rebuilt the same way, with a notice.
//
// One change of several tables (a validator's row and its channel rows) is one commit:
// commitTogether() prepares every table as far as the step that makes it visible, writes a
// journal naming those steps (CommitJournal), then takes them. Whoever next reads or changes one
// of the tables first completes a journal left by a program that was killed, so the tables are
// seen with all of the change or none of it.
//
// A table (or index) that is a symbolic link stays one: a commit writes its temporaries beside
// the file the link points to and renames them over that file, and the lock is that file's.
//
// Damage: a file that does not hold what its header says (cut short, a count past its end, a
// header that does not parse) opens read-only with the rows that can be read and a notice
// saying what is wrong; a file of which nothing can be read does not open. Neither is
// written to until TableRepair has mended it.
//
// Sharing: several programs (a second Tarvik, tarvik-cli, scripts) open the same tables at once,
// shared; holding a table open never keeps another program out. Each change takes the table's
// exclusive lock (TableLock) for its own milliseconds: lockForChange() waits its turn, reads the
// table again when another program changed it since (a few file attributes of the table and its
// index tell, without reading them), and commit() then writes as above; unlockChange() lets the
// next program in. Reading a table and its index takes the shared lock for as long as the
// reading lasts, so a reader sees both from one commit and never a commit half done.
class DbfTable final : public QObject
{
    Q_OBJECT

public:
    // The steps of a commit, in order (the table takes either the append or the replace path).
    enum class CommitStep
    {
        WriteIndexTemp,
        AppendRecords,
        UpdateHeader,
        WriteTableTemp,
        ReplaceTable,
        ReplaceIndex,
        WriteJournal, // a commit of several tables: after every table is prepared
        RemoveJournal
    };
    enum class HookAction
    {
        Continue,
        Crash, // stop here, leaving the files as a power cut would
        Fail   // the step fails as on a full disk
    };
    // Test seam: called before each step of every commit.
    using CommitHook = std::function<HookAction(CommitStep)>;
    static void setCommitHook(CommitHook hook);

    explicit DbfTable(QObject *parent = nullptr);
    ~DbfTable() override;
    Q_DISABLE_COPY_MOVE(DbfTable)

    // Creates an empty level-4 table with its index (version 2) holding the schema's tags,
    // under the given language driver. Never replaces an existing file.
    static bool create(const QString &path, const TableSchema &schema, QString *error,
                       const LanguageDriver &driver = LanguageDriver::standard());
    // The language driver of the table at path, read from its header; null when the file is
    // not a table or its driver is not one this program knows.
    static const LanguageDriver *peekDriver(const QString &path);
    // The file a commit writes for path: the target of a symbolic link, path itself otherwise.
    static QString targetOf(const QString &path);
    // The file called name in dir, found without regard to case (tables copied from Windows
    // keep any case); dir/name when none matches.
    static QString findInDirectory(const QString &dir, const QString &name);

    // Opens a table and its production index. With a schema, every field it lists must exist
    // and the index must hold its tags. What open repaired (a rebuilt index) is in notices();
    // why the table cannot be changed, if so, too.
    bool open(const QString &path, const TableSchema *schema = nullptr);
    // Reads a table and its index from memory, read-only, checking the index as open() does
    // without repairing it. An empty index means none.
    bool openBytes(const QByteArray &table, const QByteArray &index,
                   const TableSchema *schema = nullptr);
    // Pending changes are dropped.
    void close();

    bool isOpen() const { return m_open; }
    bool isReadOnly() const { return m_readOnly; }
    // Why changes are refused, empty while the table takes them.
    QString readOnlyReason() const { return m_readOnlyReason; }
    // What is wrong with a table whose file does not hold what its header says (see
    // DbfLayout), naming the file; empty when it is sound. A damaged table opens read-only
    // with the rows that can be read until it is repaired (TableRepair).
    QString damage() const { return m_damage; }
    bool isDamaged() const { return !m_damage.isEmpty(); }
    // Rows the damaged file was meant to hold that cannot be read.
    qint64 unreadableRecords() const { return m_unreadable; }
    QString errorString() const { return m_error; }
    QStringList notices() const { return m_notices; }
    QString filePath() const { return m_path; }
    QString indexPath() const { return m_indexPath; }
    QString fileName() const;
    const TableSchema *schema() const { return m_schema; }
    bool isLevel7() const { return m_level7; }
    // Header byte 29.
    quint8 languageDriver() const;
    // The driver of the table's text and key order; null for one this program does not know
    // (the table is then read-only).
    const LanguageDriver *driver() const { return m_driver; }
    bool hasIndex() const { return m_indexed; }
    const MdxIndex &index() const { return m_index; }
    // Why the index on disk cannot be trusted while it waits to be rebuilt; empty when it is
    // up to date.
    QString indexProblem() const { return m_indexNeedsWrite ? m_indexProblem.text() : QString(); }

    int fieldCount() const { return int(m_fields.size()); }
    const DbfField &field(int f) const { return m_fields.at(f); }
    // -1 when the table has no such field; names compare without regard to case.
    int fieldIndex(const QString &name) const;

    // Rows in file order, deleted ones included.
    int recordCount() const { return m_count; }
    bool isDeleted(int rec) const;
    // The rows not deleted, in file order.
    std::vector<int> liveRows() const;

    // A field's value: QString (C), qlonglong or double (N, F, I, O), bool (L), QDate (D);
    // a null QVariant for a blank or unreadable field or an unknown name.
    QVariant value(int rec, int f) const;
    QVariant value(int rec, const QString &name) const;
    // The field as text: characters without the padding, numbers trimmed, L as T or F.
    QString text(int rec, int f) const;
    QString text(int rec, const QString &name) const;
    QByteArray rawField(int rec, int f) const;
    // Why text cannot be kept exactly in character field `name`: characters the table's code
    // page lacks, or more than the field holds. Empty when it round-trips as typed. Names are
    // checked with it before anything is written, so that none is stored under another name.
    QString textRefusal(const QString &name, const QString &text) const;

    // False with errorString() when the value does not fit the field or the table is
    // read-only. Text longer than a character field is cut, as dBase engines do.
    bool setValue(int rec, int f, const QVariant &value);
    bool setValue(int rec, const QString &name, const QVariant &value);
    // A blank row at the end; -1 when the table is read-only.
    int appendRecord();
    bool deleteRecord(int rec);

    // The first live row whose field equals key without regard to case (trailing blanks
    // ignored), or -1.
    int locate(const QString &fieldName, const QString &key) const;
    // All of them, in file order.
    std::vector<int> locateAll(const QString &fieldName, const QString &key) const;

    bool hasPendingChanges() const;
    // Writes the pending changes and the rebuilt index (see the class comment). Without
    // lockForChange() the commit takes the lock itself, and refuses when another program
    // changed the table since it was read.
    bool commit();
    // Drops the pending changes.
    void rollback();
    // Commits the pending changes of tables held by lockForChange() (or TableChangeLock) as one
    // change: after a crash at any instant, the next program to open them sees all of it or
    // none of it (see CommitJournal). False, with error, when nothing was changed, or when a
    // file could not be replaced after the change was decided (the next program to take the
    // tables completes it then).
    static bool commitTogether(std::initializer_list<DbfTable *> tables, QString *error);

    // The raw bytes of a row, deletion flag included: what a change compares to see whether
    // another program changed the row since it was shown.
    QByteArray rawRecord(int rec) const;

    // Whether another program changed the table or its index since this one last read or
    // wrote them (their size, time and file identity, without reading them).
    bool changedOnDisk() const;
    // The table and index as last read or written (identity, size, time), as text: an equal
    // key later means the rows in memory are still that commit's.
    QString diskStateKey() const;
    // Reads the table and its index again when they changed on disk; pending changes are
    // dropped then. False (errorString()) when the table can no longer be read; it stays as
    // it was.
    bool refresh();
    // Takes the table's exclusive lock for one change, waiting at most
    // TableLock::waitLimitMs() for another program, completes a change another program left
    // half done (CommitJournal), and brings the table up to date. False when the wait ran
    // out: errorString() names the table and the program holding it, and nothing may be
    // changed.
    bool lockForChange();
    // The same for several tables, locked in their fixed order within one wait; on failure
    // none is held and error says why.
    static bool lockForChange(std::vector<DbfTable *> tables, QString *error);
    // Releases the lock; changes not committed are dropped.
    void unlockChange();
    bool isLockedForChange() const { return m_changeLock != nullptr; }

Q_SIGNALS:
    // After open, close, a commit or a rollback: the rows may all be different.
    void changed();

private:
    bool fail(Msg id, const QStringList &args) const;
    bool parseTable(const QByteArray &bytes, const QByteArray *indexBytes);
    bool checkSchema();
    void attachIndex(const QByteArray *indexBytes);
    void setReadOnly(const QString &reason);
    const char *record(int rec) const
    {
        return m_records.constData() + qint64(rec) * m_recordLength;
    }
    char *record(int rec) { return m_records.data() + qint64(rec) * m_recordLength; }
    void resolveDriver();
    const LanguageDriver &lang() const;
    // The driver's id as the index repeats it (level-7 tables name it instead of giving it).
    quint8 indexLanguage() const;
    bool encodeField(const DbfField &f, const QVariant &value, QByteArray *out) const;

    std::vector<int> sortedRows(int f) const;
    bool rowsInKeyOrder(int f, const std::vector<MdxKey> &found, std::vector<int> *rows) const;
    std::vector<std::vector<int>> updatedTagRows() const;
    std::vector<MdxKey> tagKeys(int t, const std::vector<int> &rows) const;
    bool writeIndexTemp(const std::vector<std::vector<int>> &rows, QString *tempPath);
    void beginChange(int rec);
    void rememberDiskState();
    bool readFromDisk(bool *refused = nullptr);
    void resetContent();
    bool commitLocked();
    bool prepareCommit(CommitJournal::Step *plan, std::vector<std::vector<int>> *newRows);
    void abandonCommit(const CommitJournal::Step &plan);
    bool writeTail(const CommitJournal::Step &plan);
    bool finishCommit(const CommitJournal::Step &plan, std::vector<std::vector<int>> newRows,
                      CommitJournal::Applied applied, const QString &why);
    bool takeChangeLock();
    bool settleJournals();

    QString foldedKey(int rec, int f) const;
    struct Lookup
    {
        QHash<QString, std::vector<int>> rows;
    };
    Lookup &lookup(int f) const;
    void forgetInLookups(int rec, int onlyField = -1);
    void noteInLookups(int rec, int onlyField = -1);

    QString m_path;
    QString m_indexPath;
    mutable QString m_error;
    QStringList m_notices;
    const TableSchema *m_schema = nullptr;
    bool m_open = false;
    bool m_readOnly = false;
    bool m_memoryOnly = false;
    QString m_readOnlyReason;
    QString m_damage;
    qint64 m_unreadable = 0;
    bool m_permissionReadOnly = false; // the file or its directory cannot be written
    std::unique_ptr<TableLock> m_changeLock;
    struct DiskStamp
    {
        qint64 id = -1, size = -1, modified = -1;
        bool operator==(const DiskStamp &) const = default;
    };
    static DiskStamp stampOf(const QString &path);
    DiskStamp m_tableStamp, m_indexStamp; // as last read or written

    QByteArray m_header;
    QByteArray m_committedHeader;
    bool m_headerDirty = false;
    bool m_level7 = false;
    const LanguageDriver *m_driver = nullptr;
    int m_headerLength = 0;
    int m_recordLength = 0;
    QByteArray m_records;
    int m_count = 0;
    int m_committedCount = 0;
    QList<DbfField> m_fields;
    QHash<QString, int> m_fieldByName;

    bool m_indexed = false;
    bool m_indexNeedsWrite = false;
    MdxProblem m_indexProblem;
    MdxIndex m_index;
    std::vector<int> m_tagFields;            // field of each tag, -1 for one we cannot keep
    std::vector<std::vector<int>> m_tagRows; // live rows of each tag in key order

    QHash<int, QByteArray> m_originals; // committed bytes of the rows changed since
    std::vector<char> m_dirtyMark;
    std::vector<int> m_dirtyRows;
    mutable std::vector<std::unique_ptr<Lookup>> m_lookups; // by field, built when first used
};

// The exclusive locks of the tables one change writes, taken in the order of their paths (so
// that two programs never each wait for the other) with each table brought up to date, and
// released, with whatever was not committed, when it goes.
class TableChangeLock final
{
public:
    explicit TableChangeLock(std::initializer_list<DbfTable *> tables);
    ~TableChangeLock();
    TableChangeLock(const TableChangeLock &) = delete;
    TableChangeLock &operator=(const TableChangeLock &) = delete;

    bool ok() const { return m_error.isEmpty(); }
    QString errorString() const { return m_error; }

private:
    std::vector<DbfTable *> m_held;
    QString m_error;
};

// The shared locks of several tables at once, so that what is read from them together is from
// one change of them all (a change holds the exclusive locks of all the tables it writes).
// Tables this program holds for a change are left out.
class TableReadLock final
{
public:
    explicit TableReadLock(std::initializer_list<DbfTable *> tables);
    ~TableReadLock();
    TableReadLock(const TableReadLock &) = delete;
    TableReadLock &operator=(const TableReadLock &) = delete;

private:
    std::vector<std::unique_ptr<TableLock>> m_locks;
};
