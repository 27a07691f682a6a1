#include "widgets/figure_font.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace {

QFont figureFace()
{
    const QString preferred = "Cascadia Code";
    return QFontDatabase::hasFamily(preferred) ? QFont(preferred) : QFontDatabase::systemFont(QFontDatabase::FixedFont);
}

} // namespace

QFont figureFont()
{
    static QFont font = figureFace();
    const qreal size = QGuiApplication::font().pointSizeF();
    if (size > 0.0 && font.pointSizeF() != size) {
        font.setPointSizeF(size);
    }
    return font;
}
