#pragma once

#include <QDialog>

class HistoryModel;
class QLabel;
class QListWidget;
class QPushButton;
class QTableWidget;

// The History window of one validator over its model: the events, what the chosen one changed
// or how two chosen ones differ, and Restore where the opener can write.
class TFormHistory final : public QDialog
{
    Q_OBJECT
public:
    explicit TFormHistory(HistoryModel &model, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showModel();
    void showDifferences();
    void chosen();

    HistoryModel &m_model;
    QTableWidget *m_grid;
    QLabel *m_heading;
    QListWidget *m_differences;
    QPushButton *m_restore;
    QPushButton *m_close;
};
