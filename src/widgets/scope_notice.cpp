#include "widgets/scope_notice.h"

#include "widgets/resize_watch.h"

namespace {
constexpr int DistanceFromTop = 16;
}

ScopeNotice::ScopeNotice(QWidget *scope) : QLabel(scope)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    new ResizeWatch(scope, this, [this] { place(); });
    hide();
}

void ScopeNotice::showText(const QString &text)
{
    show(Urgency::Note, Qt::PlainText, text);
}

void ScopeNotice::showWarning(Urgency urgency, const QString &headline, const QString &text)
{
    const QString pattern = QStringLiteral("<div style='font-size: x-large; font-weight: bold'>%1</div><div>%2</div>");
    show(urgency, Qt::RichText, pattern.arg(headline.toHtmlEscaped(), text.toHtmlEscaped()));
}

void ScopeNotice::show(Urgency urgency, Qt::TextFormat format, const QString &text)
{
    const QString style = urgencyStyle(urgency) + QStringLiteral("; padding: 8px 14px; border-radius: 4px");
    if (styleSheet() != style) { // setting one costs a new layout
        setStyleSheet(style);
    }
    setTextFormat(format);
    setText(text);
    setVisible(!text.isEmpty());
    place();
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
