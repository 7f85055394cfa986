#pragma once

#include "SheetContent.h"

#include <QByteArray>
#include <QDateTime>
#include <QImage>
#include <functional>

class QPagedPaintDevice;
class QPainter;
class QRectF;

// Draws the windows chart of the configuration into an area of a sheet page.
using SheetChart = std::function<void(QPainter &painter, const QRectF &area)>;

struct SheetOptions
{
    // The windows chart; unset, the sheet has no chart area.
    SheetChart drawChart;
    // The date and time the sheet says it was printed.
    QDateTime printedAt = QDateTime::currentDateTime();
};

// The printable configuration sheet: identification, the channels in use, the money side, the
// output and options, the counters, the windows chart and the date it was printed, on A4 pages
// (one or two for a full validator), every page with its footer. Painting needs a
// QGuiApplication, for the fonts.

// Paints the sheet on the device's pages as they are laid out (the device's own page size and
// margins); returns the number of pages, 0 when the device could not be painted on.
int paintSheet(QPagedPaintDevice &device, const SheetContent &content, const SheetOptions &options);
// The sheet as an A4 PDF document; empty when it could not be made.
QByteArray sheetPdf(const SheetContent &content, const SheetOptions &options);
// Writes the PDF to path whole or not at all: a file that was there stays as it was when the
// write fails, and *error says why.
bool saveSheetPdf(const QString &path, const SheetContent &content, const SheetOptions &options,
                  QString *error);
// One page (1-based) of the sheet as a picture, A4 on a white ground; a null image when the
// sheet has no such page.
QImage sheetPageImage(const SheetContent &content, const SheetOptions &options, int page,
                      int dotsPerInch = 120);
