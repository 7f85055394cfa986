#pragma once

// The coin learning form's model on a bench: the in-process virtual validator, its image as the
// editor read it, canned answers for the form's dialogs.
#include "CAdjustModel.h"
#include "CoinProfile.h"
#include "LearningFlows.h"
#include "ProgCoinModel.h"
#include "RecordingPrompt.h"
#include "SimTransport.h"
#include "VirtualValidator.h"

#include <QLocale>
#include <memory>

namespace progcoin {

using Answer = UserPrompt::Answer;

// Canned answers for the dialogs the form opens.
struct CannedServices final : LearningServices
{
    bool editTolerances(Tolerances &tolerances) override
    {
        ++toleranceDialogs;
        if (!toleranceAnswer)
            return false;
        tolerances = *toleranceAnswer;
        return true;
    }
    std::optional<CoinProfile> selectProfile(int) override { return profile; }
    QString exportFileName() override { return fileName; }
    QString importFileName() override { return fileName; }

    std::optional<Tolerances> toleranceAnswer;
    int toleranceDialogs = 0;
    std::optional<CoinProfile> profile;
    QString fileName;
};

// A validator on the bench, its image as the editor read it, and the learning form over both.
struct Bench
{
    explicit Bench(ProgCoinSetup setup = {}, quint8 family = 0x13)
        : device(family, 1001), port(&device), link(&port, &prompt), image(device.memory())
    {
        QLocale::setDefault(QLocale::c());
        port.setLatencyMs(0);
        device.setCoinSeed(7);
        open(setup);
    }
    void open(ProgCoinSetup setup)
    {
        form = std::make_unique<ProgCoinModel>(session, image, &link, &prompt, &services, setup);
        form->FormActivate();
    }
    // Coins inserted one by one, each measured by one tick of the form's timer.
    void insert(CoinKind kind, int count)
    {
        for (int i = 0; i < count; ++i) {
            device.insertCoin(kind);
            form->tick();
        }
    }
    QString text(const char *name) const { return form->control(QLatin1String(name)).text; }
    Window shownWindow(int w) const
    {
        return {quint8(text(kWindowPlaces[w].minEdit).toInt()),
                quint8(text(kWindowPlaces[w].maxEdit).toInt())};
    }
    ChannelBytes stored(const ConfigImage &from, int k) const
    {
        ChannelBytes out;
        std::copy_n(from.channels[std::size_t(k)].begin(), out.size(), out.begin());
        return out;
    }

    VirtualValidator device;
    SimTransport port;
    RecordingPrompt prompt{Answer::No};
    TMonnayeur link;
    ConfigImage image;
    LearningSession session;
    CannedServices services;
    std::unique_ptr<ProgCoinModel> form;
};

} // namespace progcoin
