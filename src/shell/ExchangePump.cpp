#include "ExchangePump.h"

#include <QCoreApplication>

void ExchangePump::run()
{
    if (m_sinceLast.isValid() && m_sinceLast.elapsed() < kIntervalMs)
        return;
    // Input from the window system (keys, clicks, the close button) stays queued.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sinceLast.start();
}
