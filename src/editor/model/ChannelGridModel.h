#pragma once

#include "EditorState.h"

// The six channel pages: per channel a row panel, its number label and 17 controls (14 window
// boxes in screen order, the enable box, the value box and the substitute box).
class ChannelGridModel final
{
public:
    explicit ChannelGridModel(EditorState &state) : m_s(state) {}

    struct Column
    {
        const char *prefix; // the control name without the channel index
        int recordByte;     // the byte of the channel record it edits (-1: value, enable)
    };
    static constexpr int kColumns = 17;
    static const Column kColumnTable[kColumns];
    static constexpr int kPages = 6;

    void addControls();
    void retranslate();

    // The Light model shows three pages and 25 channels; channel 25 is read and written but
    // not edited.
    void showModel(bool light);
    // A page appears as its channels are read.
    void showPage(int page);

    // Display: every channel's boxes from the image.
    void display();
    // The form into the image: every window and substitute box, value and enable of all 60
    // channels, then the enable bitmap rebuilt. Returns the names of boxes whose text was not a
    // number. The value boxes are read with the bases they were shown with.
    // Value boxes whose amount the base cannot hold: above its maximum (held there) and
    // negative (refused: the texts, and the value stays as stored).
    struct AmountTrouble
    {
        bool overMaximum = false;
        QStringList negative;
    };
    QStringList store(const DecimalWord &base1, const DecimalWord &base2, AmountTrouble *trouble);

    // True for the boxes that the general exit handler stores.
    static bool isChannelBox(const QString &name);
    static bool isEnableBox(const QString &name);
    // The channel index of a per-channel control with the given prefix ("Value", "Sub"), or -1.
    static int channelIndex(const QString &name, const char *prefix);
    // The channel of any of the 17 boxes of a channel's row, or -1.
    static int channelOfBox(const QString &name);

private:
    EditorState &m_s;
    bool m_light = false;
};
