#pragma once

#include <QString>
#include <QTranslator>
#include <memory>

// The languages of the program. Index 0 is Local (the program's own texts); 1 to 4 are the
// translations, in the order of the language menu.
namespace Languages {

inline constexpr int kLocal = 0;
inline constexpr int kCount = 5;

// "FR", "IT", "EN", "DE"; empty for Local.
QString code(int index);
// The index of a stored code; anything else is Local.
int indexOf(const QString &code);
// The locale identifier of the translation (0x040C, 0x0410, 0x0809, 0x0407), 0 for Local.
quint16 localeId(int index);
// "fr", "it", "en", "de": the suffix of the translation file tarvik_<suffix>.qm.
QString fileSuffix(int index);

} // namespace Languages

// Loads translations at run time. Installing one sends every open window a LanguageChange, on
// which each form applies its texts again.
class LanguageSwitcher final
{
public:
    // Translation files are looked for in directory (empty: the program's translations folder).
    explicit LanguageSwitcher(const QString &directory = {});
    ~LanguageSwitcher();
    Q_DISABLE_COPY_MOVE(LanguageSwitcher)

    // Installs the translation of the language; false, with nothing changed, when the language
    // is Local or its file is missing. Loading the same language again replaces the loaded
    // translation.
    bool load(int index);
    // The language whose translation is installed (Local when none).
    int current() const { return m_current; }
    QString directory() const { return m_directory; }

private:
    QString m_directory;
    std::unique_ptr<QTranslator> m_program;
    std::unique_ptr<QTranslator> m_qtBase;
    int m_current = Languages::kLocal;
};
