#include "display/geo_track_display.h"

#include "app/config.h"
#include "view/contrast.h"
#include "view/geo_view.h"

#include <QFontDatabase>
#include <QLineF>
#include <QSet>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr int DefaultSymbolSize = 24;
constexpr int DefaultLabelPoints = 12;
// Far enough up and to the right that a label of two or three lines leaves symbol and vector free.
constexpr QPoint DefaultLabelOffset(26, 44);
constexpr int MaximumTrailDots = 1000; // no track remembers more

QFont defaultLabelFont()
{
    // The second family stands in where the first is not installed.
    QFont font;
    font.setFamilies({QStringLiteral("Cascadia Code"), QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
    font.setStyleHint(QFont::Monospace);
    font.setPointSize(DefaultLabelPoints);
    return font;
}

} // namespace

GeoTrackDisplay::GeoTrackDisplay(QObject *parent)
    : QObject(parent), m_labelOffset(DefaultLabelOffset), m_symbols(DefaultSymbolSize, QColor())
{
    setLabelFont(defaultLabelFont());
    applyConfig(Config());
}

GeoTrackDisplay::~GeoTrackDisplay() = default;

void GeoTrackDisplay::setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot)
{
    m_snapshot = snapshot;
    ++m_contentRevision;
    m_tracksById.clear();
    if (m_snapshot) {
        m_tracksById.reserve(m_snapshot->tracks.size());
        for (const TrackSnapshot &track : m_snapshot->tracks) {
            m_tracksById.insert(track.incarnationId, &track);
        }
    }
    const auto gone = [this](const auto &entry) { return !hasTrack(entry.key()); };
    m_labelOffsets.removeIf(gone);
    m_labelCache.removeIf(gone);
}

void GeoTrackDisplay::applyConfig(const Config &config)
{
    QColor background = config.trackLabelBackgroundColor;
    background.setAlphaF(float(std::clamp(config.trackLabelBackgroundOpacity, 0, 100)) / 100.0f);
    setSymbolColor(config.trackSymbolColor);
    setLabelColor(config.trackLabelColor);
    setLabelSelectedColor(config.trackLabelSelectedColor);
    setLabelAlertColor(config.trackLabelAlertColor);
    setLabelBackgroundColor(background);
}

unsigned long long GeoTrackDisplay::findTrackBySymbolPosition(const QTransform &screenTransform, int x, int y) const
{
    if (!m_snapshot) {
        return 0;
    }
    const int reach = m_symbolSize / 2;
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
    return !m_labelOffsets.contains(id);
}

QPoint GeoTrackDisplay::trackLabelOffset(unsigned long long id) const
{
    return m_labelOffsets.value(id, m_labelOffset);
}

void GeoTrackDisplay::setTrackLabelOffset(unsigned long long id, int x, int y)
{
    m_labelOffsets.insert(id, QPoint(x, y));
    noteChange();
}

void GeoTrackDisplay::noteChange()
{
    Q_EMIT polluted();
}

void GeoTrackDisplay::clearLabelLayouts()
{
    m_labelCache.clear();
    noteChange();
}

void GeoTrackDisplay::setTargetTypeSymbol(bool on)
{
    m_targetTypeSymbol = on;
    noteChange();
}

void GeoTrackDisplay::setSensorTypeSymbol(bool on)
{
    m_sensorTypeSymbol = on;
    noteChange();
}

void GeoTrackDisplay::setSymbolColor(const QColor &color)
{
    m_symbols.setColor(color);
    // Cosmetic lines of one pixel take the painter's quickest way.
    m_symbolPen = QPen(color, 1);
    m_symbolPen.setCosmetic(true);
    m_coastingPen = m_symbolPen;
    m_coastingPen.setStyle(Qt::DashLine);
    m_trailColor = color;
    noteChange();
}

void GeoTrackDisplay::setSymbolSize(int pixels)
{
    m_symbolSize = std::max(1, pixels);
    m_symbols.setSize(m_symbolSize);
    noteChange();
}

void GeoTrackDisplay::setLabelFont(const QFont &font)
{
    m_labelFont = font;
    // Glyphs on whole pixels are sharper at this size, and cheaper to paint than at fractions of one.
    m_labelFont.setHintingPreference(QFont::PreferFullHinting);
    clearLabelLayouts();
}

void GeoTrackDisplay::setLabelColor(const QColor &color)
{
    m_labelPen = QPen(color);
    noteChange();
}

void GeoTrackDisplay::setLabelSelectedColor(const QColor &color)
{
    m_labelSelectedPen = QPen(color);
    noteChange();
}

void GeoTrackDisplay::setLabelAlertColor(const QColor &color)
{
    m_labelAlertPen = QPen(color);
    m_labelAlertGround = groundFor(color);
    noteChange();
}

void GeoTrackDisplay::setLabelBackgroundColor(const QColor &color)
{
    m_labelBackgroundColor = color;
    noteChange();
}

double GeoTrackDisplay::labelOffset() const
{
    return std::hypot(m_labelOffset.x(), m_labelOffset.y());
}

double GeoTrackDisplay::labelAngle() const
{
    const double angle = qRadiansToDegrees(std::atan2(m_labelOffset.x(), m_labelOffset.y()));
    return angle < 0.0 ? angle + 360.0 : angle;
}

void GeoTrackDisplay::setLabelOffset(int x, int y)
{
    m_labelOffset = QPoint(x, y);
    noteChange();
}

void GeoTrackDisplay::setLabelOffset(double length, double angle)
{
    const double radians = qDegreesToRadians(angle);
    setLabelOffset(qRound(length * std::sin(radians)), qRound(length * std::cos(radians)));
}

void GeoTrackDisplay::showLabel(bool visible)
{
    m_labelVisible = visible;
    noteChange();
}

void GeoTrackDisplay::setField(bool TrackLabelFields::*field, bool visible)
{
    m_fields.*field = visible;
    ++m_contentRevision;
    noteChange();
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
    m_backgroundVisible = visible;
    noteChange();
}

void GeoTrackDisplay::setBackgroundPadding(int pixels)
{
    m_backgroundPadding = pixels;
    noteChange();
}

void GeoTrackDisplay::showTrail(bool visible)
{
    m_trailVisible = visible;
    noteChange();
    Q_EMIT shownTrailDotsChanged(visible ? m_trailDots : 0);
}

void GeoTrackDisplay::setTrailDots(int dots)
{
    m_trailDots = std::clamp(dots, 0, MaximumTrailDots);
    noteChange();
    Q_EMIT shownTrailDotsChanged(m_trailVisible ? m_trailDots : 0);
}

void GeoTrackDisplay::showVector(bool visible)
{
    m_vectorVisible = visible;
    noteChange();
}

void GeoTrackDisplay::setVectorTimeMode(bool timeMode)
{
    m_vectorTimeMode = timeMode;
    noteChange();
}

void GeoTrackDisplay::setVectorRange(int range)
{
    m_vectorRange = std::max(0, range);
    noteChange();
}

void GeoTrackDisplay::showVectorTicks(bool visible)
{
    m_vectorTicksVisible = visible;
    noteChange();
}

void GeoTrackDisplay::setSelected(unsigned long long id)
{
    m_selectedTrack = id;
    noteChange();
}
