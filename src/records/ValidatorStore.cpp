#include "ValidatorStore.h"

#include "DbfTable.h"
#include "KeyOrder.h"
#include "Messages.h"
#include "TDBModule.h"
#include "TableLock.h"
#include "UserPrompt.h"

#include <algorithm>
#include <cmath>

namespace {

// The channel table's fields for bytes 0 to 14 of a channel record, in record order.
const char *const kRecordFields[15] = {"HFUHIGHMAX", "HFUHIGHMIN", "HFULOWMAX", "HFULOWMIN",
                                       "LFMAX",      "LFMIN",      "DIMMAX",    "DIMMIN",
                                       "HFLHIGHMAX", "HFLHIGHMIN", "HFLLOWMAX", "HFLLOWMIN",
                                       "HFLAMPMAX",  "HFLAMPMIN",  "SUBSTITUTE"};

QString name(const char *field)
{
    return QString::fromLatin1(field);
}

// A stored number as an unsigned value of at most max; a blank field is max (not set).
quint32 storedNumber(const QVariant &v, quint32 max)
{
    if (v.isNull())
        return max;
    const double d = std::round(v.toDouble());
    return d <= 0 ? 0 : d >= max ? max : quint32(d);
}

} // namespace

ValidatorStore::ValidatorStore(TDBModule &db, UserPrompt &prompt) : m_db(db), m_prompt(prompt) {}

bool ValidatorStore::canChange()
{
    for (const DbfTable *table : {m_db.Gettoniere(), m_db.Channel()}) {
        m_error = TDBModule::refusal(table);
        if (!m_error.isEmpty())
            return false;
    }
    return true;
}

ValidatorStore::Outcome ValidatorStore::store(const ConfigImage &image,
                                              const QString &identification,
                                              const QString &description)
{
    QString ident = identification.trimmed();
    if (ident.isEmpty()) {
        m_prompt.tell(messageText(Msg::IdentificationMustBeFilled), UserPrompt::Kind::Warning);
        return Outcome::EmptyIdentification;
    }
    const TableLock::WaitBudget wait; // one bounded wait for the whole save
    m_db.refreshValidators();
    if (!canChange()) {
        m_prompt.tell(m_error, UserPrompt::Kind::Error);
        return Outcome::Failed;
    }
    DbfTable &validators = *m_db.Gettoniere();
    DbfTable &channels = *m_db.Channel();
    // A name is kept exactly as typed or refused before anything is written: cut, or with '?'
    // for what the code page lacks, it would be found as another validator.
    for (const QString &refusal :
         {validators.textRefusal(QStringLiteral("IDENT"), ident),
          channels.textRefusal(QStringLiteral("MONNAYEUR"), ident),
          validators.textRefusal(QStringLiteral("DESCRIPTIO"), description.trimmed())}) {
        if (!refusal.isEmpty()) {
            m_error = refusal;
            m_prompt.tell(refusal, UserPrompt::Kind::Error);
            return Outcome::Failed;
        }
    }

    auto overwrite = [&] {
        return m_prompt.ask(messageText(Msg::ExistOverwrite, {ident}), UserPrompt::Kind::Warning,
                            UserPrompt::Buttons::YesNo) == UserPrompt::Answer::Yes;
    };

    // The question is about the validator as it is now; the tables are locked only once it is
    // answered, and asked again about a validator another program stored or changed meanwhile.
    QByteArray agreed; // the validator row the person agreed to overwrite, empty for none
    int existing = validators.locate(QStringLiteral("IDENT"), ident);
    if (existing >= 0) {
        if (!overwrite())
            return Outcome::NotOverwritten;
        agreed = validators.rawRecord(existing);
    }
    Outcome outcome = Outcome::Failed;
    for (;;) {
        {
            TableChangeLock lock({&validators, &channels});
            if (!lock.ok()) {
                m_error = lock.errorString();
                break;
            }
            existing = validators.locate(QStringLiteral("IDENT"), ident);
            if (existing < 0 || validators.rawRecord(existing) == agreed) {
                outcome = storeLocked(image, ident, description, existing);
                break; // the lock drops what was not committed
            }
        }
        if (!overwrite())
            return Outcome::NotOverwritten;
        agreed = validators.rawRecord(validators.locate(QStringLiteral("IDENT"), ident));
    }
    // Said once the tables are free again.
    if (outcome == Outcome::Stored)
        m_prompt.tell(messageText(Msg::FileSaved, {ident}), UserPrompt::Kind::Information);
    else
        m_prompt.tell(m_error, UserPrompt::Kind::Error);
    return outcome;
}

ValidatorStore::Outcome ValidatorStore::storeLocked(const ConfigImage &image, const QString &ident,
                                                    const QString &description, int existing)
{
    DbfTable &validators = *m_db.Gettoniere();
    DbfTable &channels = *m_db.Channel();
    auto failed = [&](const QString &error) {
        m_error = error;
        return Outcome::Failed;
    };
    if (existing >= 0 &&
        (!m_db.GettoniereBeforeDelete(existing) || !validators.deleteRecord(existing)))
        return failed(channels.isReadOnly() ? channels.errorString() : validators.errorString());
    // Channel rows left behind by a store that was cut short go too, so that an
    // identification never has two sets of channels.
    for (int row : channels.locateAll(QStringLiteral("MONNAYEUR"), ident)) {
        if (!channels.deleteRecord(row))
            return failed(channels.errorString());
    }

    const int v = validators.appendRecord();
    if (v < 0)
        return failed(validators.errorString());
    const quint32 conversion = quint32(image.values[Val::Conversion]) << 24 |
                               quint32(image.values[Val::Conversion + 1]) << 16 |
                               quint32(image.values[Val::Conversion + 2]) << 8 |
                               image.values[Val::Conversion + 3];
    bool ok =
        validators.setValue(v, QStringLiteral("IDENT"), ident) &&
        validators.setValue(v, QStringLiteral("DESCRIPTIO"), description) &&
        validators.setValue(v, QStringLiteral("VERSION"), QString::number(image.familyByte())) &&
        validators.setValue(v, QStringLiteral("OPTION"),
                            image.options[0] << 8 | image.options[1]) &&
        validators.setValue(v, QStringLiteral("BASE1"),
                            image.values[Val::Base1] << 8 | image.values[Val::Base1 + 1]) &&
        validators.setValue(v, QStringLiteral("BASE2"),
                            image.values[Val::Base2] << 8 | image.values[Val::Base2 + 1]) &&
        validators.setValue(v, QStringLiteral("CONVERSION"), double(conversion));
    for (int i = 0; ok && i < 6; ++i)
        ok = validators.setValue(v, QStringLiteral("PRIX%1").arg(i), image.prices[std::size_t(i)]);
    if (!ok)
        return failed(validators.errorString());

    for (int k = 0; k < kChannels; ++k) {
        const ChannelRecord &record = image.channels[std::size_t(k)];
        const int c = channels.appendRecord();
        ok = c >= 0 && channels.setValue(c, QStringLiteral("MONNAYEUR"), ident) &&
             channels.setValue(c, QStringLiteral("CANAL"), k + 1);
        for (int b = 0; ok && b < 15; ++b)
            ok = channels.setValue(c, name(kRecordFields[b]), record[std::size_t(b)]);
        const quint8 enabled = record[Rec::Enabled];
        ok = ok &&
             channels.setValue(c, QStringLiteral("VALID"),
                               enabled == 255 ? QVariant() : QVariant(enabled != 0)) &&
             channels.setValue(c, QStringLiteral("VALEUR"), record[Rec::Value]);
        if (!ok)
            return failed(channels.errorString());
    }

    // One commit of both tables: after a crash the validator is there whole or as it was.
    QString error;
    if (!DbfTable::commitTogether({&validators, &channels}, &error))
        return failed(error);
    return Outcome::Stored;
}

bool ValidatorStore::load(const QString &identification, ConfigImage &image, QString *description,
                          LoadReport *report)
{
    // What another program stored meanwhile counts, both tables from one moment.
    const TableLock::WaitBudget wait;
    m_db.refreshValidators();
    // Without the channel table every channel opens empty.
    if (!m_db.Gettoniere()->isOpen()) {
        m_error = TDBModule::refusal(m_db.Gettoniere());
        return false;
    }
    const DbfTable &validators = *m_db.Gettoniere();
    const DbfTable &channels = *m_db.Channel();
    const int v = validators.locate(QStringLiteral("IDENT"), identification.trimmed());
    if (v < 0) {
        m_error = messageText(Msg::RecordsNotStored, {identification.trimmed()});
        return false;
    }
    const QString ident = validators.text(v, QStringLiteral("IDENT"));

    image = ConfigImage::blank();
    if (description)
        *description = validators.text(v, QStringLiteral("DESCRIPTIO"));
    const quint32 option = storedNumber(validators.value(v, QStringLiteral("OPTION")), 0xFFFF);
    image.options = {quint8(option >> 8), quint8(option)};
    const quint32 base1 = storedNumber(validators.value(v, QStringLiteral("BASE1")), 0xFFFF);
    const quint32 base2 = storedNumber(validators.value(v, QStringLiteral("BASE2")), 0xFFFF);
    const quint32 conversion =
        storedNumber(validators.value(v, QStringLiteral("CONVERSION")), 0xFFFFFFFF);
    image.values[Val::Base1] = quint8(base1 >> 8);
    image.values[Val::Base1 + 1] = quint8(base1);
    image.values[Val::Base2] = quint8(base2 >> 8);
    image.values[Val::Base2 + 1] = quint8(base2);
    for (int i = 0; i < 4; ++i)
        image.values[std::size_t(Val::Conversion + i)] = quint8(conversion >> (24 - 8 * i));
    for (int i = 0; i < 6; ++i) {
        image.prices[std::size_t(i)] =
            quint8(storedNumber(validators.value(v, QStringLiteral("PRIX%1").arg(i)), 255));
    }

    // The rows written under exactly this identification; rows of an identification that
    // differs only in case when there are none.
    std::vector<int> rows = channels.locateAll(QStringLiteral("MONNAYEUR"), ident);
    std::vector<int> exact;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(exact),
                 [&](int r) { return channels.text(r, QStringLiteral("MONNAYEUR")) == ident; });
    if (!exact.empty())
        rows = exact;
    // Older stores may have counted channels from 0.
    const int canal = channels.fieldIndex(QStringLiteral("CANAL"));
    const bool fromZero =
        std::any_of(rows.begin(), rows.end(),
                    [&](int r) { return channels.value(r, canal).toInt() == 0; }) &&
        std::none_of(rows.begin(), rows.end(),
                     [&](int r) { return channels.value(r, canal).toInt() == kChannels; });
    std::array<int, kChannels> seen{};
    for (int r : rows) {
        const int k = channels.value(r, canal).toInt() - (fromZero ? 0 : 1);
        if (k < 0 || k >= kChannels)
            continue;
        if (seen[std::size_t(k)]++ > 0)
            continue; // the first row of a channel counts
        ChannelRecord &record = image.channels[std::size_t(k)];
        for (int b = 0; b < 15; ++b)
            record[std::size_t(b)] =
                quint8(storedNumber(channels.value(r, name(kRecordFields[b])), 255));
        const quint8 value = quint8(storedNumber(channels.value(r, QStringLiteral("VALEUR")), 255));
        record[Rec::Value] = value;
        image.values[std::size_t(Val::Channel0 + k)] = value;
        const QVariant valid = channels.value(r, QStringLiteral("VALID"));
        record[Rec::Enabled] = valid.isNull() ? 255 : (valid.toBool() ? 1 : 0);
    }
    if (report) {
        *report = {};
        for (int k = 0; k < kChannels; ++k) {
            if (seen[std::size_t(k)] == 0)
                report->missing.append(k + 1);
            else if (seen[std::size_t(k)] > 1)
                report->duplicated.append(k + 1);
        }
    }
    return true;
}

bool ValidatorStore::loadInto(const QString &identification, ConfigImage &image,
                              QString *description, LoadReport *report)
{
    ConfigImage stored = ConfigImage::blank();
    if (!load(identification, stored, description, report))
        return false;
    const DbfTable &validators = *m_db.Gettoniere();
    const int v = validators.locate(QStringLiteral("IDENT"), identification.trimmed());
    openInto(stored, familyOf(validators.text(v, QStringLiteral("VERSION"))), image);
    return true;
}

int ValidatorStore::familyOf(const QString &version)
{
    bool ok = false;
    const int family = version.trimmed().toInt(&ok);
    return ok && family >= 0 && family <= 255 ? family : -1;
}

void ValidatorStore::openInto(const ConfigImage &stored, int family, ConfigImage &image)
{
    if (family >= 0)
        image.version[0] = quint8(family);
    image.options = stored.options;
    image.prices = stored.prices;
    // Bytes 68 to 74 of the value block are not in the tables.
    std::copy_n(stored.values.begin(), Val::Conversion + 4, image.values.begin());
    image.channels = stored.channels;
    for (ChannelRecord &record : image.channels) {
        if (record[Rec::Enabled] != 1)
            record[Rec::Enabled] = 0;
    }
    image.rebuildEnableBitmap();
}

QList<ValidatorStore::Entry> ValidatorStore::list() const
{
    QList<Entry> entries;
    m_db.Gettoniere()->refresh(); // validators another program stored meanwhile are listed too
    const DbfTable &validators = *m_db.Gettoniere();
    if (!validators.isOpen())
        return entries;
    for (int r : rowsInKeyOrder(validators, QStringLiteral("IDENT"))) {
        entries.append({validators.text(r, QStringLiteral("IDENT")),
                        validators.text(r, QStringLiteral("DESCRIPTIO")),
                        validators.text(r, QStringLiteral("VERSION"))});
    }
    return entries;
}

bool ValidatorStore::remove(const QString &identification)
{
    const TableLock::WaitBudget wait;
    if (!canChange())
        return false;
    const QString ident = identification.trimmed();
    int v = m_db.Gettoniere()->locate(QStringLiteral("IDENT"), ident);
    if (v < 0) {
        m_error = messageText(Msg::RecordsNotStored, {ident});
        return false;
    }
    for (;;) {
        bool changedMeanwhile = false;
        if (m_db.deleteValidator(v, &changedMeanwhile))
            return true;
        m_error = m_db.errorString();
        if (!changedMeanwhile)
            return false;
        // Another program changed it since it was shown: ask again, about it as it is now.
        v = m_db.Gettoniere()->locate(QStringLiteral("IDENT"), ident);
        if (v < 0)
            return true; // deleted by another program already
        if (m_prompt.ask(messageText(Msg::RecordsChangedMeanwhile, {ident}),
                         UserPrompt::Kind::Warning,
                         UserPrompt::Buttons::YesNo) != UserPrompt::Answer::Yes)
            return false;
    }
}
