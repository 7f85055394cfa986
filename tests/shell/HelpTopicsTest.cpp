// Which section of the guide a window leads to, which guide file a language reads, and where
// the program finds its data files in a build tree and once installed.
#include "HelpTopics.h"
#include "ResourceFiles.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(HelpTopicsTest, AWindowLeadsToItsSectionByNameThenByClass)
{
    EXPECT_EQ(HelpTopics::sectionFor({"TFormMain", "TFormMain", "QMainWindow"}), "main-window");
    EXPECT_EQ(HelpTopics::sectionFor({"TFormProgCoin"}), "learning");
    // An unnamed window is known by its class, the most derived first.
    EXPECT_EQ(HelpTopics::sectionFor({"", "TFormSuperposition", "ListDialog", "QDialog"}),
              "overlap");
    EXPECT_EQ(HelpTopics::sectionFor({"", "QMenu", "QWidget"}), HelpTopics::kContents);
    EXPECT_EQ(HelpTopics::sectionFor({}), HelpTopics::kContents);
}

// The guide holds an anchor for every section a window leads to.
TEST(HelpTopicsTest, TheGuideHoldsEverySection)
{
    QFile guide(QStringLiteral(TARVIK_SOURCE_DIR "/docs/user-guide.md"));
    ASSERT_TRUE(guide.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(guide.readAll());
    QStringList anchors;
    const QRegularExpression heading(QStringLiteral("^#+ .*\\{#([a-z-]+)\\}\\s*$"),
                                     QRegularExpression::MultilineOption);
    for (auto it = heading.globalMatch(text); it.hasNext();)
        anchors.append(it.next().captured(1));
    const QStringList sections = HelpTopics::sections();
    EXPECT_GE(sections.size(), 15);
    for (const QString &section : sections)
        EXPECT_TRUE(anchors.contains(section)) << qPrintable(section);
    // Each picture the guide shows is one the screenshots make.
    const QRegularExpression picture(QStringLiteral("\\]\\(guide/([a-z-]+)\\.png\\)"));
    for (auto it = picture.globalMatch(text); it.hasNext();) {
        const QString name = it.next().captured(1);
        EXPECT_TRUE(QFile::exists(QStringLiteral(TARVIK_SOURCE_DIR "/docs/guide/%1.png").arg(name)))
            << qPrintable(name);
    }
}

TEST(HelpTopicsTest, ATranslatedGuideIsReadWhereItExists)
{
    QTemporaryDir dir;
    const QDir help(dir.path());
    QFile(help.filePath("user-guide.html")).open(QIODevice::WriteOnly);
    QFile(help.filePath("user-guide.fr.html")).open(QIODevice::WriteOnly);
    EXPECT_EQ(HelpTopics::guideFile(dir.path(), "fr"), help.filePath("user-guide.fr.html"));
    EXPECT_EQ(HelpTopics::guideFile(dir.path(), "de"), help.filePath("user-guide.html"));
    EXPECT_EQ(HelpTopics::guideFile(dir.path(), ""), help.filePath("user-guide.html"));
}

TEST(ResourceFilesTest, DataLieBesideTheProgramOrInShareOnceInstalled)
{
    QTemporaryDir dir;
    const QDir root(dir.path());
    // A build tree: bin/resources.
    root.mkpath("build/bin/resources");
    EXPECT_EQ(ResourceFiles::dataDirectoryFor(root.filePath("build/bin")),
              root.filePath("build/bin"));
    // Installed: usr/bin beside usr/share/tarvik/resources.
    root.mkpath("usr/bin");
    root.mkpath("usr/share/tarvik/resources");
    EXPECT_EQ(ResourceFiles::dataDirectoryFor(root.filePath("usr/bin")),
              root.filePath("usr/share/tarvik"));
    // Neither: beside the program, where a missing file says what was looked for.
    root.mkpath("elsewhere");
    EXPECT_EQ(ResourceFiles::dataDirectoryFor(root.filePath("elsewhere")),
              root.filePath("elsewhere"));
}
