#pragma once

#include <QString>

class LanguageSwitcher;
class Settings;

// What the runs without anyone at the screen need besides the windows.
namespace UnattendedRuns {

// The screenshots run keeps its settings and tables in directory, away from the technician's:
// the switches on, so that every button shows, and English texts.
void useScratchSettings(const QString &directory);

// Says on stdout where the program found its data files and fails, with a line on stderr, when
// the pictures, the guide or the translation of the chosen language are missing: an installed
// program that cannot find them is broken.
bool checkDataFiles(const LanguageSwitcher &languages, const Settings &settings);

} // namespace UnattendedRuns
