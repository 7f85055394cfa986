#pragma once

#include "Encodings.h"

#include <QSettings>
#include <QString>
#include <QVariant>
#include <memory>

// The program's persistent settings, one typed facade over the "DefaultSettings" group of the
// Brunfeld/Tarvik settings (the registry key \Software\Brunfeld\Tarvik\DefaultSettings on
// Windows). The first run creates the group with the defaults. Values that cannot be read fall
// back to the defaults and are not written back until the user changes one; a file that cannot
// be read at all is renamed aside and the defaults are written in its place.
class Settings final
{
public:
    enum class Key
    {
        Sound,         // "Sound": play sounds
        Adjust,        // "Adjust": the Auto adjust switch
        DirectWrite,   // "DirectWrite": the Direct write switch
        Verify,        // "Verify": a write that finished is read back and compared
        Language,      // "Language": "FR", "IT", "EN", "DE" or empty (Local)
        DataDirectory, // empty: the records engine's own default
        PortMap,
        DecimalChar,  // empty: from the system locale
        DateChar,     // empty: from the system locale
        DateFormat,   // 0 month/day/year, 1 day/month/year, 2 year/month/day; empty: locale
        PortTimeout,  // "PortTimeout": the wait in ms for a count echo or a reply's first byte
        CloneBackup,  // "CloneBackup": a clone reads and keeps the target's configuration first
        LearnChannel, // "LearnChannel": the channel the coin learning form starts on (0: none)
        DataSource,   // "DataSource": a postgresql:// address; empty: the data directory
        Count_
    };

    enum class LoadState
    {
        Read,      // the group was there and every value could be read
        Created,   // first run: the group has been created with the defaults
        Unreadable // the settings could not be read: defaults until the user changes one
    };

    Settings();
    // Another organisation and application (tests).
    Settings(const QString &organization, const QString &application);
    ~Settings();
    Q_DISABLE_COPY_MOVE(Settings)

    LoadState load();
    LoadState loadState() const { return m_state; }
    // The value names that could not be read at the last load.
    const QStringList &unreadable() const { return m_unreadable; }
    // A file that could not be read at all: its name, and the name it was kept under (empty
    // when it could not be moved aside; it is then left as it is).
    const QString &unreadableFile() const { return m_unreadableFile; }
    const QString &keptAs() const { return m_keptAs; }

    bool soundOn() const { return value(Key::Sound).toBool(); }
    bool autoAdjust() const { return value(Key::Adjust).toBool(); }
    bool directWrite() const { return value(Key::DirectWrite).toBool(); }
    bool verifyAfterWrite() const { return value(Key::Verify).toBool(); }
    QString language() const { return value(Key::Language).toString(); }
    QString dataDirectory() const { return value(Key::DataDirectory).toString(); }
    QString dataSource() const { return value(Key::DataSource).toString(); }
    QString portMap() const { return value(Key::PortMap).toString(); }
    int portTimeoutMs() const { return value(Key::PortTimeout).toInt(); }
    bool backupBeforeCloning() const { return value(Key::CloneBackup).toBool(); }
    int learnChannel() const { return value(Key::LearnChannel).toInt(); }
    // The separators and the date order: stored ones, the system locale's for empty values.
    EncodingSettings encodingSettings() const;

    // Each setter writes at once.
    void setSoundOn(bool on) { set(Key::Sound, on); }
    void setAutoAdjust(bool on) { set(Key::Adjust, on); }
    void setDirectWrite(bool on) { set(Key::DirectWrite, on); }
    void setVerifyAfterWrite(bool on) { set(Key::Verify, on); }
    void setLanguage(const QString &code) { set(Key::Language, code); }
    void setDataDirectory(const QString &path) { set(Key::DataDirectory, path); }
    // Kept without its password, which libpq finds in ~/.pgpass or PGPASSWORD.
    void setDataSource(const QString &address);
    void setPortMap(const QString &map) { set(Key::PortMap, map); }
    void setPortTimeoutMs(int ms) { set(Key::PortTimeout, ms); }
    void setBackupBeforeCloning(bool on) { set(Key::CloneBackup, on); }
    void setLearnChannel(int channel) { set(Key::LearnChannel, channel); }

    QVariant value(Key key) const;
    void set(Key key, const QVariant &value);

    static const char *name(Key key);
    static QVariant defaultValue(Key key);
    static constexpr const char *kGroup = "DefaultSettings";

private:
    QString path(Key key) const;
    void writeAll();

    QString m_organization;
    QString m_application;
    std::unique_ptr<QSettings> m_store;
    QString m_unreadableFile;
    QString m_keptAs;
    QVariant m_values[int(Key::Count_)];
    LoadState m_state = LoadState::Read;
    QStringList m_unreadable;
};
