#include "widgets/widget_style.h"

#include "app/config.h"
#include "app/theme.h"

#include <QApplication>
#include <QFont>
#include <QStyle>
#include <QStyleFactory>

#include <algorithm>

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
    if (font != QApplication::font()) { // costs a new layout of everything
        QApplication::setFont(font);
    }
}

void applyWindowColors(const Theme &theme)
{
    QApplication::setPalette(theme.palette().value_or(QPalette()));
}
