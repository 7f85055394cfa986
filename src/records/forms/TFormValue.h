#pragma once

#include <QDialog>
#include <QHash>

class QTableWidget;
class QWidget;
class ValueTableModel;

// The value table form "Values Table": widgets by the model's control names, the grid
// TableauValue, the data grid DBGrid1 and its navigator. Every rule is in ValueTableModel.
class TFormValue final : public QDialog
{
    Q_OBJECT

public:
    // The model outlives the form; the form activates it when shown.
    explicit TFormValue(ValueTableModel &model, QWidget *parent = nullptr);
    ~TFormValue() override;
    Q_DISABLE_COPY_MOVE(TFormValue)

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void repaint(const QStringList &names);
    void repaintGrids();
    void fitTable();

    ValueTableModel &m_model;
    QHash<QString, QWidget *> m_widgets;
    QTableWidget *m_table = nullptr;
    QTableWidget *m_records = nullptr;
    bool m_painting = false;
};
