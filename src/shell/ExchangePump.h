#pragma once

#include <QElapsedTimer>
#include <QObject>

// When exchanges keep the event loop from running (a long read or write over a slow line),
// lets the windows repaint, move and answer the desktop between two exchanges, so that the
// gauge moves and no "not responding" question comes up. The user's clicks, keys and close
// requests wait until the operation has ended, as they always have: the exchanges stay
// blocking for the user. A short exchange between two turns of the event loop (a coin poll)
// serves nothing.
class ExchangePump final : public QObject
{
    Q_OBJECT
public:
    ExchangePump();

    // Serves the pending window events once the event loop has been kept from running for
    // kStarvedMs, then at most once per kIntervalMs.
    void run();

    static constexpr int kStarvedMs = 200;
    static constexpr int kIntervalMs = 15;

private:
    // The last time the event loop had nothing to do.
    QElapsedTimer m_sinceIdle;
    QElapsedTimer m_sinceLast;
};
