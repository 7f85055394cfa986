#pragma once

#include <QObject>
#include <QPointer>

class HelpWindow;
class LanguageSwitcher;
class QWidget;

// F1 in any window of the program opens the user guide at the section that tells about that
// window, in the language shown where the guide is translated, else in English. Installed as an
// event filter of the application.
class HelpKey final : public QObject
{
    Q_OBJECT
public:
    // languages may be null (English); helpDirectory empty: the program's help folder.
    explicit HelpKey(const LanguageSwitcher *languages, QString helpDirectory = {},
                     QObject *parent = nullptr);

    // Opens the guide at the section of window (a top-level window of the program).
    void showHelpFor(QWidget *window);
    // The help window while it is open.
    HelpWindow *helpWindow() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const LanguageSwitcher *m_languages;
    QString m_helpDirectory;
    QPointer<HelpWindow> m_window;
};
