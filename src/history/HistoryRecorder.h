#pragma once

#include "HistoryStore.h"
#include "WriteSequence.h"

#include <QString>
#include <memory>
#include <optional>

class UserPrompt;
struct VerifyResult;

// Who records: the program with its version ("tarvik 0.1.0", "tarvik-cli 0.1.0"), the machine's
// host name and the account. The program sets its name once at start; until then it is
// "tarvik".
void setHistoryProgram(const QString &name);
QString historyProgram();

// An event of now, by this program, on this machine.
HistoryEvent historyEvent(quint32 serial, const QString &kind, const QString &result = {},
                          std::optional<ConfigImage> configuration = std::nullopt,
                          const QString &detail = {});

// The event of a write that ended with outcome: "failed" when it did not finish, else
// "verified" or "mismatch" by the read-back (empty when there was none, or it failed). The
// configuration is what the read-back found, else what was written (written, when known),
// nothing after a failure. A write that sent nothing gives no event.
std::optional<HistoryEvent> writeHistoryEvent(const QString &kind, quint32 serial,
                                              WriteOutcome outcome,
                                              const std::optional<VerifyResult> &verified,
                                              const std::optional<ConfigImage> &written,
                                              const QString &detail = {});

// The history of the data directory, opened when first used: its read backups (<dir>/backups)
// are taken in then, the first time. A backup import that fails is said through prompt (when
// given) and tried again next time.
std::unique_ptr<HistoryStore> openHistory(const QString &dataDirectory,
                                          UserPrompt *prompt = nullptr);

// Records event; when the history cannot keep it, says "The history could not be kept" with the
// reason through prompt and returns false. Whatever was done to the validator stands.
bool keepHistory(HistoryStore *store, const HistoryEvent &event, UserPrompt *prompt);

// The history this program records into (set once at start, when the data directory is known);
// nothing when it keeps none (tests, a program without tables).
void setCurrentHistory(HistoryStore *store);
HistoryStore *currentHistory();

// Records a read or a write the editor did into the current history.
struct ValidatorEvent;
void keepValidatorEvent(const ValidatorEvent &event, UserPrompt *prompt);

// A channel written by itself (learned, or the reference calibrated): the validator now holds
// the last configuration its history knows with the channel (and, for a learned one, the values
// and the enable bitmap) of image laid over it.
void keepChannelWritten(const QString &kind, const ConfigImage &image, int channel, bool written,
                        UserPrompt *prompt);

// The serial number of the validator whose configuration was last saved in the tables under
// identification ("store" events), when a history notes it.
std::optional<quint32> serialSavedAs(const HistoryStore &store, const QString &identification);
