#include "display/geo_track_display.h"
#include "view/geo_view.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr QPointF HalfPixel(0.5, 0.5);

// When everything is urgent nothing stands out any more, and time is better spent otherwise.
constexpr std::size_t MostRaised = 64;

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
    m_frame.selectedTrack = m_selectedTrack;
    m_frame.hoveredTrack = m_hoveredTrack;
    m_frame.blinkOn = m_blinkOn;
    m_frame.collect(m_alerts);
    arrange();
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
        m_conflictLinePainter.paintTexts(painter, m_frame);
        m_highlightPainter.paint(painter, m_frame);
        m_edgeArrowPainter.paint(painter, m_frame);
    } else {
        paintSymbols(painter);
    }
    painter->restore();
}

// Labels that arrange themselves make room for the figures of alerts; among labels that do not, these find their own.
void GeoTrackDisplay::arrange()
{
    m_conflictLinePainter.clear();
    m_edgeArrowPainter.clear();
    if (!m_frame.showsDetails()) {
        return;
    }
    const auto prepareFigures = [this] {
        m_edgeArrowPainter.prepare(m_frame, m_alerts, m_tracksById);
        m_conflictLinePainter.prepare(
            m_frame, m_alerts.entries(), m_tracksById, m_keptFree + m_edgeArrowPainter.places());
    };
    if (m_look.autoPlace) {
        prepareFigures();
        placeLabels();
    } else {
        placeLabels();
        prepareFigures();
    }
}

void GeoTrackDisplay::paintSymbols(QPainter *painter)
{
    for (const ShownTrack &shown : m_frame.tracks) {
        m_symbolPainter.paint(painter, m_frame, shown);
    }
}

// Track by track, the most urgent on top. A label may cover another label, but never a target.
void GeoTrackDisplay::paintDetails(QPainter *painter)
{
    const auto paintLines = [&](const ShownTrack &shown) {
        m_trailPainter.paint(painter, m_frame, shown);
        m_vectorPainter.paint(painter, m_frame, shown);
    };
    for (const ShownTrack &shown : m_frame.ordinary()) {
        paintLines(shown);
        m_labelPainter.paint(painter, m_frame, shown);
        m_leaderPainter.paint(painter, m_frame, shown);
    }
    paintSymbols(painter);
    m_conflictLinePainter.paintLines(painter, m_frame);
    for (const ShownTrack &shown : m_frame.raised()) {
        paintLines(shown);
        paintRaisedLabel(painter, shown);
        m_leaderPainter.paint(painter, m_frame, shown);
        if (!isUnderRaisedLabel(shown.place)) {
            m_symbolPainter.paint(painter, m_frame, shown);
        }
    }
}

// Layer by layer: no line of a track runs through another's text.
void GeoTrackDisplay::paintCompactDetails(QPainter *painter)
{
    m_trailPainter.paintFading(painter, m_frame);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(HalfPixel); // a line of one pixel then fills one row of pixels, not two by half
    for (const ShownTrack &shown : m_frame.tracks) {
        m_vectorPainter.paint(painter, m_frame, shown, &m_labelVisibility);
    }
    for (const ShownTrack &shown : m_frame.tracks) {
        m_leaderPainter.paint(painter, m_frame, shown, &m_labelVisibility);
    }
    painter->translate(-HalfPixel);
    painter->setRenderHint(QPainter::Antialiasing, false);
    for (const ShownTrack &shown : m_frame.ordinary()) {
        m_labelPainter.paint(painter, m_frame, shown);
    }
    paintSymbols(painter);
    m_conflictLinePainter.paintLines(painter, m_frame);
    for (const ShownTrack &shown : m_frame.raised()) {
        paintRaisedLabel(painter, shown);
    }
}

// The text of what is urgent stands above the symbols of others, and these above its ground.
void GeoTrackDisplay::paintRaisedLabel(QPainter *painter, const ShownTrack &shown)
{
    const bool few = m_frame.raised().size() <= MostRaised;
    m_labelPainter.paint(painter, m_frame, shown, [&] {
        const int reach = m_look.symbolSize / 2;
        const QRect near = m_look.padded(shown.labelRect).adjusted(-reach, -reach, reach, reach);
        for (const ShownTrack &other : m_frame.tracks) {
            if (few && near.contains(other.place)) {
                m_symbolPainter.paint(painter, m_frame, other);
            }
        }
    });
}

bool GeoTrackDisplay::isUnderRaisedLabel(const QPoint &place) const
{
    const auto raised = m_frame.raised();
    return raised.size() <= MostRaised && std::any_of(raised.begin(), raised.end(), [&](const ShownTrack &shown) {
        return shown.label && m_look.padded(shown.labelRect).contains(place);
    });
}

void GeoTrackDisplay::placeLabels()
{
    if (!m_look.showsLabels()) {
        return;
    }
    for (const ShownTrack &shown : m_frame.tracks) {
        m_labels.refresh(*shown.track, m_look, m_snapshot->time);
    }
    for (ShownTrack &shown : m_frame.tracks) {
        shown.label = m_labels.find(shown.track->incarnationId);
    }
    m_places.place(m_frame,
        {m_keptFree + m_edgeArrowPainter.places() + m_conflictLinePainter.textPlaces(), m_conflictLinePainter.lines()});
    m_labelRects.reserve(static_cast<qsizetype>(m_frame.tracks.size()));
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

// Fainter than tracks where themes have a colour for that: one that flies through the key is told from it.
std::vector<GeoTrackDisplay::SymbolMeaning> GeoTrackDisplay::shownSymbols(double devicePixelRatio)
{
    const QColor &color = m_look.isCompact() ? m_look.colors.leader : m_look.colors.symbol;
    std::vector<SymbolMeaning> shown;
    for (int i = 0; i < TrackSymbols::Count; ++i) {
        const auto symbol = static_cast<TrackSymbols::Symbol>(i);
        if (m_symbolPainter.painted().test(static_cast<std::size_t>(i))) {
            shown.push_back({TrackSymbols::meaning(symbol), m_symbolPainter.pixmap(symbol, color, devicePixelRatio)});
        }
    }
    return shown;
}
