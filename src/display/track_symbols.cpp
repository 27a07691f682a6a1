#include "display/track_symbols.h"

#include <QPainter>

#include <cmath>

// A static library's resources are linked in only when something asks for them by name; the macro behind that must
// stand outside any namespace.
static void loadSymbolResources()
{
    Q_INIT_RESOURCE(symbols);
}

TrackSymbols::TrackSymbols(int size, const QColor &color) : m_size(size), m_color(color)
{
    static constexpr const char *Names[Count] = {
        "unknown", "psr", "ssr", "psr-ssr", "modes", "psr-modes", "adsb", "mlat", "smr", "aircraft", "vehicle"};
    loadSymbolResources();
    m_symbols.reserve(Count);
    for (const char *name : Names) {
        const QString path = QStringLiteral(":/resource/local/symbol-%1.svg").arg(QLatin1String(name));
        m_symbols.emplace_back(path, QSize(size, size), color);
    }
}

TrackSymbols::Symbol TrackSymbols::forTrackType(Track::Type type)
{
    static constexpr Symbol Symbols[] = {Unknown, Psr, Ssr, PsrSsr, ModeS, PsrModeS, Adsb, Mlat, Smr, Unknown, Unknown};
    return Symbols[type];
}

void TrackSymbols::setSize(int size)
{
    if (size == m_size) {
        return;
    }
    m_size = size;
    for (SvgSymbol &symbol : m_symbols) {
        symbol.setLogicalSize(QSize(size, size));
    }
    m_turnedAircraft.clear();
}

void TrackSymbols::setColor(const QColor &color)
{
    if (color == m_color) {
        return;
    }
    m_color = color;
    for (SvgSymbol &symbol : m_symbols) {
        symbol.setColor(color);
    }
    m_turnedAircraft.clear();
}

const QPixmap &TrackSymbols::pixmap(Symbol symbol, double devicePixelRatio)
{
    return m_symbols[symbol].pixmap(devicePixelRatio);
}

const QPixmap &TrackSymbols::aircraft(double degrees, double devicePixelRatio)
{
    if (devicePixelRatio != m_turnedRatio) {
        m_turnedAircraft.clear();
    }
    m_turnedRatio = devicePixelRatio;
    const int turn = ((qRound(degrees) % 360) + 360) % 360;
    QPixmap &turned = m_turnedAircraft[turn];
    if (!turned.isNull()) {
        return turned;
    }
    const QPixmap &upright = pixmap(Aircraft, devicePixelRatio);
    turned = QPixmap(upright.size());
    turned.setDevicePixelRatio(devicePixelRatio);
    turned.fill(Qt::transparent);
    QPainter painter(&turned);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPointF middle = QPointF(upright.width(), upright.height()) / (2.0 * devicePixelRatio);
    painter.translate(middle);
    painter.rotate(turn);
    painter.drawPixmap(-middle, upright);
    return turned;
}
