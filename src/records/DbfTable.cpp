#include "DbfTable.h"

#include "DbfLayout.h"
#include "DurableFile.h"
#include "LanguageDriver.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QLockFile>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

DbfTable::CommitHook &commitHook()
{
    static DbfTable::CommitHook hook;
    return hook;
}

DbfTable::HookAction step(DbfTable::CommitStep s)
{
    return commitHook() ? commitHook()(s) : DbfTable::HookAction::Continue;
}

const QString kTempSuffix = QStringLiteral(".tarvik-tmp");
constexpr int kFixedHeader = 32;
constexpr int kDescriptor = 32;
constexpr char kEndOfFile = 0x1A;
constexpr char kFieldEnd = 0x0D;

void stampDate(char *p, const QDate &d)
{
    p[0] = char(std::clamp(d.year() - 1900, 0, 255));
    p[1] = char(d.month());
    p[2] = char(d.day());
}

QString cName(const char *p, int max)
{
    int n = 0;
    while (n < max && p[n] != '\0')
        ++n;
    return QString::fromLatin1(p, n).trimmed();
}

bool allZero(const char *p, int n)
{
    return std::all_of(p, p + n, [](char c) { return c == 0; });
}

bool numericType(char type)
{
    return type == 'N' || type == 'F' || type == 'I' || type == '+' || type == 'O';
}

QString hexByte(quint8 b)
{
    return QStringLiteral("0x") +
           QString::number(b, 16).rightJustified(2, QLatin1Char('0')).toUpper();
}

} // namespace

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
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray h = file.read(64);
    if (h.size() < 32 || (h.at(0) != 0x03 && h.at(0) != 0x04))
        return nullptr;
    if (h.at(0) == 0x04 && h.size() >= 64) {
        const QString name = cName(h.constData() + 32, 32);
        if (!name.isEmpty())
            return LanguageDriver::byName(name);
    }
    return LanguageDriver::byId(quint8(h.at(29)));
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

    m_lock = std::make_unique<QLockFile>(m_path + QStringLiteral(".lck"));
    m_lock->setStaleLockTime(0);
    bool writable = QFileInfo(m_path).isWritable() && QFileInfo(dir).isWritable();
    if (writable && !m_lock->tryLock(0)) {
        if (m_lock->error() == QLockFile::LockFailedError) {
            qint64 pid = 0;
            QString host, app;
            m_lock->getLockInfo(&pid, &host, &app);
            const QString who = QStringLiteral("%1 %2 on %3").arg(app).arg(pid).arg(host);
            m_notices.append(messageText(Msg::RecordsLocked, {name, who.trimmed()}));
            setReadOnly(m_notices.constLast());
        } else {
            writable = false;
        }
        m_lock.reset();
    }
    if (!writable && !m_readOnly) {
        setReadOnly(messageText(Msg::RecordsReadOnly, {name}));
        m_notices.append(m_readOnlyReason);
    }

    // Temporaries left by a commit that did not finish: the pair on disk is the truth.
    if (!m_readOnly) {
        QFile::remove(m_path + kTempSuffix);
        QFile::remove(m_indexPath + kTempSuffix);
    }

    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(Msg::RecordsCannotOpen, {name, file.errorString()});
    const QByteArray bytes = file.readAll();
    file.close();
    if (!parseTable(bytes) || !checkSchema()) {
        const QString error = m_error;
        close();
        m_error = error;
        return false;
    }

    QByteArray indexBytes;
    bool haveIndex = false;
    if (QFileInfo::exists(m_indexPath)) {
        QFile indexFile(m_indexPath);
        if (indexFile.open(QIODevice::ReadOnly)) {
            indexBytes = indexFile.readAll();
            haveIndex = true;
        }
    }
    attachIndex(haveIndex ? &indexBytes : nullptr);
    m_open = true;

    if (m_indexNeedsWrite || m_headerDirty) {
        const QString indexName = QFileInfo(m_indexPath).fileName();
        const QString reason = m_indexProblem.text();
        if (m_readOnly) {
            // A damaged table's index is rebuilt with its repair; its notice says enough.
            if (m_damage.isEmpty())
                m_notices.append(messageText(Msg::RecordsIndexNotRebuilt, {indexName, reason}));
            m_headerDirty = false;
        } else if (commit()) {
            m_notices.append(messageText(Msg::RecordsIndexRebuilt, {indexName, reason, name}));
        } else {
            m_notices.append(messageText(Msg::RecordsIndexNotRebuilt, {indexName, reason}));
            m_notices.append(m_error);
            rollback();
        }
    }
    rememberDiskState();
    Q_EMIT changed();
    return true;
}

void DbfTable::rememberDiskState()
{
    const QFileInfo info(m_path);
    m_diskSize = info.size();
    m_diskModified = info.lastModified();
}

bool DbfTable::changedOnDisk() const
{
    const QFileInfo info(m_path);
    return info.size() != m_diskSize || info.lastModified() != m_diskModified;
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
    if (!parseTable(table) || !checkSchema())
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
    m_unreadable = 0;
    m_lock.reset();
    m_notices.clear();
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
    if (wasOpen)
        Q_EMIT changed();
}

void DbfTable::setReadOnly(const QString &reason)
{
    if (m_readOnly)
        return;
    m_readOnly = true;
    m_readOnlyReason = reason;
}

bool DbfTable::parseTable(const QByteArray &bytes)
{
    const DbfLayout layout = DbfLayout::read(bytes, fileName(), m_schema);
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
    m_driver = nullptr;
    if (m_level7) {
        const QString name = cName(m_header.constData() + 32, 32);
        if (!name.isEmpty()) {
            m_driver = LanguageDriver::byName(name);
            return;
        }
    }
    m_driver = LanguageDriver::byId(languageDriver());
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
    m_tagRows.assign(m_tagFields.size(), {});
    for (std::size_t t = 0; t < m_tagFields.size(); ++t) {
        if (m_tagFields[t] >= 0)
            m_tagRows[t] = sortedRows(m_tagFields[t]);
    }
    if (!maintainable) {
        m_headerDirty = false;
        return;
    }

    // Every tag must list exactly the live rows in key order, the first row only of each key
    // for a unique tag.
    if (parsed && !problem.isSet()) {
        for (int t = 0; t < m_index.tags().size() && !problem.isSet(); ++t) {
            std::vector<MdxKey> found;
            if (!m_index.readKeys(*indexBytes, t, lang(), found, &problem))
                break;
            const std::vector<MdxKey> expected = tagKeys(t, m_tagRows[std::size_t(t)]);
            const std::size_t length = std::size_t(m_index.tags().at(t).keyLength);
            const bool same =
                found.size() == expected.size() &&
                std::equal(found.begin(), found.end(), expected.begin(),
                           [length](const MdxKey &a, const MdxKey &b) {
                               return a.recno == b.recno && std::memcmp(a.key, b.key, length) == 0;
                           });
            if (!same)
                problem = {Msg::IndexReasonEntries, {}};
        }
    }
    m_indexProblem = problem;
    m_indexNeedsWrite = problem.isSet();
}

// ---------------------------------------------------------------------------------------------
// Reading

int DbfTable::fieldIndex(const QString &name) const
{
    return m_fieldByName.value(name.trimmed().toUpper(), -1);
}

bool DbfTable::isDeleted(int rec) const
{
    return rec >= 0 && rec < m_count && record(rec)[0] == '*';
}

std::vector<int> DbfTable::liveRows() const
{
    std::vector<int> rows;
    rows.reserve(std::size_t(m_count));
    for (int r = 0; r < m_count; ++r) {
        if (record(r)[0] != '*')
            rows.push_back(r);
    }
    return rows;
}

QByteArray DbfTable::rawField(int rec, int f) const
{
    if (rec < 0 || rec >= m_count || f < 0 || f >= m_fields.size())
        return {};
    const DbfField &field = m_fields.at(f);
    return QByteArray(record(rec) + field.offset, field.length);
}

QVariant DbfTable::value(int rec, int f) const
{
    if (rec < 0 || rec >= m_count || f < 0 || f >= m_fields.size())
        return {};
    const DbfField &field = m_fields.at(f);
    const char *p = record(rec) + field.offset;
    switch (field.type) {
    case 'C': {
        int n = field.length;
        while (n > 0 && (p[n - 1] == ' ' || p[n - 1] == '\0'))
            --n;
        return lang().decode(p, n);
    }
    case 'N':
    case 'F': {
        const QByteArray t = QByteArray(p, field.length).trimmed();
        if (t.isEmpty())
            return {};
        bool ok = false;
        if (!t.contains('.') && !t.contains('e') && !t.contains('E')) {
            const qlonglong v = t.toLongLong(&ok);
            if (ok)
                return v;
        }
        const double d = t.toDouble(&ok);
        return ok ? QVariant(d) : QVariant();
    }
    case 'L':
        switch (*p) {
        case 'T':
        case 't':
        case 'Y':
        case 'y':
            return true;
        case 'F':
        case 'f':
        case 'N':
        case 'n':
            return false;
        default:
            return {};
        }
    case 'D': {
        const QDate d = QDate::fromString(QString::fromLatin1(p, 8), QStringLiteral("yyyyMMdd"));
        return d.isValid() ? QVariant(d) : QVariant();
    }
    case 'I':
    case '+':
        if (allZero(p, 4))
            return {};
        return qlonglong(qint32(qFromBigEndian<quint32>(p) ^ 0x80000000u));
    case 'O': {
        if (allZero(p, 8))
            return {};
        quint64 bits = qFromBigEndian<quint64>(p);
        bits = (bits & (quint64(1) << 63)) ? bits ^ (quint64(1) << 63) : ~bits;
        double d;
        std::memcpy(&d, &bits, sizeof d);
        return d;
    }
    default:
        return {};
    }
}

QVariant DbfTable::value(int rec, const QString &name) const
{
    return value(rec, fieldIndex(name));
}

QString DbfTable::text(int rec, int f) const
{
    if (rec < 0 || rec >= m_count || f < 0 || f >= m_fields.size())
        return {};
    const DbfField &field = m_fields.at(f);
    switch (field.type) {
    case 'C':
        return value(rec, f).toString();
    case 'L': {
        const QVariant v = value(rec, f);
        return v.isNull() ? QString() : (v.toBool() ? QStringLiteral("T") : QStringLiteral("F"));
    }
    case 'I':
    case '+':
    case 'O': {
        const QVariant v = value(rec, f);
        return v.isNull() ? QString() : v.toString();
    }
    case 'N':
    case 'F':
    case 'D':
        return QString::fromLatin1(record(rec) + field.offset, field.length).trimmed();
    default:
        return lang().decode(record(rec) + field.offset, field.length).trimmed();
    }
}

QString DbfTable::text(int rec, const QString &name) const
{
    return text(rec, fieldIndex(name));
}

// ---------------------------------------------------------------------------------------------
// Changing

bool DbfTable::encodeField(const DbfField &f, const QVariant &v, QByteArray *out) const
{
    const bool blank = v.isNull() || !v.isValid() ||
                       (v.typeId() == QMetaType::QString && v.toString().trimmed().isEmpty());
    auto tooWide = [&]() {
        return fail(Msg::RecordsValueTooWide, {v.toString(), f.name, fileName()});
    };
    auto number = [&](double *x) {
        bool ok = false;
        *x = v.typeId() == QMetaType::QString ? QLocale::c().toDouble(v.toString().trimmed(), &ok)
                                              : v.toDouble(&ok);
        return ok && std::isfinite(*x);
    };
    switch (f.type) {
    case 'C': {
        QByteArray bytes = lang().encode(v.toString()).left(f.length);
        *out = bytes.leftJustified(f.length, ' ');
        return true;
    }
    case 'N':
    case 'F': {
        if (blank) {
            *out = QByteArray(f.length, ' ');
            return true;
        }
        double x = 0;
        if (!number(&x) || std::fabs(x) >= 1e18)
            return tooWide();
        const QString t = f.decimals == 0 ? QString::number(qint64(std::llround(x)))
                                          : QString::number(x, 'f', f.decimals);
        if (t.size() > f.length)
            return tooWide();
        *out = t.rightJustified(f.length, QLatin1Char(' ')).toLatin1();
        return true;
    }
    case 'L': {
        char c = ' ';
        if (!blank) {
            if (v.typeId() == QMetaType::QString) {
                const QString s = v.toString().trimmed().toUpper();
                if (s == QLatin1String("T") || s == QLatin1String("TRUE") ||
                    s == QLatin1String("Y") || s == QLatin1String("YES") || s == QLatin1String("1"))
                    c = 'T';
                else if (s == QLatin1String("F") || s == QLatin1String("FALSE") ||
                         s == QLatin1String("N") || s == QLatin1String("NO") ||
                         s == QLatin1String("0"))
                    c = 'F';
                else
                    return tooWide();
            } else {
                c = v.toBool() ? 'T' : 'F';
            }
        }
        *out = QByteArray(1, c);
        return true;
    }
    case 'D': {
        if (blank) {
            *out = QByteArray(8, ' ');
            return true;
        }
        const QDate d = v.typeId() == QMetaType::QDate
                            ? v.toDate()
                            : QDate::fromString(v.toString().trimmed(), QStringLiteral("yyyyMMdd"));
        if (!d.isValid() || d.year() < 0 || d.year() > 9999)
            return tooWide();
        *out = d.toString(QStringLiteral("yyyyMMdd")).toLatin1();
        return true;
    }
    case 'I':
    case '+': {
        QByteArray bytes(4, '\0');
        if (!blank) {
            double x = 0;
            if (!number(&x) || x < INT_MIN || x > INT_MAX)
                return tooWide();
            qToBigEndian<quint32>(quint32(qint32(std::llround(x))) ^ 0x80000000u, bytes.data());
        }
        *out = bytes;
        return true;
    }
    case 'O': {
        QByteArray bytes(8, '\0');
        if (!blank) {
            double x = 0;
            if (!number(&x))
                return tooWide();
            quint64 bits;
            std::memcpy(&bits, &x, sizeof bits);
            bits = (bits & (quint64(1) << 63)) ? ~bits : bits | (quint64(1) << 63);
            qToBigEndian<quint64>(bits, bytes.data());
        }
        *out = bytes;
        return true;
    }
    default:
        return tooWide();
    }
}

void DbfTable::beginChange(int rec)
{
    if (rec < m_committedCount && !m_originals.contains(rec))
        m_originals.insert(rec, QByteArray(record(rec), m_recordLength));
    if (std::size_t(rec) >= m_dirtyMark.size())
        m_dirtyMark.resize(std::size_t(m_count), 0);
    if (!m_dirtyMark[std::size_t(rec)]) {
        m_dirtyMark[std::size_t(rec)] = 1;
        m_dirtyRows.push_back(rec);
    }
}

bool DbfTable::setValue(int rec, int f, const QVariant &v)
{
    if (m_readOnly) {
        m_error = m_readOnlyReason;
        return false;
    }
    if (rec < 0 || rec >= m_count || f < 0 || f >= m_fields.size())
        return fail(Msg::RecordsFieldMissing,
                    {fileName(), f < 0 ? QStringLiteral("?") : QString::number(f)});
    const DbfField &field = m_fields.at(f);
    QByteArray bytes;
    if (!encodeField(field, v, &bytes))
        return false;
    char *p = record(rec) + field.offset;
    if (std::memcmp(p, bytes.constData(), std::size_t(field.length)) == 0)
        return true;
    beginChange(rec);
    forgetInLookups(rec, f);
    std::memcpy(p, bytes.constData(), std::size_t(field.length));
    noteInLookups(rec, f);
    return true;
}

bool DbfTable::setValue(int rec, const QString &name, const QVariant &v)
{
    const int f = fieldIndex(name);
    if (f < 0)
        return fail(Msg::RecordsFieldMissing, {fileName(), name});
    return setValue(rec, f, v);
}

int DbfTable::appendRecord()
{
    if (m_readOnly) {
        m_error = m_readOnlyReason;
        return -1;
    }
    QByteArray blank(m_recordLength, ' ');
    for (const DbfField &f : std::as_const(m_fields)) {
        if (f.type == 'I' || f.type == '+' || f.type == 'O' || f.type == '@')
            std::memset(blank.data() + f.offset, 0, std::size_t(f.length));
        if (f.type == '+') {
            // The next autoincrement value lives in the level-7 field descriptor.
            char *next = m_header.data() + f.descriptorOffset + 42;
            const quint32 value = qFromLittleEndian<quint32>(next);
            qToBigEndian<quint32>(value ^ 0x80000000u, blank.data() + f.offset);
            qToLittleEndian<quint32>(value + 1, next);
            m_headerDirty = true;
        }
    }
    m_records.append(blank);
    const int rec = m_count++;
    beginChange(rec);
    noteInLookups(rec);
    return rec;
}

bool DbfTable::deleteRecord(int rec)
{
    if (m_readOnly) {
        m_error = m_readOnlyReason;
        return false;
    }
    if (rec < 0 || rec >= m_count)
        return false;
    if (record(rec)[0] == '*')
        return true;
    beginChange(rec);
    forgetInLookups(rec);
    record(rec)[0] = '*';
    return true;
}

bool DbfTable::hasPendingChanges() const
{
    return m_headerDirty || m_count != m_committedCount || !m_dirtyRows.empty();
}

void DbfTable::rollback()
{
    if (!hasPendingChanges())
        return;
    m_header = m_committedHeader;
    m_headerDirty = false;
    m_count = m_committedCount;
    m_records.truncate(qint64(m_count) * m_recordLength);
    for (auto it = m_originals.cbegin(); it != m_originals.cend(); ++it)
        std::memcpy(record(it.key()), it.value().constData(), std::size_t(m_recordLength));
    m_originals.clear();
    m_dirtyMark.clear();
    m_dirtyRows.clear();
    m_lookups.clear();
    Q_EMIT changed();
}

// ---------------------------------------------------------------------------------------------
// Index upkeep

std::vector<int> DbfTable::sortedRows(int f) const
{
    const int offset = m_fields.at(f).offset;
    const std::size_t length = std::size_t(m_fields.at(f).length);
    std::vector<int> rows = liveRows();
    const LanguageDriver &order = lang();
    std::sort(rows.begin(), rows.end(), [&](int a, int b) {
        const int c = order.compare(record(a) + offset, record(b) + offset, length);
        return c < 0 || (c == 0 && a < b);
    });
    return rows;
}

// The tags' row lists after the pending changes: the untouched rows keep their order, the
// changed and new live rows are sorted and merged in.
std::vector<std::vector<int>> DbfTable::updatedTagRows() const
{
    std::vector<std::vector<int>> result(m_tagFields.size());
    std::vector<char> dirty = m_dirtyMark;
    dirty.resize(std::size_t(m_count), 0);
    std::vector<int> changed;
    for (int r : m_dirtyRows) {
        if (r < m_count && record(r)[0] != '*')
            changed.push_back(r);
    }
    for (std::size_t t = 0; t < m_tagFields.size(); ++t) {
        if (m_tagFields[t] < 0)
            continue;
        const int offset = m_fields.at(m_tagFields[t]).offset;
        const std::size_t length = std::size_t(m_fields.at(m_tagFields[t]).length);
        const LanguageDriver &order = lang();
        auto less = [&](int a, int b) {
            const int c = order.compare(record(a) + offset, record(b) + offset, length);
            return c < 0 || (c == 0 && a < b);
        };
        std::vector<int> kept;
        kept.reserve(m_tagRows[t].size());
        for (int r : m_tagRows[t]) {
            if (r < m_count && !dirty[std::size_t(r)])
                kept.push_back(r);
        }
        std::vector<int> added = changed;
        std::sort(added.begin(), added.end(), less);
        result[t].reserve(kept.size() + added.size());
        std::merge(kept.begin(), kept.end(), added.begin(), added.end(),
                   std::back_inserter(result[t]), less);
    }
    return result;
}

std::vector<MdxKey> DbfTable::tagKeys(int t, const std::vector<int> &rows) const
{
    std::vector<MdxKey> keys;
    const int f = m_tagFields.at(std::size_t(t));
    if (f < 0)
        return keys;
    const int offset = m_fields.at(f).offset;
    const std::size_t length = std::size_t(m_fields.at(f).length);
    const bool unique = m_index.tags().at(t).unique;
    keys.reserve(rows.size());
    for (int r : rows) {
        const char *key = record(r) + offset;
        if (unique && !keys.empty() && lang().compare(keys.back().key, key, length) == 0)
            continue;
        keys.push_back({key, quint32(r + 1)});
    }
    return keys;
}

bool DbfTable::writeIndexTemp(const std::vector<std::vector<int>> &rows, QString *tempPath)
{
    std::vector<std::vector<MdxKey>> keys;
    keys.reserve(rows.size());
    for (std::size_t t = 0; t < rows.size(); ++t)
        keys.push_back(tagKeys(int(t), rows[t]));
    *tempPath = m_indexPath + kTempSuffix;
    QString why;
    const HookAction action = step(CommitStep::WriteIndexTemp);
    if (action == HookAction::Crash)
        return false;
    if (action == HookAction::Fail ||
        !DurableFile::write(*tempPath, m_index.build(keys, QDate::currentDate()), &why)) {
        QFile::remove(*tempPath);
        return fail(Msg::RecordsCannotWrite,
                    {QFileInfo(m_indexPath).fileName(),
                     why.isEmpty() ? QStringLiteral("injected failure") : why});
    }
    if (QFileInfo::exists(m_indexPath))
        QFile::setPermissions(*tempPath, QFile::permissions(m_indexPath));
    return true;
}

// ---------------------------------------------------------------------------------------------
// Committing (see the class comment for the order of the steps)

bool DbfTable::commit()
{
    if (!m_open)
        return fail(Msg::RecordsFileMissing, {m_path});
    if (!hasPendingChanges() && !m_indexNeedsWrite)
        return true;
    if (m_readOnly || m_memoryOnly) {
        m_error = m_readOnlyReason;
        return false;
    }
    if (m_indexed && (quint8(m_header.at(28)) & 1) == 0) {
        m_header[28] = char(quint8(m_header.at(28)) | 1);
        m_headerDirty = true;
    }
    const QString name = fileName();
    const QString dir = QFileInfo(m_path).absolutePath();
    // A dBase tool that ignores our lock file may have written since we read the table.
    if (m_diskModified.isValid() && changedOnDisk())
        return fail(Msg::RecordsChangedElsewhere, {name});
    const std::vector<std::vector<int>> newRows = updatedTagRows();

    QString indexTemp;
    if (m_indexed && !writeIndexTemp(newRows, &indexTemp))
        return false;
    auto abandon = [&](const QString &why) {
        if (!indexTemp.isEmpty())
            QFile::remove(indexTemp);
        rememberDiskState(); // a tail beyond the counted rows is ours, and harmless
        return fail(Msg::RecordsCannotWrite,
                    {name, why.isEmpty() ? QStringLiteral("injected failure") : why});
    };

    const bool tableChanged = hasPendingChanges();
    qToLittleEndian<quint32>(quint32(m_count), m_header.data() + 4);
    if (tableChanged)
        stampDate(m_header.data() + 1, QDate::currentDate());
    const qint64 committedEnd = m_headerLength + qint64(m_committedCount) * m_recordLength;
    const bool appendOnly = !m_headerDirty && m_originals.isEmpty() && m_count > m_committedCount;
    QString why;

    if (tableChanged && appendOnly) {
        QByteArray tail = m_records.mid(qint64(m_committedCount) * m_recordLength);
        tail.append(kEndOfFile);
        HookAction action = step(CommitStep::AppendRecords);
        if (action == HookAction::Crash)
            return false;
        if (action == HookAction::Fail || !DurableFile::writeAt(m_path, committedEnd, tail, &why))
            return abandon(why);
        action = step(CommitStep::UpdateHeader);
        if (action == HookAction::Crash)
            return false;
        if (action == HookAction::Fail ||
            !DurableFile::writeAt(m_path, 1, m_header.mid(1, 7), &why))
            return abandon(why);
        DurableFile::truncate(m_path, committedEnd + tail.size(), &why);
    } else if (tableChanged) {
        const QString tableTemp = m_path + kTempSuffix;
        QByteArray bytes;
        bytes.reserve(m_headerLength + m_records.size() + 1);
        bytes.append(m_header).append(m_records).append(kEndOfFile);
        HookAction action = step(CommitStep::WriteTableTemp);
        if (action == HookAction::Crash)
            return false;
        if (action == HookAction::Fail || !DurableFile::write(tableTemp, bytes, &why)) {
            QFile::remove(tableTemp);
            return abandon(why);
        }
        QFile::setPermissions(tableTemp, QFile::permissions(m_path));
        action = step(CommitStep::ReplaceTable);
        if (action == HookAction::Crash)
            return false;
        if (action == HookAction::Fail || !DurableFile::replace(tableTemp, m_path, &why)) {
            QFile::remove(tableTemp);
            return abandon(why);
        }
        DurableFile::syncDirectory(dir);
    }

    // From here on the table holds the change; the index follows it.
    rememberDiskState();
    m_committedHeader = m_header;
    m_headerDirty = false;
    m_committedCount = m_count;
    m_originals.clear();
    m_dirtyMark.clear();
    m_dirtyRows.clear();
    m_tagRows = newRows;

    if (m_indexed) {
        const HookAction action = step(CommitStep::ReplaceIndex);
        if (action == HookAction::Crash)
            return false;
        if (action == HookAction::Fail || !DurableFile::replace(indexTemp, m_indexPath, &why)) {
            QFile::remove(indexTemp);
            m_indexNeedsWrite = true;
            m_indexProblem = {Msg::IndexReasonEntries, {}};
            fail(Msg::RecordsCannotWrite,
                 {QFileInfo(m_indexPath).fileName(),
                  why.isEmpty() ? QStringLiteral("injected failure") : why});
            m_notices.append(m_error);
            if (!tableChanged)
                return false;
        } else {
            // No directory flush here: should a power cut undo this rename, the next open
            // finds the old index stale and rebuilds it from the table.
            m_indexNeedsWrite = false;
            m_indexProblem = {};
        }
    }
    if (tableChanged)
        Q_EMIT changed();
    return true;
}

// ---------------------------------------------------------------------------------------------
// Locating without regard to case

QString DbfTable::foldedKey(int rec, int f) const
{
    return text(rec, f).toCaseFolded();
}

DbfTable::Lookup &DbfTable::lookup(int f) const
{
    if (m_lookups.size() < std::size_t(m_fields.size()))
        m_lookups.resize(std::size_t(m_fields.size()));
    std::unique_ptr<Lookup> &l = m_lookups[std::size_t(f)];
    if (!l) {
        l = std::make_unique<Lookup>();
        for (int r = 0; r < m_count; ++r) {
            if (record(r)[0] != '*')
                l->rows[foldedKey(r, f)].push_back(r);
        }
    }
    return *l;
}

void DbfTable::forgetInLookups(int rec, int onlyField)
{
    for (std::size_t f = 0; f < m_lookups.size(); ++f) {
        if (!m_lookups[f] || (onlyField >= 0 && int(f) != onlyField))
            continue;
        auto rows = m_lookups[f]->rows.find(foldedKey(rec, int(f)));
        if (rows == m_lookups[f]->rows.end())
            continue;
        auto pos = std::lower_bound(rows->begin(), rows->end(), rec);
        if (pos != rows->end() && *pos == rec)
            rows->erase(pos);
    }
}

void DbfTable::noteInLookups(int rec, int onlyField)
{
    if (record(rec)[0] == '*')
        return;
    for (std::size_t f = 0; f < m_lookups.size(); ++f) {
        if (!m_lookups[f] || (onlyField >= 0 && int(f) != onlyField))
            continue;
        std::vector<int> &rows = m_lookups[f]->rows[foldedKey(rec, int(f))];
        rows.insert(std::lower_bound(rows.begin(), rows.end(), rec), rec);
    }
}

int DbfTable::locate(const QString &fieldName, const QString &key) const
{
    const std::vector<int> rows = locateAll(fieldName, key);
    return rows.empty() ? -1 : rows.front();
}

std::vector<int> DbfTable::locateAll(const QString &fieldName, const QString &key) const
{
    const int f = fieldIndex(fieldName);
    if (f < 0)
        return {};
    QString wanted = key;
    while (!wanted.isEmpty() && wanted.back() == QLatin1Char(' '))
        wanted.chop(1);
    if (m_fields.at(f).type != 'C')
        wanted = wanted.trimmed();
    const Lookup &l = lookup(f);
    return l.rows.value(wanted.toCaseFolded());
}
