#pragma once

#include <QDialog>

class ChangesModel;
class QLabel;
class QListWidget;
class QPushButton;

// "Changes": the list of what the next write would change, over its model; the lines and their
// words all come from ChangesModel.
class TFormChanges final : public QDialog
{
    Q_OBJECT
public:
    explicit TFormChanges(ChangesModel &model, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showModel();

    ChangesModel &m_model;
    QLabel *m_since;
    QListWidget *m_list;
    QPushButton *m_write;
    QPushButton *m_close;
};
