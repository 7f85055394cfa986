#pragma once

#include <QList>
#include <QString>

// The logical type of a column, as the tables were designed; the engine maps each onto a dBase
// field when it creates a table (string n -> C(n), smallint -> N(6,0), float -> N(20,4),
// boolean -> L).
enum class FieldKind
{
    String,
    SmallInt,
    Float,
    Boolean
};

struct FieldDef
{
    QString name;
    FieldKind kind = FieldKind::String;
    int width = 0; // characters of a string column; the engine decides the others

    // dBase type letter, width and decimals of a new column of this kind.
    char dbaseType() const;
    int dbaseWidth() const;
    int dbaseDecimals() const;
};

// A tag of the production index: one field as its key.
struct TagDef
{
    QString name;
    QString field;
    bool unique = false;
};

// One of the five tables of the data directory: its file, its index file and tags, and its
// fields in their order.
struct TableSchema
{
    QString component;     // "Gettoniere"
    QString fileName;      // "Monnayeur.DBF"
    QString indexFileName; // "Monnayeur.MDX"
    QList<FieldDef> fields;
    QList<TagDef> tags;
    QString activeTag; // empty: rows are browsed in file order

    const FieldDef *field(const QString &name) const;

    static const TableSchema &gettoniere();
    static const TableSchema &channel();
    static const TableSchema &demTable();
    static const TableSchema &detTablle();
    static const TableSchema &valueTable();
    // The five, in the order above.
    static QList<const TableSchema *> all();
};

// The DetTablle field naming the coin profile of channel 1..60: CANAL0 for channel 1 and so on,
// and an empty name for channel 47, for which the table has no field (there is no CANAL46).
QString detChannelField(int channel);
