#pragma once

#include "ControlSet.h"

#include <functional>

class Settings;
class UserPrompt;

// The "Data source" window (TFormDataSource) of the Parameters menu: the records in a data
// directory or on a PostgreSQL server named by its address, which "Test connection" tries.
// OK keeps the choice in the settings (an address without its password).
class DataSourceModel final
{
public:
    DataSourceModel(Settings &settings, UserPrompt &prompt);
    Q_DISABLE_COPY_MOVE(DataSourceModel)

    const ControlSet &controls() const { return m_controls; }
    QStringList takeChanged() { return m_controls.takeChanged(); }

    void pick(int item); // RGSource: 0 the directory, 1 the server
    void type(const QString &name, const QString &text);
    void BtnTestClick();
    // Keeps the choice; false (told why) when the address is not one, and the window stays.
    bool BtnOKClick();

    void retranslate();

    // How "Test connection" reaches a server: true, or false with the reason. The program's
    // is DataSource's; tests put their own.
    std::function<bool(const QString &address, QString *error)> test;

private:
    void showChoice();

    Settings &m_settings;
    UserPrompt &m_prompt;
    ControlSet m_controls;
};
