#pragma once

#include <QElapsedTimer>

// Between two exchanges of a long read or write, lets the windows repaint, move and answer the
// desktop, so that the gauge moves and no "not responding" question comes up. The user's
// clicks, keys and close requests wait until the operation has ended, as they always have: the
// exchanges stay blocking for the user.
class ExchangePump final
{
public:
    // Serves the pending window events, at most once per kIntervalMs.
    void run();

    static constexpr int kIntervalMs = 15;

private:
    QElapsedTimer m_sinceLast;
};
