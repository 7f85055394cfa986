#pragma once

#include <QWidget>
#include <memory>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QSpinBox;
class BenchPanelModel;
class VirtualValidator;
enum class CoinKind;
struct LineProfile;

// The bench around the virtual validator: fit a validator of a family, insert coins, open the
// door, pull the cable, switch to the mini-programmer or have it ask for firmware, and make the
// line as rough as a real one (pacing, turnarounds, adapter bursts, pauses inside replies).
// It binds to a BenchPanelModel: in tarvik-sim --window, its own process, so that no window
// of the program blocks it; in this process for the pictures and where no pseudo-terminal
// exists.
class SimulatorPanel final : public QWidget
{
    Q_OBJECT
public:
    // A bench in this process: `line` is the line the virtual validator's port follows; the
    // panel changes it in place.
    explicit SimulatorPanel(VirtualValidator *device, LineProfile *line = nullptr,
                            QWidget *parent = nullptr);
    // `showLine`: the Line group is offered.
    SimulatorPanel(BenchPanelModel *model, bool showLine, QWidget *parent = nullptr);
    ~SimulatorPanel() override;

    // How the coin list names a coin or token, in the current language.
    static QString coinName(CoinKind kind);

    // A factory-fresh validator of the chosen family and serial number.
    void fitValidator();
    // Unplugs the validator in place (it keeps its memory), or plugs the one of the chosen
    // serial number: as it was when it was plugged before, else factory-fresh.
    void unplugValidator();
    void plugValidator();
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
    void build(bool showLine);

    std::unique_ptr<BenchPanelModel> m_ownModel;
    BenchPanelModel *m_model;
    QGroupBox *m_validatorGroup;
    QLabel *m_familyLabel;
    QComboBox *m_familyBox;
    QLabel *m_serialLabel;
    QSpinBox *m_serialBox;
    QPushButton *m_fitBtn;
    QPushButton *m_unplugBtn;
    QPushButton *m_plugBtn;
    QGroupBox *m_coinGroup;
    QComboBox *m_coinBox;
    QPushButton *m_insertBtn;
    QLabel *m_queueLabel;
    QLabel *m_testModeLabel;
    QCheckBox *m_doorBox;
    QCheckBox *m_cableBox;
    QCheckBox *m_miniPgmBox;
    QPushButton *m_firmwareRequestBtn;
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
};
