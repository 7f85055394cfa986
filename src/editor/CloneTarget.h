#pragma once

#include "ReadSequence.h"

#include <QString>
#include <array>

class TMonnayeur;

// How a clone corrects the windows for the target's sensors: per window, in the record's order
// (HFU high, HFU low, LF, DIM, HFL high, HFL low, AMP), the ratio of the centre of the target's
// reference window to the image's, 1 where either reference window is not set.
struct CloneCorrection
{
    static constexpr int kWindows = 7;
    std::array<double, kWindows> factors{1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0};
    // Both reference windows were set: the factor is a measured one.
    std::array<bool, kWindows> measured{};

    bool any() const;
};

// The correction the two reference channels (15-byte records) give.
CloneCorrection cloneCorrection(const quint8 *imageReference, const quint8 *targetReference);

// The correction in words, the windows in the order the validator measures them: "Windows
// corrected for this validator's sensors: HFU low ×1.04, HFU high ×0.98, …", or that the
// windows went as they are when no reference window could be compared.
QString correctionText(const CloneCorrection &correction);

// Before a clone writes over it, the target's whole configuration is read and kept as a read
// backup in dir, so that it can be put back as it was.
struct TargetBackup
{
    bool goOn = false; // the clone may go on
    QString file;      // the backup written; empty when none could be
};
// Asks "Connect validator " until it answers (Cancel: "Operation cancelled"); a read that fails
// stops the clone with the reason; a backup that cannot be written asks whether to clone all
// the same.
TargetBackup keepCloneTarget(TMonnayeur &link, const QString &dir,
                             const ReadObserver &observer = {});
