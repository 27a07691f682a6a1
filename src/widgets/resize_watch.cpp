#include "widgets/resize_watch.h"

#include <QEvent>
#include <QWidget>

#include <utility>

ResizeWatch::ResizeWatch(QWidget *watched, QObject *owner, std::function<void()> resized)
    : QObject(owner), m_resized(std::move(resized))
{
    watched->installEventFilter(this);
}

bool ResizeWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        m_resized();
    }
    return QObject::eventFilter(watched, event);
}
