// diff: what differs between two configurations, each a file or the connected validator.
#include "CliContext.h"
#include "ConfigDiff.h"
#include "ConfigFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Exit codes as diff has them: same, different, trouble.
constexpr int kDiffSame = 0;
constexpr int kDiffDiffer = 1;
constexpr int kDiffTrouble = kExitTrouble;

bool takeSide(CliContext &cli, const QString &name, ConfigImage &image)
{
    if (name == QLatin1String("validator"))
        return readValidatorImage(cli, image);
    return readImageInput(cli, name, image);
}

} // namespace

QJsonObject changeObject(const ConfigChange &change)
{
    return QJsonObject{
        {QStringLiteral("group"), QLatin1String(changeGroupKey(change.group))},
        {QStringLiteral("key"), change.key},
        {QStringLiteral("channel"),
         change.channel < 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(change.channel + 1)},
        {QStringLiteral("where"), change.where},
        {QStringLiteral("field"), change.field},
        {QStringLiteral("before"), change.before},
        {QStringLiteral("after"), change.after},
        {QStringLiteral("text"), change.text()},
    };
}

namespace {

int diffCommand(CliContext &cli, const QStringList &args)
{
    QStringList sides;
    bool json = false;
    for (const QString &a : args) {
        if (a == QLatin1String("--json"))
            json = true;
        else if (!a.startsWith(u'-') && sides.size() < 2)
            sides.append(a);
        else
            return kExitUsage;
    }
    if (sides.size() != 2)
        return kExitUsage;
    ConfigImage before = ConfigImage::blank();
    ConfigImage after = ConfigImage::blank();
    if (!takeSide(cli, sides[0], before) || !takeSide(cli, sides[1], after))
        return kDiffTrouble;

    return printDifferences(cli, before, after, json);
}

} // namespace

int printDifferences(CliContext &cli, const ConfigImage &before, const ConfigImage &after,
                     bool json)
{
    const QList<ConfigChange> changes = configDifferences(before, after);
    if (json) {
        QJsonArray list;
        for (const ConfigChange &change : changes)
            list.append(changeObject(change));
        const QJsonObject root{{QStringLiteral("same"), changes.isEmpty()},
                               {QStringLiteral("changes"), list}};
        cli.out() << QString::fromUtf8(QJsonDocument(root).toJson(QJsonDocument::Indented));
    } else {
        for (const ConfigChange &change : changes)
            cli.out() << change.text() << '\n';
    }
    cli.out() << Qt::flush;
    return changes.isEmpty() ? kDiffSame : kDiffDiffer;
}

void registerDiffCommands(CliCommandTable &table)
{
    table.insert(QStringLiteral("diff"),
                 {QStringLiteral("diff A B [--json]"),
                  QStringLiteral("prints what differs from A to B, one field a line; A and B are "
                                 "configuration files or \"validator\" for a read of the "
                                 "connected one; exit 0 the same, 1 different, 2 trouble"),
                  diffCommand});
}
