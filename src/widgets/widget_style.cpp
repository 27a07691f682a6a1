#include "widgets/widget_style.h"

#include "app/config.h"
#include "app/theme.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFont>
#include <QPainter>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// Some styles show the keyboard's place by a shade that is lost in dark colours, and not at all on what scrolls.
class FocusStyle final : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    using QProxyStyle::polish;
    void polish(QWidget *widget) override
    {
        QProxyStyle::polish(widget);
        if (auto *buttons = qobject_cast<QDialogButtonBox *>(widget)) {
            // Otherwise the Tab key comes from the box to its first button wherever the box stands in the order, and
            // may never get to those behind it.
            buttons->setFocusProxy(nullptr);
            buttons->setFocusPolicy(Qt::NoFocus);
        }
    }

    void drawPrimitive(
        PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const override
    {
        if (element != PE_FrameFocusRect || !option) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        } else if (comesByKeys(*option, widget)) {
            const auto *focus = qstyleoption_cast<const QStyleOptionFocusRect *>(option);
            const QPalette &palette = option->palette;
            const bool selected = focus && focus->backgroundColor == palette.color(QPalette::Highlight);
            drawFrame(painter, option->rect, palette.color(selected ? QPalette::HighlightedText : QPalette::Link));
        }
    }

    void drawControl(
        ControlElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const override
    {
        QProxyStyle::drawControl(element, option, painter, widget);
        if (!option || !(option->state & State_HasFocus) || !comesByKeys(*option, widget)) {
            return;
        }
        const QColor color = option->palette.color(QPalette::Link);
        if (element == CE_ShapedFrame && qobject_cast<const QAbstractScrollArea *>(widget)) {
            drawFrame(painter, option->rect, color);
        } else if (element == CE_PushButton || element == CE_TabBarTab) {
            // A default button looks as if it had it.
            drawFrame(painter, option->rect.adjusted(FocusInset, FocusInset, -FocusInset, -FocusInset), color);
        }
    }

    // In dark colours a light edge makes what is greyed out look doubled.
    int styleHint(
        StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *returnData) const override
    {
        return hint == SH_EtchDisabledText ? 0 : QProxyStyle::styleHint(hint, option, widget, returnData);
    }

private:
    static constexpr int FocusInset = 3; // pixels

    // Views of items claim it for their items after a click too.
    static bool comesByKeys(const QStyleOption &option, const QWidget *widget)
    {
        return (option.state & State_KeyboardFocusChange)
            && (!widget || widget->window()->testAttribute(Qt::WA_KeyboardFocusChange));
    }
    static void drawFrame(QPainter *painter, const QRect &rect, const QColor &color)
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->setPen(color);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }
};

} // namespace

QString widgetStyleName()
{
    const QStyle *style = QApplication::style();
    const auto *proxy = qobject_cast<const QProxyStyle *>(style);
    return proxy ? proxy->baseStyle()->name() : style->name();
}

void applyWidgetStyle(const QString &name)
{
    static const QString first = widgetStyleName();
    const QStringList keys = QStyleFactory::keys();
    const auto known = [&keys](const QString &key) { return keys.contains(key, Qt::CaseInsensitive); };
    const QString standard = Config().displayStyle;
    const QString key = known(name) ? name : known(standard) ? standard : first;
    const bool ours = qobject_cast<const QProxyStyle *>(QApplication::style()) != nullptr;
    if (ours && key.compare(widgetStyleName(), Qt::CaseInsensitive) == 0) {
        return; // changing it costs a new layout of everything
    }
    if (QStyle *style = QStyleFactory::create(key)) {
        QApplication::setStyle(new FocusStyle(style));
    }
}

namespace {

// Those that have a size of their own do not follow the application's font.
std::vector<std::pair<QWidget *, QFont>> ownSizes()
{
    std::vector<std::pair<QWidget *, QFont>> own;
    for (QWidget *widget : QApplication::allWidgets()) {
        const QFont font = widget->font();
        if (widget->testAttribute(Qt::WA_SetFont) && (font.resolveMask() & QFont::SizeResolved)
            && font.pointSizeF() > 0.0) {
            own.emplace_back(widget, font);
        }
    }
    return own;
}

} // namespace

void applyFontScale(int percent)
{
    static const QFont first = QApplication::font();
    const double factor = std::clamp(percent, 100, 200) / 100.0;
    QFont font = first;
    if (first.pointSizeF() > 0.0) {
        font.setPointSizeF(first.pointSizeF() * factor);
    } else {
        font.setPixelSize(qRound(first.pixelSize() * factor));
    }
    if (font == QApplication::font()) {
        return; // changing it costs a new layout of everything
    }
    const double change = font.pointSizeF() / QApplication::font().pointSizeF();
    auto own = ownSizes();
    QApplication::setFont(font);
    for (auto &[widget, ownFont] : own) {
        if (change > 0.0) {
            ownFont.setPointSizeF(ownFont.pointSizeF() * change);
            widget->setFont(ownFont);
        }
    }
}

void applyWindowColors(const Theme &theme)
{
    QApplication::setPalette(theme.palette().value_or(QPalette()));
}
