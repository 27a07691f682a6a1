#include "layout_faults.h"

#include "plan_view/geo_widget.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QImage>
#include <QRadioButton>
#include <QScrollArea>
#include <QTest>
#include <QTextBrowser>

#include <cstdlib>

// Where the keyboard is, and where it goes.

namespace {

constexpr int MostSteps = 400;

QString describe(const QWidget *widget)
{
    QString text = widget->property("text").toString();
    return QStringLiteral("%1 %2 \"%3\"")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(),
            text.isEmpty() ? widget->accessibleName() : text);
}

QRect placeOf(const QWidget *widget, const QWidget *window)
{
    return {widget->mapTo(window, QPoint()), widget->size()};
}

// All that the key comes to, from where the focus is until it comes back.
QWidgetList journey(QWidget *window)
{
    QWidgetList stops;
    const QWidget *before = nullptr;
    for (int i = 0; i < MostSteps; ++i) {
        QWidget *focus = QApplication::focusWidget();
        if (!focus || focus->window() != window || (before && focus != before && focus == stops.first())) {
            break;
        }
        if (!stops.contains(focus)) {
            stops.append(focus);
        } else if (stops.last() == focus && !qobject_cast<QTextBrowser *>(focus)) {
            break; // it does not go on; from link to link is going on
        }
        before = focus;
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    return stops;
}

bool takesTab(const QWidget *widget, const QWidget *window)
{
    return widget->isVisible() && widget->isEnabled() && widget->window() == window && !widget->focusProxy()
        && (widget->focusPolicy() & Qt::TabFocus) && !widget->visibleRegion().isEmpty();
}

// Of buttons of which one is chosen, the arrow keys lead to the others.
bool isUnchosen(const QWidget *widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button && button->autoExclusive() && !button->isChecked();
}

// Text is read line by line, unless the next thing begins another column or the buttons at the foot.
bool goesBack(const QRect &from, const QRect &to)
{
    const bool sameLine = from.top() < to.center().y() && to.top() < from.center().y();
    if (sameLine) {
        return to.right() < from.left();
    }
    return to.bottom() < from.top() && to.left() <= from.right();
}

} // namespace

QStringList LayoutFaults::tabOrder(QWidget *window)
{
    QStringList faults;
    if (!QApplication::focusWidget() || QApplication::focusWidget()->window() != window) {
        QTest::keyClick(window, Qt::Key_Tab);
    }
    const QWidgetList stops = journey(window);
    const QWidgetList all = window->findChildren<QWidget *>();
    for (const QWidget *widget : all) {
        if (takesTab(widget, window) && !stops.contains(widget) && !isUnchosen(widget)) {
            faults += describe(widget) + QStringLiteral(" is not reached by Tab");
        }
    }
    // Once round it comes back from the last to the first.
    QStringList back;
    for (qsizetype i = 0; i < stops.size(); ++i) {
        const QWidget *next = stops[(i + 1) % stops.size()];
        if (goesBack(placeOf(stops[i], window), placeOf(next, window))) {
            back += QStringLiteral("Tab goes back from %1 to %2").arg(describe(stops[i]), describe(next));
        }
    }
    if (back.size() > 1) {
        faults += back;
    }
    return faults;
}

namespace {

// With what stands around it, where some styles draw the frame.
QImage look(QWidget *window, QWidget *widget)
{
    for (QWidget *holder = widget->parentWidget(); holder && holder != window; holder = holder->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(holder)) {
            area->ensureWidgetVisible(widget);
        }
    }
    return window->grab(placeOf(widget, window).adjusted(-2, -2, 2, 2)).toImage().convertToFormat(QImage::Format_RGB32);
}

int differentPixels(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 0; y < std::min(one.height(), other.height()); ++y) {
        for (int x = 0; x < std::min(one.width(), other.width()); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const int difference =
                std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b));
            count += difference > 60 ? 1 : 0;
        }
    }
    return count;
}

} // namespace

QStringList LayoutFaults::unseenFocus(QWidget *window)
{
    QStringList faults;
    if (!QApplication::focusWidget() || QApplication::focusWidget()->window() != window) {
        QTest::keyClick(window, Qt::Key_Tab);
    }
    const QWidgetList stops = journey(window);
    for (QWidget *widget : stops) {
        if (qobject_cast<GeoWidget *>(widget) || !(widget->focusPolicy() & Qt::TabFocus)) {
            continue; // the whole window is it; or a page whose fields are all locked
        }
        widget->setFocus(Qt::TabFocusReason);
        const QImage with = look(window, widget);
        widget->clearFocus();
        const QImage without = look(window, widget);
        const int seen = differentPixels(with, without);
        if (seen < 20) {
            faults += QStringLiteral("%1 shows the focus with %2 pixels").arg(describe(widget)).arg(seen);
        }
    }
    return faults;
}
