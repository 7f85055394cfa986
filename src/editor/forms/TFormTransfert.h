#pragma once

#include <QDialog>

class ChannelCopyModel;
class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QSpinBox;

// "Copy": the channel copy dialog over its model; every rule is in ChannelCopyModel.
class TFormTransfert final : public QDialog
{
    Q_OBJECT
public:
    explicit TFormTransfert(ChannelCopyModel &model, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showModel();

    ChannelCopyModel &m_model;
    QGroupBox *m_source;
    QGroupBox *m_destination;
    QLabel *m_sourceLabel;
    QLabel *m_destinationLabel;
    QSpinBox *m_spinS;
    QSpinBox *m_spinD;
    QCheckBox *m_clear;
    QCheckBox *m_valuesOnly;
    QPushButton *m_transfert;
    QPushButton *m_exit;
};
