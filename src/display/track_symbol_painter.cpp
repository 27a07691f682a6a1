#include "display/track_symbol_painter.h"

#include "display/track_frame.h"

#include <QPainter>

void TrackSymbolPainter::prepare(QPainter *painter, const TrackFrame &frame)
{
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    m_symbols.setSize(frame.look.symbolSize);
    m_symbols.setColor(frame.look.colors.symbol);
}

void TrackSymbolPainter::paint(QPainter *painter, const TrackFrame &frame, const ShownTrack &shown)
{
    const TrackSnapshot &track = *shown.track;
    const double ratio = frame.view.devicePixelRatio();
    const bool byTarget = frame.look.targetTypeSymbol && track.headingValid;
    const QPixmap &symbol = byTarget ? m_symbols.aircraft(track.heading + frame.view.rotation(), ratio)
                                     : m_symbols.pixmap(TrackSymbols::forTrackType(track.type), ratio);
    const int half = frame.look.symbolSize / 2;
    painter->drawPixmap(shown.place - QPoint(half, half), symbol);
}
