#include "widgets/widget_style.h"

#include "app/config.h"

#include <QApplication>
#include <QStyleFactory>

void applyWidgetStyle(const QString &name)
{
    const QString key = QStyleFactory::keys().contains(name) ? name : Config().displayStyle;
    if (QStyle *style = QStyleFactory::create(key)) {
        QApplication::setStyle(style);
    }
}
