#pragma once

#include "Learning.h"

#include <QString>
#include <optional>

// What the coin profile form hands to the coin learning form on "&Exit": name, description,
// value with its price line, substitution channel and tolerances. The profile's enable flag is
// kept in the table but not handed over: the learning form's own "&Enable" box stays as it is.
struct CoinProfile
{
    QString name;
    QString description;
    int substitute = 0;
    QString value;      // the amount as typed, empty when none
    int priceLine = -1; // 0 "P1", 1 "P2", -1 none
    Tolerances tolerances;
};

// What the coin learning form asks of the world beyond the link: the tolerance dialog, the
// profile form and the files of a learned channel. The windows answer with dialogs, the tests
// with canned answers.
class LearningServices
{
public:
    virtual ~LearningServices() = default;
    // The tolerance dialog over the fourteen margins; false when cancelled (nothing changed).
    virtual bool editTolerances(Tolerances &tolerances) = 0;
    // The coin profile form; nothing when it was cancelled.
    virtual std::optional<CoinProfile> selectProfile(int channel) = 0;
    // File names for "&Export..." and "&Import..."; empty when cancelled.
    virtual QString exportFileName() = 0;
    virtual QString importFileName() = 0;
};
