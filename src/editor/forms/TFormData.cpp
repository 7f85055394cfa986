#include "TFormData.h"

#include "ChannelPages.h"
#include "ControlBinder.h"
#include "EditorModel.h"
#include "GroupGrid.h"
#include "GuiEditorServices.h"
#include "ValidatorLink.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace {

enum class Area
{
    Left,
    Middle,
    Right,
    Progress,
    Closing,
    Tools
};

// Where the form's own controls sit: the buttons on a tool bar above; the channel pages lead
// the left column and the settings groups fill two columns beside them; the progress line and
// Close at the bottom.
struct Place
{
    const char *name;
    Area area;
};
constexpr Place kPlaces[] = {
    {"GroupBits", Area::Left},
    {"GroupCounters", Area::Left},
    {"GroupIdent", Area::Middle},
    {"GroupBox7", Area::Middle},
    {"GroupPrices", Area::Middle},
    {"GroupBase", Area::Middle},
    {"Label3", Area::Progress},
    {"Gauge1", Area::Progress},
    {"BitBtn1", Area::Closing},
    // The tools that open other windows sit on a second bar; the validator setting leads it,
    // so that the first bar holds the reads and writes in every language.
    {"BtnInit", Area::Tools},
    {"BtnLearn", Area::Tools},
    {"BtnReference", Area::Tools},
    {"BtnControl", Area::Tools},
    {"BtnOverlap", Area::Tools},
    {"BtnCopy", Area::Tools},
    {"BtnValues", Area::Tools},
    {"BtnSaved", Area::Tools},
    {"BtnBatch", Area::Tools},
    {"BtnHistory", Area::Tools},
    // The configuration sheet is printed or saved from beside Close, where a form's output
    // ends: the second bar then fits the screen in every language.
    {"BtnPrint", Area::Closing},
    {"BtnPdf", Area::Closing},
};

// The deepest nesting of layouts in the form: a line of a group inside a group.
constexpr int kLayoutDepth = 4;

struct Icon
{
    const char *name;
    QStyle::StandardPixmap pixmap;
};
constexpr Icon kIcons[] = {
    {"SpeedButton1", QStyle::SP_ArrowDown},
    {"SpeedButton8", QStyle::SP_ArrowUp},
    {"BtnWriteChanges", QStyle::SP_DialogApplyButton},
    {"BtnChanges", QStyle::SP_FileDialogContentsView},
    {"SpeedButton2", QStyle::SP_FileLinkIcon},
    {"SpeedButton4", QStyle::SP_DriveHDIcon},
    {"BtnOpenFile", QStyle::SP_DialogOpenButton},
    {"BtnSaveFile", QStyle::SP_DialogSaveButton},
    {"BtnInit", QStyle::SP_DialogResetButton},
    {"BtnOutput", QStyle::SP_ArrowRight},
    {"BitBtn1", QStyle::SP_DialogCloseButton},
};

QBoxLayout *column(QBoxLayout *parent)
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(3);
    parent->addLayout(layout);
    return layout;
}

} // namespace

TFormData::TFormData(UserPrompt &prompt, EditorServices &services, TMonnayeur *link,
                     QWidget *parent)
    : QDialog(parent), m_model(std::make_unique<EditorModel>(&prompt, &services, link)),
      m_binder(new ControlBinder(*m_model, this)), m_pages(nullptr), m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("TFormData"));
    // A compact font: the whole form fits a 1366 x 768 screen.
    QFont compact = font();
    if (compact.pointSizeF() > 0) {
        compact.setPointSizeF(compact.pointSizeF() * 0.9);
        setFont(compact);
    }
    m_pages = new ChannelPages(*m_binder, this);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(3);
    m_toolbar = new QHBoxLayout;
    m_toolbar->setSpacing(2);
    layout->addLayout(m_toolbar);
    m_tools = new QHBoxLayout;
    m_tools->setSpacing(2);
    layout->addLayout(m_tools);
    auto *body = new QHBoxLayout;
    body->setSpacing(4);
    layout->addLayout(body, 1);
    m_left = column(body);
    m_left->addWidget(m_pages);
    m_middle = column(body);
    m_right = column(body);
    auto *bottom = new QHBoxLayout;
    layout->addLayout(bottom);
    m_progress = new QHBoxLayout;
    bottom->addLayout(m_progress, 1);
    m_closeLine = new QHBoxLayout;
    bottom->addLayout(m_closeLine);

    build();
    m_toolbar->addStretch();
    m_tools->addStretch();
    for (QBoxLayout *area : {m_left, m_middle, m_right})
        area->addStretch();

    m_model->changed = [this](const QStringList &names) { m_binder->show(names); };
    // Pages and gauge show during a read. Only layouts and paint run meanwhile: no timer, no
    // other window gets in between two exchanges.
    m_model->repaintNow = [this] {
        settleLayouts();
        repaint();
    };
    m_model->closeRequested = [this] {
        m_closeWanted = true;
        QTimer::singleShot(0, this, &TFormData::closeWhenIdle);
    };
    // A refused entry gives the box the focus back, once the focus change is over.
    m_model->focusRequested = [this](const QString &name) {
        if (QWidget *box = findChild<QWidget *>(name))
            QTimer::singleShot(0, box, [box] { box->setFocus(Qt::OtherFocusReason); });
    };
    connect(m_binder, &ControlBinder::actionEnded, this, [this] {
        if (m_closeWanted)
            QTimer::singleShot(0, this, &TFormData::closeWhenIdle);
    });

    m_timer->setInterval(EditorModel::kTimerMs);
    connect(m_timer, &QTimer::timeout, this,
            [this] { m_binder->act([this] { m_model->tick(); }); });
}

TFormData::~TFormData()
{
    // The widgets outlive the model by a little: nothing may reach it any more.
    m_model->changed = nullptr;
    m_model->repaintNow = nullptr;
    m_model->closeRequested = nullptr;
    m_model->focusRequested = nullptr;
    m_binder->detach();
}

void TFormData::build()
{
    const ControlSet &controls = m_model->controls();
    GroupGrid groups(controls);
    for (const Control &control : controls.all()) {
        if (control.name == objectName()) {
            m_binder->bindWindow(control.name, this);
            continue;
        }
        if (control.kind == ControlKind::Page) {
            m_pages->addPage(control);
            continue;
        }
        const Control *parent = control.parent.isEmpty() ? nullptr : controls.find(control.parent);
        if (parent && (parent->kind == ControlKind::Page || parent->kind == ControlKind::Panel)) {
            m_pages->add(control, *parent);
            continue;
        }
        if (parent) {
            QWidget *group = m_binder->widget(parent->name);
            QWidget *widget = m_binder->create(control, group);
            groups.place(group, widget, control, m_binder->widget(control.buddy));
            continue;
        }
        QWidget *widget = m_binder->create(control, this);
        for (const Icon &icon : kIcons) {
            if (control.name == QLatin1String(icon.name))
                static_cast<QPushButton *>(widget)->setIcon(style()->standardIcon(icon.pixmap));
        }
        QBoxLayout *area = areaOf(control);
        // The progress line keeps its place while hidden, so that a read does not grow the form.
        if (area == m_progress) {
            QSizePolicy policy = widget->sizePolicy();
            policy.setRetainSizeWhenHidden(true);
            widget->setSizePolicy(policy);
        }
        area->addWidget(widget, control.kind == ControlKind::Gauge ? 1 : 0);
    }
    m_pages->finish();
}

QBoxLayout *TFormData::areaOf(const Control &control) const
{
    for (const Place &place : kPlaces) {
        if (control.name == QLatin1String(place.name)) {
            switch (place.area) {
            case Area::Left:
                return m_left;
            case Area::Middle:
                return m_middle;
            case Area::Right:
                return m_right;
            case Area::Progress:
                return m_progress;
            case Area::Closing:
                return m_closeLine;
            case Area::Tools:
                return m_tools;
            }
        }
    }
    return control.kind == ControlKind::Button ? m_toolbar : m_right;
}

void TFormData::showModal(ValidatorLink &link, QWidget *mainWindow, UserPrompt &prompt,
                          RecordStore *records, const QString &backupDirectory,
                          const std::function<void(TFormData &)> &afterOpeningRead)
{
    if (!link.monnayeur())
        return;
    GuiEditorServices services(prompt, records, backupDirectory);
    TFormData editor(prompt, services, link.monnayeur(), mainWindow);
    services.setWindow(&editor);
    editor.model().flags().readOnOpen = true;
    editor.setWindowModality(Qt::WindowModal);
    editor.fitScreen();
    if (afterOpeningRead) {
        connect(
            &editor, &TFormData::opened, &editor, [&] { afterOpeningRead(editor); },
            Qt::QueuedConnection);
    }
    editor.exec();
}

void TFormData::settleLayouts()
{
    // Each pass lays out one level of nested groups and asks the level above for another.
    for (int level = 0; level < kLayoutDepth; ++level)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void TFormData::fitScreen()
{
    // Texts that came with a read widen the groups: their layouts settle first. A dialog takes
    // two thirds of the screen at first; the editor takes what it asks for.
    settleLayouts();
    QSize size = this->size().expandedTo(sizeHint());
    if (const QScreen *screen = parentWidget() ? parentWidget()->screen() : this->screen())
        size = size.boundedTo(screen->availableGeometry().size());
    resize(size);
}

void TFormData::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_timer->start();
    // The first activation reads the validator; it runs once the form is on the screen.
    if (!m_activated) {
        m_activated = true;
        QTimer::singleShot(0, this, &TFormData::activate);
    }
}

void TFormData::hideEvent(QHideEvent *event)
{
    m_timer->stop();
    QDialog::hideEvent(event);
}

void TFormData::activate()
{
    m_binder->act([this] { m_model->FormActivate(); });
    fitScreen();
    m_opened = true;
    Q_EMIT opened(!m_model->flags().readFailed);
}

void TFormData::closeWhenIdle()
{
    if (!m_closeWanted || m_binder->acting())
        return;
    m_closeWanted = false;
    close();
}

void TFormData::closeEvent(QCloseEvent *event)
{
    // Not in the middle of a read or a write.
    if (m_binder->acting()) {
        event->ignore();
        return;
    }
    bool mayClose = true;
    m_binder->act([&] { mayClose = m_model->FormCloseQuery(); });
    if (!mayClose) {
        event->ignore();
        return;
    }
    m_closing = true;
    QDialog::closeEvent(event);
    m_closing = false;
}

void TFormData::reject()
{
    if (m_closing)
        QDialog::reject();
    else
        close();
}

void TFormData::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        m_binder->act([this] { m_model->retranslate(); });
        m_pages->retranslate();
    }
    QDialog::changeEvent(event);
}
