#pragma once

#include <QDialog>
#include <QHash>

class DataSourceModel;
class QLabel;
class QLineEdit;
class QPushButton;
class RadioGroup;

// "Data source": the choice of a directory or a server over its model; every rule is in
// DataSourceModel.
class TFormDataSource final : public QDialog
{
    Q_OBJECT
public:
    explicit TFormDataSource(DataSourceModel &model, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void repaint(const QStringList &names);

    DataSourceModel &m_model;
    RadioGroup *m_source;
    QHash<QString, QWidget *> m_widgets;
};
