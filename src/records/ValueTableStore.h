#pragma once

#include "ConfigImage.h"

#include <QList>
#include <QString>
#include <QStringList>

class TDBModule;
class UserPrompt;

// Keeps value tables in the value table (Valeurs.dbf): per name the two credit bases, the
// conversion ratio and the value byte of every channel, as the validator encodes them. Bytes
// 68 to 74 of a value block are not kept.
class ValueTableStore final
{
public:
    ValueTableStore(TDBModule &db, UserPrompt &prompt);
    Q_DISABLE_COPY_MOVE(ValueTableStore)

    struct Entry
    {
        QString name;
        QString description;
    };
    // The stored tables by name (the active index IDENTI), in the order of the table's driver.
    QList<Entry> list() const;
    // The position in list() of the table whose name equals name without regard to case; -1.
    int find(const QString &name) const;

    enum class Outcome
    {
        Saved,
        EmptyName,
        NotOverwritten,
        Failed
    };
    // Saves the bases, the ratio and the value bytes of channels 1 to 60 (1 to 25 on the Light
    // model) under the trimmed name. An empty name saves nothing. An existing name (compared
    // without regard to case) is replaced in place only when the user answers Yes to "%s
    // exist! Overwrite ?". Failures are told through the prompt.
    Outcome save(const ValueBlock &block, const QString &name, const QString &description,
                 bool light);

    // Fills block from entry `at` of list(): the bases, the ratio and the value bytes of
    // channels 1 to 60 (1 to 25 on the Light model), in that order; every other byte keeps its
    // value. Each field is read as text and converted to an integer (a word, the ratio and a
    // byte keep its low 16, 32 and 8 bits). A field that does not convert, a blank one too,
    // stops the reading with the conversion error, told through the prompt and kept in
    // conversionError(): the fields before it are in block, the bytes of the others keep their
    // values. False only when there is no such entry.
    bool open(int at, ValueBlock &block, bool light, Entry *entry = nullptr);
    // The same by name; false when there is none (errorString() is then notStoredText()).
    bool open(const QString &name, ValueBlock &block, bool light, Entry *entry = nullptr);

    // Deletes entry `at` of list(), or the table of that name.
    bool remove(int at);
    bool remove(const QString &name);

    // Whether the table takes changes now; errorString() says why not.
    bool canChange();

    QString errorString() const { return m_error; }
    TDBModule &module() const { return m_db; }
    UserPrompt &prompt() const { return m_prompt; }
    // Why the last open stopped before the last field; empty when every field converted.
    QString conversionError() const { return m_conversionError; }

    // "No value table %s is stored".
    static QString notStoredText(const QString &name);

private:
    bool tableUsable();
    int rowOf(int at) const;

    TDBModule &m_db;
    UserPrompt &m_prompt;
    QString m_error;
    QString m_conversionError;
};
