#include "BatchSheet.h"

#include "ConfigImage.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "RecordingPrompt.h"
#include "WindowsChartPainter.h"

#include <QDir>

namespace {

// The editor's sheet, saved where the batch wants it without a file dialog.
class SheetTo final : public DefaultEditorServices
{
public:
    explicit SheetTo(QString path) : m_path(std::move(path)) {}
    QString saveSheetFileName(const QString &) override { return m_path; }
    SheetChart sheetChart(const ConfigImage &image) override { return sheetWindowsChart(image); }

private:
    QString m_path;
};

} // namespace

QString writeBatchSheet(const QString &dir, const ConfigImage &image, QString *error)
{
    if (!QDir().mkpath(dir)) {
        if (error)
            *error = QStringLiteral("%1: the directory cannot be made").arg(dir);
        return {};
    }
    const QString path = QDir(dir).filePath(QStringLiteral("%1.pdf").arg(image.serialNumber()));
    SheetTo services(path);
    RecordingPrompt prompt;
    EditorModel editor(&prompt, &services);
    editor.loadImage(image, false);
    editor.type(QStringLiteral("EIdent"), QString::number(image.serialNumber()));
    editor.leave(QStringLiteral("EIdent"));
    QString why;
    if (!editor.click(QStringLiteral("BtnPdf"), &why) || !prompt.told().isEmpty()) {
        if (error)
            *error = why.isEmpty() ? prompt.told().join(u' ') : why;
        return {};
    }
    return path;
}
