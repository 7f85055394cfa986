#pragma once

#include "ConfigImage.h"

#include <QList>
#include <QString>

class TDBModule;
class UserPrompt;

// Keeps validators' configurations in the validator table (Gettoniere) and the channel table
// (Channel): one validator row and 60 channel rows per identification.
class ValidatorStore final
{
public:
    ValidatorStore(TDBModule &db, UserPrompt &prompt);
    Q_DISABLE_COPY_MOVE(ValidatorStore)

    enum class Outcome
    {
        Stored,
        EmptyIdentification,
        NotOverwritten,
        Failed
    };

    // Stores an image under an identification. An existing identification (compared without
    // regard to case) is replaced only when the user answers Yes to "%s exist! Overwrite ?".
    // Messages and questions go through the prompt.
    Outcome store(const ConfigImage &image, const QString &identification,
                  const QString &description);

    // Channels (from 1) that a stored validator has no row for, or more than one (the first
    // row is taken).
    struct LoadReport
    {
        QList<int> missing;
        QList<int> duplicated;
    };

    // Fills the channel table, the value block, the options and the prices of a blank image
    // from a stored validator; every other block stays not set (255). A channel the channel
    // table has no row for (or the table is not open) is reported missing.
    bool load(const QString &identification, ConfigImage &image, QString *description = nullptr,
              LoadReport *report = nullptr);
    // Opens a stored validator into the image the editor holds: the family byte, the options,
    // the bases, ratio and channel values, the prices and every channel (a channel without a
    // row opens empty) with the enable mask rebuilt; the blocks the tables do not hold keep
    // the image's bytes.
    bool loadInto(const QString &identification, ConfigImage &image, QString *description = nullptr,
                  LoadReport *report = nullptr);

    // The family byte a stored VERSION text gives; -1 when it gives none.
    static int familyOf(const QString &version);
    // What loadInto() does with a loaded blank image and the stored family byte.
    static void openInto(const ConfigImage &stored, int family, ConfigImage &image);

    struct Entry
    {
        QString identification;
        QString description;
        QString version;
    };
    // The stored validators by identification (the active index IDENT), in the order of the
    // table's driver.
    QList<Entry> list() const;

    // Deletes a stored validator with its channel rows; asks again when another program
    // changed it since this one read it.
    bool remove(const QString &identification);

    // Whether both tables take changes now; errorString() says why not.
    bool canChange();

    QString errorString() const { return m_error; }

private:
    // The rest of store() once both tables are locked; existing is the validator row replaced.
    Outcome storeLocked(const ConfigImage &image, const QString &ident, const QString &description,
                        int existing);

    TDBModule &m_db;
    UserPrompt &m_prompt;
    QString m_error;
};
