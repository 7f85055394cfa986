#include "GuiLearning.h"

#include "FileDialog.h"
#include "TFormCAdjust.h"
#include "TFormProgCoin.h"
#include "TFormRefChannel.h"
#include "TFormSuperposition.h"
#include "TTarvikTolerance.h"
#include "ToleranceModel.h"

#include <QCoreApplication>
#include <QFileDialog>

namespace {

std::optional<QString> g_nextExportName;

const QString kFilter = QStringLiteral("*.json");

} // namespace

// ---- windows ------------------------------------------------------------------------------

void GuiLearningWindows::runProgCoin(ProgCoinModel &model)
{
    TFormProgCoin form(model, m_parent);
    form.exec();
}

void GuiLearningWindows::runChannelToAdjust(CAdjustModel &model)
{
    TFormCAdjust dialog(model, m_parent);
    dialog.exec();
}

void GuiLearningWindows::showReferenceNotice()
{
    (new TFormRefChannel(m_parent))->exec();
}

void GuiLearningWindows::showOverlap(const ConfigImage &image)
{
    (new TFormSuperposition(image, m_parent))->exec();
}

// ---- services -----------------------------------------------------------------------------

void GuiLearningServices::setNextExportFileName(const QString &fileName)
{
    g_nextExportName = fileName;
}

bool GuiLearningServices::editTolerances(Tolerances &tolerances)
{
    ToleranceModel model(m_prompt);
    model.load(tolerances);
    TTarvikTolerance dialog(model, m_parent);
    dialog.exec();
    return model.accepted() && model.readBack(tolerances);
}

std::optional<CoinProfile> GuiLearningServices::selectProfile(int channel)
{
    if (!m_chooseProfile)
        return std::nullopt;
    return m_chooseProfile(channel);
}

QString GuiLearningServices::exportFileName()
{
    if (g_nextExportName) {
        const QString name = *g_nextExportName;
        g_nextExportName.reset();
        return name;
    }
    QFileDialog dialog(m_parent, QCoreApplication::translate("TFormProgCoin", "&Export..."),
                       QString(), kFilter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("json"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

QString GuiLearningServices::importFileName()
{
    return FileDialog::getOpenFileName(m_parent,
                                       QCoreApplication::translate("TFormProgCoin", "&Import..."),
                                       kFilter, QStringLiteral("json"));
}
