#pragma once

#include <QList>
#include <QString>
#include <array>
#include <optional>

class TDBModule;
class UserPrompt;

// One coin profile as the profile table (DemTable) holds it.
struct ProfileRecord
{
    static constexpr int kTolerances = 14;

    QString name;
    QString description;
    int substitute = 0;
    bool enabled = false;
    // The channel value byte (253 and 254 pay price 1 and 2); nothing when the field is blank.
    std::optional<int> value;
    // HFULOWMIN ... AMPMAX, in the row order of the tolerance grid; nothing for a blank field.
    std::array<std::optional<int>, kTolerances> tolerances{};
};

// Keeps coin profiles in the profile table, one row per name.
class ProfileStore final
{
public:
    ProfileStore(TDBModule &db, UserPrompt &prompt);
    Q_DISABLE_COPY_MOVE(ProfileStore)

    // The tolerance fields, in the row order of the tolerance grid.
    static const std::array<const char *, ProfileRecord::kTolerances> &toleranceFields();

    struct Entry
    {
        QString name;
        QString description;
    };
    // The stored profiles in file order.
    QList<Entry> list() const;

    // The profile whose name equals name without regard to case; nothing when there is none
    // (errorString() is then empty) or the table cannot be read.
    std::optional<ProfileRecord> load(const QString &name);

    enum class Outcome
    {
        Saved,
        EmptyName,
        NotOverwritten,
        Failed
    };
    // Saves under the trimmed name; an empty name saves nothing. An existing name (compared
    // without regard to case) is replaced in place only when the user answers Yes to
    // "%s exist! Overwrite ?". Failures are told through the prompt.
    Outcome save(const ProfileRecord &profile);

    // Deletes the profile of that name; false, with errorString() saying why, when there is none
    // or it cannot be deleted.
    bool remove(const QString &name);

    // Whether the table takes changes now; errorString() says why not.
    bool canChange();

    QString errorString() const { return m_error; }
    TDBModule &module() const { return m_db; }
    UserPrompt &prompt() const { return m_prompt; }

private:
    bool tableUsable();

    TDBModule &m_db;
    UserPrompt &m_prompt;
    QString m_error;
};
