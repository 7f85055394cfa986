#include "HistoryRecorder.h"

#include "HistoryFiles.h"
#include "Messages.h"
#include "UserPrompt.h"
#include "ValidatorEvent.h"
#include "WriteVerification.h"

#include <QDir>
#include <QSysInfo>

#include <algorithm>

namespace {

QString &programName()
{
    static QString name = QStringLiteral("tarvik");
    return name;
}

QString userName()
{
    QString user = qEnvironmentVariable("USER");
    if (user.isEmpty())
        user = qEnvironmentVariable("USERNAME");
    return user;
}

} // namespace

void setHistoryProgram(const QString &name)
{
    programName() = name;
}

QString historyProgram()
{
    return programName() + QStringLiteral(" ") + QStringLiteral(TARVIK_VERSION);
}

HistoryEvent historyEvent(quint32 serial, const QString &kind, const QString &result,
                          std::optional<ConfigImage> configuration, const QString &detail)
{
    HistoryEvent event;
    event.serial = serial;
    event.time = QDateTime::currentDateTimeUtc();
    event.kind = kind;
    event.result = result;
    event.program = historyProgram();
    event.machine = QSysInfo::machineHostName();
    event.user = userName();
    event.detail = detail;
    event.configuration = std::move(configuration);
    return event;
}

std::optional<HistoryEvent> writeHistoryEvent(const QString &kind, quint32 serial,
                                              WriteOutcome outcome,
                                              const std::optional<VerifyResult> &verified,
                                              const std::optional<ConfigImage> &written,
                                              const QString &detail)
{
    switch (outcome) {
    case WriteOutcome::Finished:
        break;
    case WriteOutcome::Fault:
        // Part of it may have been stored: what the validator holds is not known.
        return historyEvent(serial, kind, QStringLiteral("failed"), std::nullopt, detail);
    default:
        return std::nullopt; // nothing was sent
    }
    if (verified && verified->outcome != VerifyOutcome::ReadBackFailed) {
        const bool same = verified->outcome == VerifyOutcome::Verified;
        return historyEvent(verified->readBack.serialNumber(), kind,
                            same ? QStringLiteral("verified") : QStringLiteral("mismatch"),
                            verified->readBack, detail);
    }
    return historyEvent(serial, kind, {}, written, detail);
}

std::unique_ptr<HistoryStore> openHistory(const QString &dataDirectory, UserPrompt *prompt)
{
    auto files = std::make_unique<HistoryFiles>(dataDirectory);
    QString error;
    if (files->importBackupsOnce(QDir(dataDirectory).filePath(QStringLiteral("backups")),
                                 QSysInfo::machineHostName(), &error) < 0 &&
        prompt)
        prompt->tell(messageText(Msg::HistoryNotKept, {error}), UserPrompt::Kind::Warning);
    return files;
}

bool keepHistory(HistoryStore *store, const HistoryEvent &event, UserPrompt *prompt)
{
    QString error;
    if (store && store->record(event, &error))
        return true;
    if (prompt)
        prompt->tell(messageText(Msg::HistoryNotKept, {error}), UserPrompt::Kind::Warning);
    return false;
}

namespace {

HistoryStore *&current()
{
    static HistoryStore *store = nullptr;
    return store;
}

} // namespace

void setCurrentHistory(HistoryStore *store)
{
    current() = store;
}

HistoryStore *currentHistory()
{
    return current();
}

void keepValidatorEvent(const ValidatorEvent &event, UserPrompt *prompt)
{
    if (!currentHistory())
        return;
    const std::optional<HistoryEvent> kept =
        event.kind == QLatin1String("read")
            ? std::optional(historyEvent(event.serial, event.kind, {}, event.configuration))
            : writeHistoryEvent(event.kind, event.serial, event.outcome, event.verified,
                                event.configuration);
    if (kept)
        keepHistory(currentHistory(), *kept, prompt);
}

void keepChannelWritten(const QString &kind, const ConfigImage &image, int channel, bool written,
                        UserPrompt *prompt)
{
    HistoryStore *store = currentHistory();
    const quint32 serial = image.serialNumber();
    // A validator whose identification was not read has no history to add to.
    if (!store || std::all_of(image.ident.begin(), image.ident.end(),
                              [](quint8 b) { return b == 0xFF; }))
        return;
    const QString detail = QString::number(channel + 1);
    std::optional<ConfigImage> holds;
    if (written) {
        const std::optional<QList<HistoryEvent>> events = store->events(serial);
        for (qsizetype i = events ? events->size() - 1 : -1; i >= 0; --i) {
            if (events->at(i).configuration) {
                holds = events->at(i).configuration;
                break;
            }
        }
        if (holds) {
            const auto k = std::size_t(channel);
            std::copy_n(image.channels[k].begin(), 15, holds->channels[k].begin());
            if (kind == QLatin1String("learn")) {
                holds->values = image.values;
                holds->enable = image.enable;
                holds->refreshRecordCopies();
            }
        }
    }
    keepHistory(store,
                historyEvent(serial, kind,
                             written ? QString() : QStringLiteral("failed"), holds, detail),
                prompt);
}
