#include "ConfigSheet.h"

#include "Captions.h"
#include "Encodings.h"
#include "WholeFile.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace {

// The layout is measured in points; the device's resolution turns them into its units.
constexpr double kMarginMm = 12.0;
constexpr double kFooter = 16.0;
constexpr double kGap = 10.0;
constexpr double kIdentityRow = 13.0;
constexpr double kChannelRow = 9.7;
constexpr double kSettingRow = 11.0;
constexpr double kChartHeight = 250.0;
constexpr int kSettingColumns = 3;
// The channel row: its number, the fourteen window boxes, enable, value and substitute.
constexpr int kWindowBoxes = 14;
constexpr std::size_t kEnableCell = 1 + kWindowBoxes;
constexpr std::size_t kValueCell = kEnableCell + 1;
constexpr std::size_t kSubCell = kValueCell + 1;

// Widths of the channel table's columns besides the fourteen windows.
constexpr double kNumberColumn = 34.0;
constexpr double kEnableColumn = 28.0;
constexpr double kValueColumn = 46.0;
constexpr double kSubColumn = 26.0;

const QColor kInk(0, 0, 0);
const QColor kCaption(85, 85, 85);
const QColor kRule(170, 170, 170);
const QColor kShade(238, 238, 238);

QFont sheetFont(double points, bool bold = false)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    // No ligatures: the PDF's text reads back (and is searched) letter by letter.
    font.setStyleHint(QFont::SansSerif, QFont::PreferNoShaping);
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

// Lays the sheet out from the top of the first page down, breaking pages where a block does not
// fit. It runs twice: once to count the pages, once to paint them (all, or only one).
class Layout final
{
public:
    Layout(QPaintDevice &device, const QRectF &area) : m_device(device), m_area(area)
    {
        m_unit = device.logicalDpiY() / 72.0;
        m_y = m_area.top();
    }

    // Paints through painter; pageBreak moves the device to its next page. onlyPage (0-based)
    // paints that page alone.
    void paintWith(QPainter *painter, int pageCount, std::function<void()> pageBreak = {},
                   int onlyPage = -1)
    {
        m_painter = painter;
        m_pageCount = pageCount;
        m_pageBreak = std::move(pageBreak);
        m_onlyPage = onlyPage;
    }

    int run(const SheetContent &content, const SheetOptions &options)
    {
        m_printed = captionText(Cap::SheetPrinted,
                                {FormatUserDate(options.printedAt.date()) + QLatin1Char(' ') +
                                 options.printedAt.time().toString(QStringLiteral("HH:mm"))});
        title(content.title);
        identity(content.identity);
        channels(content);
        settings(content.settings);
        if (options.drawChart)
            chart(content.chartTitle, options.drawChart);
        footer();
        return m_page + 1;
    }

private:
    double pt(double points) const { return points * m_unit; }
    bool drawing() const { return m_painter && (m_onlyPage < 0 || m_onlyPage == m_page); }
    double bottom() const { return m_area.bottom() - pt(kFooter); }
    QFontMetricsF metrics(const QFont &font) const { return QFontMetricsF(font, &m_device); }

    // A block of this height goes on a new page when it does not fit on this one.
    void ensure(double height)
    {
        if (m_y + height > bottom() && m_y > m_area.top())
            breakPage();
    }

    void breakPage()
    {
        footer();
        ++m_page;
        if (m_painter && m_onlyPage < 0 && m_pageBreak)
            m_pageBreak();
        m_y = m_area.top();
    }

    void text(const QRectF &box, const QFont &font, int flags, const QString &s,
              const QColor &color = kInk)
    {
        if (!drawing())
            return;
        m_painter->setFont(font);
        m_painter->setPen(color);
        const QString shown =
            flags & Qt::TextWordWrap ? s : metrics(font).elidedText(s, Qt::ElideRight, box.width());
        m_painter->drawText(box, flags, shown);
    }

    void rule(double y, double left, double right, const QColor &color = kRule)
    {
        if (!drawing())
            return;
        m_painter->setPen(QPen(color, pt(0.5)));
        m_painter->drawLine(QPointF(left, y), QPointF(right, y));
    }

    void shade(const QRectF &box)
    {
        if (drawing())
            m_painter->fillRect(box, kShade);
    }

    // A check box as the editor draws one: a square, ticked when checked.
    void checkBox(const QPointF &centre, bool checked)
    {
        if (!drawing())
            return;
        const double side = pt(6.5);
        const QRectF square(centre.x() - side / 2, centre.y() - side / 2, side, side);
        m_painter->setPen(QPen(kInk, pt(0.6)));
        m_painter->setBrush(Qt::NoBrush);
        m_painter->drawRect(square);
        if (checked) {
            m_painter->setPen(QPen(kInk, pt(1.0)));
            const QPointF points[] = {
                {square.left() + side * 0.2, square.top() + side * 0.55},
                {square.left() + side * 0.42, square.top() + side * 0.78},
                {square.left() + side * 0.82, square.top() + side * 0.22},
            };
            m_painter->drawPolyline(points, 3);
        }
    }

    void heading(const QString &s)
    {
        const QFont font = sheetFont(10, true);
        const double height = metrics(font).height() + pt(4);
        text(QRectF(m_area.left(), m_y, m_area.width(), height), font,
             Qt::AlignLeft | Qt::AlignVCenter, s);
        m_y += height;
        rule(m_y, m_area.left(), m_area.right());
        m_y += pt(3);
    }

    void title(const QString &s)
    {
        const QFont font = sheetFont(15, true);
        const double height = metrics(font).height() + pt(6);
        text(QRectF(m_area.left(), m_y, m_area.width(), height), font,
             Qt::AlignLeft | Qt::AlignVCenter, s);
        m_y += height;
        rule(m_y, m_area.left(), m_area.right(), kInk);
        m_y += pt(kGap);
    }

    // The identification in two columns of captions and values.
    void identity(const SheetSection &section)
    {
        const qsizetype rows = (section.fields.size() + 1) / 2;
        ensure(pt(30) + rows * pt(kIdentityRow));
        heading(section.title);
        const QFont label = sheetFont(8);
        const QFont value = sheetFont(9, true);
        const double half = (m_area.width() - pt(kGap)) / 2;
        double labelWidth = 0;
        for (const SheetField &field : section.fields)
            labelWidth = std::max(labelWidth, metrics(label).horizontalAdvance(field.label));
        labelWidth = std::min(labelWidth + pt(6), half / 2);
        for (qsizetype i = 0; i < section.fields.size(); ++i) {
            const double left = m_area.left() + (i < rows ? 0 : half + pt(kGap));
            const double y = m_y + double(i % rows) * pt(kIdentityRow);
            const SheetField &field = section.fields.at(i);
            text(QRectF(left, y, labelWidth, pt(kIdentityRow)), label,
                 Qt::AlignLeft | Qt::AlignVCenter, field.label, kCaption);
            text(QRectF(left + labelWidth, y, half - labelWidth, pt(kIdentityRow)), value,
                 Qt::AlignLeft | Qt::AlignVCenter, field.value);
        }
        m_y += double(rows) * pt(kIdentityRow) + pt(kGap);
    }

    // Where each column of the channel table starts, and its width.
    std::vector<QRectF> columns(double y, double height) const
    {
        const double fixed = pt(kNumberColumn + kEnableColumn + kValueColumn + kSubColumn);
        const double window = (m_area.width() - fixed) / kWindowBoxes;
        std::vector<QRectF> out;
        double x = m_area.left();
        auto add = [&](double width) {
            out.emplace_back(x, y, width, height);
            x += width;
        };
        add(pt(kNumberColumn));
        for (int i = 0; i < kWindowBoxes; ++i)
            add(window);
        add(pt(kEnableColumn));
        add(pt(kValueColumn));
        add(pt(kSubColumn));
        return out;
    }

    double headerHeight(const QStringList &headers) const
    {
        const QFont font = sheetFont(6);
        double height = 0;
        const std::vector<QRectF> cells = columns(0, pt(1000));
        for (std::size_t i = 0; i < cells.size() && i < std::size_t(headers.size()); ++i) {
            const QRectF bound = metrics(font).boundingRect(cells[i].adjusted(pt(1), 0, -pt(1), 0),
                                                            Qt::AlignHCenter | Qt::TextWordWrap,
                                                            headers.at(qsizetype(i)));
            height = std::max(height, bound.height());
        }
        return height + pt(4);
    }

    void channelHeader(const QStringList &headers, double height)
    {
        const QFont font = sheetFont(6);
        const std::vector<QRectF> cells = columns(m_y, height);
        for (std::size_t i = 0; i < cells.size() && i < std::size_t(headers.size()); ++i)
            text(cells[i].adjusted(pt(1), 0, -pt(1), 0), font,
                 Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap, headers.at(qsizetype(i)),
                 kCaption);
        m_y += height;
        rule(m_y, m_area.left(), m_area.right(), kInk);
    }

    void channels(const SheetContent &content)
    {
        const double header = headerHeight(content.channelHeaders);
        ensure(pt(30) + header + 3 * pt(kChannelRow));
        heading(content.channelsTitle);
        if (content.channels.isEmpty()) {
            text(QRectF(m_area.left(), m_y, m_area.width(), pt(kChannelRow * 1.5)), sheetFont(8),
                 Qt::AlignLeft | Qt::AlignVCenter, content.noChannel, kCaption);
            m_y += pt(kChannelRow * 1.5) + pt(kGap);
            return;
        }
        channelHeader(content.channelHeaders, header);
        const QFont font = sheetFont(7);
        const QFont bold = sheetFont(7, true);
        int row = 0;
        for (const SheetChannel &channel : content.channels) {
            if (m_y + pt(kChannelRow) > bottom()) {
                breakPage();
                channelHeader(content.channelHeaders, header);
            }
            const std::vector<QRectF> cells = columns(m_y, pt(kChannelRow));
            if (row++ % 2)
                shade(QRectF(m_area.left(), m_y, m_area.width(), pt(kChannelRow)));
            const int right = Qt::AlignRight | Qt::AlignVCenter;
            text(cells[0].adjusted(0, 0, -pt(6), 0), bold, right, QString::number(channel.number));
            for (int i = 0; i < kWindowBoxes && i < channel.windows.size(); ++i)
                text(cells[std::size_t(1 + i)].adjusted(0, 0, -pt(4), 0), font, right,
                     channel.windows.at(i));
            checkBox(cells[kEnableCell].center(), channel.enabled);
            text(cells[kValueCell].adjusted(0, 0, -pt(4), 0), bold, right, channel.value);
            text(cells[kSubCell].adjusted(0, 0, -pt(4), 0), font, right, channel.substitute);
            m_y += pt(kChannelRow);
        }
        rule(m_y, m_area.left(), m_area.right(), kInk);
        m_y += pt(kGap);
    }

    double sectionHeight(const SheetSection &section) const
    {
        return metrics(sheetFont(9, true)).height() + pt(6) +
               double(section.fields.size()) * pt(kSettingRow);
    }

    void section(const SheetSection &section, double left, double width)
    {
        const QFont titleFont = sheetFont(9, true);
        const QFont label = sheetFont(7.5);
        const QFont value = sheetFont(7.5, true);
        double y = m_y;
        const double titleHeight = metrics(titleFont).height() + pt(3);
        text(QRectF(left, y, width, titleHeight), titleFont, Qt::AlignLeft | Qt::AlignVCenter,
             section.title);
        y += titleHeight;
        rule(y, left, left + width);
        y += pt(3);
        for (const SheetField &field : section.fields) {
            const QRectF line(left, y, width, pt(kSettingRow));
            if (field.checked) {
                text(line.adjusted(0, 0, -pt(12), 0), label, Qt::AlignLeft | Qt::AlignVCenter,
                     field.label, kCaption);
                checkBox(QPointF(line.right() - pt(4), line.center().y()), *field.checked);
            } else if (field.value.isEmpty()) {
                text(line, label, Qt::AlignLeft | Qt::AlignVCenter, field.label, kCaption);
            } else {
                const double valueWidth =
                    std::min(width / 2, metrics(value).horizontalAdvance(field.value) + pt(2));
                text(line.adjusted(0, 0, -valueWidth - pt(4), 0), label,
                     Qt::AlignLeft | Qt::AlignVCenter, field.label, kCaption);
                text(QRectF(line.right() - valueWidth, y, valueWidth, line.height()), value,
                     Qt::AlignRight | Qt::AlignVCenter, field.value);
            }
            y += pt(kSettingRow);
        }
    }

    // The groups of settings side by side, three to a row.
    void settings(const QList<SheetSection> &sections)
    {
        const double width = (m_area.width() - (kSettingColumns - 1) * pt(kGap)) / kSettingColumns;
        for (qsizetype first = 0; first < sections.size(); first += kSettingColumns) {
            const qsizetype end = std::min(sections.size(), first + kSettingColumns);
            double height = 0;
            for (qsizetype i = first; i < end; ++i)
                height = std::max(height, sectionHeight(sections.at(i)));
            ensure(height);
            for (qsizetype i = first; i < end; ++i)
                section(sections.at(i), m_area.left() + double(i - first) * (width + pt(kGap)),
                        width);
            m_y += height + pt(kGap);
        }
    }

    void chart(const QString &title, const SheetChart &draw)
    {
        ensure(pt(30 + kChartHeight));
        heading(title);
        const double height = std::min(pt(kChartHeight), bottom() - m_y);
        const QRectF area(m_area.left(), m_y, m_area.width(), height);
        if (drawing()) {
            m_painter->save();
            m_painter->setClipRect(area);
            draw(*m_painter, area);
            m_painter->restore();
        }
        m_y += height + pt(kGap);
    }

    void footer()
    {
        const QFont font = sheetFont(7);
        const QRectF line(m_area.left(), m_area.bottom() - pt(kFooter - 4), m_area.width(),
                          pt(kFooter - 4));
        rule(line.top() - pt(2), m_area.left(), m_area.right());
        text(line, font, Qt::AlignLeft | Qt::AlignVCenter, m_printed, kCaption);
        text(line, font, Qt::AlignRight | Qt::AlignVCenter,
             captionText(Cap::SheetPage,
                         {QString::number(m_page + 1), QString::number(std::max(m_pageCount, 1))}),
             kCaption);
    }

    QPaintDevice &m_device;
    QRectF m_area;
    double m_unit = 1;
    double m_y = 0;
    int m_page = 0;
    QPainter *m_painter = nullptr;
    int m_pageCount = 0;
    std::function<void()> m_pageBreak;
    int m_onlyPage = -1;
    QString m_printed;
};

} // namespace

int paintSheet(QPagedPaintDevice &device, const SheetContent &content, const SheetOptions &options)
{
    const QRectF area(0, 0, device.width(), device.height());
    const int pages = Layout(device, area).run(content, options);
    QPainter painter;
    if (!painter.begin(&device))
        return 0;
    painter.setRenderHint(QPainter::Antialiasing);
    Layout layout(device, area);
    layout.paintWith(&painter, pages, [&device] { device.newPage(); });
    layout.run(content, options);
    painter.end();
    return pages;
}

QByteArray sheetPdf(const SheetContent &content, const SheetOptions &options)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm),
                              QPageLayout::Millimeter);
        writer.setResolution(300);
        writer.setTitle(content.title);
        writer.setCreator(QStringLiteral("Tarvik " TARVIK_VERSION));
        if (paintSheet(writer, content, options) == 0)
            return {};
    }
    return bytes;
}

bool saveSheetPdf(const QString &path, const SheetContent &content, const SheetOptions &options,
                  QString *error)
{
    const QByteArray pdf = sheetPdf(content, options);
    if (pdf.isEmpty()) {
        if (error)
            *error = QStringLiteral("the sheet could not be drawn");
        return false;
    }
    return WholeFile::write(path, pdf, error);
}

QImage sheetPageImage(const SheetContent &content, const SheetOptions &options, int page,
                      int dotsPerInch)
{
    const QSizeF a4 = QPageSize(QPageSize::A4).size(QPageSize::Inch) * dotsPerInch;
    QImage image(a4.toSize(), QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
    image.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
    image.fill(Qt::white);
    const double margin = kMarginMm / 25.4 * dotsPerInch;
    const QRectF area(0, 0, image.width() - 2 * margin, image.height() - 2 * margin);
    const int pages = Layout(image, area).run(content, options);
    if (page < 1 || page > pages)
        return {};
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(margin, margin);
    Layout layout(image, area);
    layout.paintWith(&painter, pages, {}, page - 1);
    layout.run(content, options);
    return image;
}
