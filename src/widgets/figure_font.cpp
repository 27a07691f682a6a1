#include "widgets/figure_font.h"

#include <QFontDatabase>
#include <QGuiApplication>

QFont figureFont()
{
    const QString preferred = "Cascadia Code";
    QFont font =
        QFontDatabase::hasFamily(preferred) ? QFont(preferred) : QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(QGuiApplication::font().pointSizeF());
    return font;
}
