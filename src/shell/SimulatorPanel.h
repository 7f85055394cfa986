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

// The bench around the virtual validator: fit a validator of a family, insert coins, open the
// door, pull the cable, switch to the mini-programmer or have it ask for firmware.
class SimulatorPanel final : public QWidget
{
    Q_OBJECT
public:
    explicit SimulatorPanel(VirtualValidator *device, QWidget *parent = nullptr);

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
    QTimer m_refresh;
};
