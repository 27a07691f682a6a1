#include "display/track_symbol_painter.h"

#include "display/track_frame.h"

#include <QPainter>

namespace {

// System tracks have no drawing of their own: what counts is which kind of sensor stands behind them.
Track::Type seenBy(const TrackSnapshot &track)
{
    const bool system = track.type == Track::Sdps || track.type == Track::SdpsModeS;
    return system ? track.detectedBy : track.type;
}

// The corners that are left of a track that nothing sees any more, in the layout that tells so by the symbol.
TrackSymbols::Symbol symbolOf(const TrackFrame &frame, const TrackSnapshot &track)
{
    const bool coasting = frame.look.isCompact() && track.coasting;
    return coasting ? TrackSymbols::Coasting : TrackSymbols::forTrackType(seenBy(track));
}

} // namespace

void TrackSymbolPainter::prepare(QPainter *painter, const TrackFrame &frame)
{
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    m_symbols.setSize(frame.look.symbolSize);
    m_symbols.setCasing(frame.look.colors.casing);
    m_painted.reset();
}

void TrackSymbolPainter::paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown)
{
    const TrackSnapshot &track = *shown.track;
    const double ratio = frame.view.devicePixelRatio();
    const QColor &color = frame.color(shown);
    const bool byTarget = frame.look.targetTypeSymbol && track.headingValid;
    const TrackSymbols::Symbol kind = byTarget ? TrackSymbols::Aircraft : symbolOf(frame, track);
    const QPixmap &symbol = byTarget ? m_symbols.aircraft(track.heading + frame.view.rotation(), color, ratio)
                                     : m_symbols.pixmap(kind, color, ratio);
    m_painted.set(kind);
    const int half = frame.look.symbolSize / 2 + TrackSymbols::Margin;
    painter->drawPixmap(shown.place - QPoint(half, half), symbol);
}
