#include "Settings.h"

#include "DataSource.h"

#include "Transport.h"
#include <QDateTime>
#include <QDir>

#include <QFile>

namespace {

struct KeyInfo
{
    const char *name;
    enum class Type
    {
        Bool,
        Text,
        Char,
        DateOrder,
        PortTimeout,
        Channel
    } type;
};

constexpr KeyInfo kKeys[int(Settings::Key::Count_)] = {
    {"Sound", KeyInfo::Type::Bool},
    {"Adjust", KeyInfo::Type::Bool},
    {"DirectWrite", KeyInfo::Type::Bool},
    {"Verify", KeyInfo::Type::Bool},
    {"Language", KeyInfo::Type::Text},
    {"DataDirectory", KeyInfo::Type::Text},
    {"PortMap", KeyInfo::Type::Text},
    {"DecimalChar", KeyInfo::Type::Char},
    {"DateChar", KeyInfo::Type::Char},
    {"DateFormat", KeyInfo::Type::DateOrder},
    {"PortTimeout", KeyInfo::Type::PortTimeout},
    {"CloneBackup", KeyInfo::Type::Bool},
    {"LearnChannel", KeyInfo::Type::Channel},
    {"DataSource", KeyInfo::Type::Text},
};

// A stored value in its typed form, or an invalid variant when it cannot be read as one.
QVariant parse(const QVariant &stored, KeyInfo::Type type)
{
    const QString text = stored.toString().trimmed();
    switch (type) {
    case KeyInfo::Type::Bool:
        if (stored.typeId() == QMetaType::Bool)
            return stored;
        if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0 || text == u"1")
            return true;
        if (text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0 || text == u"0")
            return false;
        return {};
    case KeyInfo::Type::Text:
        if (stored.typeId() == QMetaType::QStringList || !stored.canConvert<QString>())
            return {};
        return stored.toString();
    case KeyInfo::Type::Char:
        return text.size() <= 1 ? QVariant(text) : QVariant();
    case KeyInfo::Type::DateOrder: {
        if (text.isEmpty())
            return QString();
        bool ok = false;
        const int order = text.toInt(&ok);
        return ok && order >= 0 && order <= 2 ? QVariant(order) : QVariant();
    }
    case KeyInfo::Type::PortTimeout: {
        bool ok = false;
        const int ms = text.toInt(&ok);
        return ok && ms >= Transport::kMinReadTimeoutMs && ms <= Transport::kMaxReadTimeoutMs
                   ? QVariant(ms)
                   : QVariant();
    }
    case KeyInfo::Type::Channel: {
        bool ok = false;
        const int channel = text.toInt(&ok);
        return ok && channel >= 0 && channel <= 60 ? QVariant(channel) : QVariant();
    }
    }
    return {};
}

} // namespace

Settings::Settings() : Settings(QStringLiteral("Brunfeld"), QStringLiteral("Tarvik")) {}

Settings::Settings(const QString &organization, const QString &application)
    : m_organization(organization), m_application(application),
      m_store(std::make_unique<QSettings>(organization, application))
{
    for (int k = 0; k < int(Key::Count_); ++k)
        m_values[k] = defaultValue(Key(k));
}

Settings::~Settings() = default;

const char *Settings::name(Key key)
{
    return kKeys[int(key)].name;
}

QVariant Settings::defaultValue(Key key)
{
    switch (key) {
    case Key::Sound:
    case Key::Adjust:
    case Key::DirectWrite:
        return false;
    case Key::Verify:
    case Key::CloneBackup:
        return true;
    case Key::LearnChannel:
        return 0;
    case Key::PortTimeout:
        return Transport::kDefaultReadTimeoutMs;
    default:
        return QString();
    }
}

void Settings::setDataSource(const QString &address)
{
    set(Key::DataSource, DataSource::withoutPassword(address.trimmed()));
}

QString Settings::path(Key key) const
{
    return QLatin1String(kGroup) + u'/' + QLatin1String(name(key));
}

QVariant Settings::value(Key key) const
{
    return m_values[int(key)];
}

Settings::LoadState Settings::load()
{
    m_unreadable.clear();
    m_unreadableFile.clear();
    m_keptAs.clear();
    for (int k = 0; k < int(Key::Count_); ++k)
        m_values[k] = defaultValue(Key(k));
    m_store->sync();

    if (m_store->status() != QSettings::NoError) {
        // A file that cannot be read at all is put aside whole, and the defaults take its place,
        // so that nothing of it (its data directory least of all) is used by half.
        m_state = LoadState::Unreadable;
        m_unreadableFile = m_store->fileName();
        m_keptAs = m_unreadableFile + QStringLiteral(".unreadable-") +
                   QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
        if (!QFile::rename(m_unreadableFile, m_keptAs) &&
            !QDir().rename(m_unreadableFile, m_keptAs)) {
            m_keptAs.clear(); // left where it is, and not overwritten
            return m_state;
        }
        m_store = std::make_unique<QSettings>(m_organization, m_application);
        writeAll();
        return m_state;
    }
    if (!m_store->childGroups().contains(QLatin1String(kGroup))) {
        // The first run plays the installer's part.
        writeAll();
        m_state = LoadState::Created;
        return m_state;
    }

    QList<Key> missing;
    for (int k = 0; k < int(Key::Count_); ++k) {
        const Key key = Key(k);
        if (!m_store->contains(path(key))) {
            missing.append(key);
            continue;
        }
        const QVariant typed = parse(m_store->value(path(key)), kKeys[k].type);
        if (typed.isValid())
            m_values[k] = typed;
        else
            m_unreadable.append(QLatin1String(name(key)));
    }
    if (!m_unreadable.isEmpty()) {
        m_state = LoadState::Unreadable;
        return m_state;
    }
    // Values added by a later version join the group; nothing present is rewritten.
    for (Key key : std::as_const(missing))
        m_store->setValue(path(key), m_values[int(key)]);
    if (!missing.isEmpty())
        m_store->sync();
    m_state = LoadState::Read;
    return m_state;
}

void Settings::set(Key key, const QVariant &value)
{
    m_values[int(key)] = value;
    if (m_state == LoadState::Unreadable && !m_unreadable.isEmpty()) {
        // The unreadable file is kept beside the new one before it is replaced.
        const QString file = m_store->fileName();
        if (QFile::exists(file)) {
            QFile::remove(file + QStringLiteral(".unreadable"));
            QFile::copy(file, file + QStringLiteral(".unreadable"));
        }
        writeAll();
        m_state = LoadState::Read;
        m_unreadable.clear();
        return;
    }
    m_store->setValue(path(key), value);
    m_store->sync();
}

void Settings::writeAll()
{
    for (int k = 0; k < int(Key::Count_); ++k)
        m_store->setValue(path(Key(k)), m_values[k]);
    m_store->sync();
}

EncodingSettings Settings::encodingSettings() const
{
    EncodingSettings settings = EncodingSettings::fromSystemLocale();
    const QString decimal = value(Key::DecimalChar).toString();
    const QString date = value(Key::DateChar).toString();
    if (decimal.size() == 1)
        settings.decimalChar = decimal.at(0);
    if (date.size() == 1)
        settings.dateChar = date.at(0);
    const QVariant order = value(Key::DateFormat);
    if (order.typeId() == QMetaType::Int)
        settings.dateFormatCode = quint8(order.toInt());
    return settings;
}
