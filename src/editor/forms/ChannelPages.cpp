#include "ChannelPages.h"

#include "Captions.h"
#include "ControlBinder.h"

#include <QBoxLayout>
#include <QLabel>
#include <QStyle>

namespace {

// The characters a column's box shows: three digits, and a price such as "  -P1-" in the value
// column.
int columnChars(int column)
{
    return QLatin1String(ChannelGridModel::kColumnTable[column].prefix) == QLatin1String("Value")
               ? 6
               : 3;
}

// The widest word of a caption, so that a wrapped header never cuts one.
int widestWord(const QFontMetrics &metrics, const QString &caption)
{
    int widest = 0;
    for (const QString &word : caption.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        widest = qMax(widest, metrics.horizontalAdvance(word));
    return widest;
}

} // namespace

ChannelPages::ChannelPages(ControlBinder &binder, QWidget *parent)
    : QTabWidget(parent), m_binder(binder)
{
    setObjectName(QStringLiteral("PageControl1"));
    // Every page caption stays readable.
    setUsesScrollButtons(false);
}

void ChannelPages::addPage(const Control &page)
{
    QWidget *widget = m_binder.createPage(page, this);
    auto *header = new QWidget(widget);
    auto *row = new QHBoxLayout(header);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    auto caption = [&] {
        auto *label = new QLabel(header);
        label->setFont(small);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        row->addWidget(label);
        return label;
    };
    Header columns{caption(), {}};
    for (QLabel *&label : columns.columns)
        label = caption();
    row->addStretch();
    widget->layout()->addWidget(header);
    m_headers.push_back(columns);
}

void ChannelPages::add(const Control &control, const Control &parent)
{
    QWidget *container = m_binder.widget(parent.name);
    QWidget *widget = m_binder.create(control, container);
    container->layout()->addWidget(widget);
    if (parent.kind == ControlKind::Panel) {
        const int column = m_filled[container]++;
        if (column < int(m_columns.size()))
            m_columns[std::size_t(column)].push_back(widget);
    }
}

void ChannelPages::finish()
{
    for (int page = 0; page < count(); ++page) {
        if (auto *column = qobject_cast<QBoxLayout *>(widget(page)->layout()))
            column->addStretch();
    }
    for (QWidget *row : m_filled.keys())
        static_cast<QBoxLayout *>(row->layout())->addStretch();
    retranslate();
}

void ChannelPages::retranslate()
{
    for (const Header &header : m_headers) {
        for (int column = 0; column < ChannelGridModel::kColumns; ++column)
            header.columns[std::size_t(column)]->setText(
                captionText(Cap(int(Cap::ColHfuLowMin) + column)));
    }
    sizeColumns();
}

void ChannelPages::sizeColumns()
{
    if (m_headers.empty())
        return;
    const QFontMetrics boxMetrics(font());
    const QFontMetrics headerMetrics(m_headers.front().number->font());
    // A line edit adds its frame and text margins to the characters.
    const int frame = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth) + 6;
    const int digit = boxMetrics.horizontalAdvance(QLatin1Char('0'));
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        const std::vector<QWidget *> &widgets = m_columns[column];
        if (widgets.empty())
            continue;
        int width = column == 0 ? 2 * digit + 4 : 0;
        if (column > 0) {
            const int box = int(column) - 1;
            const bool edit = widgets.front()->inherits("QLineEdit");
            width = edit ? columnChars(box) * digit + frame : widgets.front()->sizeHint().width();
            width =
                qMax(width,
                     widestWord(headerMetrics, captionText(Cap(int(Cap::ColHfuLowMin) + box))) + 2);
        }
        for (QWidget *widget : widgets)
            widget->setFixedWidth(width);
        for (const Header &header : m_headers)
            (column == 0 ? header.number : header.columns[column - 1])->setFixedWidth(width);
    }
}
