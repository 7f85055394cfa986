#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <vector>

class DbfTable;

// A table as a Qt item model for grids and navigators: one row per live record in file order,
// one column per field, the field names as column headers. Edits through the model are
// committed through the engine at once; a commit that fails is rolled back and reported with
// errorOccurred().
class DbfTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit DbfTableModel(DbfTable *table, QObject *parent = nullptr);
    Q_DISABLE_COPY_MOVE(DbfTableModel)

    // Deletes one record and commits; replaces the plain delete where a table has a rule of
    // its own (a validator takes its channels with it).
    using RecordRemover = std::function<bool(int rec)>;
    void setRecordRemover(RecordRemover remover) { m_remover = std::move(remover); }

    DbfTable *table() const { return m_table; }
    int recordAt(int row) const;
    // The model row of a record, or -1 for a deleted one.
    int rowOf(int rec) const;
    QString lastError() const { return m_error; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    // New records always go to the end of the table, whatever row is asked for.
    bool insertRows(int row, int count, const QModelIndex &parent = {}) override;
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;

Q_SIGNALS:
    void errorOccurred(const QString &message);

private:
    void reload();
    bool failed();

    DbfTable *m_table;
    std::vector<int> m_rows;
    bool m_writing = false;
    RecordRemover m_remover;
    QString m_error;
};
