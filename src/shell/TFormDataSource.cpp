#include "TFormDataSource.h"

#include "DataSourceModel.h"
#include "RadioGroup.h"

#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

TFormDataSource::TFormDataSource(DataSourceModel &model, QWidget *parent)
    : QDialog(parent), m_model(model), m_source(new RadioGroup(QStringLiteral("RGSource"), 2, this))
{
    setObjectName(QStringLiteral("TFormDataSource"));
    m_widgets.insert(QStringLiteral("RGSource"), m_source);
    auto add = [this](QWidget *widget, const char *name) {
        widget->setObjectName(QLatin1String(name));
        m_widgets.insert(QLatin1String(name), widget);
        return widget;
    };
    auto *directoryLabel = static_cast<QLabel *>(add(new QLabel(this), "LDirectory"));
    auto *directory = static_cast<QLineEdit *>(add(new QLineEdit(this), "EDirectory"));
    auto *serverLabel = static_cast<QLabel *>(add(new QLabel(this), "LServer"));
    auto *server = static_cast<QLineEdit *>(add(new QLineEdit(this), "EServer"));
    auto *test = static_cast<QPushButton *>(add(new QPushButton(this), "BtnTest"));
    auto *status = static_cast<QLabel *>(add(new QLabel(this), "LStatus"));
    auto *ok = static_cast<QPushButton *>(add(new QPushButton(this), "BtnOK"));
    auto *cancel = static_cast<QPushButton *>(add(new QPushButton(this), "BtnCancel"));
    directoryLabel->setBuddy(directory);
    serverLabel->setBuddy(server);
    status->setWordWrap(true);
    status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    server->setMinimumWidth(420);

    auto *fields = new QFormLayout;
    fields->addRow(directoryLabel, directory);
    fields->addRow(serverLabel, server);
    auto *testRow = new QHBoxLayout;
    testRow->addWidget(test);
    testRow->addWidget(status, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    ok->setDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_source);
    layout->addLayout(fields);
    layout->addLayout(testRow);
    layout->addStretch();
    layout->addLayout(buttons);

    const QStringList items = m_model.controls().state(QStringLiteral("RGSource")).items;
    m_source->setItems(items);
    connect(m_source, &RadioGroup::itemClicked, this, [this](int index) {
        m_model.pick(index);
        repaint(m_model.takeChanged());
    });
    for (QLineEdit *edit : {directory, server}) {
        connect(edit, &QLineEdit::textEdited, this, [this, edit](const QString &text) {
            m_model.type(edit->objectName(), text);
            repaint(m_model.takeChanged());
        });
    }
    connect(test, &QPushButton::clicked, this, [this] {
        m_model.BtnTestClick();
        repaint(m_model.takeChanged());
    });
    connect(ok, &QPushButton::clicked, this, [this] {
        if (m_model.BtnOKClick())
            accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    m_model.takeChanged();
    repaint(m_model.controls().names());
}

void TFormDataSource::repaint(const QStringList &names)
{
    const ControlSet &c = m_model.controls();
    for (const QString &name : names) {
        const ControlState &state = c.state(name);
        if (name == QLatin1String("TFormDataSource")) {
            setWindowTitle(state.text);
            continue;
        }
        QWidget *widget = m_widgets.value(name);
        if (!widget)
            continue;
        widget->setEnabled(state.enabled);
        if (!state.accessibleName.isEmpty())
            widget->setAccessibleName(state.accessibleName);
        if (widget == m_source) {
            m_source->setItemTexts(state.items);
            m_source->setItemIndex(state.itemIndex);
        } else if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
            if (edit->text() != state.text)
                edit->setText(state.text);
        } else if (auto *label = qobject_cast<QLabel *>(widget)) {
            label->setText(state.text);
        } else if (auto *button = qobject_cast<QPushButton *>(widget)) {
            button->setText(state.text);
        }
    }
}

void TFormDataSource::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_model.retranslate();
        repaint(m_model.takeChanged());
    }
    QDialog::changeEvent(event);
}
