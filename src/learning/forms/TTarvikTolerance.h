#pragma once

#include <QDialog>

class QTableWidget;
class ToleranceModel;

// "Tolerances": the fourteen margins in a two-column grid ("Items", "Values"), over
// ToleranceModel. Only the value column takes typing.
class TTarvikTolerance final : public QDialog
{
    Q_OBJECT
public:
    explicit TTarvikTolerance(ToleranceModel &model, QWidget *parent = nullptr);
    ~TTarvikTolerance() override;
    Q_DISABLE_COPY_MOVE(TTarvikTolerance)

    void reject() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void showControls(const QStringList &names);

    ToleranceModel &m_model;
    QTableWidget *m_grid;
};
