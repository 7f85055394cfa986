#pragma once

#include <QDialog>
#include <QHash>
#include <QTimer>

class BatchModel;
class QButtonGroup;

// The Batch window: a thin view over BatchModel. It builds one widget per control name, forwards
// clicks and typing, repaints what the model says changed, and ticks the model while the batch
// runs.
class TFormBatch final : public QDialog
{
    Q_OBJECT
public:
    explicit TFormBatch(BatchModel &model, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;
    void reject() override;

private:
    void build();
    void repaint(const QStringList &names);
    void repaintGrid();
    void tickModel();
    template <typename W> W *make(const QString &name);

    BatchModel &m_model;
    QHash<QString, QWidget *> m_widgets;
    QButtonGroup *m_sourceGroup = nullptr;
    QTimer m_timer;
};
