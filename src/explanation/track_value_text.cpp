#include "explanation/track_value_text.h"

#include <QCoreApplication>

#include <cmath>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(TrackExplanation)
};

QString typeText(Track::Type type)
{
    const char *const texts[] = {QT_TRANSLATE_NOOP("TrackExplanation", "unknown"), "PSR", "SSR", "PSR+SSR", "Mode S",
        "Mode S+PSR", "ADS-B", "MLAT", "SMR", "SDPS Mode S", "SDPS"};
    return Text::tr(texts[type]);
}

QString stateText(Track::State state)
{
    const char *const texts[] = {QT_TRANSLATE_NOOP("TrackExplanation", "tentative"),
        QT_TRANSLATE_NOOP("TrackExplanation", "confirmed"), QT_TRANSLATE_NOOP("TrackExplanation", "coasting"),
        QT_TRANSLATE_NOOP("TrackExplanation", "terminated")};
    return Text::tr(texts[state]);
}

QString trendText(Track::VerticalTrend trend)
{
    const char *const texts[] = {QT_TRANSLATE_NOOP("TrackExplanation", "unknown"),
        QT_TRANSLATE_NOOP("TrackExplanation", "level"), QT_TRANSLATE_NOOP("TrackExplanation", "climbing"),
        QT_TRANSLATE_NOOP("TrackExplanation", "descending")};
    return Text::tr(texts[trend]);
}

} // namespace

QString noValueText()
{
    return QStringLiteral("\u2014");
}

QString trackValueName(TrackValue value)
{
    const char *const names[] = {QT_TRANSLATE_NOOP("TrackExplanation", "Callsign"),
        QT_TRANSLATE_NOOP("TrackExplanation", "Squawk"), QT_TRANSLATE_NOOP("TrackExplanation", "Address"),
        QT_TRANSLATE_NOOP("TrackExplanation", "Sensor's track number"),
        QT_TRANSLATE_NOOP("TrackExplanation", "Time of day"), QT_TRANSLATE_NOOP("TrackExplanation", "Position"),
        QT_TRANSLATE_NOOP("TrackExplanation", "Level"), QT_TRANSLATE_NOOP("TrackExplanation", "Ground speed"),
        QT_TRANSLATE_NOOP("TrackExplanation", "Heading"), QT_TRANSLATE_NOOP("TrackExplanation", "Vertical rate"),
        QT_TRANSLATE_NOOP("TrackExplanation", "Vertical trend"),
        QT_TRANSLATE_NOOP("TrackExplanation", "Selected altitude"), QT_TRANSLATE_NOOP("TrackExplanation", "Type"),
        QT_TRANSLATE_NOOP("TrackExplanation", "State"), QT_TRANSLATE_NOOP("TrackExplanation", "On ground"),
        QT_TRANSLATE_NOOP("TrackExplanation", "Emergency"), QT_TRANSLATE_NOOP("TrackExplanation", "Special pulse")};
    return Text::tr(names[static_cast<int>(value)]);
}

QString trackValueText(const TrackSnapshot &track, TrackValue value)
{
    const auto figure = [](bool valid, int number, const char *unit) {
        return valid ? QString("%1%2").arg(number).arg(QString::fromUtf8(unit)) : noValueText();
    };
    switch (value) {
    case TrackValue::Callsign:
        return track.callsignValid ? track.callsign : noValueText();
    case TrackValue::ModeA:
        return track.modeACodeValid ? track.modeAString : noValueText();
    case TrackValue::Address:
        return track.icaoAddrValid ? track.icaoAddrString : noValueText();
    case TrackValue::Position:
        return track.geoCoordinateValid ? track.geoCoordinate.toATCString(GeoCoordinate::HighPrecision) : noValueText();
    case TrackValue::Level:
        return figure(track.levelValid, track.level, " ft");
    case TrackValue::GroundSpeed:
        return figure(track.groundSpeedValid, static_cast<int>(std::lround(track.groundSpeed)), " kt");
    case TrackValue::Heading:
        return figure(track.headingValid, static_cast<int>(std::lround(track.heading)), "°");
    case TrackValue::VerticalRate:
        return figure(track.verticalRateValid, track.verticalRate, " ft/min");
    case TrackValue::VerticalTrend:
        return trendText(track.verticalTrend);
    case TrackValue::SelectedAltitude:
        return figure(track.selectedAltitudeValid, track.selectedAltitude, " ft");
    case TrackValue::Type:
        return typeText(track.type);
    case TrackValue::State:
        return stateText(track.state);
    case TrackValue::OnGround:
        return track.onGround ? Text::tr("yes") : Text::tr("no");
    case TrackValue::Emergency:
        return Track::emergencyString(track.emergency);
    case TrackValue::Spi:
        return Text::tr("yes");
    default:
        return noValueText();
    }
}
