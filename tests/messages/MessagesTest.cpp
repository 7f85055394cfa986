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
#include <QXmlStreamReader>

// Every message and caption has a finished translation in each language the program ships.
TEST(Messages, EveryLanguageTranslatesEveryMessage)
{
    QList<QPair<QString, QString>> expected; // context, source
    for (int i = 0; i < int(Msg::Count_); ++i)
        expected.append({QStringLiteral("Messages"), QString::fromUtf8(messageSource(Msg(i)))});
    for (int i = 0; i < int(Cap::Count_); ++i)
        expected.append({QStringLiteral("Captions"), QString::fromUtf8(captionSource(Cap(i)))});

    for (const char *lang : {"fr", "it", "de", "en"}) {
        QFile file(QStringLiteral(TARVIK_TRANSLATIONS_DIR "/tarvik_%1.ts").arg(lang));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << lang;
        const QByteArray content = file.readAll();
        QXmlStreamReader xml(content);
        QSet<QPair<QString, QString>> translated;
        QString context, source;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == QLatin1String("name"))
                context = xml.readElementText();
            else if (xml.name() == QLatin1String("source"))
                source = xml.readElementText();
            else if (xml.name() == QLatin1String("translation")) {
                const bool unfinished =
                    xml.attributes().value(QLatin1String("type")) == QLatin1String("unfinished");
                if (!unfinished && !xml.readElementText().isEmpty())
                    translated.insert({context, source});
            }
        }
        ASSERT_FALSE(xml.hasError())
            << lang << ": " << int(xml.error()) << " " << qPrintable(xml.errorString()) << " line "
            << xml.lineNumber();
        for (const auto &entry : expected)
            EXPECT_TRUE(translated.contains(entry))
                << lang << ": " << qPrintable(entry.first) << ": " << qPrintable(entry.second);
    }
}
