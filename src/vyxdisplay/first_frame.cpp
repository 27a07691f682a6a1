#include "vyxdisplay/first_frame.h"

#include <QEvent>
#include <QWidget>

FirstFrame::FirstFrame(QWidget *widget, const QElapsedTimer &clock, QObject *parent) : QObject(parent), m_clock(clock)
{
    widget->installEventFilter(this);
}

bool FirstFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        // This event is yet to be painted; the next turn of the event loop comes after it.
        QMetaObject::invokeMethod(
            this, [this] { Q_EMIT painted(m_clock.elapsed()); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}
