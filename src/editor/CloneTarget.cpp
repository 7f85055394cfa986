#include "CloneTarget.h"

#include "Backups.h"
#include "ConfigImage.h"
#include "Encodings.h"
#include "Messages.h"
#include "TMonnayeur.h"
#include "UserPrompt.h"

#include <QCoreApplication>
#include <QDateTime>
#include <algorithm>

namespace {

// The windows in the order the validator measures them, with their place in the record's order;
// the names are the learning form's.
struct WindowName
{
    int recordWindow;
    const char *name;
};
constexpr WindowName kMeasurementOrder[CloneCorrection::kWindows] = {
    {1, QT_TRANSLATE_NOOP("TFormProgCoin", "HFU low")},
    {0, QT_TRANSLATE_NOOP("TFormProgCoin", "HFU high")},
    {3, QT_TRANSLATE_NOOP("TFormProgCoin", "DIM")},
    {2, QT_TRANSLATE_NOOP("TFormProgCoin", "LF")},
    {5, QT_TRANSLATE_NOOP("TFormProgCoin", "HFL low")},
    {4, QT_TRANSLATE_NOOP("TFormProgCoin", "HFL high")},
    {6, QT_TRANSLATE_NOOP("TFormProgCoin", "AMP")},
};

} // namespace

bool CloneCorrection::any() const
{
    return std::any_of(measured.begin(), measured.end(), [](bool m) { return m; });
}

CloneCorrection cloneCorrection(const quint8 *imageReference, const quint8 *targetReference)
{
    CloneCorrection correction;
    for (int w = 0; w < CloneCorrection::kWindows; ++w) {
        const int hi = 2 * w;
        const int lo = hi + 1;
        const bool set = imageReference[hi] != 255 && imageReference[lo] != 255 &&
                         targetReference[hi] != 255 && targetReference[lo] != 255;
        const double ours = (imageReference[hi] + imageReference[lo]) / 2.0;
        const double theirs = (targetReference[hi] + targetReference[lo]) / 2.0;
        if (set && ours > 0) {
            correction.factors[std::size_t(w)] = theirs / ours;
            correction.measured[std::size_t(w)] = true;
        }
    }
    return correction;
}

QString correctionText(const CloneCorrection &correction)
{
    if (!correction.any())
        return messageText(Msg::CloneNotCorrected);
    QStringList parts;
    for (const WindowName &window : kMeasurementOrder) {
        QString factor =
            QString::number(correction.factors[std::size_t(window.recordWindow)], 'f', 2);
        factor.replace(u'.', encodingSettings().decimalChar);
        parts.append(QCoreApplication::translate("TFormProgCoin", window.name) + u' ' +
                     QChar(0x00D7) + factor);
    }
    return messageText(Msg::CloneCorrected, {parts.join(QStringLiteral(", "))});
}

TargetBackup keepCloneTarget(TMonnayeur &link, const QString &dir, const ReadObserver &observer)
{
    UserPrompt *prompt = link.prompt();
    auto tell = [prompt](const QString &text, UserPrompt::Kind kind) {
        if (prompt)
            prompt->tell(text, kind);
    };
    ConfigImage target;
    switch (readValidator(link, target, true, observer)) {
    case ReadOutcome::Cancelled:
        tell(messageText(Msg::OperationCancelled), UserPrompt::Kind::Information);
        return {};
    case ReadOutcome::Failed:
        tell(messageText(Msg::CloneTargetNotRead), UserPrompt::Kind::Error);
        return {};
    case ReadOutcome::Done:
        break;
    }
    QString error;
    const QString file = keepBackup(dir, target, QDateTime::currentDateTime(), &error);
    if (!file.isEmpty())
        return {true, file};
    // Without its backup the target could not be put back: the technician decides.
    const bool goOn = prompt && prompt->ask(messageText(Msg::CloneBackupNotWritten, {error}),
                                            UserPrompt::Kind::Warning,
                                            UserPrompt::Buttons::YesNo) == UserPrompt::Answer::Yes;
    return {goOn, {}};
}
