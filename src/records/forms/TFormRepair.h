#pragma once

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;
class TableRepairModel;

// "Repair tables": the report over its model; every rule is in TableRepairModel.
class TFormRepair final : public QDialog
{
    Q_OBJECT
public:
    explicit TFormRepair(TableRepairModel &model, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showState();

    TableRepairModel &m_model;
    QLabel *m_tables;
    QListWidget *m_report;
    QPushButton *m_repair;
    QPushButton *m_close;
};
