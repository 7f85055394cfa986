#include "DbfTable.h"
#include "DbfTableDetail.h"

#include "DbfLayout.h"
#include "DurableFile.h"
#include "LanguageDriver.h"
#include "TableLock.h"
#include "WholeFile.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstring>

using namespace dbf_detail;

QString DbfTable::findInDirectory(const QString &dir, const QString &name)
{
    const QString exact = QDir(dir).filePath(name);
    if (QFileInfo::exists(exact))
        return exact;
    const QStringList entries = QDir(dir).entryList(QDir::Files);
    for (const QString &entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return QDir(dir).filePath(entry);
    }
    return exact;
}

QString DbfTable::targetOf(const QString &path)
{
    return WholeFile::destination(path);
}

void DbfTable::setCommitHook(CommitHook hook)
{
    commitHook() = std::move(hook);
}

DbfTable::DbfTable(QObject *parent) : QObject(parent) {}

DbfTable::~DbfTable()
{
    blockSignals(true);
    close();
}

QString DbfTable::fileName() const
{
    return QFileInfo(m_path).fileName();
}

bool DbfTable::fail(Msg id, const QStringList &args) const
{
    m_error = messageText(id, args);
    return false;
}

// ---------------------------------------------------------------------------------------------
// Creating

bool DbfTable::create(const QString &path, const TableSchema &schema, QString *error,
                      const LanguageDriver &driver)
{
    const QString name = QFileInfo(path).fileName();
    if (QFileInfo::exists(path)) {
        *error = messageText(Msg::RecordsCannotWrite, {name, QStringLiteral("File exists")});
        return false;
    }
    const int n = int(schema.fields.size());
    const int headerLength = kFixedHeader + kDescriptor * n + 1;
    int recordLength = 1;
    for (const FieldDef &f : schema.fields)
        recordLength += f.dbaseWidth();

    QByteArray bytes(headerLength, '\0');
    char *h = bytes.data();
    h[0] = 0x03;
    stampDate(h + 1, QDate::currentDate());
    qToLittleEndian<quint16>(quint16(headerLength), h + 8);
    qToLittleEndian<quint16>(quint16(recordLength), h + 10);
    h[28] = schema.tags.isEmpty() ? 0 : 1;
    h[29] = char(driver.id);
    for (int i = 0; i < n; ++i) {
        const FieldDef &f = schema.fields.at(i);
        char *d = h + kFixedHeader + kDescriptor * i;
        const QByteArray fieldName = f.name.toLatin1().left(10);
        std::memcpy(d, fieldName.constData(), std::size_t(fieldName.size()));
        d[11] = f.dbaseType();
        d[16] = char(f.dbaseWidth());
        d[17] = char(f.dbaseDecimals());
        for (const TagDef &tag : schema.tags) {
            if (tag.field.compare(f.name, Qt::CaseInsensitive) == 0)
                d[31] = 1;
        }
    }
    h[headerLength - 1] = kFieldEnd;
    bytes.append(kEndOfFile);

    const QString dir = QFileInfo(path).absolutePath();
    QString why;
    const QString tableTemp = path + kTempSuffix;
    if (!DurableFile::write(tableTemp, bytes, &why) ||
        !DurableFile::replace(tableTemp, path, &why)) {
        QFile::remove(tableTemp);
        *error = messageText(Msg::RecordsCannotWrite, {name, why});
        return false;
    }
    if (!schema.tags.isEmpty()) {
        MdxIndex index = MdxIndex::blank(false, QFileInfo(path).completeBaseName(), driver.id);
        for (const TagDef &tag : schema.tags) {
            const FieldDef *f = schema.field(tag.field);
            index.addTag(tag.name, tag.field, f ? f->dbaseWidth() : 1, tag.unique);
        }
        const std::vector<std::vector<MdxKey>> none(std::size_t(schema.tags.size()));
        const QString indexPath = QDir(dir).filePath(schema.indexFileName);
        const QString indexTemp = indexPath + kTempSuffix;
        if (!DurableFile::write(indexTemp, index.build(none, QDate::currentDate()), &why) ||
            !DurableFile::replace(indexTemp, indexPath, &why)) {
            QFile::remove(indexTemp);
            // The table exists without its index; the next open builds it.
            *error = messageText(Msg::RecordsCannotWrite, {schema.indexFileName, why});
            return false;
        }
    }
    DurableFile::syncDirectory(dir);
    return true;
}

const LanguageDriver *DbfTable::peekDriver(const QString &path)
{
    QFile file(path);
    // never a pipe or a device: opening one may wait for ever
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray h = file.read(64);
    if (h.isEmpty() || (h.at(0) != 0x03 && h.at(0) != 0x04))
        return nullptr;
    return driverOfHeader(h);
}

// ---------------------------------------------------------------------------------------------
// Opening

bool DbfTable::open(const QString &path, const TableSchema *schema)
{
    close();
    m_path = QFileInfo(path).absoluteFilePath();
    m_schema = schema;
    const QString dir = QFileInfo(m_path).absolutePath();
    const QString name = fileName();
    if (!QFileInfo::exists(m_path))
        return fail(Msg::RecordsFileMissing, {m_path});

    m_indexPath = findInDirectory(dir, schema ? schema->indexFileName
                                              : QFileInfo(m_path).completeBaseName() +
                                                    QStringLiteral(".MDX"));
    // A pipe, a folder or a device is refused before anything opens it (opening a pipe waits
    // for a writer).
    for (const QString &file : {m_path, m_indexPath}) {
        if (QFileInfo::exists(file) && !QFileInfo(file).isFile()) {
            const QString error = messageText(Msg::RecordsNotRegularFile, {file});
            close();
            m_error = error;
            return false;
        }
    }
    m_permissionReadOnly = !QFileInfo(m_path).isWritable() ||
                           !QFileInfo(QFileInfo(targetOf(m_path)).absolutePath()).isWritable();
    if (!readFromDisk()) {
        const QString error = m_error;
        close();
        m_error = error;
        return false;
    }
    m_open = true;

    // Temporaries of a commit whose program ended half way go under the lock (see
    // lockForChange()): while it is free, no commit is under way.
    if (!m_readOnly && !m_indexNeedsWrite && !m_headerDirty &&
        (QFileInfo::exists(targetOf(m_path) + kTempSuffix) ||
         QFileInfo::exists(targetOf(m_indexPath) + kTempSuffix)) &&
        lockForChange())
        unlockChange();
    if (m_indexNeedsWrite || m_headerDirty) {
        const QString indexName = QFileInfo(m_indexPath).fileName();
        if (m_readOnly) {
            // A damaged table's index is rebuilt with its repair; its notice says enough.
            if (m_damage.isEmpty())
                m_notices.append(
                    messageText(Msg::RecordsIndexNotRebuilt, {indexName, m_indexProblem.text()}));
            m_headerDirty = false;
        } else if (!lockForChange()) {
            m_notices.append(
                messageText(Msg::RecordsIndexNotRebuilt, {indexName, m_indexProblem.text()}));
            m_notices.append(m_error);
            m_headerDirty = false;
        } else {
            // Read again under the lock: another program may have rebuilt it meanwhile.
            const QString reason = m_indexProblem.text();
            if (!m_indexNeedsWrite && !m_headerDirty) {
                // nothing left to do
            } else if (commit()) {
                m_notices.append(messageText(Msg::RecordsIndexRebuilt, {indexName, reason, name}));
            } else {
                m_notices.append(messageText(Msg::RecordsIndexNotRebuilt, {indexName, reason}));
                m_notices.append(m_error);
                rollback();
            }
            unlockChange();
        }
    }
    Q_EMIT changed();
    return true;
}

bool DbfTable::openBytes(const QByteArray &table, const QByteArray &index,
                         const TableSchema *schema)
{
    close();
    m_path = QStringLiteral("memory.dbf");
    m_indexPath = QStringLiteral("memory.MDX");
    m_schema = schema;
    m_memoryOnly = true;
    setReadOnly(messageText(Msg::RecordsReadOnly, {m_path}));
    if (!parseTable(table, index.isEmpty() ? nullptr : &index) || !checkSchema())
        return false;
    attachIndex(index.isEmpty() ? nullptr : &index);
    if (m_indexProblem.isSet() && m_damage.isEmpty()) {
        m_notices.append(
            messageText(Msg::RecordsIndexNotRebuilt, {m_indexPath, m_indexProblem.text()}));
    }
    m_headerDirty = false;
    m_open = true;
    return true;
}

void DbfTable::close()
{
    const bool wasOpen = m_open;
    m_open = false;
    m_readOnly = false;
    m_memoryOnly = false;
    m_readOnlyReason.clear();
    m_damage.clear();
    m_permissionReadOnly = false;
    m_changeLock.reset();
    m_notices.clear();
    resetContent();
    if (wasOpen)
        Q_EMIT changed();
}

void DbfTable::resetContent()
{
    m_damage.clear();
    m_unreadable = 0;
    m_header.clear();
    m_committedHeader.clear();
    m_headerDirty = false;
    m_driver = nullptr;
    m_records.clear();
    m_count = m_committedCount = 0;
    m_fields.clear();
    m_fieldByName.clear();
    m_indexed = false;
    m_indexNeedsWrite = false;
    m_indexProblem = {};
    m_index = MdxIndex();
    m_tagFields.clear();
    m_tagRows.clear();
    m_originals.clear();
    m_dirtyMark.clear();
    m_dirtyRows.clear();
    m_lookups.clear();
}

void DbfTable::setReadOnly(const QString &reason)
{
    if (m_readOnly)
        return;
    m_readOnly = true;
    m_readOnlyReason = reason;
}

bool DbfTable::parseTable(const QByteArray &bytes, const QByteArray *indexBytes)
{
    // Rows past a lowered count that the index still names are shown, read-only.
    const DbfLayout layout = indexBytes ? DbfLayout::read(bytes, *indexBytes, fileName(), m_schema)
                                        : DbfLayout::read(bytes, fileName(), m_schema);
    if (layout.state == DbfLayout::State::Unreadable)
        return fail(Msg::RecordsUnreadable, {layout.problem});
    m_level7 = layout.level7;
    m_header = layout.header;
    m_committedHeader = m_header;
    m_headerLength = int(m_header.size());
    m_recordLength = layout.recordLength;
    m_fields = layout.fields;
    for (int f = 0; f < m_fields.size(); ++f)
        m_fieldByName.insert(m_fields.at(f).name.toUpper(), f);
    m_count = m_committedCount = layout.rows;
    m_records = bytes.mid(layout.rowsOffset, qint64(m_count) * m_recordLength);
    if (layout.state == DbfLayout::State::Damaged) {
        // Changes wait for the repair, whatever else made the table read-only.
        m_damage = layout.problem;
        m_unreadable = layout.unreadable;
        m_notices.append(messageText(Msg::RecordsDamaged, {m_damage}));
        m_readOnly = true;
        m_readOnlyReason = messageText(Msg::RecordsDamagedRefused, {fileName()});
    }
    resolveDriver();
    return true;
}

bool DbfTable::checkSchema()
{
    if (!m_schema)
        return true;
    for (const FieldDef &def : m_schema->fields) {
        const int f = fieldIndex(def.name);
        if (f < 0)
            return fail(Msg::RecordsFieldMissing, {fileName(), def.name});
        const char type = m_fields.at(f).type;
        bool fits = false;
        switch (def.kind) {
        case FieldKind::String:
            fits = type == 'C';
            break;
        case FieldKind::SmallInt:
        case FieldKind::Float:
            fits = numericType(type);
            break;
        case FieldKind::Boolean:
            fits = type == 'L';
            break;
        }
        if (!fits) {
            return fail(Msg::RecordsFieldType, {fileName(), def.name, QString(QLatin1Char(type)),
                                                QString(QLatin1Char(def.dbaseType()))});
        }
    }
    return true;
}

quint8 DbfTable::languageDriver() const
{
    return m_header.size() > 29 ? quint8(m_header.at(29)) : 0;
}

// Level-7 tables name their driver in the header; older ones only give its id.
void DbfTable::resolveDriver()
{
    m_driver = driverOfHeader(m_header);
}

const LanguageDriver &DbfTable::lang() const
{
    // a driver this program does not know: its text read as Windows text, in byte order
    return m_driver ? *m_driver : LanguageDriver::none();
}

quint8 DbfTable::indexLanguage() const
{
    return m_driver ? m_driver->id : languageDriver();
}

// Decides which tags the index must hold, checks the index file against the table, and marks
// it for a rebuild when it cannot be trusted.
void DbfTable::attachIndex(const QByteArray *indexBytes)
{
    const bool flagged = (quint8(m_header.at(28)) & 1) != 0;
    const bool wanted = flagged || (m_schema && !m_schema->tags.isEmpty());
    m_indexed = wanted;
    if (!wanted)
        return;
    MdxProblem problem;
    if (!flagged) {
        // The table must name its production index, or other engines ignore it.
        m_header[28] = char(quint8(m_header.at(28)) | 1);
        m_headerDirty = true;
        problem = {Msg::IndexReasonTag, m_schema->tags.constFirst().name};
    }
    MdxProblem parseProblem;
    const bool parsed = indexBytes && m_index.parse(*indexBytes, &parseProblem);
    if (!indexBytes)
        problem = {Msg::IndexReasonMissing, {}};
    else if (!parsed)
        problem = parseProblem;
    if (!parsed) {
        m_index = MdxIndex::blank(m_level7, QFileInfo(m_path).completeBaseName(), indexLanguage());
        if (m_schema) {
            for (const TagDef &tag : m_schema->tags)
                m_index.addTag(tag.name, tag.field, 1, tag.unique);
        } else {
            for (const DbfField &f : std::as_const(m_fields)) {
                const bool flag = m_header.at(f.descriptorOffset + (m_level7 ? 37 : 31)) != 0;
                if (flag && f.type == 'C')
                    m_index.addTag(f.name, f.name, f.length, false);
            }
        }
    } else {
        if (m_schema) {
            for (const TagDef &tag : m_schema->tags) {
                const int t = m_index.tagIndex(tag.name);
                if (t < 0) {
                    m_index.addTag(tag.name, tag.field, 1, tag.unique);
                } else if (m_index.tags().at(t).unique != tag.unique) {
                    m_index.setUnique(t, tag.unique);
                } else {
                    continue;
                }
                if (!problem.isSet())
                    problem = {Msg::IndexReasonTag, tag.name};
            }
        }
        if (m_index.language() != indexLanguage() && m_index.language() != 0) {
            m_index.setLanguage(indexLanguage());
            if (!problem.isSet())
                problem = {Msg::IndexReasonLanguage, {}};
        }
    }

    bool maintainable = true;
    m_tagFields.clear();
    for (int t = 0; t < m_index.tags().size(); ++t) {
        const MdxTag &tag = m_index.tags().at(t);
        const int f = fieldIndex(tag.expression);
        if (f < 0 || m_fields.at(f).type != 'C' || tag.keyType != 'C' || tag.descending ||
            tag.filtered) {
            setReadOnly(
                messageText(Msg::RecordsTagUnsupported, {fileName(), tag.name, tag.expression}));
            m_notices.append(m_readOnlyReason);
            maintainable = false;
            m_tagFields.push_back(-1);
            continue;
        }
        if (tag.keyLength != m_fields.at(f).length) {
            m_index.setKeyLength(t, m_fields.at(f).length);
            if (parsed && !problem.isSet())
                problem = {Msg::IndexReasonTag, tag.name};
        }
        m_tagFields.push_back(f);
    }
    if (!m_driver) {
        const QString driver = m_level7 ? cName(m_header.constData() + 32, 32) : QString();
        setReadOnly(
            messageText(Msg::RecordsLanguageUnsupported,
                        {fileName(), driver.isEmpty() ? hexByte(languageDriver()) : driver}));
        m_notices.append(m_readOnlyReason);
        maintainable = false;
    }
    // Every tag must list exactly the live rows in key order, the first row only of each key
    // for a unique tag. The rows of a tag that does are taken from it in one pass; the others
    // are sorted.
    const bool check = maintainable && parsed && !problem.isSet();
    m_tagRows.assign(m_tagFields.size(), {});
    for (std::size_t t = 0; t < m_tagFields.size(); ++t) {
        const int f = m_tagFields[t];
        if (f < 0)
            continue;
        std::vector<MdxKey> found;
        if (check && !problem.isSet() &&
            m_index.readKeys(*indexBytes, int(t), lang(), found, &problem)) {
            if (!m_index.tags().at(int(t)).unique && rowsInKeyOrder(f, found, &m_tagRows[t]))
                continue;
            m_tagRows[t] = sortedRows(f);
            const std::vector<MdxKey> expected = tagKeys(int(t), m_tagRows[t]);
            const std::size_t length = std::size_t(m_fields.at(f).length);
            const bool same =
                found.size() == expected.size() &&
                std::equal(found.begin(), found.end(), expected.begin(),
                           [length](const MdxKey &a, const MdxKey &b) {
                               return a.recno == b.recno && std::memcmp(a.key, b.key, length) == 0;
                           });
            if (!same)
                problem = {Msg::IndexReasonEntries, {}};
            continue;
        }
        m_tagRows[t] = sortedRows(f);
    }
    if (!maintainable) {
        m_headerDirty = false;
        return;
    }
    m_indexProblem = problem;
    m_indexNeedsWrite = problem.isSet();
}

// Whether the entries of a tag read from its index are the table's live rows, each once, in
// key order with their keys as the rows hold them; if so they are the tag's rows.
bool DbfTable::rowsInKeyOrder(int f, const std::vector<MdxKey> &found, std::vector<int> *rows) const
{
    const int offset = m_fields.at(f).offset;
    const std::size_t length = std::size_t(m_fields.at(f).length);
    const LanguageDriver &order = lang();
    std::vector<char> seen(std::size_t(m_count), 0);
    std::vector<int> inOrder;
    inOrder.reserve(found.size());
    for (const MdxKey &k : found) {
        const int r = int(k.recno) - 1;
        if (r < 0 || r >= m_count || seen[std::size_t(r)] || record(r)[0] == '*' ||
            std::memcmp(k.key, record(r) + offset, length) != 0)
            return false;
        if (!inOrder.empty()) {
            const int p = inOrder.back();
            const int c = order.compare(record(p) + offset, record(r) + offset, length);
            if (c > 0 || (c == 0 && p > r))
                return false;
        }
        seen[std::size_t(r)] = 1;
        inOrder.push_back(r);
    }
    for (int r = 0; r < m_count; ++r) {
        if (!seen[std::size_t(r)] && record(r)[0] != '*')
            return false; // a live row the tag lacks
    }
    *rows = std::move(inOrder);
    return true;
}
