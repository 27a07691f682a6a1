#include "display/track_symbols.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>

// A static library's resources are linked in only when something asks for them by name; the macro behind that must
// stand outside any namespace.
static void loadSymbolResources()
{
    Q_INIT_RESOURCE(symbols);
}

namespace {

constexpr double LeastLineWidth = 1.7; // pixels; thinner lines break up in a small symbol
constexpr double LineWidthOfSize = 1.0 / 12.0;
constexpr double CasingWidth = 1.5; // pixels on each side of a line

} // namespace

TrackSymbols::TrackSymbols(int size, const QColor &casing) : m_size(size), m_casing(casing)
{
    static constexpr const char *Names[Count] = {"unknown", "psr", "ssr", "psr-ssr", "modes", "psr-modes", "adsb",
        "mlat", "smr", "aircraft", "vehicle", "coasting"};
    loadSymbolResources();
    m_symbols.reserve(Count);
    for (const char *name : Names) {
        const QString path = QStringLiteral(":/resource/local/symbol-%1.svg").arg(QLatin1String(name));
        m_symbols.emplace_back(path, QSize(size, size), Qt::black);
        m_symbols.back().setMargin(Margin);
        m_symbols.back().setLineWidth(std::max(LeastLineWidth, size * LineWidthOfSize));
    }
}

TrackSymbols::Symbol TrackSymbols::forTrackType(Track::Type type)
{
    static constexpr Symbol Symbols[] = {Unknown, Psr, Ssr, PsrSsr, ModeS, PsrModeS, Adsb, Mlat, Smr, Unknown, Unknown};
    return Symbols[type];
}

QString TrackSymbols::meaning(Symbol symbol)
{
    static constexpr const char *Meanings[Count] = {QT_TRANSLATE_NOOP("TrackSymbols", "Other"),
        QT_TRANSLATE_NOOP("TrackSymbols", "PSR"), QT_TRANSLATE_NOOP("TrackSymbols", "SSR"),
        QT_TRANSLATE_NOOP("TrackSymbols", "PSR + SSR"), QT_TRANSLATE_NOOP("TrackSymbols", "Mode S"),
        QT_TRANSLATE_NOOP("TrackSymbols", "PSR + Mode S"), QT_TRANSLATE_NOOP("TrackSymbols", "ADS-B"),
        QT_TRANSLATE_NOOP("TrackSymbols", "MLAT"), QT_TRANSLATE_NOOP("TrackSymbols", "SMR"),
        QT_TRANSLATE_NOOP("TrackSymbols", "Aircraft"), QT_TRANSLATE_NOOP("TrackSymbols", "Vehicle"),
        QT_TRANSLATE_NOOP("TrackSymbols", "Coasting")};
    return QCoreApplication::translate("TrackSymbols", Meanings[symbol]);
}

void TrackSymbols::setSize(int size)
{
    if (size != m_size) {
        *this = TrackSymbols(size, m_casing);
    }
}

void TrackSymbols::setCasing(const QColor &color)
{
    if (color != m_casing) {
        m_casing = color;
        m_pixmaps.clear();
    }
}

const QPixmap &TrackSymbols::pixmap(Symbol symbol, const QColor &color, double devicePixelRatio)
{
    return kept(symbol, 0, color, devicePixelRatio);
}

const QPixmap &TrackSymbols::aircraft(double degrees, const QColor &color, double devicePixelRatio)
{
    return kept(Aircraft, ((qRound(degrees) % 360) + 360) % 360, color, devicePixelRatio);
}

QPixmap &TrackSymbols::kept(int symbol, int turn, const QColor &color, double devicePixelRatio)
{
    if (devicePixelRatio != m_ratio) {
        m_pixmaps.clear();
        m_ratio = devicePixelRatio;
    }
    QPixmap &pixmap = m_pixmaps[static_cast<quint64>(color.rgba()) << 32 | static_cast<quint64>(symbol) << 16
        | static_cast<quint64>(turn)];
    if (pixmap.isNull()) {
        pixmap = render(symbol, turn, color);
    }
    return pixmap;
}

QPixmap TrackSymbols::render(int symbol, int turn, const QColor &color) const
{
    SvgSymbol drawing = m_symbols[static_cast<std::size_t>(symbol)];
    drawing.setColor(color);
    const QPixmap upright = drawing.render(m_ratio);
    return cased(turn == 0 ? upright : turned(upright, turn));
}

QPixmap TrackSymbols::turned(const QPixmap &upright, int turn) const
{
    QPixmap turned(upright.size());
    turned.setDevicePixelRatio(m_ratio);
    turned.fill(Qt::transparent);
    QPainter painter(&turned);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QPointF middle = QPointF(upright.width(), upright.height()) / (2.0 * m_ratio);
    painter.translate(middle);
    painter.rotate(turn);
    painter.drawPixmap(-middle, upright);
    return turned;
}

// The casing is the symbol itself in the casing's colour, moved a little in every direction.
QPixmap TrackSymbols::cased(const QPixmap &symbol) const
{
    constexpr int Directions = 16;
    QPixmap casing(symbol.size());
    casing.setDevicePixelRatio(m_ratio);
    casing.fill(Qt::transparent);
    QPainter painter(&casing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    for (int i = 0; i < Directions; ++i) {
        const double angle = 2.0 * M_PI * i / Directions;
        painter.drawPixmap(QPointF(std::sin(angle), std::cos(angle)) * CasingWidth, symbol);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(QPointF(), casing.deviceIndependentSize()), m_casing);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawPixmap(QPointF(), symbol);
    return casing;
}
