#include "SavedValidatorsTable.h"

#include "Captions.h"

namespace {

// A caption as a column header: without its trailing colon.
QString header(Cap id)
{
    QString text = captionText(id).trimmed();
    if (text.endsWith(QLatin1Char(':')))
        text.chop(1);
    return text.trimmed();
}

} // namespace

SavedValidatorsTable::SavedValidatorsTable(QObject *parent) : QAbstractTableModel(parent) {}

QStringList SavedValidatorsTable::headers()
{
    return {header(Cap::Identification), header(Cap::Description), header(Cap::SerialNumber),
            header(Cap::Version)};
}

void SavedValidatorsTable::setRows(QList<Row> rows)
{
    m_all = std::move(rows);
    m_folded.clear();
    m_folded.reserve(m_all.size());
    for (const Row &row : std::as_const(m_all)) {
        m_folded.append((row.identification + QLatin1Char('\n') + row.description +
                         QLatin1Char('\n') + row.serial)
                            .toCaseFolded());
    }
    apply();
}

void SavedValidatorsTable::setFilter(const QString &text)
{
    m_filter = text.trimmed();
    apply();
}

void SavedValidatorsTable::apply()
{
    beginResetModel();
    m_shown.clear();
    const QString needle = m_filter.toCaseFolded();
    // A filter holding a line break would match across two fields.
    const bool acrossFields = needle.contains(QLatin1Char('\n'));
    for (int i = 0; i < m_all.size(); ++i) {
        if (needle.isEmpty() || (!acrossFields && m_folded.at(i).contains(needle)))
            m_shown.append(i);
    }
    endResetModel();
}

int SavedValidatorsTable::find(const QString &identification) const
{
    const QString wanted = identification.trimmed();
    for (int r = 0; r < m_shown.size(); ++r) {
        if (row(r).identification.trimmed().compare(wanted, Qt::CaseInsensitive) == 0)
            return r;
    }
    return -1;
}

int SavedValidatorsTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int SavedValidatorsTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SavedValidatorsTable::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid() || index.row() >= m_shown.size())
        return {};
    const Row &r = row(index.row());
    switch (index.column()) {
    case Identification:
        return r.identification;
    case Description:
        return r.description;
    case Serial:
        return r.serial;
    case Family:
        return r.family;
    default:
        return {};
    }
}

QVariant SavedValidatorsTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section < 0 ||
        section >= ColumnCount)
        return QAbstractTableModel::headerData(section, orientation, role);
    return headers().at(section);
}

void SavedValidatorsTable::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}
