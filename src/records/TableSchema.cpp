#include "TableSchema.h"

char FieldDef::dbaseType() const
{
    switch (kind) {
    case FieldKind::String:
        return 'C';
    case FieldKind::SmallInt:
    case FieldKind::Float:
        return 'N';
    case FieldKind::Boolean:
        return 'L';
    }
    return 'C';
}

int FieldDef::dbaseWidth() const
{
    switch (kind) {
    case FieldKind::String:
        return width;
    case FieldKind::SmallInt:
        return 6;
    case FieldKind::Float:
        return 20;
    case FieldKind::Boolean:
        return 1;
    }
    return width;
}

int FieldDef::dbaseDecimals() const
{
    return kind == FieldKind::Float ? 4 : 0;
}

const FieldDef *TableSchema::field(const QString &name) const
{
    for (const FieldDef &f : fields) {
        if (f.name.compare(name, Qt::CaseInsensitive) == 0)
            return &f;
    }
    return nullptr;
}

namespace {

FieldDef str(const char *name, int width)
{
    return {QString::fromLatin1(name), FieldKind::String, width};
}
FieldDef small(const char *name)
{
    return {QString::fromLatin1(name), FieldKind::SmallInt, 0};
}
FieldDef real(const char *name)
{
    return {QString::fromLatin1(name), FieldKind::Float, 0};
}
FieldDef flag(const char *name)
{
    return {QString::fromLatin1(name), FieldKind::Boolean, 0};
}

TableSchema makeGettoniere()
{
    TableSchema s;
    s.component = QStringLiteral("Gettoniere");
    s.fileName = QStringLiteral("Monnayeur.DBF");
    s.indexFileName = QStringLiteral("Monnayeur.MDX");
    s.fields = {str("IDENT", 30), str("DESCRIPTIO", 30), str("VERSION", 3), real("OPTION"),
                real("BASE1"),    real("BASE2"),         real("CONVERSION")};
    for (int i = 0; i < 6; ++i)
        s.fields.append(small(QStringLiteral("PRIX%1").arg(i).toLatin1().constData()));
    s.tags = {{QStringLiteral("IDENT"), QStringLiteral("IDENT"), false}};
    s.activeTag = QStringLiteral("IDENT");
    return s;
}

TableSchema makeChannel()
{
    TableSchema s;
    s.component = QStringLiteral("Channel");
    s.fileName = QStringLiteral("Canaux.dbf");
    s.indexFileName = QStringLiteral("Canaux.MDX");
    s.fields = {str("MONNAYEUR", 30), small("CANAL"),
                // the channel record's own order: maximum before minimum
                small("HFUHIGHMAX"), small("HFUHIGHMIN"), small("HFULOWMAX"), small("HFULOWMIN"),
                small("LFMAX"), small("LFMIN"), small("DIMMAX"), small("DIMMIN"),
                small("HFLHIGHMAX"), small("HFLHIGHMIN"), small("HFLLOWMAX"), small("HFLLOWMIN"),
                small("HFLAMPMAX"), small("HFLAMPMIN"), small("SUBSTITUTE"), flag("VALID"),
                small("VALEUR")};
    s.tags = {{QStringLiteral("MONNAYEUR"), QStringLiteral("MONNAYEUR"), false}};
    s.activeTag = QStringLiteral("MONNAYEUR");
    return s;
}

TableSchema makeDemTable()
{
    TableSchema s;
    s.component = QStringLiteral("DemTable");
    s.fileName = QStringLiteral("ProfilDEM.DBF");
    s.indexFileName = QStringLiteral("PROFILDEM.MDX");
    // minimum before maximum, in the editor's on-screen order
    s.fields = {str("NOM", 32),      str("DESCRIPT", 32), small("HFULOWMIN"), small("HFULOWMAX"),
                small("HFUHIGHMIN"), small("HFUHIGHMAX"), small("DIMMIN"),    small("DIMMAX"),
                small("LFMIN"),      small("LFMAX"),      small("HFLLOMIN"),  small("HFLLOMAX"),
                small("HFLHIMIN"),   small("HFLHIMAX"),   small("AMPMIN"),    small("AMPMAX"),
                small("VALEUR"),     small("SUB"),        flag("ENABLE")};
    s.tags = {{QStringLiteral("NOM"), QStringLiteral("NOM"), true}};
    return s; // opened without an active index
}

TableSchema makeDetTablle()
{
    TableSchema s;
    s.component = QStringLiteral("DetTablle");
    s.fileName = QStringLiteral("Profildet.dbf");
    s.indexFileName = QStringLiteral("Profildet.MDX");
    s.fields = {str("NOM", 32), str("DESCRIPTIO", 32), real("OPTION")};
    for (int channel = 1; channel <= 60; ++channel) {
        const QString name = detChannelField(channel);
        if (!name.isEmpty())
            s.fields.append({name, FieldKind::String, 32});
    }
    s.tags = {{QStringLiteral("NOM"), QStringLiteral("NOM"), false}};
    s.activeTag = QStringLiteral("NOM");
    return s;
}

TableSchema makeValueTable()
{
    TableSchema s;
    s.component = QStringLiteral("ValueTable");
    s.fileName = QStringLiteral("Valeurs.dbf");
    s.indexFileName = QStringLiteral("Valeurs.MDX");
    s.fields = {str("IDENTI", 32), str("DESCRIP", 32), real("BASE1"), real("BASE2"),
                real("CONVERT")};
    for (int channel = 1; channel <= 60; ++channel)
        s.fields.append({QStringLiteral("CANAL%1").arg(channel), FieldKind::SmallInt, 0});
    s.tags = {{QStringLiteral("IDENTI"), QStringLiteral("IDENTI"), true}};
    s.activeTag = QStringLiteral("IDENTI");
    return s;
}

} // namespace

const TableSchema &TableSchema::gettoniere()
{
    static const TableSchema s = makeGettoniere();
    return s;
}

const TableSchema &TableSchema::channel()
{
    static const TableSchema s = makeChannel();
    return s;
}

const TableSchema &TableSchema::demTable()
{
    static const TableSchema s = makeDemTable();
    return s;
}

const TableSchema &TableSchema::detTablle()
{
    static const TableSchema s = makeDetTablle();
    return s;
}

const TableSchema &TableSchema::valueTable()
{
    static const TableSchema s = makeValueTable();
    return s;
}

QList<const TableSchema *> TableSchema::all()
{
    return {&gettoniere(), &channel(), &demTable(), &detTablle(), &valueTable()};
}

QString detChannelField(int channel)
{
    if (channel < 1 || channel > 60 || channel == 47)
        return {};
    return QStringLiteral("CANAL%1").arg(channel - 1);
}
