#include "Messages.h"
#include "Captions.h"

#include <QSet>
#include <gtest/gtest.h>

TEST(Messages, PlaceholdersFillInOrder)
{
    EXPECT_EQ(messageText(Msg::MultiPulseIncompatible, {"3", "7", "5"}),
              QStringLiteral("The value of channels 3 and 7 is incompatible for the function "
                             "multi-pulse (max 5 pulses)"));
    EXPECT_EQ(messageText(Msg::ExistOverwrite, {"ABC"}), QStringLiteral("ABC exist! Overwrite ?"));
    EXPECT_EQ(fillPlaceholders(QStringLiteral("100%% %d"), {"1"}), QStringLiteral("100% 1"));
    // The texts stay exactly as the program has always shown them.
    EXPECT_STREQ(messageSource(Msg::ReadingErrorFromValidator), "Reading Error fron validator");
    EXPECT_STREQ(messageSource(Msg::ConnectValidator), "Connect validator ");
    EXPECT_STREQ(messageSource(Msg::UpgradeOver), "Upgrade over...");
}

TEST(Messages, EveryIdHasItsOwnText)
{
    QSet<QString> texts;
    for (int i = 0; i < int(Msg::Count_); ++i) {
        const QString text = QString::fromUtf8(messageSource(Msg(i)));
        EXPECT_FALSE(text.isEmpty()) << "message " << i << " has no text";
        EXPECT_FALSE(texts.contains(text)) << "two messages share " << text.toStdString();
        texts.insert(text);
    }
    for (int i = 0; i < int(Cap::Count_); ++i)
        EXPECT_STRNE(captionSource(Cap(i)), "") << "caption " << i << " has no text";
}

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {

using Key = QPair<QString, QString>; // context, source

struct TsFile
{
    QHash<Key, QString> finished; // the finished, non-empty translations
    bool ok = false;
};

TsFile readTs(const QString &path)
{
    TsFile ts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot read " << qPrintable(path);
        return ts;
    }
    QXmlStreamReader xml(&file);
    QString context;
    QStringList sources, texts;
    bool finished = false;
    bool wellFormed = true;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::EndElement && xml.name() == QLatin1String("message")) {
            // What Qt's tools read: one source and its one translation per message.
            if (sources.size() != 1 || texts.size() != 1) {
                ADD_FAILURE() << qPrintable(path) << " line " << xml.lineNumber()
                              << ": a message of "
                              << qPrintable(sources.join(QLatin1String(" | ")));
                wellFormed = false;
            } else if (finished && !texts.first().isEmpty()) {
                ts.finished.insert({context, sources.first()}, texts.first());
            }
            continue;
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            sources.clear();
            texts.clear();
        } else if (xml.name() == QLatin1String("source")) {
            sources.append(xml.readElementText());
        } else if (xml.name() == QLatin1String("translation")) {
            finished = xml.attributes().value(QLatin1String("type")) != QLatin1String("unfinished");
            texts.append(xml.readElementText());
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path) << ": " << qPrintable(xml.errorString())
                                 << " line " << xml.lineNumber();
    ts.ok = wellFormed && !xml.hasError();
    return ts;
}

QString shippedTs(const char *lang)
{
    return QStringLiteral(TARVIK_TRANSLATIONS_DIR "/tarvik_%1.ts").arg(QLatin1String(lang));
}

// Every text the sources give to translate, as lupdate finds it: the message table, the
// captions beside it and the captions of every window.
QList<Key> textsToTranslate()
{
    QTemporaryDir dir;
    const QString ts = dir.filePath(QStringLiteral("found.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(TARVIK_LUPDATE),
                  {QStringLiteral("-locations"), QStringLiteral("none"), QStringLiteral("-silent"),
                   QStringLiteral(TARVIK_SOURCE_DIR "/src"), QStringLiteral("-ts"), ts});
    if (!lupdate.waitForFinished(120000) || lupdate.exitCode() != 0) {
        ADD_FAILURE() << "lupdate failed: " << lupdate.readAllStandardError().toStdString();
        return {};
    }
    // A fresh file holds every text as unfinished: read the sources back.
    QFile file(ts);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QList<Key> keys;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            keys.append({context, xml.readElementText()});
    }
    return keys;
}

} // namespace

// Every text of the program, messages and captions of every window alike, has a finished
// translation in each language the program ships.
TEST(Messages, EveryLanguageTranslatesEveryText)
{
    QList<Key> expected;
    for (int i = 0; i < int(Msg::Count_); ++i)
        expected.append({QStringLiteral("Messages"), QString::fromUtf8(messageSource(Msg(i)))});
    for (int i = 0; i < int(Cap::Count_); ++i)
        expected.append({QStringLiteral("Captions"), QString::fromUtf8(captionSource(Cap(i)))});
    const QList<Key> found = textsToTranslate();
    EXPECT_GT(found.size(), expected.size());
    EXPECT_TRUE(found.contains(Key{QStringLiteral("TFormValue"), QStringLiteral("&Transfert")}));
    expected.append(found);

    for (const char *lang : {"fr", "it", "de", "en"}) {
        const TsFile ts = readTs(shippedTs(lang));
        ASSERT_TRUE(ts.ok) << lang;
        for (const Key &entry : expected)
            EXPECT_TRUE(ts.finished.contains(entry))
                << lang << ": " << qPrintable(entry.first) << ": " << qPrintable(entry.second);
    }
}

// English shows the program's own texts: the English module changes none of them.
TEST(Messages, EnglishIsTheProgramsOwnText)
{
    const TsFile en = readTs(shippedTs("en"));
    ASSERT_TRUE(en.ok);
    EXPECT_FALSE(en.finished.isEmpty());
    for (auto it = en.finished.cbegin(); it != en.finished.cend(); ++it)
        EXPECT_EQ(it.value(), it.key().second) << qPrintable(it.key().first);
}
