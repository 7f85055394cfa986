#include "TFormProgCoin.h"

#include "FormBinder.h"
#include "ProgCoinModel.h"
#include "TTarvikAnalyse.h"
#include "WindowsChartView.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// One line of controls, by name.
QHBoxLayout *line(FormBinder &binder, QWidget *parent, std::initializer_list<const char *> names)
{
    auto *row = new QHBoxLayout;
    for (const char *name : names)
        row->addWidget(binder.create(QLatin1String(name), parent));
    row->addStretch(1);
    return row;
}

} // namespace

TFormProgCoin::TFormProgCoin(ProgCoinModel &model, QWidget *parent)
    : QDialog(parent), m_model(model), m_binder(new FormBinder(model, this)),
      m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("TFormProgCoin"));
    build();
    m_binder->bindWindow(QStringLiteral("TFormProgCoin"), this);
    // The chart repaints only when a coin came or a channel was stored: the ticks without a
    // coin stay cheap.
    m_model.changed = [this](const QStringList &names) {
        m_binder->show(names);
        if (names.contains(ProgCoinModel::chartName()))
            m_chart->update();
    };
    m_model.closeRequested = [this](bool accepted) { done(accepted ? Accepted : Rejected); };
    m_model.focusRequested = [this](const QString &name) {
        if (QWidget *widget = m_binder->widget(name))
            widget->setFocus(Qt::OtherFocusReason);
    };
    m_model.showAnalysis = [this](const QStringList &lines) { showAnalysis(lines); };
    m_model.closeAnalysis = [this] { closeAnalysis(); };
    m_model.flush();

    m_timer->setInterval(ProgCoinModel::kTimerMs);
    connect(m_timer, &QTimer::timeout, this, [this] {
        // Not while a message of the form is up or a button's work runs.
        if (!m_binder->acting() && isVisible())
            m_model.tick();
    });
}

TFormProgCoin::~TFormProgCoin()
{
    m_timer->stop();
    closeAnalysis();
    // The model outlives the window.
    m_model.changed = nullptr;
    m_model.closeRequested = nullptr;
    m_model.focusRequested = nullptr;
    m_model.showAnalysis = nullptr;
    m_model.closeAnalysis = nullptr;
}

void TFormProgCoin::build()
{
    FormBinder &b = *m_binder;
    auto *column = new QVBoxLayout(this);

    auto *top = new QGridLayout;
    top->addWidget(b.create(QStringLiteral("LabelChannel"), this), 0, 0);
    auto *channel = new QHBoxLayout;
    channel->addWidget(b.create(QStringLiteral("SpinEdit1"), this));
    channel->addWidget(b.create(QStringLiteral("LabelMatched"), this));
    channel->addStretch(1);
    top->addLayout(channel, 0, 1);
    top->addWidget(b.create(QStringLiteral("LabelSubstitution"), this), 0, 2);
    top->addWidget(b.create(QStringLiteral("SpinEdit2"), this), 0, 3);
    top->addWidget(b.create(QStringLiteral("LabelValue"), this), 1, 0);
    top->addWidget(b.create(QStringLiteral("Edit2"), this), 1, 1);
    top->addWidget(b.create(QStringLiteral("RadioGroup3"), this), 1, 2);
    top->addWidget(b.create(QStringLiteral("CheckEnable"), this), 1, 3);
    top->addWidget(b.create(QStringLiteral("LabelProfile"), this), 2, 0);
    top->addWidget(b.create(QStringLiteral("Edit1"), this), 2, 1);
    top->addWidget(b.create(QStringLiteral("LabelDescription"), this), 2, 2);
    auto *description = new QHBoxLayout;
    description->addWidget(b.create(QStringLiteral("Edit3"), this), 1);
    description->addWidget(b.create(QStringLiteral("BtnSelect"), this));
    top->addLayout(description, 2, 3);
    column->addLayout(top);

    // The seven windows side by side: the maximum above its track bar, the minimum below.
    auto *windows = new QHBoxLayout;
    for (int w = 0; w < kWindows; ++w) {
        const WindowPlace &place = kWindowPlaces[w];
        auto *panel = static_cast<QGroupBox *>(b.create(ProgCoinModel::panelName(w), this));
        auto *inner = new QGridLayout(panel);
        inner->addWidget(b.create(QLatin1String(place.maxEdit), panel), 0, 0);
        inner->addWidget(b.create(ProgCoinModel::maxDifferenceName(w), panel), 0, 1);
        QWidget *bar = b.create(QLatin1String(place.trackBar), panel);
        bar->setMinimumHeight(120);
        inner->addWidget(bar, 1, 0, Qt::AlignHCenter);
        auto *labels = new QVBoxLayout;
        labels->addWidget(b.create(ProgCoinModel::readingName(w), panel));
        labels->addWidget(b.create(ProgCoinModel::widthName(w), panel));
        labels->addStretch(1);
        inner->addLayout(labels, 1, 1);
        inner->addWidget(b.create(QLatin1String(place.minEdit), panel), 2, 0);
        inner->addWidget(b.create(ProgCoinModel::minDifferenceName(w), panel), 2, 1);
        for (const char *edit : {place.minEdit, place.maxEdit})
            b.widget(QLatin1String(edit))->setMaximumWidth(48);
        windows->addWidget(panel);
    }
    column->addLayout(windows);

    // Every channel's windows with this learning's coins over them.
    m_chart = new WindowsChartView(m_model.chart(), this);
    // Low enough that the form fits a 1366x768 laptop above its task bar, frame included.
    m_chart->setMinimumHeight(220);
    column->addWidget(m_chart, 1);

    auto *counters = line(
        b, this, {"LabelResponse", "LabelRelease", "LabelCoinsCaption", "LabelCoins", "CheckAuto"});
    // The status line takes the rest of the row and never widens the form: its tip holds the
    // whole text.
    QWidget *status = b.create(ProgCoinModel::statusName(), this);
    status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    delete counters->takeAt(counters->count() - 1); // the stretch: the line takes its place
    counters->addWidget(status, 1);
    column->addLayout(counters);
    column->addLayout(line(b, this,
                           {"BtnOK", "BtnSave", "BtnCancel", "BtnLoad", "BtnExport", "BtnImport",
                            "BtnMatched", "BtnAnalyse"}));
}

void TFormProgCoin::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_timer->start();
}

void TFormProgCoin::hideEvent(QHideEvent *event)
{
    m_timer->stop();
    QDialog::hideEvent(event);
}

void TFormProgCoin::reject()
{
    if (m_binder->acting())
        return;
    if (!m_model.closed())
        m_model.BtnCancelClick(); // the model asks the window to close
    else
        QDialog::reject();
}

void TFormProgCoin::showAnalysis(const QStringList &lines)
{
    closeAnalysis();
    m_analysis = TTarvikAnalyse::open(lines, this);
}

void TFormProgCoin::closeAnalysis()
{
    if (m_analysis)
        m_analysis->close();
}

void TFormProgCoin::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_model.retranslate();
    QDialog::changeEvent(event);
}
