#include "DbfTable.h"
#include "DbfTableDetail.h"

#include "DbfLayout.h"
#include "DurableFile.h"
#include "LanguageDriver.h"

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

QString DbfTable::textRefusal(const QString &name, const QString &text) const
{
    const int f = fieldIndex(name);
    if (f < 0 || m_fields.at(f).type != 'C')
        return messageText(Msg::RecordsFieldMissing, {fileName(), name});
    QString missing;
    for (const QChar ch : text) {
        if (ch != u'?' && lang().encode(QStringView(&ch, 1)) == "?" && !missing.contains(ch))
            missing += missing.isEmpty() ? QString(ch) : QStringLiteral(", ") + ch;
    }
    if (!missing.isEmpty())
        return messageText(Msg::NameOutsideCodePage, {text, fileName(), missing});
    if (lang().encode(text).size() > m_fields.at(f).length)
        return messageText(Msg::NameTooLong,
                           {text, QStringLiteral("%1 (%2)").arg(fileName(), m_fields.at(f).name),
                            QString::number(m_fields.at(f).length)});
    return {};
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
