#include "FileDialog.h"

#include <QFileDialog>
#include <optional>

namespace {
std::optional<QString> g_next;
}

void FileDialog::setNextFileName(const QString &fileName)
{
    g_next = fileName;
}

void FileDialog::clearNextFileName()
{
    g_next.reset();
}

QString FileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &filter,
                                    const QString &defaultSuffix, const QString &initialName)
{
    if (g_next) {
        const QString name = *g_next;
        g_next.reset();
        return name;
    }
    QFileDialog dialog(parent, caption, QString(), filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setOption(QFileDialog::ReadOnly);
    dialog.setDefaultSuffix(defaultSuffix);
    if (!initialName.isEmpty())
        dialog.selectFile(initialName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}
