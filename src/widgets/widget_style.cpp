#include "widgets/widget_style.h"

#include "app/config.h"
#include "app/theme.h"

#include <QApplication>
#include <QFont>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

void applyWidgetStyle(const QString &name)
{
    static const QString first = QApplication::style()->name();
    const QStringList keys = QStyleFactory::keys();
    const auto known = [&keys](const QString &key) { return keys.contains(key, Qt::CaseInsensitive); };
    const QString standard = Config().displayStyle;
    const QString key = known(name) ? name : known(standard) ? standard : first;
    if (key.compare(QApplication::style()->name(), Qt::CaseInsensitive) == 0) {
        return; // changing it costs a new layout of everything
    }
    if (QStyle *style = QStyleFactory::create(key)) {
        QApplication::setStyle(style);
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
