#include "Captions.h"

#include "Messages.h"

#include <QCoreApplication>

namespace {

struct Entry
{
    Cap id;
    const char *text;
};

constexpr Entry kTable[] = {
    {Cap::FormTitle, QT_TRANSLATE_NOOP("Captions", "Validator")},
    {Cap::Page1, QT_TRANSLATE_NOOP("Captions", "Channel 1 to 10")},
    {Cap::Page2, QT_TRANSLATE_NOOP("Captions", "Channel 11 to 20")},
    {Cap::Page3, QT_TRANSLATE_NOOP("Captions", "Channel 21 to 30")},
    {Cap::Page4, QT_TRANSLATE_NOOP("Captions", "Channel 31 to 40")},
    {Cap::Page5, QT_TRANSLATE_NOOP("Captions", "Channel 41 to 50")},
    {Cap::Page6, QT_TRANSLATE_NOOP("Captions", "Channel 51 to 60")},
    {Cap::ColHfuLowMin, QT_TRANSLATE_NOOP("Captions", "HFU low min")},
    {Cap::ColHfuLowMax, QT_TRANSLATE_NOOP("Captions", "HFU low max")},
    {Cap::ColHfuHighMin, QT_TRANSLATE_NOOP("Captions", "HFU high min")},
    {Cap::ColHfuHighMax, QT_TRANSLATE_NOOP("Captions", "HFU high max")},
    {Cap::ColDimMin, QT_TRANSLATE_NOOP("Captions", "DIM min")},
    {Cap::ColDimMax, QT_TRANSLATE_NOOP("Captions", "DIM max")},
    {Cap::ColLfMin, QT_TRANSLATE_NOOP("Captions", "LF min")},
    {Cap::ColLfMax, QT_TRANSLATE_NOOP("Captions", "LF max")},
    {Cap::ColHflLowMin, QT_TRANSLATE_NOOP("Captions", "HFL low min")},
    {Cap::ColHflLowMax, QT_TRANSLATE_NOOP("Captions", "HFL low max")},
    {Cap::ColHflHighMin, QT_TRANSLATE_NOOP("Captions", "HFL high min")},
    {Cap::ColHflHighMax, QT_TRANSLATE_NOOP("Captions", "HFL high max")},
    {Cap::ColHflAmpMin, QT_TRANSLATE_NOOP("Captions", "HFL amp min")},
    {Cap::ColHflAmpMax, QT_TRANSLATE_NOOP("Captions", "HFL amp max")},
    {Cap::ColEnable, QT_TRANSLATE_NOOP("Captions", "Enable")},
    {Cap::ColValue, QT_TRANSLATE_NOOP("Captions", "Value")},
    {Cap::ColSub, QT_TRANSLATE_NOOP("Captions", "Sub")},
    {Cap::ChannelNumber, QT_TRANSLATE_NOOP("Captions", "Channel %d ")},
    {Cap::GroupIdent, QT_TRANSLATE_NOOP("Captions", "Identification")},
    {Cap::SerialNumber, QT_TRANSLATE_NOOP("Captions", "Serial Number :")},
    {Cap::Version, QT_TRANSLATE_NOOP("Captions", "Version :")},
    {Cap::FirmwareDate, QT_TRANSLATE_NOOP("Captions", "Firmware date :")},
    {Cap::ProgrammingDate, QT_TRANSLATE_NOOP("Captions", "Programming date :")},
    {Cap::ProductionDate, QT_TRANSLATE_NOOP("Captions", "Production date :")},
    {Cap::Identification, QT_TRANSLATE_NOOP("Captions", "Identification :")},
    {Cap::Description, QT_TRANSLATE_NOOP("Captions", "Description :")},
    {Cap::ReadValidator, QT_TRANSLATE_NOOP("Captions", "Read validator")},
    {Cap::WriteValidator, QT_TRANSLATE_NOOP("Captions", "Write validator")},
    {Cap::Clone, QT_TRANSLATE_NOOP("Captions", "Clone")},
    {Cap::StoreInTables, QT_TRANSLATE_NOOP("Captions", "Store in tables")},
    {Cap::Close, QT_TRANSLATE_NOOP("Captions", "Close")},
    {Cap::OpenFile, QT_TRANSLATE_NOOP("Captions", "Open configuration file")},
    {Cap::SaveFile, QT_TRANSLATE_NOOP("Captions", "Save configuration file")},
    {Cap::Initialise, QT_TRANSLATE_NOOP("Captions", "Validator setting")},
    {Cap::Output, QT_TRANSLATE_NOOP("Captions", "Output")},
    {Cap::TestValue, QT_TRANSLATE_NOOP("Captions", "Test value (via serial)")},
    {Cap::TestStart, QT_TRANSLATE_NOOP("Captions", "Start")},
    {Cap::TestStop, QT_TRANSLATE_NOOP("Captions", "Stop")},
    {Cap::TestChannel, QT_TRANSLATE_NOOP("Captions", "Channel :")},
    {Cap::TestAmount, QT_TRANSLATE_NOOP("Captions", "Value :")},
    {Cap::Prices, QT_TRANSLATE_NOOP("Captions", "Prices")},
    {Cap::ValueP1, QT_TRANSLATE_NOOP("Captions", "Value P1")},
    {Cap::ValueP2, QT_TRANSLATE_NOOP("Captions", "Value P2")},
    {Cap::ValueP3, QT_TRANSLATE_NOOP("Captions", "Value P3")},
    {Cap::ValueP4, QT_TRANSLATE_NOOP("Captions", "Value P4")},
    {Cap::ValueP5, QT_TRANSLATE_NOOP("Captions", "Value P5")},
    {Cap::ValueP6, QT_TRANSLATE_NOOP("Captions", "Value P6")},
    {Cap::BaseValue, QT_TRANSLATE_NOOP("Captions", "Base Value")},
    {Cap::Base1, QT_TRANSLATE_NOOP("Captions", "Channel from  1 to 30 :")},
    {Cap::Base2, QT_TRANSLATE_NOOP("Captions", "Channel from 31 to 60 :")},
    {Cap::Ratio, QT_TRANSLATE_NOOP("Captions", "Ratio :")},
    {Cap::Code, QT_TRANSLATE_NOOP("Captions", "Code")},
    {Cap::CodeOk, QT_TRANSLATE_NOOP("Captions", "OK")},
    {Cap::CodeBad, QT_TRANSLATE_NOOP("Captions", "BAD")},
    {Cap::Type, QT_TRANSLATE_NOOP("Captions", "Type")},
    {Cap::Type0, QT_TRANSLATE_NOOP("Captions", "00 - Validator")},
    {Cap::Type1, QT_TRANSLATE_NOOP("Captions", "10 - Totalizer - 2 prices")},
    {Cap::Type2, QT_TRANSLATE_NOOP("Captions", "20 - Totalizer - video game")},
    {Cap::Type3, QT_TRANSLATE_NOOP("Captions", "30 - Timer Totalizer")},
    {Cap::Type4, QT_TRANSLATE_NOOP("Captions", "40 - Totalizer - credit")},
    {Cap::Type5, QT_TRANSLATE_NOOP("Captions", "50 - ")},
    {Cap::Type6, QT_TRANSLATE_NOOP("Captions", "60 - TimerTotalizer - credit")},
    {Cap::Type7, QT_TRANSLATE_NOOP("Captions", "70 - Totalizer - photocopy")},
    {Cap::Outlet, QT_TRANSLATE_NOOP("Captions", "Outlet")},
    {Cap::VendingAntiJam, QT_TRANSLATE_NOOP("Captions", "Vending anti-jam")},
    {Cap::Vending, QT_TRANSLATE_NOOP("Captions", "Vending")},
    {Cap::GameFast, QT_TRANSLATE_NOOP("Captions", "Game fast")},
    {Cap::Game, QT_TRANSLATE_NOOP("Captions", "Game")},
    {Cap::Options, QT_TRANSLATE_NOOP("Captions", "Options")},
    {Cap::OptionBits, QT_TRANSLATE_NOOP("Captions", "Option bits")},
    {Cap::Separator, QT_TRANSLATE_NOOP("Captions", "Separator")},
    {Cap::NormalOutput, QT_TRANSLATE_NOOP("Captions", "Normal output")},
    {Cap::InvertedOutput, QT_TRANSLATE_NOOP("Captions", "Inverted output")},
    {Cap::DisplayOff, QT_TRANSLATE_NOOP("Captions", "Display off")},
    {Cap::BinaryOutput, QT_TRANSLATE_NOOP("Captions", "Binary output")},
    {Cap::StandbyMode, QT_TRANSLATE_NOOP("Captions", "Standby mode")},
    {Cap::Confida, QT_TRANSLATE_NOOP("Captions", "Confida")},
    {Cap::DipInhibition, QT_TRANSLATE_NOOP("Captions", "Dip inhibition")},
    {Cap::Dip42, QT_TRANSLATE_NOOP("Captions", "Dip 4/2")},
    {Cap::DowCounting, QT_TRANSLATE_NOOP("Captions", "Dow-counting display")},
    {Cap::MultiPulse, QT_TRANSLATE_NOOP("Captions", "Multi pulse")},
    {Cap::JamInhibition, QT_TRANSLATE_NOOP("Captions", "Jam inhibition")},
    {Cap::ResetHigh, QT_TRANSLATE_NOOP("Captions", "Reset high")},
    {Cap::TogglingCounting, QT_TRANSLATE_NOOP("Captions", "Toggling counting")},
    {Cap::Price1Limit, QT_TRANSLATE_NOOP("Captions", "Price 1 limit")},
    {Cap::Price2Limit, QT_TRANSLATE_NOOP("Captions", "Price 2 limit")},
    {Cap::TimeInMinutes, QT_TRANSLATE_NOOP("Captions", "Time in minutes")},
    {Cap::Limit, QT_TRANSLATE_NOOP("Captions", "Limit")},
    {Cap::ExtCounterSignal, QT_TRANSLATE_NOOP("Captions", "Ext Counter signal (3C)")},
    {Cap::ExtStart, QT_TRANSLATE_NOOP("Captions", "Ext Start (3R)")},
    {Cap::ExternalReset, QT_TRANSLATE_NOOP("Captions", "External reset")},
    {Cap::Rest, QT_TRANSLATE_NOOP("Captions", "Rest")},
    {Cap::CashCounters, QT_TRANSLATE_NOOP("Captions", "Cash counters / Limits")},
    {Cap::Counter1, QT_TRANSLATE_NOOP("Captions", "Counter 1 :")},
    {Cap::Counter2, QT_TRANSLATE_NOOP("Captions", "Counter 2 :")},
    {Cap::Actived, QT_TRANSLATE_NOOP("Captions", "Actived")},
    {Cap::Desactived, QT_TRANSLATE_NOOP("Captions", "Desactived")},
    {Cap::Off, QT_TRANSLATE_NOOP("Captions", "OFF")},
    {Cap::Erasable, QT_TRANSLATE_NOOP("Captions", "Erasable :")},
    {Cap::VendLimit1, QT_TRANSLATE_NOOP("Captions", "Vend Limit1 : ")},
    {Cap::VendLimit2, QT_TRANSLATE_NOOP("Captions", "Vend Limit 2 : ")},
    {Cap::Reset, QT_TRANSLATE_NOOP("Captions", "Reset")},
    {Cap::LimitP1, QT_TRANSLATE_NOOP("Captions", "Limit / P1 :")},
    {Cap::ValueP1Colon, QT_TRANSLATE_NOOP("Captions", "Value P1 :")},
    {Cap::ServiceWidthMin, QT_TRANSLATE_NOOP("Captions", "Service Width in min.")},
    {Cap::ServiceWidthSec, QT_TRANSLATE_NOOP("Captions", "Service Width in sec.")},
    {Cap::MinimumResetWidthMs, QT_TRANSLATE_NOOP("Captions", "Minimum Reset Width in ms")},
    {Cap::ResetWidthSec, QT_TRANSLATE_NOOP("Captions", "Reset Width in sec. :")},
    {Cap::CodeBit, QT_TRANSLATE_NOOP("Captions", "Code %d, bit %d")},
    {Cap::CoinLearning, QT_TRANSLATE_NOOP("Captions", "Coin learning")},
    {Cap::ReferenceCalibration, QT_TRANSLATE_NOOP("Captions", "Reference calibration")},
    {Cap::ChannelControl, QT_TRANSLATE_NOOP("Captions", "Channel control")},
    {Cap::OverlapCheck, QT_TRANSLATE_NOOP("Captions", "Overlap check")},
    {Cap::CopyTitle, QT_TRANSLATE_NOOP("Captions", "Copy")},
    {Cap::CopySource, QT_TRANSLATE_NOOP("Captions", "Source ")},
    {Cap::CopyDestination, QT_TRANSLATE_NOOP("Captions", "Destination ")},
    {Cap::CopyChannel, QT_TRANSLATE_NOOP("Captions", "Channel : ")},
    {Cap::ClearChannel, QT_TRANSLATE_NOOP("Captions", "Clear channel :")},
    {Cap::OnlyValues, QT_TRANSLATE_NOOP("Captions", "Only values :")},
    {Cap::Transfert, QT_TRANSLATE_NOOP("Captions", "&Transfert")},
    {Cap::Exit, QT_TRANSLATE_NOOP("Captions", "&Exit")},
    {Cap::SavedValidators, QT_TRANSLATE_NOOP("Captions", "Saved validators")},
    {Cap::Filter, QT_TRANSLATE_NOOP("Captions", "Filter :")},
    {Cap::Open, QT_TRANSLATE_NOOP("Captions", "&Open")},
    {Cap::Delete, QT_TRANSLATE_NOOP("Captions", "&Delete")},
    {Cap::CloseButton, QT_TRANSLATE_NOOP("Captions", "&Close")},
    {Cap::ValuesTable, QT_TRANSLATE_NOOP("Captions", "Values Table")},
    {Cap::HelpTitle, QT_TRANSLATE_NOOP("Captions", "Tarvik help")},
    {Cap::HelpContents, QT_TRANSLATE_NOOP("Captions", "&Contents")},
    {Cap::HelpPrevious, QT_TRANSLATE_NOOP("Captions", "&Previous")},
    {Cap::HelpNext, QT_TRANSLATE_NOOP("Captions", "&Next")},
};

static_assert(std::size(kTable) == std::size_t(Cap::Count_), "one text per caption");

} // namespace

const char *captionSource(Cap id)
{
    for (const Entry &entry : kTable) {
        if (entry.id == id)
            return entry.text;
    }
    return "";
}

QString captionText(Cap id, const QStringList &args)
{
    return fillPlaceholders(QCoreApplication::translate("Captions", captionSource(id)), args);
}
