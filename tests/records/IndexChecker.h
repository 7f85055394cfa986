#pragma once

#include <QString>
#include <QStringList>

// An index checker of its own, sharing no code with the engine: reads a table and its
// production index from disk and lists every way the index fails its table. Every page of the
// file must be a header, a tag header or a node reached from a root; keys sorted in each tag;
// one entry per live row (the first row of each key for a unique tag); each key equal to its
// field, padded.
struct ExpectedTag
{
    QString name;
    bool unique = false;
};

QStringList checkIndex(const QString &tablePath, const QString &indexPath,
                       const QList<ExpectedTag> &expected = {});
