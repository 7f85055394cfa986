#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <cstddef>

// A dBase language driver: the code page of a table's character fields and the order in which
// its index sorts their keys. Tables of levels 3 to 5 give the driver's id in header byte 29;
// level-7 tables give its name after the fixed header. An MDX index repeats the id.
//
// Known here are the Western European drivers: the Windows ones (code page 1252) and the DOS
// ones of code pages 437 and 850. Keys compare byte by byte through the driver's sort weights;
// keys of equal weight are ordered by record number.
struct LanguageDriver
{
    enum class CodePage
    {
        Windows1252,
        Dos437,
        Dos850
    };

    quint8 id = 0;
    const char *name = "";
    CodePage codePage = CodePage::Windows1252;
    const quint8 *weights = nullptr; // the sort weight of every byte; none: byte order

    // Null for a driver this program does not know.
    static const LanguageDriver *byId(quint8 id);
    static const LanguageDriver *byName(QStringView name);
    // Tables without a driver (id 0): Windows text in byte order.
    static const LanguageDriver &none();
    // What Tarvik gives a table it creates in a directory of no other driver: DBWINUS0.
    static const LanguageDriver &standard();

    // <0, 0 or >0 as a sorts before, with or after b; both are n bytes.
    int compare(const char *a, const char *b, std::size_t n) const;
    QString decode(const char *p, int n) const;
    // Characters the code page lacks become '?'.
    QByteArray encode(QStringView text) const;
};
