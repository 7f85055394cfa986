#pragma once

#include "ConfigImage.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;
class TMonnayeur;
class ValidatorLink;

// Stands for the editor TFormData until it exists: reads the validator on the link once shown
// and shows the port, the firmware family and the serial number.
class EditorStandIn final : public QDialog
{
    Q_OBJECT
public:
    EditorStandIn(TMonnayeur &link, int comPortNumber, QWidget *parent = nullptr);

    // Shows a stand-in on the open link, modal over the main window only, so that a bench
    // window beside it stays usable.
    static void showModal(ValidatorLink &link, QWidget *mainWindow);

    // The read; runs once, soon after the window is shown.
    void readNow();
    bool readDone() const { return m_readDone; }
    const ConfigImage &image() const { return m_image; }

Q_SIGNALS:
    // The read has ended; done is false when it failed or was cancelled.
    void readFinished(bool done);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    TMonnayeur &m_link;
    int m_comPortNumber;
    ConfigImage m_image = ConfigImage::blank();
    bool m_readStarted = false;
    bool m_readDone = false;
    QLabel *m_portLabel;
    QLabel *m_familyLabel;
    QLabel *m_serialLabel;
    QLabel *m_lPort;
    QLabel *m_lVersionH;
    QLabel *m_eSerial;
    QProgressBar *m_gauge;
    QPushButton *m_closeBtn;
};
