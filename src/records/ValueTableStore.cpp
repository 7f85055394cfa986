#include "ValueTableStore.h"

#include "DbfTable.h"
#include "Encodings.h"
#include "KeyOrder.h"
#include "Messages.h"
#include "RowChange.h"
#include "TDBModule.h"
#include "UserPrompt.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <optional>

namespace {

QString channelField(int channel)
{
    return QStringLiteral("CANAL%1").arg(channel);
}

int channelsOf(bool light)
{
    return light ? kLightChannels : kChannels;
}

// A field's text as an integer: nothing for a blank field or text that is not a whole number.
std::optional<qint64> integer(const QString &text)
{
    bool ok = false;
    const double d = text.toDouble(&ok);
    if (!ok || d != std::trunc(d) || std::abs(d) > 9.0e15)
        return std::nullopt;
    return qint64(d);
}

} // namespace

ValueTableStore::ValueTableStore(TDBModule &db, UserPrompt &prompt) : m_db(db), m_prompt(prompt) {}

QString ValueTableStore::notStoredText(const QString &name)
{
    return messageText(Msg::ValueTableNotStored, {name});
}

bool ValueTableStore::tableUsable()
{
    if (m_db.ValueTable()->isOpen())
        return true;
    m_error = TDBModule::refusal(m_db.ValueTable());
    return false;
}

bool ValueTableStore::canChange()
{
    m_error = TDBModule::refusal(m_db.ValueTable());
    return m_error.isEmpty();
}

QList<ValueTableStore::Entry> ValueTableStore::list() const
{
    QList<Entry> entries;
    DbfTable *table = m_db.ValueTable();
    if (table)
        table->refresh(); // rows another program stored meanwhile are listed too
    if (!table || !table->isOpen())
        return entries;
    for (int r : rowsInKeyOrder(*table, QStringLiteral("IDENTI")))
        entries.append(
            {table->text(r, QStringLiteral("IDENTI")), table->text(r, QStringLiteral("DESCRIP"))});
    return entries;
}

int ValueTableStore::rowOf(int at) const
{
    const DbfTable *table = m_db.ValueTable();
    if (!table || !table->isOpen() || at < 0)
        return -1;
    const std::vector<int> rows = rowsInKeyOrder(*table, QStringLiteral("IDENTI"));
    return at < int(rows.size()) ? rows[std::size_t(at)] : -1;
}

int ValueTableStore::find(const QString &name) const
{
    const DbfTable *table = m_db.ValueTable();
    if (!table || !table->isOpen())
        return -1;
    const int r = table->locate(QStringLiteral("IDENTI"), name.trimmed());
    if (r < 0)
        return -1;
    const std::vector<int> rows = rowsInKeyOrder(*table, QStringLiteral("IDENTI"));
    return int(std::find(rows.begin(), rows.end(), r) - rows.begin());
}

ValueTableStore::Outcome ValueTableStore::save(const ValueBlock &block, const QString &name,
                                               const QString &description, bool light)
{
    QString key = name.trimmed();
    if (key.isEmpty())
        return Outcome::EmptyName;
    if (!canChange()) {
        m_prompt.tell(m_error, UserPrompt::Kind::Error);
        return Outcome::Failed;
    }
    DbfTable &table = *m_db.ValueTable();
    // A name is kept exactly as typed or refused before anything is written.
    for (const QString &refusal :
         {table.textRefusal(QStringLiteral("IDENTI"), key),
          table.textRefusal(QStringLiteral("DESCRIP"), description.trimmed())}) {
        if (!refusal.isEmpty()) {
            m_error = refusal;
            m_prompt.tell(refusal, UserPrompt::Kind::Error);
            return Outcome::Failed;
        }
    }

    // The encoded device values are kept, not amounts.
    auto fill = [&](int r) {
        bool ok = table.setValue(r, QStringLiteral("IDENTI"), key) &&
                  table.setValue(r, QStringLiteral("DESCRIP"), description) &&
                  table.setValue(r, QStringLiteral("BASE1"),
                                 qlonglong(bigEndian(block, Val::Base1, 2))) &&
                  table.setValue(r, QStringLiteral("BASE2"),
                                 qlonglong(bigEndian(block, Val::Base2, 2))) &&
                  table.setValue(r, QStringLiteral("CONVERT"),
                                 qlonglong(bigEndian(block, Val::Conversion, 4)));
        for (int channel = 1; ok && channel <= channelsOf(light); ++channel)
            ok = table.setValue(r, channelField(channel),
                                int(block[std::size_t(Val::Channel0 + channel - 1)]));
        return ok;
    };
    switch (RowChange::save(table, QStringLiteral("IDENTI"), key, m_prompt, fill, &m_error)) {
    case RowChange::Result::Declined:
        return Outcome::NotOverwritten;
    case RowChange::Result::Failed:
        m_prompt.tell(m_error, UserPrompt::Kind::Error);
        return Outcome::Failed;
    case RowChange::Result::Done:
        break;
    }
    return Outcome::Saved;
}

bool ValueTableStore::open(int at, ValueBlock &block, bool light, Entry *entry)
{
    m_conversionError.clear();
    if (!tableUsable())
        return false;
    const int r = rowOf(at);
    if (r < 0)
        return false;
    const DbfTable &table = *m_db.ValueTable();
    if (entry)
        *entry = {table.text(r, QStringLiteral("IDENTI")),
                  table.text(r, QStringLiteral("DESCRIP"))};
    // Field by field, each read as text and converted; the first that does not convert stops
    // the reading, so the bytes it and the later fields would give keep their values.
    auto convert = [&](const QString &field, qint64 *value) {
        const QString text = table.text(r, field).trimmed();
        const std::optional<qint64> v = integer(text);
        if (!v) {
            m_conversionError = messageText(Msg::NotValidInteger, {text});
            m_prompt.tell(m_conversionError, UserPrompt::Kind::Error);
            return false;
        }
        *value = *v;
        return true;
    };
    qint64 v = 0;
    if (!convert(QStringLiteral("BASE1"), &v))
        return true;
    putBigEndian(block, Val::Base1, 2, quint32(v));
    if (!convert(QStringLiteral("BASE2"), &v))
        return true;
    putBigEndian(block, Val::Base2, 2, quint32(v));
    if (!convert(QStringLiteral("CONVERT"), &v))
        return true;
    putBigEndian(block, Val::Conversion, 4, quint32(v));
    for (int channel = 1; channel <= channelsOf(light); ++channel) {
        if (!convert(channelField(channel), &v))
            return true;
        // A byte keeps the low eight bits of the number.
        block[std::size_t(Val::Channel0 + channel - 1)] = quint8(v);
    }
    return true;
}

bool ValueTableStore::open(const QString &name, ValueBlock &block, bool light, Entry *entry)
{
    const int at = find(name);
    if (at < 0) {
        if (tableUsable())
            m_error = notStoredText(name.trimmed());
        return false;
    }
    return open(at, block, light, entry);
}

bool ValueTableStore::remove(int at)
{
    if (!canChange())
        return false;
    const int r = rowOf(at);
    if (r < 0)
        return false;
    return RowChange::remove(*m_db.ValueTable(), QStringLiteral("IDENTI"), r, m_prompt, &m_error) ==
           RowChange::Result::Done;
}

bool ValueTableStore::remove(const QString &name)
{
    const int at = find(name);
    if (at < 0) {
        if (tableUsable())
            m_error = notStoredText(name.trimmed());
        return false;
    }
    return remove(at);
}
