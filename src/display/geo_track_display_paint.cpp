#include "display/geo_track_display.h"
#include "view/geo_view.h"

#include <QPainter>

namespace {

constexpr QPointF HalfPixel(0.5, 0.5);

} // namespace

void GeoTrackDisplay::paint(QPainter *painter)
{
    paint(painter, GeoView::fromPainter(*painter));
}

void GeoTrackDisplay::paint(QPainter *painter, const GeoView &view)
{
    m_labelRects.clear();
    m_frame.view = view;
    m_frame.look = m_look;
    m_frame.snapshot = m_snapshot;
    m_frame.collect(m_selectedTrack);
    placeLabels();
    noteShortenedLabels();
    painter->save();
    painter->resetTransform();
    m_symbolPainter.prepare(painter, m_frame);
    if (m_frame.showsDetails()) {
        m_labelVisibility.find(m_frame);
        m_vectorPainter.prepare(m_frame);
        m_leaderPainter.prepare(m_frame);
        m_labelPainter.prepare(painter, m_frame);
        m_look.isCompact() ? paintCompactDetails(painter) : paintDetails(painter);
    }
    // After all labels: a label may cover another label, but never a target.
    for (const ShownTrack &shown : m_frame.tracks) {
        m_symbolPainter.paint(painter, m_frame, shown);
    }
    painter->restore();
}

// Track by track, the most urgent on top.
void GeoTrackDisplay::paintDetails(QPainter *painter)
{
    for (const ShownTrack &shown : m_frame.tracks) {
        m_trailPainter.paint(painter, m_frame, shown);
        m_vectorPainter.paint(painter, m_frame, shown);
        m_labelPainter.paint(painter, m_frame, shown);
        m_leaderPainter.paint(painter, m_frame, shown);
    }
}

// Layer by layer: no line of a track runs through another's text.
void GeoTrackDisplay::paintCompactDetails(QPainter *painter)
{
    m_trailPainter.paintFading(painter, m_frame);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(HalfPixel); // a line of one pixel then fills one row of pixels, not two by half
    for (const ShownTrack &shown : m_frame.tracks) {
        m_vectorPainter.paint(painter, m_frame, shown);
    }
    for (const ShownTrack &shown : m_frame.tracks) {
        m_leaderPainter.paint(painter, m_frame, shown);
    }
    painter->translate(-HalfPixel);
    painter->setRenderHint(QPainter::Antialiasing, false);
    for (const ShownTrack &shown : m_frame.tracks) {
        m_labelPainter.paint(painter, m_frame, shown);
    }
}

void GeoTrackDisplay::placeLabels()
{
    if (!m_frame.showsDetails() || !m_look.showsLabels()) {
        return;
    }
    for (const ShownTrack &shown : m_frame.tracks) {
        m_labels.refresh(*shown.track, m_look);
    }
    for (ShownTrack &shown : m_frame.tracks) {
        shown.label = m_labels.find(shown.track->incarnationId);
    }
    m_places.place(m_frame, m_hoveredTrack);
    m_labelRects.reserve(qsizetype(m_frame.tracks.size()));
    for (const ShownTrack &shown : m_frame.tracks) {
        if (shown.label) {
            m_labelRects.insert(shown.track->incarnationId, shown.labelRect.translated(-shown.place));
        }
    }
}

void GeoTrackDisplay::noteShortenedLabels()
{
    const int count = m_frame.showsDetails() && m_look.showsLabels() ? m_places.shortenedCount() : 0;
    if (count != m_shortenedLabels) {
        m_shortenedLabels = count;
        Q_EMIT shortenedLabelsChanged(count);
    }
}

std::vector<GeoTrackDisplay::SymbolMeaning> GeoTrackDisplay::shownSymbols(double devicePixelRatio)
{
    std::vector<SymbolMeaning> shown;
    for (int i = 0; i < TrackSymbols::Count; ++i) {
        const auto symbol = static_cast<TrackSymbols::Symbol>(i);
        if (m_symbolPainter.painted().test(std::size_t(i))) {
            shown.push_back({TrackSymbols::meaning(symbol),
                m_symbolPainter.pixmap(symbol, m_look.colors.symbol, devicePixelRatio)});
        }
    }
    return shown;
}
