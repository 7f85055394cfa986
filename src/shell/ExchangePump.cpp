#include "ExchangePump.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

ExchangePump::ExchangePump()
{
    m_sinceIdle.start();
    if (QAbstractEventDispatcher *loop = QAbstractEventDispatcher::instance())
        connect(loop, &QAbstractEventDispatcher::aboutToBlock, this,
                [this] { m_sinceIdle.start(); });
}

void ExchangePump::run()
{
    if (m_sinceIdle.elapsed() < kStarvedMs)
        return;
    if (m_sinceLast.isValid() && m_sinceLast.elapsed() < kIntervalMs)
        return;
    // Input from the window system (keys, clicks, the close button) stays queued.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_sinceLast.start();
}
