#pragma once

#include <QDateTime>
#include <QString>

// How one validator of a batch ended; the log's result column.
enum class BatchResult
{
    Verified,    // written and read back: it holds what was sent
    Mismatch,    // written, but the read-back differs from what was sent
    Failed,      // not written, or not wholly: pulled, refused, or no backup
    AlreadyDone, // its serial number was verified earlier in this batch: not written again
    WrongFamily  // another firmware family: nothing written
};

// "verified", "mismatch", "failed", "already-done", "wrong-family".
QString batchResultName(BatchResult result);

// One validator handled by a batch, as the log and the window show it.
struct BatchRow
{
    QDateTime time;
    quint32 serial = 0;
    quint8 family = 0; // the family byte it answered with
    BatchResult result = BatchResult::Failed;
    double seconds = 0; // from finding it to its result
    QString detail;
};

// The batch's log: a CSV file with the columns time,serial,family,result,seconds,detail, one
// row per validator, each row on the disk before the next validator is touched, so that a
// crash or a kill loses at most the row being written.
class BatchLog final
{
public:
    static constexpr const char *kHeader = "time,serial,family,result,seconds,detail";

    // The file batches/<yyyyMMdd-HHmmss>-<name>.csv in the data directory; the name is the
    // source's, kept to letters, digits, '-' and '_'.
    static QString defaultPath(const QString &dataDirectory, const QString &sourceName,
                               const QDateTime &when = QDateTime::currentDateTime());

    explicit BatchLog(QString path) : m_path(std::move(path)) {}

    // Creates the file with its header, or takes an existing log to append to (a row cut off by
    // a crash is ended first). False, with the reason, when it cannot be written.
    bool open(QString *error);
    // Appends one row, flushed to the disk before it returns.
    bool append(const BatchRow &row, QString *error);

    const QString &path() const { return m_path; }

    // The row as the file holds it (without its line end).
    static QString csvRow(const BatchRow &row);
    // A CSV field: quoted when it holds a comma, a quote or a line end.
    static QString csvField(const QString &text);

private:
    bool create(QString *error);

    QString m_path;
};
