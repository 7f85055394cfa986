#pragma once

#include <QDialog>
#include <memory>

class FormBinder;
class FormModel;

// A small read-only learning form over its own model: its controls one under the other, the
// list or text stretching, "&OK" at the bottom. Freed when closed.
class ListDialog : public QDialog
{
    Q_OBJECT
public:
    ListDialog(std::unique_ptr<FormModel> model, const QString &formName, QWidget *parent);
    ~ListDialog() override;
    Q_DISABLE_COPY_MOVE(ListDialog)

    FormModel &model() { return *m_model; }

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<FormModel> m_model;
    FormBinder *m_binder;
};
