#pragma once

#include "ControlSet.h"

#include <functional>

struct EditorState;

// The channel copy dialog TFormTransfert ("Copy"): copies one channel's programming onto
// another inside the image, and can clear the source afterwards, so that a coin moves to
// another channel. Nothing is sent to the validator here.
class ChannelCopyModel final
{
public:
    // refill shows the image again in the editor.
    ChannelCopyModel(EditorState &editor, std::function<void()> refill);

    // A fresh dialog: both boxes unchecked, the channel limits from the model of the image.
    void open();
    // 1 to 24 on the Light model, 1 to 59 otherwise: channel 60 is never copied.
    int maximum() const { return m_maximum; }

    const ControlSet &controls() const { return m_controls; }
    void setSource(int channel);
    void setDestination(int channel);
    void setClear(bool on);
    void setValuesOnly(bool on);

    // "&Transfert" with the dialog's channels and boxes.
    void BitBtn2Click();
    // The copy itself, channels from 1. False when source and destination coincide.
    bool Transfert(int source, int destination, bool clear, bool valuesOnly);

    void retranslate();

private:
    int spinValue(const QString &name) const;

    EditorState &m_editor;
    std::function<void()> m_refill;
    ControlSet m_controls;
    int m_maximum = 59;
};
