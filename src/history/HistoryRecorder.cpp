#include "HistoryRecorder.h"

#include "HistoryFiles.h"
#include "Messages.h"
#include "UserPrompt.h"
#include "ValidatorEvent.h"
#include "WriteVerification.h"

#include <QDir>
#include <QSysInfo>

#include <algorithm>
#include <utility>

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
        user = qEnvironmentVariable("LOGNAME");
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

namespace {

// The history of a data directory, opened when first used, so that a program that records
// nothing touches nothing; the read backups are taken in then.
class OpenedWhenUsed final : public HistoryStore
{
public:
    OpenedWhenUsed(const QString &dataDirectory, UserPrompt *prompt)
        : m_data(dataDirectory), m_files(dataDirectory), m_prompt(prompt),
          m_opened(QDateTime::currentDateTime())
    {}
    bool record(const HistoryEvent &event, QString *error) override
    {
        takeBackups();
        return m_files.record(event, error);
    }
    std::optional<QList<HistoryEvent>> events(quint32 serial, QString *error) const override
    {
        takeBackups();
        return m_files.events(serial, error);
    }
    std::optional<QList<HistorySerial>> serials(QString *error) const override
    {
        takeBackups();
        return m_files.serials(error);
    }

private:
    void takeBackups() const
    {
        if (std::exchange(m_tried, true))
            return;
        QString error;
        if (m_files.importBackupsOnce(QDir(m_data).filePath(QStringLiteral("backups")),
                                      QSysInfo::machineHostName(), m_opened, &error) < 0 &&
            m_prompt)
            m_prompt->tell(messageText(Msg::HistoryNotKept, {error}), UserPrompt::Kind::Warning);
    }

    QString m_data;
    mutable HistoryFiles m_files;
    UserPrompt *m_prompt;
    QDateTime m_opened;
    mutable bool m_tried = false;
};

} // namespace

std::unique_ptr<HistoryStore> openHistory(const QString &dataDirectory, UserPrompt *prompt)
{
    return std::make_unique<OpenedWhenUsed>(dataDirectory, prompt);
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
    const bool written =
        event.kind != QLatin1String("read") && event.kind != QLatin1String("store");
    const std::optional<HistoryEvent> kept =
        written ? writeHistoryEvent(event.kind, event.serial, event.outcome, event.verified,
                                    event.configuration, event.detail)
                : std::optional(historyEvent(event.serial, event.kind, {}, event.configuration,
                                             event.detail));
    if (kept)
        keepHistory(currentHistory(), *kept, prompt);
}

void keepChannelWritten(const QString &kind, const ConfigImage &image, int channel, bool written,
                        UserPrompt *prompt)
{
    HistoryStore *store = currentHistory();
    const quint32 serial = image.serialNumber();
    // A validator whose identification was not read has no history to add to.
    if (!store ||
        std::all_of(image.ident.begin(), image.ident.end(), [](quint8 b) { return b == 0xFF; }))
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
    keepHistory(
        store,
        historyEvent(serial, kind, written ? QString() : QStringLiteral("failed"), holds, detail),
        prompt);
}

std::optional<quint32> serialSavedAs(const HistoryStore &store, const QString &identification)
{
    std::optional<quint32> found;
    QDateTime newest;
    const std::optional<QList<HistorySerial>> serials = store.serials();
    for (const HistorySerial &serial : serials.value_or(QList<HistorySerial>{})) {
        const std::optional<QList<HistoryEvent>> events = store.events(serial.serial);
        for (const HistoryEvent &event : events.value_or(QList<HistoryEvent>{})) {
            if (event.kind == QLatin1String("store") && event.detail == identification &&
                (!found || event.time > newest)) {
                found = serial.serial;
                newest = event.time;
            }
        }
    }
    return found;
}
