#pragma once

#include <QString>
#include <QStringList>

// Every user-visible message of the program, in one table. The English text is the key that
// Qt Linguist translates (context "Messages"); the texts are kept exactly as the program has
// always shown them, spelling included.
enum class Msg
{
    // link
    InternalOrCommunicationError,
    CommunicationError,
    ReadingErrorFromValidator,
    PortNotFree,
    PortPermissionDenied,
    SelectPort,
    ConnectValidator,
    // reading and writing
    ValidatorReadingInProgress,
    SavingInProgress,
    FinishedOperation,
    FaultDuringSave,
    OperationCancelled,
    InvalidCodeTable,
    IncorrectVersion,
    SaveOnValidator,
    ByMiniPgm,
    NotAvailable,
    // editor values
    ValueBetween0And255,
    ValueOverMaximum,
    ValueUnderMinimum,
    NotValidInteger,
    ValueOverMs,
    WrongWayCounter,
    ModifyingBase1,
    ModifyingBase2,
    MultiPulseIncompatible,
    ImpossibleDisplacement,
    // records
    IdentificationMustBeFilled,
    ExistOverwrite,
    FileSaved,
    ValidityNotGuaranteed,
    // learning and calibration
    SelectChannelNumber,
    NumberOfCoinsLess,
    ModifyAnotherChannel,
    CalibrateAnotherChannel,
    ValuesDirectlySaved,
    MatchedChannelLoad,
    NoMatchedData,
    DoorOpen,
    PrepareGoldenTokens,
    PrepareSilverTokens,
    InsertGoldenTokens,
    InsertSilverTokens,
    ReferenceChannelSaved,
    ProgrammingError,
    ChannelEmpty,
    NoOverlapping,
    Overlapping,
    Superpositions,
    // value tables
    TableTransferred,
    AllDataTransferred,
    // shell
    NextStart,
    UpgradeOver,
    OperationCancelledByOperator,
    UpdatingPleaseWait,
    DontStop,
    PleaseConnectMiniProgrammer,
    GuideMissing,
    LastChannelDiffers,
    WriteIncomplete,
    Verifying,
    Verified,
    VerificationMismatch,
    VerificationFailed,
    VerificationMore,
    BackupFailed,
    TablesUnavailable,
    FamilyMismatch,
    SavedChannelsMissing,
    SavedChannelsDuplicated,
    DeleteSavedValidator,
    ValueTableNotStored,
    DeleteRecord,
    // records engine
    RecordsFileMissing,
    RecordsCannotOpen,
    RecordsCannotWrite,
    RecordsNotDbase,
    RecordsBadHeader,
    RecordsBadField,
    RecordsTruncated,
    RecordsFieldMissing,
    RecordsFieldType,
    RecordsReadOnly,
    RecordsTagUnsupported,
    RecordsLanguageUnsupported,
    RecordsValueTooWide,
    RecordsIndexRebuilt,
    RecordsIndexNotRebuilt,
    IndexReasonMissing,
    IndexReasonHeader,
    IndexReasonPages,
    IndexReasonOrder,
    IndexReasonEntries,
    IndexReasonTag,
    IndexReasonLanguage,
    RecordsDirectoryCreated,
    RecordsTablesCreated,
    RecordsNotStored,
    RecordsChangedElsewhere,
    RecordsLockWait,
    RecordsLockHolderUnknown,
    RecordsChangedMeanwhile,
    RecordsCannotCreateDirectory,
    RecordsHeaderTruncated,
    RecordsDamaged,
    RecordsDamagedRefused,
    RecordsUnreadable,
    RecordsNotOpen,
    RecordsLockWaiting,
    RecordsLockWaitRead,
    RecordsNotRegularFile,
    RecordsDirectoryUnreadable,
    RepairOrphanChannels,
    RepairChannelless,
    RepairOrphansRemoved,
    // repairing the tables
    RepairSound,
    RepairDone,
    RepairIndexDone,
    RepairFailed,
    RepairIndexUnusable,
    SettingsUnreadable,
    FileNotReadable,
    SheetNotWritten,
    SheetNotPrinted,
    Count_
};

// The translated text of a message, with its %d and %s place holders filled in order from args.
QString messageText(Msg id, const QStringList &args = {});

// The untranslated English text (the Linguist source text).
const char *messageSource(Msg id);

// Fills the printf-style place holders %d, %s (and %%) of a text, in order, from args.
QString fillPlaceholders(const QString &text, const QStringList &args);
