#include "TFormValue.h"

#include "ValueTableModel.h"

#include <QAbstractButton>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// A line edit that tells when the focus leaves it.
class LeavingEdit final : public QLineEdit
{
public:
    std::function<void()> left;

protected:
    void focusOutEvent(QFocusEvent *event) override
    {
        QLineEdit::focusOutEvent(event);
        if (left)
            left();
    }
};

} // namespace

TFormValue::TFormValue(ValueTableModel &model, QWidget *parent) : QDialog(parent), m_model(model)
{
    setObjectName(QStringLiteral("TFormValue"));
    setAttribute(Qt::WA_DeleteOnClose, false);
    auto *layout = new QVBoxLayout(this);

    m_table = new QTableWidget(ValueTableModel::kRows, ValueTableModel::kColumns, this);
    m_table->setObjectName(QStringLiteral("TableauValue"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->horizontalHeader()->hide();
    m_table->verticalHeader()->hide();
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->installEventFilter(this);
    connect(m_table, &QTableWidget::cellClicked, this, [this](int row, int column) {
        if (row > 0 && column > 0 && !m_painting)
            m_model.gridClick(column, row);
    });
    layout->addWidget(m_table);
    m_widgets.insert(m_table->objectName(), m_table);

    auto *group = new QGroupBox(this);
    group->setObjectName(QStringLiteral("GroupBox1"));
    auto *groupLayout = new QHBoxLayout(group);
    m_widgets.insert(group->objectName(), group);
    layout->addWidget(group);

    auto *names = new QHBoxLayout;
    layout->addLayout(names);
    for (int n = 1; n <= 5; ++n) {
        const QString name = QStringLiteral("LabeledEdit%1").arg(n);
        auto *label = new QLabel(this);
        label->setObjectName(name + QStringLiteral("Label"));
        auto *edit = new LeavingEdit;
        edit->setObjectName(name);
        label->setBuddy(edit);
        connect(edit, &QLineEdit::textEdited, this,
                [this, name](const QString &text) { m_model.type(name, text); });
        edit->left = [this, name] { m_model.leave(name); };
        QHBoxLayout *into = n <= 3 ? groupLayout : names;
        into->addWidget(label);
        into->addWidget(edit);
        m_widgets.insert(label->objectName(), label);
        m_widgets.insert(name, edit);
    }

    auto *bottom = new QHBoxLayout;
    layout->addLayout(bottom);
    m_records = new QTableWidget(0, 2, this);
    m_records->setObjectName(QStringLiteral("DBGrid1"));
    m_records->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_records->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_records->setSelectionMode(QAbstractItemView::SingleSelection);
    m_records->verticalHeader()->hide();
    connect(m_records, &QTableWidget::cellClicked, this, [this](int row, int) {
        if (!m_painting)
            m_model.recordClick(row);
    });
    connect(m_records, &QTableWidget::cellDoubleClicked, this,
            [this](int row, int) { m_model.recordDoubleClick(row); });
    bottom->addWidget(m_records, 1);
    m_widgets.insert(m_records->objectName(), m_records);

    auto *navigator = new QWidget(this);
    navigator->setObjectName(QStringLiteral("DBNavigator1"));
    auto *navLayout = new QHBoxLayout(navigator);
    navLayout->setContentsMargins(0, 0, 0, 0);
    m_widgets.insert(navigator->objectName(), navigator);
    auto *buttons = new QVBoxLayout;
    bottom->addLayout(buttons);
    buttons->addWidget(navigator);

    const std::pair<const char *, QStyle::StandardPixmap> arrows[] = {
        {"DBNavigator1First", QStyle::SP_MediaSkipBackward},
        {"DBNavigator1Prior", QStyle::SP_MediaSeekBackward},
        {"DBNavigator1Next", QStyle::SP_MediaSeekForward},
        {"DBNavigator1Last", QStyle::SP_MediaSkipForward},
        {"DBNavigator1Delete", QStyle::SP_TrashIcon}};
    for (const auto &[name, pixmap] : arrows) {
        auto *button = new QToolButton(navigator);
        button->setObjectName(QLatin1String(name));
        button->setIcon(style()->standardIcon(pixmap));
        navLayout->addWidget(button);
        m_widgets.insert(button->objectName(), button);
    }
    for (const char *name :
         {"BitBtn7", "BitBtn4", "BitBtn3", "BitBtn2", "BitBtn5", "BitBtn6", "BitBtn1"}) {
        auto *button = new QPushButton(this);
        button->setObjectName(QLatin1String(name));
        buttons->addWidget(button);
        m_widgets.insert(button->objectName(), button);
    }
    for (auto it = m_widgets.cbegin(); it != m_widgets.cend(); ++it) {
        if (auto *button = qobject_cast<QAbstractButton *>(it.value())) {
            const QString name = it.key();
            connect(button, &QAbstractButton::clicked, this, [this, name] { m_model.click(name); });
        }
    }

    m_model.changed = [this](const QStringList &changed) { repaint(changed); };
    m_model.closeRequested = [this] { accept(); };
    m_model.focusRequested = [this](const QString &name) {
        if (QWidget *w = m_widgets.value(name))
            w->setFocus();
    };
    repaint(m_model.controls().names());
}

TFormValue::~TFormValue()
{
    m_model.changed = nullptr;
    m_model.closeRequested = nullptr;
    m_model.focusRequested = nullptr;
}

void TFormValue::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_model.FormActivate();
}

void TFormValue::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_model.retranslate();
}

bool TFormValue::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_table || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    using Key = ValueTableModel::GridKey;
    auto *key = static_cast<QKeyEvent *>(event);
    static const QHash<int, Key> keys = {{Qt::Key_Tab, Key::Tab},
                                         {Qt::Key_Backtab, Key::BackTab},
                                         {Qt::Key_Up, Key::Up},
                                         {Qt::Key_Down, Key::Down},
                                         {Qt::Key_PageUp, Key::PageUp},
                                         {Qt::Key_PageDown, Key::PageDown},
                                         {Qt::Key_Left, Key::Left},
                                         {Qt::Key_Right, Key::Right},
                                         {Qt::Key_Return, Key::Enter},
                                         {Qt::Key_Enter, Key::Enter},
                                         {Qt::Key_Backspace, Key::Backspace}};
    if (keys.contains(key->key())) {
        m_model.gridKey(keys.value(key->key()));
        return true;
    }
    if (!key->text().isEmpty() && key->text().at(0).isPrint()) {
        m_model.gridType(key->text());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void TFormValue::repaint(const QStringList &names)
{
    for (const QString &name : names) {
        const ControlState &s = m_model.control(name);
        if (name == QLatin1String("TFormValue")) {
            setWindowTitle(s.text);
            continue;
        }
        QWidget *w = m_widgets.value(name);
        if (!w)
            continue;
        if (auto *edit = qobject_cast<QLineEdit *>(w)) {
            if (edit->text() != s.text)
                edit->setText(s.text);
        } else if (auto *label = qobject_cast<QLabel *>(w)) {
            label->setText(s.text);
        } else if (auto *group = qobject_cast<QGroupBox *>(w)) {
            group->setTitle(s.text);
        } else if (auto *button = qobject_cast<QAbstractButton *>(w)) {
            button->setText(s.text);
        }
        w->setVisible(s.visible);
        w->setEnabled(s.enabled);
        w->setToolTip(s.toolTip);
        w->setAccessibleName(s.accessibleName);
    }
    repaintGrids();
}

void TFormValue::repaintGrids()
{
    m_painting = true;
    m_table->setRowCount(m_model.rowCount());
    for (int row = 0; row < m_model.rowCount(); ++row) {
        for (int col = 0; col < ValueTableModel::kColumns; ++col) {
            QTableWidgetItem *item = m_table->item(row, col);
            if (!item) {
                item = new QTableWidgetItem;
                if (row == 0 || col == 0)
                    item->setFlags(Qt::ItemIsEnabled);
                m_table->setItem(row, col, item);
            }
            item->setText(m_model.cell(col, row));
            item->setToolTip(m_model.cellTip(col, row));
        }
    }
    m_table->setCurrentCell(m_model.currentRow(), m_model.currentColumn());
    fitTable();

    m_records->setHorizontalHeaderLabels(m_model.gridTitles());
    const auto &records = m_model.records();
    m_records->setRowCount(int(records.size()));
    for (int r = 0; r < records.size(); ++r) {
        m_records->setItem(r, 0, new QTableWidgetItem(records.at(r).name));
        m_records->setItem(r, 1, new QTableWidgetItem(records.at(r).description));
    }
    if (m_model.currentRecord() >= 0)
        m_records->selectRow(m_model.currentRecord());
    m_painting = false;
}

void TFormValue::fitTable()
{
    // The grid has no scroll bars: it takes the room of all its cells, wide enough for the
    // widest value a channel can show.
    const int least = m_table->fontMetrics().horizontalAdvance(QStringLiteral("0000.00")) + 8;
    m_table->resizeColumnsToContents();
    m_table->resizeRowsToContents();
    int width = 2 * m_table->frameWidth();
    for (int col = 0; col < m_table->columnCount(); ++col) {
        if (m_table->columnWidth(col) < least)
            m_table->setColumnWidth(col, least);
        width += m_table->columnWidth(col);
    }
    int height = 2 * m_table->frameWidth();
    for (int row = 0; row < m_table->rowCount(); ++row)
        height += m_table->rowHeight(row);
    m_table->setMinimumSize(width, height);
    m_table->setMaximumHeight(height);
}
