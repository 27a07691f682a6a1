#include "tiles/tile_index.h"

bool TileIndex::onMap() const
{
    return valid() && x >= 0 && y >= 0 && x < 1 << level && y < 1 << level;
}

QString TileIndex::toString() const
{
    return QStringLiteral("(%1, %2, %3)").arg(x).arg(y).arg(level);
}

QString TileIndex::toQuadKey() const
{
    return tileIndexToQuadKey(*this);
}

QString tileIndexToQuadKey(const TileIndex &index)
{
    QString key;
    if (!index.onMap()) {
        return key;
    }
    for (int bit = index.level - 1; bit >= 0; --bit) {
        const int digit = (index.x >> bit & 1) + 2 * (index.y >> bit & 1);
        key += QChar(u'0' + digit);
    }
    return key;
}

TileIndex quadKeyToTileIndex(const QString &quadKey)
{
    if (quadKey.isEmpty() || quadKey.size() > TileIndex::MaxLevel) {
        return {};
    }
    TileIndex index{0, 0, static_cast<quint8>(quadKey.size())};
    for (const QChar character : quadKey) {
        const int digit = character.unicode() - u'0';
        if (digit < 0 || digit > 3) {
            return {};
        }
        index.x = index.x << 1 | (digit & 1);
        index.y = index.y << 1 | digit >> 1;
    }
    return index;
}
