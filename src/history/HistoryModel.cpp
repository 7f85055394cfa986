#include "HistoryModel.h"

#include "Captions.h"
#include "Messages.h"
#include "UserPrompt.h"

#include <utility>

namespace {

// A message box must fit the screen: the first lines of what will change, then how many more.
constexpr int kQuestionLines = 20;

} // namespace

HistoryModel::HistoryModel(const HistoryStore &store, UserPrompt *prompt)
    : m_store(store), m_prompt(prompt)
{}

QString HistoryModel::kindText(const QString &kind)
{
    static const QList<std::pair<QString, Cap>> kinds{
        {QStringLiteral("read"), Cap::HistoryKindRead},
        {QStringLiteral("write"), Cap::HistoryKindWrite},
        {QStringLiteral("clone"), Cap::HistoryKindClone},
        {QStringLiteral("changes"), Cap::HistoryKindChanges},
        {QStringLiteral("batch"), Cap::HistoryKindBatch},
        {QStringLiteral("learn"), Cap::HistoryKindLearn},
        {QStringLiteral("calibrate"), Cap::HistoryKindCalibrate},
        {QStringLiteral("restore"), Cap::HistoryKindRestore},
        {QStringLiteral("backup"), Cap::HistoryKindBackup},
        {QStringLiteral("store"), Cap::HistoryKindStore}};
    for (const auto &[key, caption] : kinds) {
        if (key == kind)
            return captionText(caption);
    }
    return kind; // a kind of a newer program
}

QString HistoryModel::resultText(const QString &result)
{
    if (result == QLatin1String("verified"))
        return captionText(Cap::HistoryVerified);
    if (result == QLatin1String("mismatch"))
        return captionText(Cap::HistoryMismatch);
    if (result == QLatin1String("failed"))
        return captionText(Cap::HistoryFailed);
    return result;
}

QStringList HistoryModel::columnTitles()
{
    return {captionText(Cap::HistoryTime), captionText(Cap::HistoryKind),
            captionText(Cap::HistoryResult), captionText(Cap::HistoryProgram),
            captionText(Cap::HistoryChanges)};
}

QString HistoryModel::title() const
{
    return captionText(Cap::HistoryTitle, {QString::number(m_serial)});
}

QString HistoryModel::eventTime(int index) const
{
    return m_events.at(index).time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

bool HistoryModel::load(quint32 serial)
{
    m_serial = serial;
    m_events.clear();
    m_rows.clear();
    m_chosen.clear();
    m_heading.clear();
    m_lines.clear();
    QString error;
    const std::optional<QList<HistoryEvent>> events = m_store.events(serial, &error);
    if (!events) {
        if (m_prompt)
            m_prompt->tell(messageText(Msg::HistoryNotRead, {error}), UserPrompt::Kind::Error);
        return false;
    }
    m_events = *events;
    for (int i = 0; i < m_events.size(); ++i) {
        const HistoryEvent &event = m_events.at(i);
        Row row;
        row.time = eventTime(i);
        row.kind = kindText(event.kind);
        if (!event.detail.isEmpty() && event.kind != QLatin1String("backup"))
            row.kind += QStringLiteral(" (") + event.detail + QStringLiteral(")");
        row.result = resultText(event.result);
        row.program = QStringList{event.program, event.machine, event.user}.join(u' ').simplified();
        const std::optional<QList<ConfigChange>> changes = changesAt(i);
        if (!event.configuration)
            row.changes = captionText(Cap::HistoryUnknown);
        else if (!changes)
            row.changes = captionText(Cap::HistoryFirst);
        else if (changes->isEmpty())
            row.changes = captionText(Cap::HistoryNoChange);
        else if (changes->size() == 1)
            row.changes = changes->first().text();
        else
            row.changes =
                changes->first().text() + QStringLiteral(" (+%1)").arg(changes->size() - 1);
        m_rows.append(row);
    }
    if (m_events.isEmpty())
        m_lines.append(captionText(Cap::HistoryEmpty));
    return true;
}

std::optional<QList<ConfigChange>> HistoryModel::changesAt(int index) const
{
    if (index < 0 || index >= m_events.size() || !m_events.at(index).configuration)
        return std::nullopt;
    for (int before = index - 1; before >= 0; --before) {
        if (m_events.at(before).configuration)
            return configDifferences(*m_events.at(before).configuration,
                                     *m_events.at(index).configuration);
    }
    return std::nullopt;
}

std::optional<QList<ConfigChange>> HistoryModel::compare(int a, int b) const
{
    if (a < 0 || b < 0 || a >= m_events.size() || b >= m_events.size() ||
        !m_events.at(a).configuration || !m_events.at(b).configuration)
        return std::nullopt;
    return configDifferences(*m_events.at(a).configuration, *m_events.at(b).configuration);
}

void HistoryModel::choose(const QList<int> &rows)
{
    m_chosen.clear();
    for (const int row : rows) {
        if (row >= 0 && row < m_events.size() && !m_chosen.contains(row))
            m_chosen.append(row);
    }
    std::sort(m_chosen.begin(), m_chosen.end());
    m_heading.clear();
    m_lines.clear();
    std::optional<QList<ConfigChange>> changes;
    if (m_chosen.size() == 1) {
        m_heading = captionText(Cap::HistorySinceBefore, {QString::number(m_chosen[0] + 1)});
        changes = changesAt(m_chosen[0]);
        if (!changes)
            m_lines.append(m_rows.at(m_chosen[0]).changes);
    } else if (m_chosen.size() == 2) {
        m_heading = captionText(Cap::HistoryComparison, {QString::number(m_chosen[0] + 1),
                                                         QString::number(m_chosen[1] + 1)});
        changes = compare(m_chosen[0], m_chosen[1]);
        if (!changes)
            m_lines.append(captionText(Cap::HistoryUnknown));
    }
    if (changes && changes->isEmpty())
        m_lines.append(captionText(Cap::HistoryNoChange));
    if (changes) {
        for (const ConfigChange &change : *changes)
            m_lines.append(change.text());
    }
}

void HistoryModel::setRestore(std::function<bool(const ConfigImage &)> write,
                              std::function<std::optional<ConfigImage>()> holds)
{
    m_write = std::move(write);
    m_holds = std::move(holds);
}

bool HistoryModel::restoreEnabled() const
{
    return m_write && m_chosen.size() == 1 && m_events.at(m_chosen[0]).configuration.has_value();
}

std::optional<ConfigImage> HistoryModel::newestConfiguration() const
{
    if (m_holds)
        return m_holds();
    for (qsizetype i = m_events.size() - 1; i >= 0; --i) {
        if (m_events.at(i).configuration)
            return m_events.at(i).configuration;
    }
    return std::nullopt;
}

bool HistoryModel::restore()
{
    if (!m_write || m_chosen.size() != 1)
        return false;
    const int index = m_chosen[0];
    const std::optional<ConfigImage> &state = m_events.at(index).configuration;
    if (!state) {
        if (m_prompt)
            m_prompt->tell(messageText(Msg::HistoryNoConfiguration), UserPrompt::Kind::Warning);
        return false;
    }
    // What will change, against what the validator holds as far as the program knows.
    const std::optional<ConfigImage> now = newestConfiguration();
    QStringList lines;
    if (now) {
        const QList<ConfigChange> changes = configDifferences(*now, *state);
        if (changes.isEmpty()) {
            if (m_prompt)
                m_prompt->tell(messageText(Msg::HistoryRestoreNothing, {eventTime(index)}));
            return false;
        }
        for (qsizetype i = 0; i < changes.size() && i < kQuestionLines; ++i)
            lines.append(changes.at(i).text());
        if (changes.size() > kQuestionLines)
            lines.append(messageText(Msg::VerificationMore,
                                     {QString::number(changes.size() - kQuestionLines)}));
    } else {
        lines.append(captionText(Cap::HistoryUnknown));
    }
    if (!m_prompt ||
        m_prompt->ask(
            messageText(Msg::HistoryRestoreQuestion, {eventTime(index), lines.join(u'\n')}),
            UserPrompt::Kind::Confirmation, UserPrompt::Buttons::YesNo) != UserPrompt::Answer::Yes)
        return false;
    const bool written = m_write(*state);
    load(m_serial);
    return written;
}
