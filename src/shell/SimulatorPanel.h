#pragma once

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QSpinBox;
class VirtualValidator;
enum class CoinKind;
struct LineProfile;

// The bench around the virtual validator: fit a validator of a family, insert coins, open the
// door, pull the cable, switch to the mini-programmer or have it ask for firmware, and make the
// line as rough as a real one (pacing, turnarounds, adapter bursts, pauses inside replies).
class SimulatorPanel final : public QWidget
{
    Q_OBJECT
public:
    // `line` is the line the virtual validator's port follows; the panel changes it in place.
    explicit SimulatorPanel(VirtualValidator *device, LineProfile *line = nullptr,
                            QWidget *parent = nullptr);

    static constexpr quint8 kFamilies[] = {0x03, 0x13, 0x23, 0x33};

    // How the coin list names a coin or token, in the current language.
    static QString coinName(CoinKind kind);

    // A factory-fresh validator of the chosen family and serial number.
    void fitValidator();
    void insertCoin();
    // The mini-programmer asks the host for a firmware file (request code 11).
    void requestFirmware();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();
    void refresh();
    void buildLineGroup();
    // The line's settings from the boxes.
    void takeLine();

    VirtualValidator *m_device;
    QGroupBox *m_validatorGroup;
    QLabel *m_familyLabel;
    QComboBox *m_familyBox;
    QLabel *m_serialLabel;
    QSpinBox *m_serialBox;
    QPushButton *m_fitBtn;
    QGroupBox *m_coinGroup;
    QComboBox *m_coinBox;
    QPushButton *m_insertBtn;
    QLabel *m_queueLabel;
    QLabel *m_testModeLabel;
    QCheckBox *m_doorBox;
    QCheckBox *m_cableBox;
    QCheckBox *m_miniPgmBox;
    QPushButton *m_firmwareRequestBtn;
    LineProfile *m_line;
    QGroupBox *m_lineGroup;
    QCheckBox *m_paceBox;
    QLabel *m_echoLabel;
    QSpinBox *m_echoMin;
    QSpinBox *m_echoMax;
    QLabel *m_turnLabel;
    QSpinBox *m_turnMin;
    QSpinBox *m_turnMax;
    QLabel *m_burstLabel;
    QSpinBox *m_burstBox;
    QLabel *m_splitLabel;
    QSpinBox *m_splitAt;
    QSpinBox *m_splitGap;
    QLabel *m_seedLabel;
    QSpinBox *m_seedBox;
    QTimer m_refresh;
};
