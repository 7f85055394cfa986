#pragma once

#include "ExchangePump.h"
#include "ShellContext.h"
#include "ValidatorLink.h"

#include <QMainWindow>

class QAction;
class QLabel;
class QMenu;
class QPushButton;

// The program's frame: start-up, the Parameters menu with its switches, the language choice,
// the firmware upgrade and the repair of the tables, Back (reconnect and a fresh editor) and
// Exit.
class TFormMain final : public QMainWindow
{
    Q_OBJECT
public:
    explicit TFormMain(ShellContext context, QWidget *parent = nullptr);
    ~TFormMain() override;

    // Start-up in its fixed order: data module, settings, language, chime, window, link,
    // caption, editor. False when the program has to end (no link).
    bool FormCreate();

    void BitBtn2Click(); // Back
    void BitBtn1Click(); // Exit
    void Son1Click();
    void Ajustementauto1Click();
    void Ecrituredirecte1Click();
    void Verifyafterwrite1Click();
    void Backupbeforecloning1Click();
    void Fran1Click(QAction *item); // the five language items
    void Firmware1Click();
    void Porttimeout1Click();
    void Repairtables1Click();
    void Datasource1Click();

    ValidatorLink &link() { return m_link; }
    bool editorActive() const { return m_editorActive; }
    bool dataModuleOpen() const { return m_dataModule != nullptr; }
    QAction *languageItem(int index) const;

Q_SIGNALS:
    // The main window shows with the link open (start-up and Back).
    void linkOpened();
    // The window has closed: the program ends.
    void formClosed();

protected:
    void closeEvent(QCloseEvent *event) override; // FormClose
    void changeEvent(QEvent *event) override;

private:
    void buildMenu();
    void retranslateUi();
    void ShowVersionTexts();
    void markLanguage(int index);
    void showCaption();
    void showEditor();

    ShellContext m_context;
    ExchangePump m_pump;
    ValidatorLink m_link;
    std::shared_ptr<void> m_dataModule;
    bool m_editorActive = false;
    int m_shownLanguage = 0;

    QMenu *m_parameters = nullptr;
    QMenu *m_langage = nullptr;
    QAction *m_son1 = nullptr;
    QAction *m_ajustementauto1 = nullptr;
    QAction *m_ecrituredirecte1 = nullptr;
    QAction *m_verifyafterwrite1 = nullptr;
    QAction *m_backupbeforecloning1 = nullptr;
    QAction *m_firmware1 = nullptr;
    QAction *m_porttimeout1 = nullptr;
    QAction *m_repairtables1 = nullptr;
    QAction *m_datasource1 = nullptr;
    QList<QAction *> m_languageItems;
    QLabel *m_image1;
    QLabel *m_lVersion;
    QLabel *m_lDate;
    QLabel *m_drapeau;
    QPushButton *m_bitBtn2;
    QPushButton *m_bitBtn1;
};
