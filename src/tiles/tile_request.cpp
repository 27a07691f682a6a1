#include "tiles/tile_request.h"

#include <QCoreApplication>

namespace {

QString subdomain(const TileIndex &index, const QStringList &servers)
{
    return servers.isEmpty() ? QString() : servers.at((index.x + index.y) % servers.size());
}

QString placeholderValue(const QString &name, const TileIndex &index, const QStringList &servers)
{
    if (name == QLatin1String("z")) {
        return QString::number(index.level);
    }
    if (name == QLatin1String("x")) {
        return QString::number(index.x);
    }
    if (name == QLatin1String("y")) {
        return QString::number(index.y);
    }
    if (name == QLatin1String("-y")) {
        return QString::number((1 << index.level) - 1 - index.y);
    }
    if (name == QLatin1String("quadkey")) {
        return index.toQuadKey();
    }
    return name == QLatin1String("s") ? subdomain(index, servers) : QString();
}

// What stands in braces is replaced, an unknown name by nothing.
QString filledIn(const QString &pattern, const TileIndex &index, const QStringList &servers)
{
    QString text;
    qsizetype from = 0;
    while (true) {
        const qsizetype open = pattern.indexOf(u'{', from);
        const qsizetype close = open < 0 ? -1 : pattern.indexOf(u'}', open);
        if (close < 0) {
            return text + pattern.mid(from);
        }
        text += QStringView(pattern).mid(from, open - from);
        text += placeholderValue(pattern.mid(open + 1, close - open - 1), index, servers);
        from = close + 1;
    }
}

bool isWebAddress(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty()
        && (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
}

} // namespace

QUrl TileRequest::url(const TileIndex &index) const
{
    if (!index.onMap() || server.isEmpty()) {
        return {};
    }
    const QUrl url(filledIn(server + target, index, servers), QUrl::TolerantMode);
    return isWebAddress(url) ? url : QUrl();
}

QString TileRequest::filePath(const TileIndex &index) const
{
    return index.onMap() ? filledIn(file, index, {}) : QString();
}

QString tilePathPart(const QString &text)
{
    QString part = text;
    for (QChar &character : part) {
        const ushort code = character.unicode();
        const bool plain = code < 128 && (character.isLetterOrNumber() || code == '-' || code == '@');
        character = plain ? character : QChar(u'_');
    }
    return part.isEmpty() ? QStringLiteral("_") : part.left(64);
}

void useTileServer(TileRequest &request, const QString &address)
{
    const QString trimmed = address.trimmed();
    if (trimmed.isEmpty()) {
        return;
    }
    request.server = trimmed.endsWith(u'/') ? trimmed.chopped(1) : trimmed;
    const QUrl url(filledIn(request.server, {0, 0, 1}, request.servers));
    if (!isWebAddress(url) || url.hasQuery() || url.hasFragment()) {
        request.problem = QCoreApplication::translate("TileRequest", "The address of the tile server is not valid.");
    }
}
