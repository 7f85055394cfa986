#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <QStringList>

// The saved validators as the browser's grid shows them, in the editor's words: identification,
// description, serial number and family, filtered in memory. The whole list is read from the
// tables once (and again when another program changed them); a filter only chooses rows of it,
// so a keystroke never reads a table.
class SavedValidatorsTable final : public QAbstractTableModel
{
public:
    struct Row
    {
        QString identification;
        QString description;
        QString serial; // empty: the tables do not know it
        QString family; // "5.3", as the editor shows it
    };
    enum Column
    {
        Identification,
        Description,
        Serial,
        Family,
        ColumnCount
    };

    explicit SavedValidatorsTable(QObject *parent = nullptr);

    // Takes a new list of every stored validator; the filter stays.
    void setRows(QList<Row> rows);
    // Keeps the rows whose identification, description or serial number holds the text,
    // without regard to case; empty text keeps every row.
    void setFilter(const QString &text);
    QString filter() const { return m_filter; }

    int allCount() const { return int(m_all.size()); }
    const Row &row(int shown) const { return m_all.at(m_shown.at(shown)); }
    // The shown row of an identification (compared without regard to case), or -1.
    int find(const QString &identification) const;
    // The headers, in the language of the captions.
    static QStringList headers();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    // The captions changed language.
    void retranslate();

private:
    void apply();

    QList<Row> m_all;
    QStringList m_folded; // per row: its searchable texts, case-folded, joined by '\n'
    QList<int> m_shown;
    QString m_filter;
};
