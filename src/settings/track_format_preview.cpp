#include "settings/track_format_preview.h"

#include "tracking/track.h"

#include <QPainter>

#include <cmath>
#include <numbers>

namespace {

constexpr double MetresPerPixel = 150.0;
constexpr double RotationPeriod = 4.0; // seconds from one trail dot to the next

// Position and trail of a straight flight; x and y in pixels from the middle of the preview, y upwards.
void place(TrackSnapshot *track, double x, double y)
{
    track->carCoordinate = QPointF(x, y) * MetresPerPixel;
    track->carCoordinateValid = true;
    const double heading = track->heading * std::numbers::pi / 180.0;
    const double step = track->groundSpeed * 1852.0 / 3600.0 * RotationPeriod;
    for (int i = 1; i <= TrackDisplayFormat::MaxTrailDots; ++i) {
        const QPointF back(-std::sin(heading) * step * i, -std::cos(heading) * step * i);
        track->trail.append(track->carCoordinate + back);
    }
}

TrackSnapshot makeTrack(unsigned int number, const QString &callsign, int level, double speed, double heading)
{
    TrackSnapshot track;
    track.incarnationId = number;
    track.trackNumber = number;
    track.icaoAddr = 0x4B1900 + number;
    track.icaoAddrValid = true;
    track.icaoAddrString = QString::number(track.icaoAddr, 16).toUpper();
    track.callsign = callsign;
    track.callsignValid = true;
    track.modeACode = 0x200 + number;
    track.modeACodeValid = true;
    track.modeAString = QString::number(track.modeACode, 8);
    track.type = Track::ModeSPsr;
    track.state = Track::Confirmed;
    track.groundSpeed = speed;
    track.groundSpeedValid = true;
    track.heading = heading;
    track.headingValid = true;
    track.level = level;
    track.levelValid = true;
    return track;
}

QSharedPointer<DisplaySnapshot> makeSample()
{
    TrackSnapshot climbing = makeTrack(42, QStringLiteral("VYX417"), 18400, 412.0, 150.0);
    climbing.verticalTrend = Track::TrendClimbing;
    climbing.verticalRate = 1850;
    climbing.verticalRateValid = true;
    climbing.selectedAltitude = 24000;
    climbing.selectedAltitudeValid = true;
    place(&climbing, -50.0, 150.0);

    TrackSnapshot inAlert = makeTrack(51, QStringLiteral("KOR28B"), 11000, 305.0, 335.0);
    inAlert.alertsString = QStringLiteral("STCA");
    inAlert.verticalTrend = Track::TrendDescending;
    inAlert.verticalRate = -900;
    inAlert.verticalRateValid = true;
    place(&inAlert, -50.0, -25.0);

    TrackSnapshot coasting = makeTrack(63, QStringLiteral("DEVYX"), 6500, 140.0, 310.0);
    coasting.type = Track::Ssr;
    coasting.state = Track::Coasting;
    coasting.coasting = true;
    place(&coasting, -50.0, -200.0);

    const QSharedPointer<DisplaySnapshot> sample(new DisplaySnapshot);
    sample->tracks = {climbing, inAlert, coasting};
    return sample;
}

} // namespace

TrackFormatPreview::TrackFormatPreview(QWidget *parent) : QWidget(parent)
{
    m_display.setSnapshot(makeSample());
    m_display.setSelected(42);
    connect(&m_display, &GeoTrackDisplay::polluted, this, qOverload<>(&QWidget::update));
    setAccessibleName(tr("Preview"));
}

void TrackFormatPreview::setFormat(const TrackDisplayFormat &format)
{
    format.applyTo(m_display);
    update();
}

void TrackFormatPreview::setColors(const GeoTrackDisplay &display, const QColor &ground)
{
    m_display.setColors(display.look().colors, display.look().layout);
    m_display.setLabelOffset(display.labelOffsetX(), display.labelOffsetY());
    m_ground = ground;
    update();
}

void TrackFormatPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_ground);
    const QTransform planeToScreen(
        1.0 / MetresPerPixel, 0.0, 0.0, -1.0 / MetresPerPixel, width() / 2.0, height() / 2.0);
    painter.setWorldTransform(planeToScreen);
    m_display.paint(&painter);
}
