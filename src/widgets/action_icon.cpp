#include "widgets/action_icon.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace {

QPixmap drawn(QSvgRenderer &drawing, int size, const QColor &color)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter, QRectF(0, 0, size, size));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), color);
    return picture;
}

} // namespace

QIcon actionIcon(const QString &name, const QPalette &palette)
{
    const QString file = QString(":/icons/%1.svg").arg(name);
    if (!QFile::exists(file)) {
        return {};
    }
    QSvgRenderer drawing(file);
    QIcon icon;
    for (const int size : {16, 20, 32, 40}) { // menus and tool bars, on ordinary and on doubled screens
        icon.addPixmap(drawn(drawing, size, palette.color(QPalette::Active, QPalette::ButtonText)));
        icon.addPixmap(drawn(drawing, size, palette.color(QPalette::Disabled, QPalette::ButtonText)), QIcon::Disabled);
    }
    return icon;
}
