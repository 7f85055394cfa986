#include "ServerSchema.h"

#include "ProfileStore.h"

namespace ServerSchema {

const QStringList &recordColumns()
{
    // The names of the directory's channel table, in lower case.
    static const QStringList columns = {
        QStringLiteral("hfuhighmax"), QStringLiteral("hfuhighmin"), QStringLiteral("hfulowmax"),
        QStringLiteral("hfulowmin"),  QStringLiteral("lfmax"),      QStringLiteral("lfmin"),
        QStringLiteral("dimmax"),     QStringLiteral("dimmin"),     QStringLiteral("hflhighmax"),
        QStringLiteral("hflhighmin"), QStringLiteral("hfllowmax"),  QStringLiteral("hfllowmin"),
        QStringLiteral("hflampmax"),  QStringLiteral("hflampmin"),  QStringLiteral("substitute")};
    return columns;
}

const QStringList &toleranceColumns()
{
    static const QStringList columns = [] {
        QStringList c;
        for (const char *field : ProfileStore::toleranceFields())
            c.append(QString::fromLatin1(field).toLower());
        return c;
    }();
    return columns;
}

namespace {

QString columns(const QStringList &names, const char *type)
{
    QStringList out;
    for (const QString &n : names)
        out.append(n + u' ' + QLatin1String(type));
    return out.join(QStringLiteral(", "));
}

// Layout 1. A name is kept as typed and found through its lower-case key, as the directory's
// tables compare names without regard to case. Every row carries the revision it was written
// at (one sequence for all), which tells a program whether a row changed since it was shown.
QStringList version1()
{
    QStringList valueChannels;
    for (int c = 1; c <= 60; ++c)
        valueChannels.append(QStringLiteral("canal%1").arg(c));
    return {
        QStringLiteral("CREATE SEQUENCE tarvik_revision"),
        QStringLiteral(
            "CREATE TABLE validators (ident_key text PRIMARY KEY, ident text NOT NULL, "
            "descriptio text NOT NULL, version text NOT NULL, option integer, base1 integer, "
            "base2 integer, conversion bigint, prix0 integer, prix1 integer, prix2 integer, "
            "prix3 integer, prix4 integer, prix5 integer, revision bigint NOT NULL)"),
        QStringLiteral("CREATE TABLE channels (ident_key text NOT NULL REFERENCES validators "
                       "ON DELETE CASCADE, canal integer NOT NULL, %1, valid boolean, "
                       "valeur integer, PRIMARY KEY (ident_key, canal))")
            .arg(columns(recordColumns(), "integer")),
        QStringLiteral("CREATE TABLE profiles (nom_key text PRIMARY KEY, nom text NOT NULL, "
                       "descript text NOT NULL, sub integer NOT NULL, enable boolean NOT NULL, "
                       "valeur integer, %1, revision bigint NOT NULL, "
                       "place bigint NOT NULL DEFAULT nextval('tarvik_revision'))")
            .arg(columns(toleranceColumns(), "integer")),
        QStringLiteral("CREATE TABLE value_tables (identi_key text PRIMARY KEY, identi text NOT "
                       "NULL, descrip text NOT NULL, base1 bigint, base2 bigint, convert bigint, "
                       "%1, revision bigint NOT NULL)")
            .arg(columns(valueChannels, "bigint")),
        // A configuration is kept once however many events name it.
        QStringLiteral("CREATE TABLE history_configurations (id bigserial PRIMARY KEY, "
                       "digest bytea NOT NULL UNIQUE, configuration bytea NOT NULL)"),
        QStringLiteral("CREATE TABLE history_events (serial bigint NOT NULL, happened "
                       "timestamptz NOT NULL, kind text NOT NULL, result text NOT NULL, program "
                       "text NOT NULL, machine text NOT NULL, account text NOT NULL, detail text "
                       "NOT NULL, configuration bigint REFERENCES history_configurations, "
                       "PRIMARY KEY (serial, happened, kind, machine))"),
    };
}

} // namespace

QStringList upgrade(int from, int to)
{
    QStringList steps;
    if (from < 1 && to >= 1)
        steps += version1();
    return steps;
}

} // namespace ServerSchema
