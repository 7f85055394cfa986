#include "Languages.h"

#include "ResourceFiles.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace {

struct Language
{
    const char *code;
    quint16 localeId;
    const char *suffix;
};

constexpr Language kLanguages[Languages::kCount] = {
    {"", 0, ""},          {"FR", 0x040C, "fr"}, {"IT", 0x0410, "it"},
    {"EN", 0x0809, "en"}, {"DE", 0x0407, "de"},
};

bool valid(int index)
{
    return index > Languages::kLocal && index < Languages::kCount;
}

} // namespace

namespace Languages {

QString code(int index)
{
    return valid(index) ? QLatin1String(kLanguages[index].code) : QString();
}

int indexOf(const QString &code)
{
    for (int i = 1; i < kCount; ++i) {
        if (code == QLatin1String(kLanguages[i].code))
            return i;
    }
    return kLocal;
}

quint16 localeId(int index)
{
    return valid(index) ? kLanguages[index].localeId : 0;
}

QString fileSuffix(int index)
{
    return valid(index) ? QLatin1String(kLanguages[index].suffix) : QString();
}

} // namespace Languages

LanguageSwitcher::LanguageSwitcher(const QString &directory)
    : m_directory(directory.isEmpty() ? ResourceFiles::translationsDirectory() : directory)
{}

LanguageSwitcher::~LanguageSwitcher()
{
    if (m_program)
        QCoreApplication::removeTranslator(m_program.get());
    if (m_qtBase)
        QCoreApplication::removeTranslator(m_qtBase.get());
}

bool LanguageSwitcher::load(int index)
{
    if (!valid(index))
        return false;
    auto program = std::make_unique<QTranslator>();
    if (!program->load(QStringLiteral("tarvik_") + Languages::fileSuffix(index), m_directory))
        return false;

    // Qt's own texts (standard buttons, file dialogs) follow when Qt ships them.
    auto qtBase = std::make_unique<QTranslator>();
    if (!qtBase->load(QStringLiteral("qtbase_") + Languages::fileSuffix(index),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        qtBase.reset();

    if (m_qtBase)
        QCoreApplication::removeTranslator(m_qtBase.get());
    if (m_program)
        QCoreApplication::removeTranslator(m_program.get());
    m_qtBase = std::move(qtBase);
    m_program = std::move(program);
    if (m_qtBase)
        QCoreApplication::installTranslator(m_qtBase.get());
    QCoreApplication::installTranslator(m_program.get());
    m_current = index;
    return true;
}
