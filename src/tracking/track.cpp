#include "tracking/track.h"

#include "tracking/alert.h"

#include <algorithm>

namespace {

QString digits(unsigned int value, int width, int base)
{
    return QStringLiteral("%1").arg(value, width, base, QLatin1Char('0')).toUpper();
}

} // namespace

Track::Track(unsigned int trackNumber, const QDateTime &now)
    : m_trackNumber(trackNumber), m_selectedAltitudeLastUpdate(now), m_verticalRateLastUpdate(now), m_lastUpdate(now)
{
    updateModeAString();
}

void Track::setIcaoAddr(unsigned int address)
{
    if (address == m_icaoAddr) {
        return;
    }
    m_icaoAddr = address;
    m_icaoAddrValid = address != 0;
    m_icaoAddrString = digits(address, 6, 16);
    markUnindexed();
}

void Track::setOtherTrackNumber(unsigned int number)
{
    if (number != m_otherTrackNumber) {
        m_otherTrackNumber = number;
        markUnindexed();
    }
}

void Track::markUnindexed()
{
    if (m_indexed && m_unindexedCount) {
        ++*m_unindexedCount;
    }
    m_indexed = false;
}

QString Track::icaoAddrString() const
{
    return m_icaoAddrValid ? m_icaoAddrString : QStringLiteral("------");
}

QString Track::modeSCallsign() const
{
    return modeSCallsignValid() ? m_modeSCallsign : QStringLiteral("-------");
}

void Track::setModeSCallsign(const QString &callsign)
{
    m_modeSCallsign = callsign.trimmed().toUpper();
}

void Track::setModeACode(unsigned int code)
{
    if (code == m_modeACode) {
        return;
    }
    m_modeACode = code;
    updateModeAString();
}

void Track::setModeACodeValid(bool valid)
{
    if (valid == m_modeACodeValid) {
        return;
    }
    m_modeACodeValid = valid;
    updateModeAString();
}

void Track::setModeACodeSmoothed(bool smoothed)
{
    if (smoothed == m_modeACodeSmoothed) {
        return;
    }
    m_modeACodeSmoothed = smoothed;
    updateModeAString();
}

void Track::setModeACodeGarbled(bool garbled)
{
    if (garbled == m_modeACodeGarbled) {
        return;
    }
    m_modeACodeGarbled = garbled;
    updateModeAString();
}

void Track::updateModeAString()
{
    if (!m_modeACodeValid) {
        m_modeAString = QStringLiteral("----");
        return;
    }
    m_modeAString = digits(m_modeACode, 4, 8);
    if (m_modeACodeGarbled) {
        m_modeAString += QLatin1Char('G');
    }
    if (m_modeACodeSmoothed) {
        m_modeAString += QLatin1Char('S');
    }
}

Track::Emergency Track::emergency() const
{
    if (m_modeACodeValid && m_modeACodeValidated && !m_modeACodeGarbled) {
        switch (m_modeACode) {
        case 07500:
            return UnlawfulInterference;
        case 07600:
            return RadioFailure;
        case 07700:
            return GeneralEmergency;
        default:
            break;
        }
    }
    return m_reportedEmergency;
}

QString Track::emergencyString(Emergency emergency)
{
    switch (emergency) {
    case UnlawfulInterference:
        return QStringLiteral("HIJ");
    case RadioFailure:
        return QStringLiteral("RDO");
    case GeneralEmergency:
        return QStringLiteral("EMG");
    default:
        return {};
    }
}

void Track::setReportedEmergency(Emergency emergency, const QDateTime &now)
{
    m_reportedEmergency = emergency;
    m_reportedEmergencyLastUpdate = now;
}

void Track::setGeoCoordinate(const GeoCoordinate &coordinate)
{
    m_geoCoordinate = coordinate;
    m_geoCoordinateValid = coordinate.isValid();
}

void Track::setCarCoordinate(const QPointF &coordinate)
{
    m_carCoordinate = coordinate;
    m_carCoordinateValid = true;
}

void Track::clearPosition()
{
    setGeoCoordinate({});
    m_carCoordinateValid = false;
}

void Track::setSelectedAltitude(int altitude, const QDateTime &now)
{
    m_selectedAltitude = altitude;
    m_selectedAltitudeLastUpdate = now;
}

void Track::setVerticalRate(int rate, const QDateTime &now)
{
    m_verticalRate = rate;
    m_verticalRateLastUpdate = now;
}

QString Track::alertsString() const
{
    if (m_alerts.isEmpty()) {
        return {};
    }
    QStringList active;
    for (const auto type : {Alert::MSAW, Alert::APW, Alert::STCA}) {
        if (std::any_of(m_alerts.begin(), m_alerts.end(),
                [type](const auto &alert) { return alert->active() && alert->type() == type; })) {
            active.append(Alert::typeString(type));
        }
    }
    return active.join(QLatin1Char(' '));
}

void Track::recordHistory(const QDateTime &now)
{
    if (!m_geoCoordinateValid) {
        return;
    }
    if (m_history.size() >= MaximumHistory) {
        m_history.pop_back();
    }
    m_history.emplace_front(
        m_geoCoordinate, m_geoCoordinateValid, m_carCoordinate, m_carCoordinateValid, m_ground, m_level, m_levelValid);
    m_lastUpdate = now;
}
