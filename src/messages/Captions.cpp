#include "Captions.h"

#include "Messages.h"

#include <QCoreApplication>

namespace {

struct Entry
{
    Cap id;
    const char *text;
};

#define CAP(id, text)                                                                              \
    {                                                                                              \
        Cap::id, QT_TRANSLATE_NOOP("Captions", text)                                               \
    }

constexpr Entry kTable[] = {
    CAP(FormTitle, "Validator"),
    CAP(Page1, "Channel 1 to 10"),
    CAP(Page2, "Channel 11 to 20"),
    CAP(Page3, "Channel 21 to 30"),
    CAP(Page4, "Channel 31 to 40"),
    CAP(Page5, "Channel 41 to 50"),
    CAP(Page6, "Channel 51 to 60"),
    CAP(ColHfuLowMin, "HFU low min"),
    CAP(ColHfuLowMax, "HFU low max"),
    CAP(ColHfuHighMin, "HFU high min"),
    CAP(ColHfuHighMax, "HFU high max"),
    CAP(ColDimMin, "DIM min"),
    CAP(ColDimMax, "DIM max"),
    CAP(ColLfMin, "LF min"),
    CAP(ColLfMax, "LF max"),
    CAP(ColHflLowMin, "HFL low min"),
    CAP(ColHflLowMax, "HFL low max"),
    CAP(ColHflHighMin, "HFL high min"),
    CAP(ColHflHighMax, "HFL high max"),
    CAP(ColHflAmpMin, "HFL amp min"),
    CAP(ColHflAmpMax, "HFL amp max"),
    CAP(ColEnable, "Enable"),
    CAP(ColValue, "Value"),
    CAP(ColSub, "Sub"),
    CAP(ChannelNumber, "Channel %d "),
    CAP(GroupIdent, "Identification"),
    CAP(SerialNumber, "Serial Number :"),
    CAP(Version, "Version :"),
    CAP(FirmwareDate, "Firmware date :"),
    CAP(ProgrammingDate, "Programming date :"),
    CAP(ProductionDate, "Production date :"),
    CAP(Identification, "Identification :"),
    CAP(Description, "Description :"),
    CAP(ReadValidator, "Read validator"),
    CAP(WriteValidator, "Write validator"),
    CAP(Clone, "Clone"),
    CAP(StoreInTables, "Store in tables"),
    CAP(Close, "Close"),
    CAP(OpenFile, "Open configuration file"),
    CAP(SaveFile, "Save configuration file"),
    CAP(Initialise, "Validator setting"),
    CAP(Output, "Output"),
    CAP(TestValue, "Test value (via serial)"),
    CAP(TestStart, "Start"),
    CAP(TestStop, "Stop"),
    CAP(TestChannel, "Channel :"),
    CAP(TestAmount, "Value :"),
    CAP(Prices, "Prices"),
    CAP(ValueP1, "Value P1"),
    CAP(ValueP2, "Value P2"),
    CAP(ValueP3, "Value P3"),
    CAP(ValueP4, "Value P4"),
    CAP(ValueP5, "Value P5"),
    CAP(ValueP6, "Value P6"),
    CAP(BaseValue, "Base Value"),
    CAP(Base1, "Channel from  1 to 30 :"),
    CAP(Base2, "Channel from 31 to 60 :"),
    CAP(Ratio, "Ratio :"),
    CAP(Code, "Code"),
    CAP(CodeOk, "OK"),
    CAP(CodeBad, "BAD"),
    CAP(Type, "Type"),
    CAP(Type0, "00 - Validator"),
    CAP(Type1, "10 - Totalizer - 2 prices"),
    CAP(Type2, "20 - Totalizer - video game"),
    CAP(Type3, "30 - Timer Totalizer"),
    CAP(Type4, "40 - Totalizer - credit"),
    CAP(Type5, "50 - "),
    CAP(Type6, "60 - TimerTotalizer - credit"),
    CAP(Type7, "70 - Totalizer - photocopy"),
    CAP(Outlet, "Outlet"),
    CAP(VendingAntiJam, "Vending anti-jam"),
    CAP(Vending, "Vending"),
    CAP(GameFast, "Game fast"),
    CAP(Game, "Game"),
    CAP(Options, "Options"),
    CAP(OptionBits, "Option bits"),
    CAP(Separator, "Separator"),
    CAP(NormalOutput, "Normal output"),
    CAP(InvertedOutput, "Inverted output"),
    CAP(DisplayOff, "Display off"),
    CAP(BinaryOutput, "Binary output"),
    CAP(StandbyMode, "Standby mode"),
    CAP(Confida, "Confida"),
    CAP(DipInhibition, "Dip inhibition"),
    CAP(Dip42, "Dip 4/2"),
    CAP(DowCounting, "Dow-counting display"),
    CAP(MultiPulse, "Multi pulse"),
    CAP(JamInhibition, "Jam inhibition"),
    CAP(ResetHigh, "Reset high"),
    CAP(TogglingCounting, "Toggling counting"),
    CAP(Price1Limit, "Price 1 limit"),
    CAP(Price2Limit, "Price 2 limit"),
    CAP(TimeInMinutes, "Time in minutes"),
    CAP(Limit, "Limit"),
    CAP(ExtCounterSignal, "Ext Counter signal (3C)"),
    CAP(ExtStart, "Ext Start (3R)"),
    CAP(ExternalReset, "External reset"),
    CAP(Rest, "Rest"),
    CAP(CashCounters, "Cash counters / Limits"),
    CAP(Counter1, "Counter 1 :"),
    CAP(Counter2, "Counter 2 :"),
    CAP(Actived, "Actived"),
    CAP(Desactived, "Desactived"),
    CAP(Off, "OFF"),
    CAP(Erasable, "Erasable :"),
    CAP(VendLimit1, "Vend Limit1 : "),
    CAP(VendLimit2, "Vend Limit 2 : "),
};

#undef CAP

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
