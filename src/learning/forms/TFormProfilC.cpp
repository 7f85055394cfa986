#include "TFormProfilC.h"

#include "Messages.h"
#include "ProfilCModel.h"
#include "ProfileStore.h"
#include "UserPrompt.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStyle>
#include <QTableWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const QString kForm = QStringLiteral("TFormProfilC");
const QString kPriceLine = QStringLiteral("RadioPriceLine");
const QString kToleranceGrid = QStringLiteral("GridTolerances");
const QString kProfiles = QStringLiteral("GridProfiles");

} // namespace

TFormProfilC::TFormProfilC(ProfilCModel &model, QWidget *parent) : QDialog(parent), m_model(model)
{
    setObjectName(kForm);
    build();
    m_model.changed = [this](const QStringList &names) { showControls(names); };
    m_model.closeRequested = [this](bool accepted) {
        QDialog::done(accepted ? QDialog::Accepted : QDialog::Rejected);
    };
    connect(qApp, &QApplication::focusChanged, this, &TFormProfilC::focusMoved);
    showControls(m_model.controlNames());
}

TFormProfilC::~TFormProfilC()
{
    // The widgets go after this: nothing they report may reach the model any more.
    disconnect(qApp, &QApplication::focusChanged, this, &TFormProfilC::focusMoved);
    m_model.changed = nullptr;
    m_model.closeRequested = nullptr;
    m_painting = true;
}

std::optional<CoinProfile> TFormProfilC::choose(QWidget *parent, RecordStore *records,
                                                UserPrompt &prompt, int channel,
                                                const ConfigImage &image)
{
    if (!records) {
        prompt.tell(messageText(Msg::TablesUnavailable), UserPrompt::Kind::Warning);
        return std::nullopt;
    }
    ProfilCModel model(*records, &prompt, channel, image);
    TFormProfilC form(model, parent);
    form.exec();
    return model.result();
}

void TFormProfilC::build()
{
    auto add = [this](QWidget *widget, const QString &name) {
        widget->setObjectName(name);
        m_widgets.insert(name, widget);
        return widget;
    };
    auto label = [&](const char *name) {
        return static_cast<QLabel *>(add(new QLabel(this), QLatin1String(name)));
    };
    auto edit = [&](const char *name) {
        auto *e = static_cast<QLineEdit *>(add(new QLineEdit(this), QLatin1String(name)));
        connect(e, &QLineEdit::textEdited, this,
                [this, e](const QString &text) { m_model.type(e->objectName(), text); });
        return e;
    };
    auto button = [&](const char *name) {
        auto *b = static_cast<QPushButton *>(add(new QPushButton(this), QLatin1String(name)));
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, [this, b] { m_model.click(b->objectName()); });
        return b;
    };

    auto *fields = new QGridLayout;
    fields->addWidget(label("LabelName"), 0, 0);
    fields->addWidget(edit("EditName"), 0, 1, 1, 2);
    fields->addWidget(label("LabelDescription"), 1, 0);
    fields->addWidget(edit("EditDescription"), 1, 1, 1, 2);
    fields->addWidget(label("LabelSubstitution"), 2, 0);
    auto *spin = static_cast<QSpinBox *>(add(new QSpinBox(this), QStringLiteral("SpinSub")));
    connect(spin, &QSpinBox::valueChanged, this, [this, spin](int value) {
        if (!m_painting)
            m_model.type(spin->objectName(), QString::number(value));
    });
    fields->addWidget(spin, 2, 1);
    auto *enable =
        static_cast<QCheckBox *>(add(new QCheckBox(this), QStringLiteral("CheckEnable")));
    connect(enable, &QCheckBox::clicked, this,
            [this] { m_model.click(QStringLiteral("CheckEnable")); });
    fields->addWidget(enable, 2, 2);
    fields->addWidget(label("LabelValue"), 3, 0);
    fields->addWidget(edit("EditValue"), 3, 1);
    auto *priceLine = static_cast<QGroupBox *>(add(new QGroupBox(this), kPriceLine));
    auto *priceLayout = new QHBoxLayout(priceLine);
    m_priceLine = new QButtonGroup(priceLine);
    for (int i = 0; i < 2; ++i) {
        auto *radio = new QRadioButton(priceLine);
        radio->setObjectName(kPriceLine + QStringLiteral("_%1").arg(i));
        m_priceLine->addButton(radio, i);
        priceLayout->addWidget(radio);
    }
    connect(m_priceLine, &QButtonGroup::idClicked, this,
            [this](int item) { m_model.pick(kPriceLine, item); });
    fields->addWidget(priceLine, 3, 2);
    for (const char *buddy : {"Name", "Description", "Value"}) {
        static_cast<QLabel *>(m_widgets.value(QStringLiteral("Label") + QLatin1String(buddy)))
            ->setBuddy(m_widgets.value(QStringLiteral("Edit") + QLatin1String(buddy)));
    }
    static_cast<QLabel *>(m_widgets.value(QStringLiteral("LabelSubstitution")))->setBuddy(spin);

    m_profiles = static_cast<QTableWidget *>(add(new QTableWidget(0, 2, this), kProfiles));
    m_profiles->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_profiles->setSelectionMode(QAbstractItemView::SingleSelection);
    m_profiles->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_profiles->verticalHeader()->hide();
    m_profiles->horizontalHeader()->setStretchLastSection(true);
    connect(m_profiles, &QTableWidget::itemSelectionChanged, this, [this] {
        if (!m_painting && m_profiles->currentRow() >= 0)
            m_model.pick(kProfiles, m_profiles->currentRow());
    });
    connect(m_profiles, &QTableWidget::cellDoubleClicked, this, [this](int row) {
        m_model.pick(kProfiles, row);
        m_model.click(QStringLiteral("BtnOpen"));
    });

    auto *group =
        static_cast<QGroupBox *>(add(new QGroupBox(this), QStringLiteral("GroupTolerances")));
    m_tolerances = static_cast<QTableWidget *>(
        add(new QTableWidget(ProfilCModel::kToleranceRows, 2, group), kToleranceGrid));
    m_tolerances->verticalHeader()->hide();
    m_tolerances->horizontalHeader()->setStretchLastSection(true);
    m_tolerances->setSelectionMode(QAbstractItemView::SingleSelection);
    for (int row = 0; row < ProfilCModel::kToleranceRows; ++row) {
        auto *key = new QTableWidgetItem;
        key->setFlags(Qt::ItemIsEnabled);
        m_tolerances->setItem(row, 0, key);
        auto *value = new QTableWidgetItem;
        value->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_tolerances->setItem(row, 1, value);
    }
    connect(m_tolerances, &QTableWidget::itemChanged, this, [this](QTableWidgetItem *item) {
        if (!m_painting && item->column() == 1)
            m_model.type(ProfilCModel::toleranceName(item->row()), item->text());
    });
    connect(m_tolerances, &QTableWidget::currentCellChanged, this,
            [this](int row, int, int previousRow, int) {
                if (!m_painting && previousRow >= 0 && previousRow != row)
                    m_model.leave(ProfilCModel::toleranceName(previousRow));
            });
    connect(m_tolerances, &QTableWidget::cellClicked, this,
            [this] { m_model.GridTolerancesClick(); });
    (new QVBoxLayout(group))->addWidget(m_tolerances);

    auto *navigator = add(new QWidget(this), QStringLiteral("DBNavigator1"));
    auto *navLayout = new QHBoxLayout(navigator);
    navLayout->setContentsMargins(0, 0, 0, 0);
    const std::pair<const char *, QStyle::StandardPixmap> arrows[] = {
        {"DBNavigator1First", QStyle::SP_MediaSkipBackward},
        {"DBNavigator1Prior", QStyle::SP_MediaSeekBackward},
        {"DBNavigator1Next", QStyle::SP_MediaSeekForward},
        {"DBNavigator1Last", QStyle::SP_MediaSkipForward},
        {"DBNavigator1Delete", QStyle::SP_TrashIcon}};
    for (const auto &[name, pixmap] : arrows) {
        auto *b = static_cast<QToolButton *>(add(new QToolButton(navigator), QLatin1String(name)));
        b->setIcon(style()->standardIcon(pixmap));
        connect(b, &QToolButton::clicked, this, [this, b] { m_model.click(b->objectName()); });
        navLayout->addWidget(b);
    }
    navLayout->addStretch();

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const char *name : {"BtnOpen", "BtnSave", "BtnExit", "BtnCancel"})
        buttons->addWidget(button(name));

    auto *left = new QVBoxLayout;
    left->addLayout(fields);
    left->addWidget(m_profiles, 1);
    left->addWidget(navigator);
    auto *columns = new QHBoxLayout;
    columns->addLayout(left, 3);
    columns->addWidget(group, 2);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    layout->addLayout(buttons);
    resize(760, 480);
}

void TFormProfilC::showControls(const QStringList &names)
{
    m_painting = true;
    bool tolerances = false;
    bool profiles = false;
    for (const QString &name : names) {
        const Control *control = m_model.controls().find(name);
        if (!control)
            continue;
        if (control->parent == kToleranceGrid || name == kToleranceGrid) {
            tolerances = true;
            continue;
        }
        if (control->parent == kProfiles || name == kProfiles)
            profiles = true;
        if (name == kForm) {
            setWindowTitle(control->state.text);
            continue;
        }
        QWidget *widget = m_widgets.value(name);
        if (!widget)
            continue;
        const QSignalBlocker blocker(widget);
        widget->setVisible(control->state.visible);
        widget->setEnabled(control->state.enabled);
        if (!control->state.accessibleName.isEmpty())
            widget->setAccessibleName(control->state.accessibleName);
        widget->setToolTip(control->state.toolTip);
        if (auto *label = qobject_cast<QLabel *>(widget)) {
            label->setText(control->state.text);
        } else if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
            if (edit->text() != control->state.text)
                edit->setText(control->state.text);
        } else if (auto *spin = qobject_cast<QSpinBox *>(widget)) {
            if (const auto range = m_model.spinRange(name))
                spin->setRange(range->min, range->max);
            spin->setValue(m_model.spinValue(name));
        } else if (auto *check = qobject_cast<QCheckBox *>(widget)) {
            check->setText(control->state.text);
            check->setChecked(control->state.checked);
        } else if (auto *button = qobject_cast<QPushButton *>(widget)) {
            button->setText(control->state.text);
        } else if (name == kPriceLine) {
            const QList<QAbstractButton *> radios = m_priceLine->buttons();
            // A group with one button checked cannot uncheck it while exclusive.
            m_priceLine->setExclusive(false);
            for (int i = 0; i < radios.size(); ++i) {
                radios.at(i)->setText(control->state.items.value(i));
                radios.at(i)->setChecked(i == control->state.itemIndex);
            }
            m_priceLine->setExclusive(true);
        } else if (auto *group = qobject_cast<QGroupBox *>(widget)) {
            group->setTitle(control->state.text);
        }
    }
    if (tolerances)
        showTolerances();
    if (profiles)
        showProfiles();
    m_painting = false;
}

void TFormProfilC::showTolerances()
{
    m_tolerances->setHorizontalHeaderLabels(
        {m_model.control(QStringLiteral("ColToleranceKey")).text,
         m_model.control(QStringLiteral("ColToleranceValue")).text});
    for (int row = 0; row < ProfilCModel::kToleranceRows; ++row) {
        m_tolerances->item(row, 0)->setText(
            m_model.control(ProfilCModel::toleranceKeyName(row)).text);
        m_tolerances->item(row, 1)->setText(m_model.control(ProfilCModel::toleranceName(row)).text);
    }
}

void TFormProfilC::showProfiles()
{
    m_profiles->setHorizontalHeaderLabels({m_model.control(QStringLiteral("ColItems")).text,
                                           m_model.control(QStringLiteral("ColDescription")).text});
    const ControlState &state = m_model.control(kProfiles);
    m_profiles->setRowCount(int(state.items.size()));
    for (int row = 0; row < state.items.size(); ++row) {
        m_profiles->setItem(row, 0, new QTableWidgetItem(state.items.at(row)));
        m_profiles->setItem(row, 1, new QTableWidgetItem(m_model.profileDescription(row)));
    }
    if (state.itemIndex >= 0)
        m_profiles->selectRow(state.itemIndex);
    else
        m_profiles->clearSelection();
}

bool TFormProfilC::inside(QWidget *widget, QWidget *container) const
{
    return widget && (widget == container || container->isAncestorOf(widget));
}

void TFormProfilC::focusMoved(QWidget *old, QWidget *now)
{
    // A message of the model takes the focus too: that is not a person leaving a box.
    if (m_painting || m_model.acting() || !old)
        return;
    if (qobject_cast<QLineEdit *>(old) && m_widgets.value(old->objectName()) == old)
        m_model.leave(old->objectName());
    else if (inside(old, m_tolerances) && !inside(now, m_tolerances))
        m_model.leave(kToleranceGrid);
}

void TFormProfilC::reject()
{
    if (!m_model.closed()) {
        m_model.click(QStringLiteral("BtnCancel"));
        if (m_model.closed())
            return; // the model has closed the form
    }
    QDialog::reject();
}

void TFormProfilC::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_model.retranslate();
    QDialog::changeEvent(event);
}
