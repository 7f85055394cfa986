#pragma once

#include <QWidget>

class QPushButton;
class QTextBrowser;

// The user guide in a window of its own: the guide's HTML at a section, with the contents,
// previous and next pages of its history, and Close.
class HelpWindow final : public QWidget
{
    Q_OBJECT
public:
    explicit HelpWindow(QWidget *parent = nullptr);

    // Shows the guide file at a section (an anchor of the guide). A missing file says so in the
    // window.
    void showSection(const QString &guideFile, const QString &section);
    // The file and the section shown.
    QString guideFile() const { return m_guideFile; }
    QString section() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    QTextBrowser *m_browser;
    QPushButton *m_contents;
    QPushButton *m_previous;
    QPushButton *m_next;
    QPushButton *m_close;
    QString m_guideFile;
    QString m_missingFile;
};
