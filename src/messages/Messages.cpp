#include "Messages.h"

#include <QCoreApplication>

namespace {

struct Entry
{
    Msg id;
    const char *text;
};

// Keyed by id, so that entries may be added anywhere.
constexpr Entry kTable[] = {
    {Msg::InternalOrCommunicationError,
     QT_TRANSLATE_NOOP("Messages", "Internal or Comunication Error")},
    {Msg::CommunicationError, QT_TRANSLATE_NOOP("Messages", "Comunication Error !")},
    {Msg::ReadingErrorFromValidator, QT_TRANSLATE_NOOP("Messages", "Reading Error fron validator")},
    {Msg::PortNotFree,
     QT_TRANSLATE_NOOP("Messages", "Comunication Port COM%d isn't free or Setting error.")},
    {Msg::PortPermissionDenied,
     QT_TRANSLATE_NOOP("Messages", "This user may not open the serial port. Add the user to the "
                                   "dialout group (sudo usermod -aG dialout $USER), then log out "
                                   "and log in again.")},
    {Msg::SelectPort, QT_TRANSLATE_NOOP("Messages", "Select port !!!")},
    {Msg::ConnectValidator, QT_TRANSLATE_NOOP("Messages", "Connect validator ")},
    {Msg::ValidatorReadingInProgress,
     QT_TRANSLATE_NOOP("Messages", "Validator reading in progress....")},
    {Msg::SavingInProgress, QT_TRANSLATE_NOOP("Messages", "Saving in progress.....")},
    {Msg::FinishedOperation, QT_TRANSLATE_NOOP("Messages", "Finished operation!")},
    {Msg::FaultDuringSave, QT_TRANSLATE_NOOP("Messages", "Fault during save operation !")},
    {Msg::OperationCancelled, QT_TRANSLATE_NOOP("Messages", "Operation cancelled")},
    {Msg::InvalidCodeTable, QT_TRANSLATE_NOOP("Messages", "Invalid code table !")},
    {Msg::IncorrectVersion, QT_TRANSLATE_NOOP("Messages", "Incorrect version of validator")},
    {Msg::SaveOnValidator, QT_TRANSLATE_NOOP("Messages", "Save on validator?")},
    {Msg::ByMiniPgm, QT_TRANSLATE_NOOP("Messages", "By Mini-Pgm")},
    {Msg::NotAvailable, QT_TRANSLATE_NOOP("Messages", "#NA")},
    {Msg::ValueBetween0And255, QT_TRANSLATE_NOOP("Messages", "Value must be between 0 and 255")},
    {Msg::ValueOverMaximum,
     QT_TRANSLATE_NOOP("Messages", "Value over the maximum, it will be correct")},
    {Msg::AmountNegative,
     QT_TRANSLATE_NOOP("Messages", "An amount cannot be negative: %s was not stored.")},
    {Msg::ValueUnderMinimum,
     QT_TRANSLATE_NOOP("Messages", "Value under the minimum, it will be correct.")},
    {Msg::NotValidInteger, QT_TRANSLATE_NOOP("Messages", "'%s' is not a valid integer value")},
    {Msg::ValueOverMs, QT_TRANSLATE_NOOP("Messages", "Value over %d ms, it will be adjusted!")},
    {Msg::WrongWayCounter,
     QT_TRANSLATE_NOOP(
         "Messages",
         "Wrong way! Please the counter must be desactived if the base value is clear")},
    {Msg::ModifyingBase1,
     QT_TRANSLATE_NOOP("Messages",
                       "Modifing this value will take effect on channels from 1 to 30 !")},
    {Msg::ModifyingBase2,
     QT_TRANSLATE_NOOP("Messages",
                       "Modifing this value will take effect on channels from 31 to 60 !")},
    {Msg::MultiPulseIncompatible,
     QT_TRANSLATE_NOOP(
         "Messages",
         "The value of channels %d and %d is incompatible for the function multi-pulse (max %d "
         "pulses)")},
    {Msg::ImpossibleDisplacement,
     QT_TRANSLATE_NOOP(
         "Messages",
         "Impossible displacement, the channel of origin and the one of destination coincides")},
    {Msg::IdentificationMustBeFilled,
     QT_TRANSLATE_NOOP("Messages", "Identification field must be filled")},
    {Msg::ExistOverwrite, QT_TRANSLATE_NOOP("Messages", "%s exist! Overwrite ?")},
    {Msg::FileSaved, QT_TRANSLATE_NOOP("Messages", "File %s saved")},
    {Msg::ValidityNotGuaranteed,
     QT_TRANSLATE_NOOP(
         "Messages", "The validity of data of this validator is not guaranteed by BRUNFELDGroup!")},
    {Msg::SelectChannelNumber, QT_TRANSLATE_NOOP("Messages", "Select number of channel !")},
    {Msg::CoinIgnored, QT_TRANSLATE_NOOP("Messages", "Coin ignored: choose a channel first")},
    {Msg::LearnMatched, QT_TRANSLATE_NOOP("Messages", "Matched: %s")},
    {Msg::LearnOverlap, QT_TRANSLATE_NOOP("Messages", "Overlap with %s")},
    {Msg::NumberOfCoinsLess,
     QT_TRANSLATE_NOOP("Messages", "Number of coins is less than %d. Proceed?")},
    {Msg::ModifyAnotherChannel, QT_TRANSLATE_NOOP("Messages", "Modify another channel ?")},
    {Msg::CalibrateAnotherChannel, QT_TRANSLATE_NOOP("Messages", "Calibrate another channel ?")},
    {Msg::ValuesDirectlySaved,
     QT_TRANSLATE_NOOP("Messages", "Values directly saved into validator")},
    {Msg::MatchedChannelLoad,
     QT_TRANSLATE_NOOP("Messages", "The value matchs the channel %d. Load it ?")},
    {Msg::NoMatchedData, QT_TRANSLATE_NOOP("Messages", "No matched data !")},
    {Msg::DoorOpen, QT_TRANSLATE_NOOP("Messages", "Door open, no data will be transfered ;")},
    {Msg::PrepareGoldenTokens, QT_TRANSLATE_NOOP("Messages", "Prepare the golden tokens.")},
    {Msg::PrepareSilverTokens, QT_TRANSLATE_NOOP("Messages", "Prepare the silver tokens.")},
    {Msg::InsertGoldenTokens,
     QT_TRANSLATE_NOOP("Messages", "Insert the golden tokens. (5 pieces)")},
    {Msg::InsertSilverTokens,
     QT_TRANSLATE_NOOP("Messages", "Insert the silver tokens. (5 pieces)")},
    {Msg::ReferenceChannelSaved, QT_TRANSLATE_NOOP("Messages", "Reference Channel saved !")},
    {Msg::ProgrammingError, QT_TRANSLATE_NOOP("Messages", "Programming Error !")},
    {Msg::ChannelEmpty, QT_TRANSLATE_NOOP("Messages", "Channel %d is empty! No data to control.")},
    {Msg::NoOverlapping, QT_TRANSLATE_NOOP("Messages", "No overlapping !")},
    {Msg::Overlapping, QT_TRANSLATE_NOOP("Messages", "%d Overlapping")},
    {Msg::Superpositions, QT_TRANSLATE_NOOP("Messages", "%d superposition(s)")},
    {Msg::TableTransferred,
     QT_TRANSLATE_NOOP("Messages", "Table of values transferred in the validator!")},
    {Msg::AllDataTransferred, QT_TRANSLATE_NOOP("Messages", "All data transfered !")},
    {Msg::NextStart,
     QT_TRANSLATE_NOOP("Messages",
                       "This option will be activated to the next starting of the program")},
    {Msg::UpgradeOver, QT_TRANSLATE_NOOP("Messages", "Upgrade over...")},
    {Msg::OperationCancelledByOperator,
     QT_TRANSLATE_NOOP("Messages", "Operation cancelled by operator")},
    {Msg::UpdatingPleaseWait, QT_TRANSLATE_NOOP("Messages", "Updating... Please Wait !")},
    {Msg::DontStop, QT_TRANSLATE_NOOP("Messages", "Don't Stop or disconnect !!!")},
    {Msg::PleaseConnectMiniProgrammer,
     QT_TRANSLATE_NOOP("Messages", "Please connect the mini-programer.")},
    {Msg::FirmwareEmpty,
     QT_TRANSLATE_NOOP("Messages", "%s is empty: it is not a firmware file. Nothing was sent.")},
    {Msg::FirmwareNotSRecord,
     QT_TRANSLATE_NOOP("Messages", "%s is not a Motorola S-record firmware file: line %d %s. "
                                   "Nothing was sent.")},
    {Msg::SRecordBadStart, QT_TRANSLATE_NOOP("Messages", "does not begin with S0 to S9")},
    {Msg::SRecordBadHex,
     QT_TRANSLATE_NOOP("Messages", "holds a character that is not a hexadecimal digit")},
    {Msg::SRecordBadCount,
     QT_TRANSLATE_NOOP("Messages", "has a byte count that does not match its length")},
    {Msg::SRecordBadChecksum, QT_TRANSLATE_NOOP("Messages", "has a wrong checksum")},
    {Msg::FirmwareUpgradeMode,
     QT_TRANSLATE_NOOP("Messages", "The mini-programmer must be in its upgrade mode before the "
                                   "file is sent. Send %s now?")},
    {Msg::FirmwareLarge,
     QT_TRANSLATE_NOOP("Messages", "%s holds %d bytes: sent byte by byte at 9600 baud, it takes "
                                   "hours. Send it all the same?")},
    {Msg::FirmwarePortLost,
     QT_TRANSLATE_NOOP("Messages", "The port was lost during the transfer: %d of %d bytes left "
                                   "the port: the upgrade is not complete.")},
    {Msg::LastChannelDiffers,
     QT_TRANSLATE_NOOP("Messages",
                       "Channel %d of the validator differs from the one of this configuration: "
                       "the windows may not suit this validator. Continue?")},
    {Msg::WriteIncomplete,
     QT_TRANSLATE_NOOP("Messages",
                       "The validator now holds a partly written configuration (written: %s); "
                       "nothing already written was undone. Write it again before use.")},
    {Msg::WriteNothing,
     QT_TRANSLATE_NOOP("Messages", "Nothing was written: the validator holds what it held "
                                   "before.")},
    {Msg::WriteRefused, QT_TRANSLATE_NOOP("Messages", "The validator refused: %s.")},
    {Msg::WriteUnanswered,
     QT_TRANSLATE_NOOP("Messages", "No answer came after sending %s: the validator may or may "
                                   "not hold it.")},
    {Msg::LearnNotSaved,
     QT_TRANSLATE_NOOP("Messages", "Channel %d was not saved into the validator.")},
    {Msg::LearnChannelHolds,
     QT_TRANSLATE_NOOP("Messages", "Channel %d of the validator now holds %s.")},
    {Msg::Verifying, QT_TRANSLATE_NOOP("Messages", "Verifying...")},
    {Msg::VerifyingDoNotUnplug,
     QT_TRANSLATE_NOOP("Messages", "Verifying... do not unplug the validator")},
    {Msg::UnwrittenChangesStore,
     QT_TRANSLATE_NOOP("Messages",
                       "The validator does not have %d changes this editor holds (see Changes). "
                       "Store in the tables all the same?")},
    {Msg::UnwrittenChangesOpen,
     QT_TRANSLATE_NOOP("Messages",
                       "The validator does not have %d changes this editor holds (see Changes); "
                       "opening replaces them in the editor. Open all the same?")},
    {Msg::Verified,
     QT_TRANSLATE_NOOP("Messages", "Verified: the validator holds the configuration.")},
    {Msg::VerificationMismatch,
     QT_TRANSLATE_NOOP("Messages", "The validator does not hold what was written:")},
    {Msg::VerificationFailed,
     QT_TRANSLATE_NOOP("Messages", "Verification failed: the validator could not be read back.")},
    {Msg::VerificationMore, QT_TRANSLATE_NOOP("Messages", "... and %d more.")},
    {Msg::BackupFailed,
     QT_TRANSLATE_NOOP("Messages", "The backup of this read could not be written: %s")},
    {Msg::CloneTargetNotRead,
     QT_TRANSLATE_NOOP("Messages", "The validator's own configuration could not be read before "
                                   "cloning: nothing was cloned.")},
    {Msg::CloneBackupNotWritten,
     QT_TRANSLATE_NOOP("Messages", "The validator's own configuration could not be kept before "
                                   "cloning: %s. Clone all the same?")},
    {Msg::CloneBackupKept,
     QT_TRANSLATE_NOOP("Messages", "The validator's own configuration was kept in %s.")},
    {Msg::CloneCorrected,
     QT_TRANSLATE_NOOP("Messages", "Windows corrected for this validator's sensors: %s.")},
    {Msg::CloneNotCorrected,
     QT_TRANSLATE_NOOP("Messages", "Windows copied as they are: the source or this validator has "
                                   "no reference channel to correct them by.")},
    {Msg::TablesUnavailable,
     QT_TRANSLATE_NOOP("Messages", "The tables of the data directory are not open.")},
    {Msg::FamilyMismatch,
     QT_TRANSLATE_NOOP("Messages",
                       "The file holds a %s validator but a %s validator is connected: nothing "
                       "was written.")},
    {Msg::ChangesBaselineOther,
     QT_TRANSLATE_NOOP("Messages",
                       "What the validator holds is the configuration of a %s validator with %s "
                       "channels, the one to write is of a %s validator with %s channels: "
                       "nothing was written.")},
    {Msg::ChangesOtherValidator,
     QT_TRANSLATE_NOOP("Messages", "This validator (serial %s) is not the one read (serial %s): "
                                   "nothing was written.")},
    {Msg::ChangesOtherFamily,
     QT_TRANSLATE_NOOP("Messages", "This validator (serial %s) has %s firmware, the one read "
                                   "(serial %s) had %s: nothing was written.")},
    {Msg::ChangesWrittenSince,
     QT_TRANSLATE_NOOP("Messages",
                       "Validator %s was programmed (%s) after what it holds was read: it was "
                       "written elsewhere since. Read it again; nothing was written.")},
    {Msg::ChangesNothing,
     QT_TRANSLATE_NOOP("Messages",
                       "The validator already holds this configuration: nothing was written.")},
    {Msg::ChangesNoBaseline,
     QT_TRANSLATE_NOOP("Messages", "What validator %s holds is not known (it was not read "
                                   "here): only the whole configuration can be written.")},
    {Msg::SavedChannelsMissing,
     QT_TRANSLATE_NOOP("Messages", "%s has no row for channels %s: they open empty.")},
    {Msg::SavedChannelsDuplicated,
     QT_TRANSLATE_NOOP("Messages",
                       "%s has more than one row for channels %s: the first row of each is used.")},
    {Msg::ValueTableNotStored, QT_TRANSLATE_NOOP("Messages", "No value table %s is stored")},
    {Msg::ProfileNotStored, QT_TRANSLATE_NOOP("Messages", "No coin profile %s is stored")},
    {Msg::DeleteRecord, QT_TRANSLATE_NOOP("Messages", "Delete record?")},
    {Msg::DeleteSavedValidator,
     QT_TRANSLATE_NOOP("Messages", "Delete %s and its channels from the tables?")},
    {Msg::RecordsFileMissing, QT_TRANSLATE_NOOP("Messages", "%s is missing")},
    {Msg::RecordsCannotOpen, QT_TRANSLATE_NOOP("Messages", "%s cannot be opened: %s")},
    {Msg::RecordsCannotWrite, QT_TRANSLATE_NOOP("Messages", "%s cannot be written: %s")},
    {Msg::RecordsNotDbase,
     QT_TRANSLATE_NOOP("Messages", "%s is not a dBase table of level 3, 4, 5 or 7")},
    {Msg::RecordsBadHeader,
     QT_TRANSLATE_NOOP("Messages",
                       "%s has a damaged header: its header length, record length and field widths "
                       "do not add up")},
    {Msg::RecordsBadField,
     QT_TRANSLATE_NOOP("Messages", "%s has a damaged header: field %s is not valid")},
    {Msg::RecordsTruncated,
     QT_TRANSLATE_NOOP("Messages", "%s is truncated: it holds %s of its %s records")},
    {Msg::RecordsFieldMissing, QT_TRANSLATE_NOOP("Messages", "%s has no field %s")},
    {Msg::RecordsFieldType,
     QT_TRANSLATE_NOOP("Messages", "%s: field %s is of type %s where %s is expected")},
    {Msg::RecordsReadOnly,
     QT_TRANSLATE_NOOP("Messages", "%s cannot be changed: the file or its directory is read-only")},
    {Msg::RecordsTagUnsupported,
     QT_TRANSLATE_NOOP("Messages",
                       "%s cannot be changed: its index tag %s (%s) is not one this program can "
                       "keep up to date")},
    {Msg::RecordsLanguageUnsupported,
     QT_TRANSLATE_NOOP("Messages",
                       "%s cannot be changed: its language driver %s sorts keys in an order "
                       "this program cannot keep")},
    {Msg::RecordsValueTooWide,
     QT_TRANSLATE_NOOP("Messages", "The value %s does not fit field %s of %s")},
    {Msg::RecordsIndexRebuilt,
     QT_TRANSLATE_NOOP("Messages",
                       "The index %s was not usable (%s) and has been rebuilt from %s")},
    {Msg::RecordsIndexNotRebuilt,
     QT_TRANSLATE_NOOP("Messages", "The index %s is not usable (%s) and cannot be rebuilt now")},
    {Msg::IndexReasonMissing, QT_TRANSLATE_NOOP("Messages", "it is missing")},
    {Msg::IndexReasonHeader, QT_TRANSLATE_NOOP("Messages", "its header is damaged")},
    {Msg::IndexReasonPages, QT_TRANSLATE_NOOP("Messages", "its pages are damaged")},
    {Msg::IndexReasonOrder, QT_TRANSLATE_NOOP("Messages", "its keys are out of order")},
    {Msg::IndexReasonEntries,
     QT_TRANSLATE_NOOP("Messages", "its entries do not match the records")},
    {Msg::IndexReasonTag,
     QT_TRANSLATE_NOOP("Messages", "tag %s is missing or does not match its field")},
    {Msg::IndexReasonLanguage,
     QT_TRANSLATE_NOOP("Messages", "its language driver differs from the table's")},
    {Msg::RecordsDirectoryCreated,
     QT_TRANSLATE_NOOP("Messages", "The data directory %s has been created with empty tables")},
    {Msg::RecordsTablesCreated,
     QT_TRANSLATE_NOOP("Messages", "Empty tables have been created in %s: %s")},
    {Msg::RecordsNotStored, QT_TRANSLATE_NOOP("Messages", "No validator %s is stored")},
    {Msg::RecordsChangedElsewhere,
     QT_TRANSLATE_NOOP("Messages",
                       "%s was changed by another program; open it again before changing it")},
    {Msg::RecordsLockWait,
     QT_TRANSLATE_NOOP("Messages", "%s: waited %s s for %s holding the lock; nothing written")},
    {Msg::RecordsLockHolderUnknown, QT_TRANSLATE_NOOP("Messages", "another program")},
    {Msg::RecordsChangedMeanwhile,
     QT_TRANSLATE_NOOP("Messages", "%s has been changed by another program since it was shown. "
                                   "Delete it anyway ?")},
    {Msg::RecordsCannotCreateDirectory,
     QT_TRANSLATE_NOOP("Messages", "The data directory %s cannot be created")},
    {Msg::RecordsHeaderTruncated,
     QT_TRANSLATE_NOOP("Messages",
                       "%s is truncated inside its header: none of its records can be read")},
    {Msg::RecordsDamaged,
     QT_TRANSLATE_NOOP("Messages", "%s. It is opened read-only with the records that can be read; "
                                   "repair the tables to change it.")},
    {Msg::RecordsDamagedRefused,
     QT_TRANSLATE_NOOP("Messages",
                       "%s is damaged and cannot be changed until the tables are repaired")},
    {Msg::RecordsUnreadable,
     QT_TRANSLATE_NOOP("Messages", "%s. Nothing of it can be read; the file is left as it is.")},
    {Msg::RecordsNotOpen,
     QT_TRANSLATE_NOOP("Messages", "%s is not open: nothing can be read from it or stored in it")},
    {Msg::RecordsLockWaiting,
     QT_TRANSLATE_NOOP("Messages", "%s is locked by %s: waiting at most %s s")},
    {Msg::RecordsLockWaitRead,
     QT_TRANSLATE_NOOP("Messages", "%s: waited %s s for %s holding the lock; nothing read")},
    {Msg::RecordsNotRegularFile,
     QT_TRANSLATE_NOOP("Messages",
                       "%s is not a file (a folder, a pipe or a device): it is not opened")},
    {Msg::RecordsDirectoryUnreadable,
     QT_TRANSLATE_NOOP("Messages", "The data directory %s cannot be read: %s")},
    {Msg::RepairOrphanChannels,
     QT_TRANSLATE_NOOP("Messages", "%s holds %s channel rows of no stored validator: %s")},
    {Msg::RepairChannelless,
     QT_TRANSLATE_NOOP("Messages", "%s holds validators without channel rows: %s; they are kept "
                                   "and open with every channel empty")},
    {Msg::RepairOrphansRemoved,
     QT_TRANSLATE_NOOP("Messages",
                       "%s: %s channel rows of no stored validator removed (copies in %s)")},
    {Msg::RepairSound, QT_TRANSLATE_NOOP("Messages", "%s is sound and was left untouched")},
    {Msg::RepairDone,
     QT_TRANSLATE_NOOP("Messages", "%s repaired: %s records kept, %s could not be read; the "
                                   "damaged files are kept in %s")},
    {Msg::RepairIndexDone,
     QT_TRANSLATE_NOOP("Messages", "%s: its index was rebuilt from the table; the old files are "
                                   "kept in %s")},
    {Msg::RepairFailed, QT_TRANSLATE_NOOP("Messages", "%s could not be repaired: %s")},
    {Msg::RepairIndexUnusable, QT_TRANSLATE_NOOP("Messages", "The index %s is not usable (%s)")},
    {Msg::GuideMissing, QT_TRANSLATE_NOOP("Messages", "The user guide %s is not installed.")},
    {Msg::SettingsUnreadable,
     QT_TRANSLATE_NOOP("Messages", "The settings could not be read; the defaults are used until a "
                                   "setting is changed.")},
    {Msg::SettingsFileKeptAside,
     QT_TRANSLATE_NOOP("Messages", "The settings file %s could not be read; it has been kept as "
                                   "%s. The defaults are used, with the tables in %s.")},
    {Msg::SettingsFileLeft,
     QT_TRANSLATE_NOOP("Messages", "The settings file %s could not be read. The defaults are "
                                   "used, with the tables in %s.")},
    {Msg::FileNotReadable, QT_TRANSLATE_NOOP("Messages", "The file %s could not be read.")},
    {Msg::SheetNotWritten,
     QT_TRANSLATE_NOOP("Messages", "The sheet could not be written to %s: %s. Nothing else was "
                                   "changed.")},
    {Msg::SheetNotPrinted, QT_TRANSLATE_NOOP("Messages", "The sheet could not be printed.")},
    {Msg::WriteDiskFull,
     QT_TRANSLATE_NOOP("Messages", "No space left on the disk: nothing was written")},
    {Msg::WriteQuotaFull,
     QT_TRANSLATE_NOOP("Messages", "The disk quota is used up: nothing was written")},
    {Msg::WriteReadOnlyDisk,
     QT_TRANSLATE_NOOP("Messages", "The disk is read-only: nothing was written")},
    {Msg::WriteNotAllowed,
     QT_TRANSLATE_NOOP("Messages", "Writing in this folder is not allowed: nothing was written")},
    {Msg::WriteNoFolder,
     QT_TRANSLATE_NOOP("Messages", "The folder does not exist: nothing was written")},
    {Msg::WriteDiskError,
     QT_TRANSLATE_NOOP("Messages", "The disk reported an error (%s): nothing was written")},
    {Msg::NameOutsideCodePage,
     QT_TRANSLATE_NOOP("Messages", "\"%s\" cannot be stored in %s: its code page has no %s. "
                                   "Nothing was written.")},
    {Msg::NameTooLong,
     QT_TRANSLATE_NOOP("Messages", "\"%s\" is too long for %s: it holds at most %s characters. "
                                   "Nothing was written.")},
    {Msg::RecordsRowsPastCount,
     QT_TRANSLATE_NOOP("Messages", "%s counts %s records in its header, but its index and its "
                                   "length prove %s")},
    {Msg::RepairNotReadBack,
     QT_TRANSLATE_NOOP("Messages", "the rebuilt table could not be read back as written")},
    {Msg::BatchPlugNext, QT_TRANSLATE_NOOP("Messages", "Plug the next validator")},
    {Msg::BatchFound,
     QT_TRANSLATE_NOOP("Messages", "Validator found: reading its identification...")},
    {Msg::BatchWriting, QT_TRANSLATE_NOOP("Messages", "Writing %s...")},
    {Msg::BatchVerifying, QT_TRANSLATE_NOOP("Messages", "Verifying %s...")},
    {Msg::BatchVerifiedUnplug, QT_TRANSLATE_NOOP("Messages", "%s verified: unplug it")},
    {Msg::BatchMismatchUnplug,
     QT_TRANSLATE_NOOP("Messages", "%s does not hold what was written: unplug it")},
    {Msg::BatchFailedUnplug, QT_TRANSLATE_NOOP("Messages", "%s failed: unplug it")},
    {Msg::BatchAlreadyDoneUnplug, QT_TRANSLATE_NOOP("Messages", "%s was already done: unplug it")},
    {Msg::BatchWrongFamilyUnplug,
     QT_TRANSLATE_NOOP("Messages", "%s is of another family: unplug it")},
    {Msg::BatchFinished,
     QT_TRANSLATE_NOOP("Messages", "Batch finished: %d verified, %d failed, %d skipped.")},
    {Msg::BatchIdle,
     QT_TRANSLATE_NOOP("Messages", "No validator was plugged for %d s: the batch stopped.")},
    {Msg::BatchLogFailed,
     QT_TRANSLATE_NOOP("Messages", "The batch log could not be written (%s): the batch stopped.")},
    {Msg::BatchAlreadyDone,
     QT_TRANSLATE_NOOP("Messages", "Already verified in this batch at %s: not written again.")},
    {Msg::BatchWrongFamily,
     QT_TRANSLATE_NOOP("Messages",
                       "A %s validator, the configuration is for %s: nothing was written.")},
    {Msg::BatchNotRead,
     QT_TRANSLATE_NOOP("Messages",
                       "Its own configuration could not be read: nothing was written.")},
    {Msg::BatchBackupNotKept,
     QT_TRANSLATE_NOOP("Messages",
                       "Its own configuration could not be kept (%s): nothing was written.")},
    {Msg::BatchNothingWritten,
     QT_TRANSLATE_NOOP("Messages", "It no longer answered before the write: nothing was written.")},
    {Msg::BatchNotVerified,
     QT_TRANSLATE_NOOP("Messages", "Written, but it could not be read back to verify it.")},
    {Msg::BatchSourceNotSaved, QT_TRANSLATE_NOOP("Messages", "No validator is stored as %s.")},
    {Msg::BatchNoGroup,
     QT_TRANSLATE_NOOP("Messages", "Choose at least one group to write, or the full write.")},
    {Msg::BatchCountInvalid,
     QT_TRANSLATE_NOOP("Messages", "How many validators: a number from 0 to 9999.")},
    {Msg::BatchNoSource, QT_TRANSLATE_NOOP("Messages", "Choose the configuration to write.")},
    {Msg::BatchSheetNotWritten,
     QT_TRANSLATE_NOOP("Messages", "The configuration sheet could not be written: %s")},
    {Msg::HistoryNotKept, QT_TRANSLATE_NOOP("Messages", "The history could not be kept: %s")},
    {Msg::HistoryUnknownSerial,
     QT_TRANSLATE_NOOP("Messages", "No history is known for the serial number %s")},
    {Msg::HistoryNoConfiguration,
     QT_TRANSLATE_NOOP("Messages", "This event holds no configuration to put back")},
    {Msg::HistoryRestoreQuestion,
     QT_TRANSLATE_NOOP("Messages", "Put the validator back as it was on %s? This changes:\n%s")},
    {Msg::HistoryRestoreNothing,
     QT_TRANSLATE_NOOP("Messages", "The validator already holds the configuration of %s")},
    {Msg::HistoryNotRead, QT_TRANSLATE_NOOP("Messages", "The history could not be read: %s")},
    {Msg::HistoryOtherValidator,
     QT_TRANSLATE_NOOP("Messages",
                       "The validator connected has the serial number %s, not %s: nothing was "
                       "written")},
    {Msg::HistoryUnknownSaved,
     QT_TRANSLATE_NOOP("Messages", "No history notes the validator saved as %s: its history "
                                   "is known once it is saved after a read or a write")},
    {Msg::ServerUnreachable,
     QT_TRANSLATE_NOOP("Messages", "The server %s cannot be reached: nothing was stored.")},
    {Msg::ServerUnreachableRead, QT_TRANSLATE_NOOP("Messages", "The server %s cannot be reached.")},
    {Msg::ServerPasswordNotKept,
     QT_TRANSLATE_NOOP("Messages", "The password is not kept in the settings: put it in "
                                   "~/.pgpass or PGPASSWORD.")},
    {Msg::ServerSchemaNewer,
     QT_TRANSLATE_NOOP("Messages", "The tables on the server %s were made by a later version "
                                   "(%d); this program knows version %d and changes nothing.")},
};

} // namespace

const char *messageSource(Msg id)
{
    for (const Entry &entry : kTable) {
        if (entry.id == id)
            return entry.text;
    }
    return "";
}

QString messageText(Msg id, const QStringList &args)
{
    return fillPlaceholders(QCoreApplication::translate("Messages", messageSource(id)), args);
}

QString fillPlaceholders(const QString &text, const QStringList &args)
{
    QString out;
    out.reserve(text.size() + 16);
    qsizetype next = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'%' && i + 1 < text.size()) {
            const QChar k = text.at(i + 1);
            if (k == u'%') {
                out += u'%';
                ++i;
                continue;
            }
            if (k == u'd' || k == u's') {
                out += next < args.size() ? args.at(next) : QString();
                ++next;
                ++i;
                continue;
            }
        }
        out += c;
    }
    return out;
}
