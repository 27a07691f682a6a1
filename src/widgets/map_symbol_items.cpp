#include "widgets/map_symbol_items.h"

#include "map_painting/static_map_symbols.h"

#include <QComboBox>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr int SymbolSize = 20; // pixels

QIcon symbolIcon(const QString &type, const QWidget &widget)
{
    const qreal ratio = widget.devicePixelRatioF();
    QPixmap picture(QSize(SymbolSize, SymbolSize) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawStaticMapSymbol(painter, type, SymbolSize, widget.palette().color(QPalette::Text));
    return QIcon(picture);
}

} // namespace

void addMapSymbolItems(QComboBox *box)
{
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setIconSize(QSize(SymbolSize, SymbolSize));
    for (const QString &type : staticMapSymbolTypes()) {
        box->addItem(symbolIcon(type, *box), type);
    }
}
