#pragma once

#include "CoinProfile.h"
#include "LearningFlows.h"

#include <QPointer>
#include <QWidget>
#include <functional>

class UserPrompt;

// The learning procedures' forms as the program's windows, modal over the editor.
class GuiLearningWindows final : public LearningWindows
{
public:
    explicit GuiLearningWindows(QWidget *parent) : m_parent(parent) {}

    void runProgCoin(ProgCoinModel &model) override;
    void runChannelToAdjust(CAdjustModel &model) override;
    void showReferenceNotice() override;
    void showOverlap(const ConfigImage &image) override;

private:
    QPointer<QWidget> m_parent;
};

// What the coin learning form asks of the program: the tolerance dialog, the coin profile form
// and the file dialogs of a learned channel.
class GuiLearningServices final : public LearningServices
{
public:
    using ProfileChooser = std::function<std::optional<CoinProfile>(int channel)>;

    // chooseProfile may be empty: no profiles to choose from.
    GuiLearningServices(QWidget *parent, UserPrompt *prompt, ProfileChooser chooseProfile)
        : m_parent(parent), m_prompt(prompt), m_chooseProfile(std::move(chooseProfile))
    {}

    // The next export dialog returns this name without showing (empty: cancelled); the import
    // dialog is answered through FileDialog.
    static void setNextExportFileName(const QString &fileName);

    bool editTolerances(Tolerances &tolerances) override;
    std::optional<CoinProfile> selectProfile(int channel) override;
    QString exportFileName() override;
    QString importFileName() override;

private:
    QPointer<QWidget> m_parent;
    UserPrompt *m_prompt;
    ProfileChooser m_chooseProfile;
};
