#include "UnattendedRuns.h"

#include "DataDirectory.h"
#include "HelpTopics.h"
#include "Languages.h"
#include "Pictures.h"
#include "ResourceFiles.h"
#include "Settings.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <cstdio>

namespace UnattendedRuns {

void useScratchSettings(const QString &directory)
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, directory);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, directory);
    qputenv(DataDirectory::kEnvironmentVariable,
            QDir(directory).filePath(QStringLiteral("TarvikDB")).toLocal8Bit());
    Settings settings;
    settings.setAutoAdjust(true);
    settings.setDirectWrite(true);
    settings.setSoundOn(false);
    settings.setLanguage(QString());
}

bool checkDataFiles(const LanguageSwitcher &languages, const Settings &settings)
{
    bool ok = true;
    auto missing = [&ok](const QString &what) {
        std::fprintf(stderr, "tarvik: missing %s\n", qPrintable(what));
        ok = false;
    };
    std::printf("tarvik: data files in %s\n", qPrintable(ResourceFiles::dataDirectory()));
    if (Pictures::load(Pictures::kMain).isNull())
        missing(ResourceFiles::path(Pictures::kMain));

    const QString guide = HelpTopics::guideFile(ResourceFiles::helpDirectory(), QString());
    if (QFileInfo::exists(guide))
        std::printf("tarvik: guide %s\n", qPrintable(guide));
    else
        missing(guide);

    const int wanted = Languages::indexOf(settings.language());
    if (wanted != Languages::kLocal) {
        const QString file =
            QDir(languages.directory())
                .filePath(QStringLiteral("tarvik_%1.qm").arg(Languages::fileSuffix(wanted)));
        if (languages.current() == wanted)
            std::printf("tarvik: translation %s\n", qPrintable(file));
        else
            missing(file);
    }
    std::fflush(stdout);
    return ok;
}

} // namespace UnattendedRuns
