#include "ui/scope_notice.h"

#include <QEvent>

namespace {
constexpr int DistanceFromTop = 16;
}

ScopeNotice::ScopeNotice(QWidget *scope) : QLabel(scope)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setStyleSheet("color: white; background-color: rgba(32, 36, 40, 220); padding: 8px 14px; border-radius: 4px");
    scope->installEventFilter(this);
    hide();
}

void ScopeNotice::showText(const QString &text)
{
    setText(text);
    setVisible(!text.isEmpty());
    place();
}

bool ScopeNotice::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        place();
    }
    return QLabel::eventFilter(watched, event);
}

void ScopeNotice::place()
{
    // On a scope narrower than the text, the text breaks into lines.
    setWordWrap(false);
    const int room = parentWidget()->width() - 2 * DistanceFromTop;
    QSize size = sizeHint();
    if (size.width() > room) {
        setWordWrap(true);
        size = QSize(room, heightForWidth(room));
    }
    setGeometry((parentWidget()->width() - size.width()) / 2, DistanceFromTop, size.width(), size.height());
}
