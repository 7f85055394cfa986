#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>

class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class QTableWidget;
class SavedValidatorsModel;

// "Saved validators": the browser over its model; every rule is in SavedValidatorsModel.
class TFormReadFileData final : public QDialog
{
    Q_OBJECT
public:
    explicit TFormReadFileData(SavedValidatorsModel &model, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showTexts();
    void showValidators();
    void showSelection();
    void showChannels();

    SavedValidatorsModel &m_model;
    QLabel *m_filterLabel;
    QLineEdit *m_filter;
    QTableView *m_validators;
    QTableWidget *m_channels;
    QPushButton *m_open;
    QPushButton *m_delete;
    QPushButton *m_history;
    QPushButton *m_close;
    QList<QStringList> m_shownChannels;
};
