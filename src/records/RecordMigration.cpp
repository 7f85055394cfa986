#include "RecordMigration.h"

#include "HistoryStore.h"
#include "RecordStore.h"

#include <algorithm>
#include <functional>

namespace RecordMigration {

bool Report::ok() const
{
    return std::all_of(counts.begin(), counts.end(),
                       [](const Counts &c) { return c.different == 0 && c.failed == 0; });
}

namespace {

struct StoredValidator
{
    ConfigImage image = ConfigImage::blank();
    QString description;
    int family = -1;
    bool operator==(const StoredValidator &) const = default;
};

std::optional<StoredValidator> loadValidator(RecordStore &store, const QString &ident)
{
    StoredValidator v;
    if (!store.loadValidator(ident, v.image, &v.description, &v.family, nullptr))
        return std::nullopt;
    return v;
}

bool sameProfile(const ProfileRecord &a, const ProfileRecord &b)
{
    return a.name == b.name && a.description == b.description && a.substitute == b.substitute &&
           a.enabled == b.enabled && a.value == b.value && a.tolerances == b.tolerances;
}

struct StoredValues
{
    ValueBlock block{};
    QString description;
    bool light = false;
    bool operator==(const StoredValues &) const = default;
};

// A table whose channels past the Light model's are blank is a Light model's.
std::optional<StoredValues> openValues(RecordStore &store, const QString &name)
{
    StoredValues v;
    ValueTableStore::Entry entry;
    if (!store.openValueTable(name, v.block, true, &entry) || !store.errorString().isEmpty())
        return std::nullopt;
    ValueBlock full{};
    if (!store.openValueTable(name, full, false, &entry))
        return std::nullopt;
    v.light = !store.errorString().isEmpty();
    if (!v.light)
        v.block = full;
    v.description = entry.description;
    return v;
}

// The common course for one kind of record: read from the source, compare with the target,
// copy when missing, read back.
template <typename Item>
void copyOne(Counts &counts, QStringList &problems, const QString &name, RecordStore &from,
             RecordStore &to, const std::function<std::optional<Item>(RecordStore &)> &read,
             const std::function<bool(const Item &)> &write,
             const std::function<bool(RecordStore &)> &exists)
{
    const std::optional<Item> source = read(from);
    if (!source) {
        ++counts.failed;
        problems.append(
            QStringLiteral("%1 %2: not read: %3").arg(counts.what, name, from.errorString()));
        return;
    }
    if (exists(to)) {
        const std::optional<Item> there = read(to);
        if (there && *there == *source) {
            ++counts.present;
            ++counts.checked;
        } else {
            ++counts.different;
            problems.append(QStringLiteral("%1 %2: stored otherwise in the target, left as it is")
                                .arg(counts.what, name));
        }
        return;
    }
    if (!write(*source)) {
        ++counts.failed;
        problems.append(
            QStringLiteral("%1 %2: not copied: %3").arg(counts.what, name, to.errorString()));
        return;
    }
    ++counts.copied;
    const std::optional<Item> back = read(to);
    if (back && *back == *source)
        ++counts.checked;
    else {
        ++counts.failed;
        problems.append(
            QStringLiteral("%1 %2: copied but does not read back alike").arg(counts.what, name));
    }
}

template <typename Entry>
bool listed(const QList<Entry> &entries, const QString &name, QString Entry::*key)
{
    return std::any_of(entries.begin(), entries.end(), [&](const Entry &e) {
        return (e.*key).compare(name, Qt::CaseInsensitive) == 0;
    });
}

struct Profile
{
    ProfileRecord record;
    bool operator==(const Profile &other) const { return sameProfile(record, other.record); }
};

} // namespace

Report copyRecords(RecordStore &from, RecordStore &to)
{
    Report report;
    Counts validators{QStringLiteral("validators")};
    const QList<ValidatorStore::Entry> targetValidators = to.validators();
    for (const ValidatorStore::Entry &entry : from.validators()) {
        const QString ident = entry.identification;
        copyOne<StoredValidator>(
            validators, report.problems, ident, from, to,
            [&](RecordStore &s) { return loadValidator(s, ident); },
            [&](const StoredValidator &v) {
                ConfigImage image = v.image;
                if (v.family >= 0)
                    image.version[0] = quint8(v.family);
                return to.storeValidator(image, ident, v.description) ==
                       ValidatorStore::Outcome::Stored;
            },
            [&](RecordStore &) {
                return listed(targetValidators, ident, &ValidatorStore::Entry::identification);
            });
    }
    report.counts.append(validators);

    Counts profiles{QStringLiteral("profiles")};
    const QList<ProfileStore::Entry> targetProfiles = to.profiles();
    for (const ProfileStore::Entry &entry : from.profiles()) {
        const QString name = entry.name;
        copyOne<Profile>(
            profiles, report.problems, name, from, to,
            [&](RecordStore &s) -> std::optional<Profile> {
                const std::optional<ProfileRecord> p = s.loadProfile(name);
                return p ? std::optional<Profile>(Profile{*p}) : std::nullopt;
            },
            [&](const Profile &p) {
                return to.saveProfile(p.record) == ProfileStore::Outcome::Saved;
            },
            [&](RecordStore &) {
                return listed(targetProfiles, name, &ProfileStore::Entry::name);
            });
    }
    report.counts.append(profiles);

    Counts values{QStringLiteral("value tables")};
    const QList<ValueTableStore::Entry> targetValues = to.valueTables();
    for (const ValueTableStore::Entry &entry : from.valueTables()) {
        const QString name = entry.name;
        copyOne<StoredValues>(
            values, report.problems, name, from, to,
            [&](RecordStore &s) { return openValues(s, name); },
            [&](const StoredValues &v) {
                return to.saveValueTable(v.block, name, v.description, v.light) ==
                       ValueTableStore::Outcome::Saved;
            },
            [&](RecordStore &) {
                return listed(targetValues, name, &ValueTableStore::Entry::name);
            });
    }
    report.counts.append(values);
    return report;
}

namespace {

bool sameEvent(const HistoryEvent &a, const HistoryEvent &b)
{
    return a.serial == b.serial && a.time == b.time && a.kind == b.kind && a.machine == b.machine;
}

bool alike(const HistoryEvent &a, const HistoryEvent &b)
{
    return sameEvent(a, b) && a.result == b.result && a.program == b.program && a.user == b.user &&
           a.detail == b.detail && a.configuration == b.configuration;
}

} // namespace

Report copyHistory(HistoryStore &from, HistoryStore &to)
{
    Report report;
    Counts counts{QStringLiteral("history events")};
    QString error;
    const std::optional<QList<HistorySerial>> serials = from.serials(&error);
    if (!serials) {
        ++counts.failed;
        report.problems.append(QStringLiteral("history: not read: %1").arg(error));
        report.counts.append(counts);
        return report;
    }
    for (const HistorySerial &serial : *serials) {
        const std::optional<QList<HistoryEvent>> source = from.events(serial.serial, &error);
        const std::optional<QList<HistoryEvent>> target =
            source ? to.events(serial.serial, &error) : std::nullopt;
        if (!source || !target) {
            ++counts.failed;
            report.problems.append(
                QStringLiteral("history of %1: not read: %2").arg(serial.serial).arg(error));
            continue;
        }
        QList<HistoryEvent> copied;
        for (const HistoryEvent &event : *source) {
            const auto there = std::find_if(target->begin(), target->end(),
                                            [&](const auto &t) { return sameEvent(t, event); });
            if (there != target->end()) {
                if (alike(*there, event)) {
                    ++counts.present;
                    ++counts.checked;
                } else {
                    ++counts.different;
                    report.problems.append(QStringLiteral("history of %1: the event of %2 is "
                                                          "recorded otherwise in the target")
                                               .arg(event.serial)
                                               .arg(event.time.toString(Qt::ISODateWithMs)));
                }
            } else if (to.record(event, &error)) {
                ++counts.copied;
                copied.append(event);
            } else {
                ++counts.failed;
                report.problems.append(
                    QStringLiteral("history of %1: not copied: %2").arg(serial.serial).arg(error));
            }
        }
        if (copied.isEmpty())
            continue;
        const std::optional<QList<HistoryEvent>> back = to.events(serial.serial, &error);
        for (const HistoryEvent &event : copied) {
            const bool found = back && std::any_of(back->begin(), back->end(),
                                                   [&](const auto &t) { return alike(t, event); });
            if (found)
                ++counts.checked;
            else {
                ++counts.failed;
                report.problems.append(
                    QStringLiteral("history of %1: copied but does not read back alike")
                        .arg(event.serial));
            }
        }
    }
    report.counts.append(counts);
    return report;
}

} // namespace RecordMigration
