#include "view/steady_clock.h"

#include <QElapsedTimer>

std::function<qint64()> steadyClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}
