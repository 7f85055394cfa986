#include "TFormBatch.h"

#include "BatchModel.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

template <typename W> W *TFormBatch::make(const QString &name)
{
    auto *widget = new W(this);
    widget->setObjectName(name);
    m_widgets.insert(name, widget);
    return widget;
}

TFormBatch::TFormBatch(BatchModel &model, QWidget *parent) : QDialog(parent), m_model(model)
{
    setObjectName(QStringLiteral("TFormBatch"));
    build();
    m_model.changed = [this](const QStringList &names) { repaint(names); };
    m_timer.setInterval(BatchModel::kTickIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &TFormBatch::tickModel);
    repaint(m_model.controls().names());
    resize(1000, 600);
}

void TFormBatch::build()
{
    // The source.
    auto *source = make<QGroupBox>(QStringLiteral("GroupSource"));
    auto *sourceLayout = new QGridLayout(source);
    m_sourceGroup = new QButtonGroup(this);
    for (int i = 0; i < 3; ++i) {
        auto *radio = new QRadioButton(source);
        radio->setObjectName(QStringLiteral("GroupSource%1").arg(i));
        m_sourceGroup->addButton(radio, i);
        sourceLayout->addWidget(radio, i, 0, 1, 2);
    }
    auto *file = make<QLineEdit>(QStringLiteral("ESourceFile"));
    auto *browse = make<QPushButton>(QStringLiteral("BtnBrowse"));
    auto *saved = make<QComboBox>(QStringLiteral("CbSaved"));
    sourceLayout->addWidget(file, 3, 0);
    sourceLayout->addWidget(browse, 3, 1);
    sourceLayout->addWidget(saved, 4, 0, 1, 2);
    connect(m_sourceGroup, &QButtonGroup::idClicked, this,
            [this](int id) { m_model.pick(QStringLiteral("GroupSource"), id); });
    connect(file, &QLineEdit::textEdited, this,
            [this](const QString &text) { m_model.type(QStringLiteral("ESourceFile"), text); });
    connect(saved, &QComboBox::activated, this,
            [this](int item) { m_model.pick(QStringLiteral("CbSaved"), item); });

    // What to write.
    auto *what = make<QGroupBox>(QStringLiteral("GroupWhat"));
    auto *whatLayout = new QVBoxLayout(what);
    for (const char *box :
         {"ChkChannels", "ChkValues", "ChkPrices", "ChkConfig", "ChkEnable", "ChkFull"})
        whatLayout->addWidget(make<QCheckBox>(QLatin1String(box)));

    auto *countLabel = make<QLabel>(QStringLiteral("LblCount"));
    auto *count = make<QLineEdit>(QStringLiteral("ECount"));
    countLabel->setBuddy(count);
    connect(count, &QLineEdit::textEdited, this,
            [this](const QString &text) { m_model.type(QStringLiteral("ECount"), text); });
    auto *countRow = new QHBoxLayout;
    countRow->addWidget(countLabel);
    countRow->addWidget(count);

    auto *left = new QVBoxLayout;
    left->addWidget(source);
    left->addWidget(what);
    left->addLayout(countRow);
    for (const char *box : {"ChkAllowRepeat", "ChkSound", "ChkSheets"})
        left->addWidget(make<QCheckBox>(QLatin1String(box)));
    left->addStretch();
    auto *buttons = new QHBoxLayout;
    for (const char *button : {"BtnStart", "BtnStop", "BtnClose"})
        buttons->addWidget(make<QPushButton>(QLatin1String(button)));
    left->addLayout(buttons);
    for (const char *check : {"ChkChannels", "ChkValues", "ChkPrices", "ChkConfig", "ChkEnable",
                              "ChkFull", "ChkAllowRepeat", "ChkSound", "ChkSheets"}) {
        const QString name = QLatin1String(check);
        connect(static_cast<QCheckBox *>(m_widgets.value(name)), &QCheckBox::clicked, this,
                [this, name] { m_model.click(name); });
    }
    for (const char *button : {"BtnStart", "BtnStop", "BtnBrowse"}) {
        const QString name = QLatin1String(button);
        connect(static_cast<QPushButton *>(m_widgets.value(name)), &QPushButton::clicked, this,
                [this, name] {
                    m_model.click(name);
                    if (m_model.running() && !m_timer.isActive())
                        m_timer.start();
                });
    }
    connect(static_cast<QPushButton *>(m_widgets.value(QStringLiteral("BtnClose"))),
            &QPushButton::clicked, this, &QDialog::accept);

    // The bench's side: a status to read from afar, the gauge, the counters, the table.
    auto *status = make<QLabel>(QStringLiteral("LblStatus"));
    QFont large = status->font();
    large.setPointSizeF(large.pointSizeF() * 2.2);
    large.setBold(true);
    status->setFont(large);
    status->setWordWrap(true);
    status->setMinimumHeight(status->fontMetrics().height() * 2 + 8);
    auto *counters = new QHBoxLayout;
    for (const char *label : {"LblVerified", "LblFailed", "LblSkipped"}) {
        auto *counter = make<QLabel>(QLatin1String(label));
        QFont bold = counter->font();
        bold.setBold(true);
        counter->setFont(bold);
        counters->addWidget(counter);
    }
    counters->addStretch();
    auto *grid = make<QTableWidget>(QStringLiteral("GridDone"));
    grid->setColumnCount(6);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->verticalHeader()->setVisible(false);
    grid->horizontalHeader()->setStretchLastSection(true);
    auto *logLabel = make<QLabel>(QStringLiteral("LblLog"));
    logLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // A long path does not widen the window; its tip holds it whole.
    logLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *right = new QVBoxLayout;
    right->addWidget(status);
    right->addWidget(make<QProgressBar>(QStringLiteral("Gauge")));
    right->addLayout(counters);
    right->addWidget(grid, 1);
    right->addWidget(logLabel);

    auto *layout = new QHBoxLayout(this);
    layout->addLayout(left);
    layout->addLayout(right, 1);
}

void TFormBatch::repaint(const QStringList &names)
{
    for (const QString &name : names) {
        if (name == QLatin1String("GridDone")) {
            repaintGrid();
            continue;
        }
        const ControlState &state = m_model.control(name);
        if (name == QLatin1String("TFormBatch")) {
            setWindowTitle(state.text);
            continue;
        }
        if (name == QLatin1String("GroupSource")) {
            auto *group = static_cast<QGroupBox *>(m_widgets.value(name));
            group->setTitle(state.text);
            for (int i = 0; i < state.items.size(); ++i) {
                QAbstractButton *radio = m_sourceGroup->button(i);
                radio->setText(state.items.at(i));
                radio->setChecked(i == state.itemIndex);
                radio->setEnabled(state.enabled);
            }
            continue;
        }
        QWidget *widget = m_widgets.value(name);
        if (!widget)
            continue;
        widget->setVisible(state.visible);
        widget->setEnabled(state.enabled);
        if (!state.accessibleName.isEmpty())
            widget->setAccessibleName(state.accessibleName);
        if (auto *box = qobject_cast<QCheckBox *>(widget)) {
            box->setText(state.text);
            box->setChecked(state.checked);
        } else if (auto *button = qobject_cast<QPushButton *>(widget)) {
            button->setText(state.text);
        } else if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
            if (edit->text() != state.text)
                edit->setText(state.text);
        } else if (auto *label = qobject_cast<QLabel *>(widget)) {
            label->setText(state.text);
            label->setToolTip(state.text);
        } else if (auto *group = qobject_cast<QGroupBox *>(widget)) {
            group->setTitle(state.text);
        } else if (auto *combo = qobject_cast<QComboBox *>(widget)) {
            const QSignalBlocker blocker(combo);
            combo->clear();
            combo->addItems(state.items);
            combo->setCurrentIndex(state.itemIndex);
        } else if (auto *gauge = qobject_cast<QProgressBar *>(widget)) {
            gauge->setValue(state.value);
        }
    }
}

void TFormBatch::repaintGrid()
{
    auto *grid = static_cast<QTableWidget *>(m_widgets.value(QStringLiteral("GridDone")));
    grid->setAccessibleName(m_model.control(QStringLiteral("GridDone")).accessibleName);
    grid->setHorizontalHeaderLabels(BatchModel::columnTitles());
    const auto &rows = m_model.rows();
    grid->setRowCount(int(rows.size()));
    for (int r = 0; r < rows.size(); ++r) {
        for (int c = 0; c < rows[r].cells.size(); ++c) {
            auto *item = new QTableWidgetItem(rows[r].cells.at(c));
            item->setBackground(BatchModel::resultColour(rows[r].result));
            item->setForeground(Qt::black);
            if (c == 5)
                item->setToolTip(rows[r].cells.at(c));
            grid->setItem(r, c, item);
        }
    }
    grid->resizeColumnsToContents();
    grid->scrollToBottom();
}

void TFormBatch::tickModel()
{
    m_model.tick();
    if (!m_model.running())
        m_timer.stop();
}

void TFormBatch::reject()
{
    // A batch in hand is stopped first: the window does not close under it.
    if (m_model.running())
        return;
    QDialog::reject();
}

void TFormBatch::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_model.retranslate();
    QDialog::changeEvent(event);
}
