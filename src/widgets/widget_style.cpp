#include "widgets/widget_style.h"

#include "app/config.h"
#include "app/theme.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

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

void applyWindowColors(const Theme &theme)
{
    QApplication::setPalette(theme.palette().value_or(QPalette()));
}
