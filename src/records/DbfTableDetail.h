#pragma once

// What the parts of the table engine share: the commit hook, the file's constants and a few
// byte helpers. Not part of the engine's interface.
#include "DbfTable.h"

#include <QDate>
#include <QString>
#include <algorithm>

namespace dbf_detail {

inline DbfTable::CommitHook &commitHook()
{
    static DbfTable::CommitHook hook;
    return hook;
}

inline DbfTable::HookAction step(DbfTable::CommitStep s)
{
    return commitHook() ? commitHook()(s) : DbfTable::HookAction::Continue;
}

inline const QString kTempSuffix = QStringLiteral(".tarvik-tmp");
constexpr int kFixedHeader = 32;
constexpr int kDescriptor = 32;
constexpr char kEndOfFile = 0x1A;
constexpr char kFieldEnd = 0x0D;

inline void stampDate(char *p, const QDate &d)
{
    p[0] = char(std::clamp(d.year() - 1900, 0, 255));
    p[1] = char(d.month());
    p[2] = char(d.day());
}

inline QString cName(const char *p, int max)
{
    int n = 0;
    while (n < max && p[n] != '\0')
        ++n;
    return QString::fromLatin1(p, n).trimmed();
}

inline bool allZero(const char *p, int n)
{
    return std::all_of(p, p + n, [](char c) { return c == 0; });
}

inline bool numericType(char type)
{
    return type == 'N' || type == 'F' || type == 'I' || type == '+' || type == 'O';
}

inline QString hexByte(quint8 b)
{
    return QStringLiteral("0x") +
           QString::number(b, 16).rightJustified(2, QLatin1Char('0')).toUpper();
}

// The driver a table's header gives: level-7 tables name it after the fixed header, older ones
// only give its id in byte 29 (as level-7 ones do when they leave the name blank). Null for a
// header too short to say, or a driver this program does not know.
inline const LanguageDriver *driverOfHeader(const QByteArray &h)
{
    if (h.size() < 32)
        return nullptr;
    if (h.at(0) == 0x04 && h.size() >= 64) {
        const QString name = cName(h.constData() + 32, 32);
        if (!name.isEmpty())
            return LanguageDriver::byName(name);
    }
    return LanguageDriver::byId(quint8(h.at(29)));
}

} // namespace dbf_detail
