#include "widgets/arrow_keys.h"

#include <QKeyEvent>
#include <QWidget>

ArrowKeys::ArrowKeys(QWidget *widget) : QObject(widget)
{
    widget->installEventFilter(this);
}

// Claiming the key makes it come as a key press instead of setting off the window's shortcut.
bool ArrowKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride) {
        return QObject::eventFilter(watched, event);
    }
    const auto *key = static_cast<const QKeyEvent *>(event);
    const bool plain = !(key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (plain && key->key() >= Qt::Key_Left && key->key() <= Qt::Key_Down) {
        event->accept();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
