#pragma once

#include "EditorState.h"

class EditorServices;
class TMonnayeur;

// "Test value (via serial)" and what the editor's timer reads from the port between
// exchanges: while the test runs, one byte per accepted coin, its channel number; otherwise a
// byte 11 on its own is the mini-programmer asking for a firmware file.
class SerialTestModel final
{
public:
    explicit SerialTestModel(EditorState &state) : m_s(state) {}

    void addControls();
    void retranslate();
    void showGate(bool open);
    void setLink(TMonnayeur *link);

    // The start and stop button.
    void BtnTestClick();
    // Stops the test, as closing the editor does (command 29).
    void stop();
    bool running() const { return m_running; }

    // One tick of the editor's timer.
    void tick(EditorServices *services);

    // The mini-programmer's request code, and the answer that accepts it.
    static constexpr quint8 kFirmwareRequest = 11;
    static constexpr quint8 kFirmwareRequestAnswer = 0;

private:
    void showRunning();
    void showCoin(int channelNumber);

    EditorState &m_s;
    TMonnayeur *m_link = nullptr;
    bool m_running = false;
};
