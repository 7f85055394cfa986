#include "Messages.h"

#include <QCoreApplication>
#include <array>

namespace {

constexpr std::array<const char *, static_cast<int>(Msg::Count_)> kTable = {
    QT_TRANSLATE_NOOP("Messages", "Internal or Comunication Error"),
    QT_TRANSLATE_NOOP("Messages", "Comunication Error !"),
    QT_TRANSLATE_NOOP("Messages", "Reading Error fron validator"),
    QT_TRANSLATE_NOOP("Messages", "Comunication Port COM%d isn't free or Setting error."),
    QT_TRANSLATE_NOOP("Messages", "Select port !!!"),
    QT_TRANSLATE_NOOP("Messages", "Connect validator "),
    QT_TRANSLATE_NOOP("Messages", "Validator reading in progress...."),
    QT_TRANSLATE_NOOP("Messages", "Saving in progress....."),
    QT_TRANSLATE_NOOP("Messages", "Finished operation!"),
    QT_TRANSLATE_NOOP("Messages", "Fault during save operation !"),
    QT_TRANSLATE_NOOP("Messages", "Operation cancelled"),
    QT_TRANSLATE_NOOP("Messages", "Invalid code table !"),
    QT_TRANSLATE_NOOP("Messages", "Incorrect version of validator"),
    QT_TRANSLATE_NOOP("Messages", "Save on validator?"),
    QT_TRANSLATE_NOOP("Messages", "By Mini-Pgm"),
    QT_TRANSLATE_NOOP("Messages", "#NA"),
    QT_TRANSLATE_NOOP("Messages", "Value must be between 0 and 255"),
    QT_TRANSLATE_NOOP("Messages", "Value over the maximum, it will be correct"),
    QT_TRANSLATE_NOOP("Messages", "Value under the minimum, it will be correct."),
    QT_TRANSLATE_NOOP("Messages", "Value over %d ms, it will be adjusted!"),
    QT_TRANSLATE_NOOP(
        "Messages", "Wrong way! Please the counter must be desactived if the base value is clear"),
    QT_TRANSLATE_NOOP("Messages",
                      "Modifing this value will take effect on channels from 1 to 30 !"),
    QT_TRANSLATE_NOOP("Messages",
                      "Modifing this value will take effect on channels from 31 to 60 !"),
    QT_TRANSLATE_NOOP(
        "Messages",
        "The value of channels %d and %d is incompatible for the function multi-pulse (max %d "
        "pulses)"),
    QT_TRANSLATE_NOOP(
        "Messages",
        "Impossible displacement, the channel of origin and the one of destination coincides"),
    QT_TRANSLATE_NOOP("Messages", "Identification field must be filled"),
    QT_TRANSLATE_NOOP("Messages", "%s exist! Overwrite ?"),
    QT_TRANSLATE_NOOP("Messages", "File %s saved"),
    QT_TRANSLATE_NOOP("Messages",
                      "The validity of data of this validator is not guaranteed by BRUNFELDGroup!"),
    QT_TRANSLATE_NOOP("Messages", "Select number of channel !"),
    QT_TRANSLATE_NOOP("Messages", "Number of coins is less than %d. Proceed?"),
    QT_TRANSLATE_NOOP("Messages", "Modify another channel ?"),
    QT_TRANSLATE_NOOP("Messages", "Calibrate another channel ?"),
    QT_TRANSLATE_NOOP("Messages", "Values directly saved into validator"),
    QT_TRANSLATE_NOOP("Messages", "The value matchs the channel %d. Load it ?"),
    QT_TRANSLATE_NOOP("Messages", "No matched data !"),
    QT_TRANSLATE_NOOP("Messages", "Door open, no data will be transfered ;"),
    QT_TRANSLATE_NOOP("Messages", "Prepare the golden tokens."),
    QT_TRANSLATE_NOOP("Messages", "Prepare the silver tokens."),
    QT_TRANSLATE_NOOP("Messages", "Insert the golden tokens. (5 pieces)"),
    QT_TRANSLATE_NOOP("Messages", "Insert the silver tokens. (5 pieces)"),
    QT_TRANSLATE_NOOP("Messages", "Reference Channel saved !"),
    QT_TRANSLATE_NOOP("Messages", "Programming Error !"),
    QT_TRANSLATE_NOOP("Messages", "Channel %d is empty! No data to control."),
    QT_TRANSLATE_NOOP("Messages", "No overlapping !"),
    QT_TRANSLATE_NOOP("Messages", "Table of values transferred in the validator!"),
    QT_TRANSLATE_NOOP("Messages", "All data transfered !"),
    QT_TRANSLATE_NOOP("Messages",
                      "This option will be activated to the next starting of the program"),
    QT_TRANSLATE_NOOP("Messages", "Upgrade over..."),
    QT_TRANSLATE_NOOP("Messages", "Operation cancelled by operator"),
    QT_TRANSLATE_NOOP("Messages", "Updating... Please Wait !"),
    QT_TRANSLATE_NOOP("Messages", "Don't Stop or disconnect !!!"),
    QT_TRANSLATE_NOOP("Messages", "Please connect the mini-programer."),
    QT_TRANSLATE_NOOP("Messages",
                      "Channel %d of the validator differs from the one of this configuration: "
                      "the windows may not suit this validator. Continue?"),
    QT_TRANSLATE_NOOP("Messages",
                      "The validator now holds a partly written configuration: nothing already "
                      "written was undone. Write it again before use."),
    QT_TRANSLATE_NOOP("Messages", "%s is missing"),
    QT_TRANSLATE_NOOP("Messages", "%s cannot be opened: %s"),
    QT_TRANSLATE_NOOP("Messages", "%s cannot be written: %s"),
    QT_TRANSLATE_NOOP("Messages", "%s is not a dBase table of level 3, 4, 5 or 7"),
    QT_TRANSLATE_NOOP("Messages",
                      "%s has a damaged header: its header length, record length and field widths "
                      "do not add up"),
    QT_TRANSLATE_NOOP("Messages", "%s has a damaged header: field %s is not valid"),
    QT_TRANSLATE_NOOP("Messages", "%s is truncated: it holds %s of its %s records"),
    QT_TRANSLATE_NOOP("Messages", "%s has no field %s"),
    QT_TRANSLATE_NOOP("Messages", "%s: field %s is of type %s where %s is expected"),
    QT_TRANSLATE_NOOP("Messages", "%s is open in another program (%s); it is opened read-only"),
    QT_TRANSLATE_NOOP("Messages", "%s cannot be changed: the file or its directory is read-only"),
    QT_TRANSLATE_NOOP("Messages",
                      "%s cannot be changed: its index tag %s (%s) is not one this program can "
                      "keep up to date"),
    QT_TRANSLATE_NOOP("Messages",
                      "%s cannot be changed: its language driver %s sorts keys in an order "
                      "this program cannot keep"),
    QT_TRANSLATE_NOOP("Messages", "The value %s does not fit field %s of %s"),
    QT_TRANSLATE_NOOP("Messages", "The index %s was not usable (%s) and has been rebuilt from %s"),
    QT_TRANSLATE_NOOP("Messages", "The index %s is not usable (%s) and cannot be rebuilt now"),
    QT_TRANSLATE_NOOP("Messages", "it is missing"),
    QT_TRANSLATE_NOOP("Messages", "its header is damaged"),
    QT_TRANSLATE_NOOP("Messages", "its pages are damaged"),
    QT_TRANSLATE_NOOP("Messages", "its keys are out of order"),
    QT_TRANSLATE_NOOP("Messages", "its entries do not match the records"),
    QT_TRANSLATE_NOOP("Messages", "tag %s is missing or does not match its field"),
    QT_TRANSLATE_NOOP("Messages", "its language driver differs from the table's"),
    QT_TRANSLATE_NOOP("Messages", "The data directory %s has been created with empty tables"),
    QT_TRANSLATE_NOOP("Messages", "Empty tables have been created in %s: %s"),
};

} // namespace

const char *messageSource(Msg id)
{
    return kTable.at(static_cast<std::size_t>(id));
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
