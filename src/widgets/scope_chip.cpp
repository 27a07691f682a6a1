#include "widgets/scope_chip.h"

#include "widgets/resize_watch.h"

#include <algorithm>

namespace {
constexpr int DistanceFromFoot = 10; // pixels
constexpr int DistanceBetween = 4;
} // namespace

ScopeChip::ScopeChip(QWidget *scope, int row) : QLabel(scope), m_row(row)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setStyleSheet("color: white; background-color: rgba(32, 36, 40, 190); padding: 3px 9px; border-radius: 9px");
    new ResizeWatch(scope, this, [this] { place(); });
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

void ScopeChip::place()
{
    const QSize scope = parentWidget()->size();
    const int width = std::min(sizeHint().width(), scope.width());
    const int height = sizeHint().height();
    const int y = scope.height() - DistanceFromFoot - height - m_row * (height + DistanceBetween);
    setGeometry((scope.width() - width) / 2, y, width, height);
}
