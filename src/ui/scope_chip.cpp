#include "ui/scope_chip.h"

#include <QEvent>

#include <algorithm>

namespace {
constexpr int DistanceFromFoot = 10; // pixels
}

ScopeChip::ScopeChip(QWidget *scope) : QLabel(scope)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setStyleSheet("color: white; background-color: rgba(32, 36, 40, 190); padding: 3px 9px; border-radius: 9px");
    scope->installEventFilter(this);
    hide();
}

void ScopeChip::showText(const QString &text)
{
    if (text == this->text()) {
        return;
    }
    setText(text);
    setVisible(!text.isEmpty());
    place();
}

bool ScopeChip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        place();
    }
    return QLabel::eventFilter(watched, event);
}

void ScopeChip::place()
{
    const QSize scope = parentWidget()->size();
    const int width = std::min(sizeHint().width(), scope.width());
    setGeometry((scope.width() - width) / 2, scope.height() - DistanceFromFoot - sizeHint().height(), width,
        sizeHint().height());
}
