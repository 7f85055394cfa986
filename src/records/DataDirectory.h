#pragma once

#include <QString>

// Where the five tables live. The directory is chosen, first match wins, by an explicit path
// (the command line's --data-dir), the environment variable TARVIK_DB, the setting
// "DefaultSettings/DataDirectory" of Brunfeld/Tarvik, and the default: C:\TarvikDB on
// Windows, ~/TarvikDB elsewhere.
class DataDirectory final
{
public:
    static QString defaultPath();
    // The setting, empty when it is not set.
    static QString configured();
    static void setConfigured(const QString &path);
    static QString resolve(const QString &explicitPath = {});
    // The setting is not used while its file cannot be read (the default is).
    static void ignoreConfigured(bool ignore);

    static constexpr const char *kEnvironmentVariable = "TARVIK_DB";
};
