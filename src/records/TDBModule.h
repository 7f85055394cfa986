#pragma once

#include <QObject>
#include <QStringList>
#include <array>
#include <memory>

class DbfTable;
class DbfTableModel;
class UserPrompt;
struct TableSchema;

// The data module: opens the five tables of the data directory for the whole run and offers
// each as an item model for the grids and navigators. Every form reaches the tables through
// this one object.
class TDBModule final : public QObject
{
    Q_OBJECT

public:
    explicit TDBModule(QObject *parent = nullptr);
    ~TDBModule() override;
    Q_DISABLE_COPY_MOVE(TDBModule)

    // Opens the five tables of dataDir. The first run plays the installer: a missing directory
    // and missing tables are created empty, with their indexes, and that is said once. What
    // opening repaired or could not do is told through prompt (when given) and kept in
    // notices(); false when a table cannot be opened (errorString() names it). Tables that
    // opened stay usable; a damaged one opens read-only with the rows that can be read. Each
    // of these is told once.
    bool open(const QString &dataDir, UserPrompt *prompt = nullptr);
    void close();
    QString dataDirectory() const { return m_dir; }
    QStringList notices() const { return m_notices; }
    QString errorString() const { return m_error; }

    DbfTable *Gettoniere() const { return m_tables[0].get(); }
    DbfTable *Channel() const { return m_tables[1].get(); }
    DbfTable *DemTable() const { return m_tables[2].get(); }
    DbfTable *DetTablle() const { return m_tables[3].get(); }
    DbfTable *ValueTable() const { return m_tables[4].get(); }

    DbfTableModel *MonnayeurSource() const { return m_sources[0].get(); }
    DbfTableModel *CanauxSource() const { return m_sources[1].get(); }
    DbfTableModel *DemSource() const { return m_sources[2].get(); }
    DbfTableModel *DetSource() const { return m_sources[3].get(); }
    DbfTableModel *ValueSource() const { return m_sources[4].get(); }

    // Why a table cannot take a change now, naming it: it is damaged, read-only or not open
    // (what is wrong was said when it was opened); empty when it can.
    static QString refusal(const DbfTable *table);

    // Runs before a Gettoniere row is deleted: deletes every Channel row whose MONNAYEUR
    // equals the row's IDENT without regard to case. Nothing is committed.
    bool GettoniereBeforeDelete(int rec);
    // Deletes a validator row with its channels and commits both tables (channels first),
    // under their locks. When another program changed or deleted the row since this one read
    // it, nothing is deleted and changedMeanwhile is set.
    bool deleteValidator(int rec, bool *changedMeanwhile = nullptr);
    // Reads again the tables another program changed since (see DbfTable::refresh()).
    void refresh();
    // The same for the validators and their channels only, both read at one moment.
    void refreshValidators();

private:
    QString m_dir;
    QStringList m_notices;
    QString m_error;
    std::array<std::unique_ptr<DbfTable>, 5> m_tables;
    std::array<std::unique_ptr<DbfTableModel>, 5> m_sources;
};
