#include "display/geo_track_display.h"

#include "app/config.h"
#include "engine/track_life_span.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int MaximumTrailDots = 1000; // no track remembers more

} // namespace

template <typename Value, typename Given>
void GeoTrackDisplay::change(Value *value, const Given &given)
{
    *value = given;
    Q_EMIT polluted();
}

GeoTrackDisplay::GeoTrackDisplay(QObject *parent) : QObject(parent) { }

GeoTrackDisplay::~GeoTrackDisplay() = default;

void GeoTrackDisplay::setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot)
{
    m_snapshot = snapshot;
    m_alerts.take(snapshot.data());
    m_labels.noteContentChange();
    m_tracksById.clear();
    if (m_snapshot) {
        m_tracksById.reserve(m_snapshot->tracks.size());
        for (const TrackSnapshot &track : m_snapshot->tracks) {
            m_tracksById.insert(track.incarnationId, &track);
        }
    }
    m_places.removeIf([this](unsigned long long id) { return !hasTrack(id); });
    m_frame.tracks.clear(); // their labels go
    m_labels.removeIf([this](unsigned long long id) { return !hasTrack(id); });
}

// Half way from coasting to the end, which leaves time to look.
void GeoTrackDisplay::setSensor(const QSharedPointer<SensorInfo> &sensor)
{
    const auto life = TrackLifeSpan::forSensor(sensor.data());
    change(&m_look.longestCoastingMs, life ? static_cast<int>((life->coastingMs + life->terminationMs) / 2) : 0);
}

void GeoTrackDisplay::applyConfig(const Config &config)
{
    m_look.autoPlace = config.trackLabelAutoPlace;
    setColors(TrackColors(config), config.trackLabelLayout);
}

void GeoTrackDisplay::setColors(const TrackColors &colors, Config::TrackLabelLayout layout)
{
    m_look.layout = layout;
    m_frame.tracks.clear();
    m_labels.clear();
    change(&m_look.colors, colors);
}

unsigned long long GeoTrackDisplay::findTrackBySymbolPosition(const QTransform &screenTransform, int x, int y) const
{
    if (!m_snapshot) {
        return 0;
    }
    const int reach = m_look.symbolSize / 2;
    for (const TrackSnapshot &track : m_snapshot->tracks) {
        if (!track.carCoordinateValid) {
            continue;
        }
        const QPointF place = screenTransform.map(track.carCoordinate);
        if (std::abs(place.x() - x) <= reach && std::abs(place.y() - y) <= reach) {
            return track.incarnationId;
        }
    }
    return 0;
}

unsigned long long GeoTrackDisplay::findTrackByLabelPosition(const QTransform &screenTransform, int x, int y) const
{
    if (!m_snapshot) {
        return 0;
    }
    for (const TrackSnapshot &track : m_snapshot->tracks) {
        const auto label = m_labelRects.constFind(track.incarnationId);
        if (label == m_labelRects.constEnd()) {
            continue;
        }
        const QPoint place = screenTransform.map(track.carCoordinate).toPoint();
        if (label->translated(place).contains(x, y)) {
            return track.incarnationId;
        }
    }
    return 0;
}

QList<unsigned long long> GeoTrackDisplay::findTracks(const QTransform &screenTransform, int x, int y) const
{
    QList<unsigned long long> bySymbol;
    QList<unsigned long long> byLabel;
    const QPointF pixel(x, y);
    const double reach = m_look.symbolSize / 2;
    const auto holds = [&](const QPointF &place) {
        return std::abs(place.x() - pixel.x()) <= reach && std::abs(place.y() - pixel.y()) <= reach;
    };
    for (const TrackSnapshot &track : m_snapshot ? m_snapshot->tracks : QList<TrackSnapshot>()) {
        const QPointF place = screenTransform.map(track.carCoordinate);
        if (track.carCoordinateValid && holds(place)) {
            bySymbol.append(track.incarnationId);
        } else if (m_labelRects.value(track.incarnationId).translated(place.toPoint()).contains(x, y)) {
            byLabel.append(track.incarnationId);
        }
    }
    std::sort(bySymbol.begin(), bySymbol.end());
    std::sort(byLabel.begin(), byLabel.end());
    return bySymbol + byLabel;
}

bool GeoTrackDisplay::hasTrack(unsigned long long id) const
{
    return m_tracksById.contains(id);
}

bool GeoTrackDisplay::selectedTrackCarCoordinate(QPointF &planePoint) const
{
    const TrackSnapshot *track = m_tracksById.value(m_selectedTrack);
    if (!track || !track->carCoordinateValid) {
        return false;
    }
    planePoint = track->carCoordinate;
    return true;
}

bool GeoTrackDisplay::trackLabelOffsetDefault(unsigned long long id) const
{
    return !m_places.isPinned(id);
}

// Of a label that arranges itself, where it stands.
QPoint GeoTrackDisplay::trackLabelOffset(unsigned long long id) const
{
    const auto shown = m_labelRects.constFind(id);
    if (m_look.autoPlace && !m_places.isPinned(id) && shown != m_labelRects.constEnd()) {
        return QPoint(shown->x(), -shown->y());
    }
    return m_places.pinnedOffset(id).value_or(m_look.labelOffset);
}

void GeoTrackDisplay::setTrackLabelOffset(unsigned long long id, int x, int y)
{
    m_places.pin(id, QPoint(x, y));
    Q_EMIT polluted();
}

void GeoTrackDisplay::resetTrackLabelOffset(unsigned long long id)
{
    m_places.reset(id);
    Q_EMIT polluted();
}

void GeoTrackDisplay::resetTrackLabelOffsets()
{
    m_places.resetAll();
    Q_EMIT polluted();
}

void GeoTrackDisplay::setViewHeld(bool held)
{
    m_places.setViewHeld(held);
}

void GeoTrackDisplay::setTargetTypeSymbol(bool on)
{
    change(&m_look.targetTypeSymbol, on);
}

void GeoTrackDisplay::setSensorTypeSymbol(bool on)
{
    change(&m_look.sensorTypeSymbol, on);
}

void GeoTrackDisplay::setSymbolColor(const QColor &color)
{
    change(&m_look.colors.symbol, color);
}

void GeoTrackDisplay::setSymbolSize(int pixels)
{
    change(&m_look.symbolSize, std::max(1, pixels));
}

void GeoTrackDisplay::setLabelFont(const QFont &font)
{
    m_look.setLabelFont(font);
    m_frame.tracks.clear();
    m_labels.clear();
    Q_EMIT polluted();
}

void GeoTrackDisplay::setLabelColor(const QColor &color)
{
    change(&m_look.colors.label, color);
}

void GeoTrackDisplay::setLabelSelectedColor(const QColor &color)
{
    change(&m_look.colors.labelSelected, color);
}

void GeoTrackDisplay::setLabelAlertColor(const QColor &color)
{
    change(&m_look.colors.labelAlert, color);
}

void GeoTrackDisplay::setLabelBackgroundColor(const QColor &color)
{
    change(&m_look.colors.labelBackground, color);
}

double GeoTrackDisplay::labelOffset() const
{
    return std::hypot(labelOffsetX(), labelOffsetY());
}

double GeoTrackDisplay::labelAngle() const
{
    const double angle = qRadiansToDegrees(std::atan2(labelOffsetX(), labelOffsetY()));
    return angle < 0.0 ? angle + 360.0 : angle;
}

void GeoTrackDisplay::setLabelOffset(int x, int y)
{
    change(&m_look.labelOffset, QPoint(x, y));
}

void GeoTrackDisplay::setLabelOffset(double length, double angle)
{
    const double radians = qDegreesToRadians(angle);
    setLabelOffset(qRound(length * std::sin(radians)), qRound(length * std::cos(radians)));
}

void GeoTrackDisplay::setField(bool TrackLabelFields::*field, bool visible)
{
    m_labels.noteContentChange();
    change(&(m_look.fields.*field), visible);
}

void GeoTrackDisplay::showLabel(bool visible)
{
    change(&m_look.labelVisible, visible);
}

void GeoTrackDisplay::showAlertIndicator(bool visible)
{
    setField(&TrackLabelFields::alertIndicator, visible);
}

void GeoTrackDisplay::showTrackNum(bool visible)
{
    setField(&TrackLabelFields::trackNum, visible);
}

void GeoTrackDisplay::showCallsign(bool visible)
{
    setField(&TrackLabelFields::callsign, visible);
}

void GeoTrackDisplay::showIcaoAddr(bool visible)
{
    setField(&TrackLabelFields::icaoAddr, visible);
}

void GeoTrackDisplay::showSquawk(bool visible)
{
    setField(&TrackLabelFields::squawk, visible);
}

void GeoTrackDisplay::showLevel(bool visible)
{
    setField(&TrackLabelFields::level, visible);
}

void GeoTrackDisplay::showSelectedAltitude(bool visible)
{
    setField(&TrackLabelFields::selectedAltitude, visible);
}

void GeoTrackDisplay::showVerticalRate(bool visible)
{
    setField(&TrackLabelFields::verticalRate, visible);
}

void GeoTrackDisplay::showGroundSpeed(bool visible)
{
    setField(&TrackLabelFields::groundSpeed, visible);
}

void GeoTrackDisplay::showHeading(bool visible)
{
    setField(&TrackLabelFields::heading, visible);
}

void GeoTrackDisplay::showBackground(bool visible)
{
    change(&m_look.backgroundVisible, visible);
}

void GeoTrackDisplay::setBackgroundPadding(int pixels)
{
    change(&m_look.backgroundPadding, pixels);
}

void GeoTrackDisplay::showTrail(bool visible)
{
    change(&m_look.trailVisible, visible);
    Q_EMIT shownTrailDotsChanged(visible ? m_look.trailDots : 0);
}

void GeoTrackDisplay::setTrailDots(int dots)
{
    change(&m_look.trailDots, std::clamp(dots, 0, MaximumTrailDots));
    Q_EMIT shownTrailDotsChanged(m_look.trailVisible ? m_look.trailDots : 0);
}

void GeoTrackDisplay::showVector(bool visible)
{
    change(&m_look.vectorVisible, visible);
}

void GeoTrackDisplay::setVectorTimeMode(bool timeMode)
{
    change(&m_look.vectorTimeMode, timeMode);
}

void GeoTrackDisplay::setVectorRange(int range)
{
    change(&m_look.vectorRange, std::max(0, range));
}

void GeoTrackDisplay::showVectorTicks(bool visible)
{
    change(&m_look.vectorTicksVisible, visible);
}

void GeoTrackDisplay::setSelected(unsigned long long id)
{
    const bool another = id != m_selectedTrack;
    change(&m_selectedTrack, id);
    if (another) {
        Q_EMIT selectedChanged(id);
    }
}

void GeoTrackDisplay::setHovered(unsigned long long id)
{
    if (id != m_hoveredTrack) {
        change(&m_hoveredTrack, id);
    }
}

void GeoTrackDisplay::takeAlertBoardOf(const GeoTrackDisplay &other)
{
    change(&m_alerts, other.m_alerts);
}

void GeoTrackDisplay::acknowledge(quint64 key)
{
    noteAcknowledgement(m_alerts.acknowledge(key));
}

void GeoTrackDisplay::acknowledgeTrack(unsigned long long id)
{
    noteAcknowledgement(m_alerts.acknowledgeTrack(id));
}

void GeoTrackDisplay::acknowledgeAll()
{
    noteAcknowledgement(m_alerts.acknowledgeAll());
}

void GeoTrackDisplay::noteAcknowledgement(bool any)
{
    if (any) {
        Q_EMIT polluted();
        Q_EMIT acknowledged();
    }
}
