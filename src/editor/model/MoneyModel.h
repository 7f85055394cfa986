#pragma once

#include "EditorState.h"

// The money side: six price slots, the two credit bases, the conversion ratio, the channel
// values and substitutes, and the code table of the validator output.
class MoneyModel final
{
public:
    explicit MoneyModel(EditorState &state) : m_s(state) {}

    void addControls();
    void retranslate();
    void showModel(bool light);
    void display();
    // The bases and the ratio into the value block (the general exit handler's step); returns
    // the names of boxes whose text was not a number (those keep their old value).
    QStringList store();

    // How a price slot's byte is shown under an output type.
    enum class SlotForm
    {
        Price, // a channel value against base 1
        Plain, // a number 0 to 254
        Tenths // a tenth of what is shown
    };
    static SlotForm slotForm(int slot, int outputType, bool externalReset);
    static const char *const kPriceBoxes[6];
    // The price slot of a price box, or -1.
    static int priceSlot(const QString &name);
    // The code box (0 to 2) of Edit1 to Edit3, or -1; the box and bit of a code image.
    static int codeBox(const QString &name);
    static bool codeImage(const QString &name, int *box, int *bit, bool *on);

    // The exit handlers; each acts only when EditChanged is set. True when the general exit
    // handler is to run after it.
    void priceExit(int slot);
    void codeExit(int box);
    void codeImageClick(const QString &name);
    void ChkCodeClick();
    void EBase1Exit();
    bool Ebase2Exit();
    void Value0Exit(int k);
    bool Sub0Exit(int k);
    bool subAccepted() const { return m_subAccepted; }
    // The box that wants the focus back after a refusal; taken once.
    QString takeFocusRequest() { return std::exchange(m_focusRequest, {}); }

    // The output type's default prices (item 5 is item 2); the "Code" box as the type wants.
    void loadTypeDefaults(int type);
    // A new image: whether the code group shows is taken from it, and every price box is
    // enabled again.
    void takeFromImage();
    // Under type 4 "External reset" changes slot 3 between tenths of a 10 ms step and seconds.
    void rescaleResetWidth(bool seconds);
    // The multi-pulse rule between channel k and its substitute s (1-based): true when the
    // value of k is one to five times that of s; a substitute worth nothing fails.
    bool multiPulseAllows(quint8 value, int substitute) const;
    bool multiPulseActive() const;

private:
    // Leaving price 1 or 4 under types 2, 4, 6 and 7 enables or disables the prices it opens.
    void chainEnabling(int slot);
    void enableAllPrices();
    void showCode(int box);

    EditorState &m_s;
    bool m_light = false;
    bool m_codeShown = false;
    bool m_subAccepted = true;
    QString m_focusRequest;
};
