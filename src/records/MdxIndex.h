#pragma once

#include "Messages.h"

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QString>
#include <vector>

struct LanguageDriver;

// One key of a tag as it sits in a leaf: the 1-based record number and the key bytes, which
// point into a buffer (the table's records or the index file) that outlives the entry.
struct MdxKey
{
    const char *key = nullptr;
    quint32 recno = 0;
};

// Why an index cannot be trusted, as a message of the table with its argument.
struct MdxProblem
{
    Msg reason = Msg::Count_;
    QString arg;

    bool isSet() const { return reason != Msg::Count_; }
    QString text() const;
};

// One tag of a production index.
struct MdxTag
{
    QString name;
    QString expression; // the key expression, for our tags the name of one character field
    quint8 keyFormat = 0x10;
    char keyType = 'C';
    int keyLength = 0;
    int maxKeys = 0;    // entries a node can hold
    int itemLength = 0; // pointer + key, rounded up to a multiple of 4
    bool unique = false;
    bool descending = false;
    bool filtered = false; // a FOR condition limits the records it indexes
    int headerPage = 0;
    int rootPage = 0;
    QByteArray headerBlock; // the tag's header block, kept when the index is rebuilt
    QByteArray tableEntry;  // the tag's entry in the file header's tag table
};

// A production (.MDX) index: a 2048-byte file header with the tag table, a header block per
// tag and the B-tree nodes of every tag. Pages are 512 bytes; a block (one node or one tag
// header) is a fixed number of pages, two in every file this program writes.
//
// In a leaf, each entry is [record number][key]; the slot after the last entry holds a zero
// pointer. In an interior node, each entry is [child page][highest key of that child] and one
// more child pointer follows the last entry (the child for keys above the last key), so an
// interior node holds at most maxKeys - 1 keys: a reader tells interior nodes from leaves by
// that extra pointer being non-zero.
class MdxIndex final
{
public:
    // Reads the file header, the tag table and every tag header; false with a problem when
    // they cannot be trusted. Never reads outside bytes.
    bool parse(const QByteArray &bytes, MdxProblem *problem);

    // Walks the tree of tag t: every page inside the file and reached once, entry counts
    // within a node's capacity, all leaves at one depth, every interior key at least the
    // highest key below it and at most the lowest key of the next child, keys compared in the
    // table's order. Appends the leaf entries in tree order, their keys pointing into bytes.
    bool readKeys(const QByteArray &bytes, int t, const LanguageDriver &order,
                  std::vector<MdxKey> &out, MdxProblem *problem) const;

    // An empty index for a table: version 2, or 3 for a level-7 table.
    static MdxIndex blank(bool level7, const QString &baseName, quint8 language);
    // Adds a tag on a character field of keyLength characters.
    void addTag(const QString &name, const QString &field, int keyLength, bool unique);
    void setUnique(int t, bool unique);
    // Makes a tag's key fit a field of keyLength characters (its header otherwise kept).
    void setKeyLength(int t, int keyLength);

    // The whole file, every tag's tree built from its keys, which must be sorted and, for a
    // unique tag, hold only the first record of each key. keys[t] belongs to tags()[t].
    // Keeps the file header and tag headers except for what a rebuild changes: page numbers,
    // page counts, the language driver, the update date and each tag's serial byte.
    QByteArray build(const std::vector<std::vector<MdxKey>> &keys, const QDate &today) const;

    int version() const { return quint8(m_header.at(0)); }
    quint8 language() const { return quint8(m_header.at(31)); }
    void setLanguage(quint8 language) { m_header[31] = char(language); }
    int blockBytes() const { return m_blockPages * 512; }
    const QList<MdxTag> &tags() const { return m_tags; }
    int tagIndex(const QString &name) const;

    static constexpr int kHeaderBytes = 2048;
    static constexpr int kPageBytes = 512;

private:
    int tagSlotOffset(int t) const { return kPageBytes + (t + 1) * m_tagSize; }
    bool level7Layout() const { return m_tagSize > 32 || version() == 3; }
    void relinkTagTree();

    QByteArray m_header = QByteArray(kHeaderBytes, '\0');
    int m_tagSize = 32;
    int m_blockPages = 2;
    QList<MdxTag> m_tags;
};
