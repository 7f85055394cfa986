#pragma once

#include <QWidget>
#include <functional>
#include <memory>

class LanguageSwitcher;
class LinkSource;
class Settings;
class SoundPlayer;
class UserPrompt;
class ValidatorLink;

// What the main window works with; the program (or a test) puts it together.
struct ShellContext
{
    Settings *settings = nullptr;
    LanguageSwitcher *languages = nullptr;
    SoundPlayer *sounds = nullptr; // none: silent
    LinkSource *linkSource = nullptr;
    UserPrompt *prompt = nullptr;
    // Creates the data module for the run (it opens the tables); freed by Exit.
    std::function<std::shared_ptr<void>()> createDataModule;
    // Creates the editor on the open link and shows it modally over the main window (none: no
    // editor).
    std::function<void(ValidatorLink &link, QWidget *mainWindow)> showEditor;
    // Shows the repair of the data directory's tables over the main window (none: the menu
    // item is disabled).
    std::function<void(QWidget *mainWindow)> repairTables;
};
