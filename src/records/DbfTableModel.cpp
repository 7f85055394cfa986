#include "DbfTableModel.h"

#include "DbfTable.h"

#include <algorithm>

DbfTableModel::DbfTableModel(DbfTable *table, QObject *parent)
    : QAbstractTableModel(parent), m_table(table)
{
    m_rows = m_table->liveRows();
    connect(m_table, &DbfTable::changed, this, [this] {
        if (!m_writing)
            reload();
    });
}

void DbfTableModel::reload()
{
    beginResetModel();
    m_rows = m_table->liveRows();
    endResetModel();
}

bool DbfTableModel::failed()
{
    m_error = m_table->errorString();
    m_table->rollback();
    m_writing = false;
    reload();
    Q_EMIT errorOccurred(m_error);
    return false;
}

int DbfTableModel::recordAt(int row) const
{
    return row >= 0 && row < int(m_rows.size()) ? m_rows[std::size_t(row)] : -1;
}

int DbfTableModel::rowOf(int rec) const
{
    const auto it = std::lower_bound(m_rows.begin(), m_rows.end(), rec);
    return it != m_rows.end() && *it == rec ? int(it - m_rows.begin()) : -1;
}

int DbfTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int DbfTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_table->fieldCount();
}

QVariant DbfTableModel::data(const QModelIndex &index, int role) const
{
    const int rec = recordAt(index.row());
    if (rec < 0 || index.column() >= m_table->fieldCount())
        return {};
    if (role == Qt::DisplayRole)
        return m_table->text(rec, index.column());
    if (role == Qt::EditRole)
        return m_table->value(rec, index.column());
    return {};
}

QVariant DbfTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Horizontal)
        return section < m_table->fieldCount() ? m_table->field(section).name : QVariant();
    return section + 1;
}

Qt::ItemFlags DbfTableModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags f = QAbstractTableModel::flags(index);
    if (index.isValid() && !m_table->isReadOnly())
        f |= Qt::ItemIsEditable;
    return f;
}

bool DbfTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int rec = recordAt(index.row());
    if (role != Qt::EditRole || rec < 0)
        return false;
    m_writing = true;
    if (!m_table->setValue(rec, index.column(), value) || !m_table->commit())
        return failed();
    m_writing = false;
    Q_EMIT dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

bool DbfTableModel::insertRows(int, int count, const QModelIndex &parent)
{
    if (parent.isValid() || count < 1)
        return false;
    m_writing = true;
    for (int i = 0; i < count; ++i) {
        if (m_table->appendRecord() < 0)
            return failed();
    }
    if (!m_table->commit())
        return failed();
    m_writing = false;
    const int first = int(m_rows.size());
    beginInsertRows({}, first, first + count - 1);
    m_rows = m_table->liveRows();
    endInsertRows();
    return true;
}

bool DbfTableModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count < 1 || row + count > int(m_rows.size()))
        return false;
    const std::vector<int> records(m_rows.begin() + row, m_rows.begin() + row + count);
    m_writing = true;
    for (int rec : records) {
        const bool ok =
            m_remover ? m_remover(rec) : (m_table->deleteRecord(rec) && m_table->commit());
        if (!ok)
            return failed();
    }
    m_writing = false;
    beginRemoveRows({}, row, row + count - 1);
    m_rows = m_table->liveRows();
    endRemoveRows();
    return true;
}
