#include "HelpTopics.h"

#include <QDir>
#include <QFileInfo>

namespace {

struct Topic
{
    const char *window;
    const char *section;
};

// The windows, by the names they are created with, and the section that tells about each.
constexpr Topic kTopics[] = {
    {"TFormMain", "main-window"},
    {"SimulatorPanel", "virtual-validator"},
    {"TCommunication", "port-choice"},
    {"TFormData", "editor"},
    {"TTarvikFormInit", "validator-setting"},
    {"TFormCondotto", "output"},
    {"TFormChanges", "changes"},
    {"TFormBatch", "batch"},
    {"TCloningChk", "cloning"},
    {"TFormAvertissementDif", "cloning"},
    {"TFormProgCoin", "learning"},
    {"TTarvikTolerance", "tolerances"},
    {"TTarvikAnalyse", "analysis"},
    {"TFormProfilC", "coin-profiles"},
    {"TFormRefChannel", "calibration"},
    {"TFormCAdjust", "channel-control"},
    {"TFormSuperposition", "overlap"},
    {"TFormTransfert", "channel-copy"},
    {"TFormValue", "value-tables"},
    {"TFormReadFileData", "saved-validators"},
    {"TFormRepair", "repair"},
    {"TFormDataSource", "records-server"},
    {"TMajFirmware", "firmware"},
    {"TConnectForm", "firmware"},
};

} // namespace

namespace HelpTopics {

QString sectionFor(const QStringList &names)
{
    for (const QString &name : names) {
        for (const Topic &topic : kTopics) {
            if (name == QLatin1String(topic.window))
                return QLatin1String(topic.section);
        }
    }
    return kContents;
}

QStringList sections()
{
    QStringList out{kContents};
    for (const Topic &topic : kTopics) {
        const QString section = QLatin1String(topic.section);
        if (!out.contains(section))
            out.append(section);
    }
    return out;
}

QString guideFile(const QString &helpDirectory, const QString &language)
{
    const QDir dir(helpDirectory);
    if (!language.isEmpty()) {
        const QString translated = dir.filePath(QStringLiteral("user-guide.%1.html").arg(language));
        if (QFileInfo::exists(translated))
            return translated;
    }
    return dir.filePath(QStringLiteral("user-guide.html"));
}

} // namespace HelpTopics
