// The layout of every table as its file holds it: field names in order, types, widths and
// decimals, read from the dBase header itself.
#include "RecordingPrompt.h"
#include "TDBModule.h"
#include "TestFiles.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// "NAME:C30", "NAME:S" (smallint), "NAME:F" (float), "NAME:B" (boolean); "NAME1..60:S" is a
// run of numbered fields.
QStringList expand(const char *layout)
{
    static const QRegularExpression item(
        QStringLiteral("^([A-Z]+)(?:(\\d+)\\.\\.)?(\\d*):(\\w+)$"));
    QStringList out;
    for (const QString &word : QString::fromLatin1(layout).split(QLatin1Char(' '))) {
        const QRegularExpressionMatch m = item.match(word);
        EXPECT_TRUE(m.hasMatch()) << word.toStdString();
        const QString kind = m.captured(4);
        const QString type = kind == QLatin1String("S")   ? QStringLiteral("N6.0")
                             : kind == QLatin1String("F") ? QStringLiteral("N20.4")
                             : kind == QLatin1String("B") ? QStringLiteral("L1.0")
                                                          : kind + QStringLiteral(".0");
        const int last = m.captured(3).isEmpty() ? -1 : m.captured(3).toInt();
        const int first = m.captured(2).isEmpty() ? last : m.captured(2).toInt();
        if (last < 0)
            out.append(m.captured(1) + QLatin1Char(' ') + type);
        for (int n = first; n >= 0 && n <= last; ++n)
            out.append(m.captured(1) + QString::number(n) + QLatin1Char(' ') + type);
    }
    return out;
}

// The field descriptors of a dBase file: 32 bytes each after the 32-byte header, up to 0x0D.
QStringList fieldsOf(const QByteArray &file)
{
    QStringList out;
    for (int at = 32; at + 32 <= file.size() && file[at] != '\x0D'; at += 32) {
        const QByteArray d = file.mid(at, 32);
        out.append(QString::fromLatin1(d.left(11).constData()) + QLatin1Char(' ') +
                   QLatin1Char(d[11]) + QString::number(quint8(d[16])) + QLatin1Char('.') +
                   QString::number(quint8(d[17])));
    }
    return out;
}

const struct
{
    const char *file;
    const char *layout;
} kTables[] = {
    {"Monnayeur.DBF", "IDENT:C30 DESCRIPTIO:C30 VERSION:C3 OPTION:F BASE1:F BASE2:F "
                      "CONVERSION:F PRIX0..5:S"},
    {"Canaux.dbf", "MONNAYEUR:C30 CANAL:S HFUHIGHMAX:S HFUHIGHMIN:S HFULOWMAX:S HFULOWMIN:S "
                   "LFMAX:S LFMIN:S DIMMAX:S DIMMIN:S HFLHIGHMAX:S HFLHIGHMIN:S HFLLOWMAX:S "
                   "HFLLOWMIN:S HFLAMPMAX:S HFLAMPMIN:S SUBSTITUTE:S VALID:B VALEUR:S"},
    {"ProfilDEM.DBF", "NOM:C32 DESCRIPT:C32 HFULOWMIN:S HFULOWMAX:S HFUHIGHMIN:S HFUHIGHMAX:S "
                      "DIMMIN:S DIMMAX:S LFMIN:S LFMAX:S HFLLOMIN:S HFLLOMAX:S HFLHIMIN:S "
                      "HFLHIMAX:S AMPMIN:S AMPMAX:S VALEUR:S SUB:S ENABLE:B"},
    {"Profildet.dbf", "NOM:C32 DESCRIPTIO:C32 OPTION:F CANAL0..45:C32 CANAL47..59:C32"},
    {"Valeurs.dbf", "IDENTI:C32 DESCRIP:C32 BASE1:F BASE2:F CONVERT:F CANAL1..60:S"},
};

} // namespace

TEST(TableLayout, EveryTableHoldsItsFieldsInOrderWithTheirTypesAndWidths)
{
    QTemporaryDir root;
    const QString dir = QDir(root.path()).filePath(QStringLiteral("TarvikDB"));
    RecordingPrompt prompt;
    {
        TDBModule db;
        ASSERT_TRUE(db.open(dir, &prompt)) << db.errorString().toStdString();
    }
    for (const auto &t : kTables) {
        const QByteArray file = testfiles::readAll(QDir(dir).filePath(QLatin1String(t.file)));
        EXPECT_EQ(fieldsOf(file), expand(t.layout)) << t.file;
    }
}
