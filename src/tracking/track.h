#pragma once

#include "geo/geo_coordinate.h"
#include "tracking/report_link.h"
#include "tracking/track_history_element.h"

#include <QDateTime>
#include <QPointF>
#include <QRectF>
#include <QSet>
#include <QSharedPointer>
#include <QString>

#include <deque>
#include <memory>

class Alert;

// One aircraft or vehicle as reported by one sensor. A value with its validity flag beside it means nothing while the
// flag is false. Belongs to the thread of its TrackManager; others may hold the pointer but must not look inside.
class Track {
public:
    // Life state; recorded pictures carry the raw values.
    enum State : int { Tentative = 0, Confirmed = 1, Coasting = 2, Terminated = 3 };

    // The surveillance behind the track; recorded pictures carry the raw values.
    enum Type : int {
        Unknown = 0,
        Psr = 1, // primary radar only
        Ssr = 2, // secondary radar only
        PsrSsr = 3,
        ModeS = 4, // all-call or roll-call
        ModeSPsr = 5,
        Adsb = 6,
        Mlat = 7,
        Smr = 8, // surface movement radar
        SdpsModeS = 9, // system track with aircraft-derived data
        Sdps = 10, // system track without
    };

    enum VerticalTrend : int { TrendUnknown = 0, TrendLevel = 1, TrendClimbing = 2, TrendDescending = 3 };

    // What an aircraft says is wrong.
    enum Emergency : int { NoEmergency = 0, UnlawfulInterference = 1, RadioFailure = 2, GeneralEmergency = 3 };

    static constexpr std::size_t MaximumHistory = 1000; // elements

    // The number is the system's own and never changes; now is UTC.
    explicit Track(unsigned int trackNumber, const QDateTime &now = QDateTime::currentDateTimeUtc());

    Type type() const { return m_type; }
    void setType(Type type) { m_type = type; }

    // Which kind of sensor sees the aircraft: the type, unless the source of a system track says more. Only types of
    // single sensors are meant to be set; Unknown takes it back.
    Type detectedBy() const { return m_detectedBy == Unknown ? m_type : m_detectedBy; }
    void setDetectedBy(Type type) { m_detectedBy = type; }

    // Unique per track object over the program's run; 0 until a manager assigns one. Tells apart two successive tracks
    // under one track number.
    quint64 incarnationId() const { return m_incarnationId; }
    void setIncarnationId(quint64 id) { m_incarnationId = id; }

    unsigned int trackNumber() const { return m_trackNumber; }

    // The sensor's own track number; valid when not 0.
    unsigned int otherTrackNumber() const { return m_otherTrackNumber; }
    bool otherTrackNumberValid() const { return m_otherTrackNumber != 0; }
    void setOtherTrackNumber(unsigned int number);

    // 24-bit ICAO aircraft address; setting it makes it valid unless it is 0.
    unsigned int icaoAddr() const { return m_icaoAddr; }
    bool icaoAddrValid() const { return m_icaoAddrValid; }
    void setIcaoAddr(unsigned int address);
    // "4B1A2C", or "------".
    QString icaoAddrString() const;

    // The stored call sign, or "-------" when it is not valid.
    QString modeSCallsign() const;
    bool modeSCallsignValid() const { return !m_modeSCallsign.isEmpty(); }
    // Stores the text trimmed and in upper case; valid when anything is left.
    void setModeSCallsign(const QString &callsign);

    // Mode 3/A code as its binary value, 0 to 4095. Value and flags are set independently.
    unsigned int modeACode() const { return m_modeACode; }
    bool modeACodeValid() const { return m_modeACodeValid; }
    bool modeACodeSmoothed() const { return m_modeACodeSmoothed; }
    bool modeACodeGarbled() const { return m_modeACodeGarbled; }
    void setModeACode(unsigned int code);
    void setModeACodeValid(bool valid);
    void setModeACodeSmoothed(bool smoothed);
    void setModeACodeGarbled(bool garbled);
    // A code that the sensor has not validated stands for no emergency. True at first.
    void setModeACodeValidated(bool validated) { m_modeACodeValidated = validated; }
    // Four octal digits, then "G" when garbled, then "S" when smoothed; "----" when not valid.
    QString modeAString() const { return m_modeAString; }

    // By the Mode A code 7500, 7600 or 7700, when it is valid, validated and not garbled; else as reported.
    Emergency emergency() const;
    // "HIJ", "RDO", "EMG"; empty for none.
    static QString emergencyString(Emergency emergency);
    // Beside the Mode A code, with the time of the report, UTC.
    Emergency reportedEmergency() const { return m_reportedEmergency; }
    const QDateTime &reportedEmergencyLastUpdate() const { return m_reportedEmergencyLastUpdate; }
    void setReportedEmergency(Emergency emergency, const QDateTime &now);

    // The pilot identifies himself by the special pulse.
    bool spi() const { return m_spi; }
    void setSpi(bool spi) { m_spi = spi; }

    // Valid when the coordinate itself is.
    const GeoCoordinate &geoCoordinate() const { return m_geoCoordinate; }
    bool geoCoordinateValid() const { return m_geoCoordinateValid; }
    void setGeoCoordinate(const GeoCoordinate &coordinate);

    // Metres in the plane of the current projection, x east, y north; setting it makes it valid.
    const QPointF &carCoordinate() const { return m_carCoordinate; }
    bool carCoordinateValid() const { return m_carCoordinateValid; }
    void setCarCoordinate(const QPointF &coordinate);
    // Neither position is valid until it is set again.
    void clearPosition();

    double groundSpeed() const { return m_groundSpeed; } // knots
    bool groundSpeedValid() const { return m_groundSpeedValid; }
    void setGroundSpeed(double speed) { m_groundSpeed = speed; }
    void setGroundSpeedValid(bool valid) { m_groundSpeedValid = valid; }

    // Track angle over ground, degrees clockwise from north.
    double heading() const { return m_heading; }
    bool headingValid() const { return m_headingValid; }
    void setHeading(double heading) { m_heading = heading; }
    void setHeadingValid(bool valid) { m_headingValid = valid; }

    bool isGround() const { return m_ground; }
    void setGround(bool ground) { m_ground = ground; }

    int level() const { return m_level; } // pressure level in feet
    bool levelValid() const { return m_levelValid; }
    void setLevel(int level) { m_level = level; }
    void setLevelValid(bool valid) { m_levelValid = valid; }

    int selectedAltitude() const { return m_selectedAltitude; } // feet
    bool selectedAltitudeValid() const { return m_selectedAltitudeValid; }
    const QDateTime &selectedAltitudeLastUpdate() const { return m_selectedAltitudeLastUpdate; }
    void setSelectedAltitude(int altitude, const QDateTime &now);
    void setSelectedAltitudeValid(bool valid) { m_selectedAltitudeValid = valid; }

    int verticalRate() const { return m_verticalRate; } // feet per minute, positive climbing
    bool verticalRateValid() const { return m_verticalRateValid; }
    const QDateTime &verticalRateLastUpdate() const { return m_verticalRateLastUpdate; }
    void setVerticalRate(int rate, const QDateTime &now);
    void setVerticalRateValid(bool valid) { m_verticalRateValid = valid; }

    VerticalTrend verticalTrend() const { return m_verticalTrend; }
    void setVerticalTrend(VerticalTrend trend) { m_verticalTrend = trend; }

    // Alerts that involve this track, whatever their state.
    QSet<QSharedPointer<Alert>> alerts() const { return m_alerts; }
    void addAlert(const QSharedPointer<Alert> &alert) { m_alerts.insert(alert); }
    void removeAlert(const QSharedPointer<Alert> &alert) { m_alerts.remove(alert); }
    // The types of its active alerts in the order "MSAW APW STCA", each at most once; empty when there is none.
    QString alertsString() const;

    // Puts the present position, ground flag and level in front of the history and restarts the track's age. Does
    // nothing while the WGS-84 position is not valid: a track's age counts from its last valid position.
    void recordHistory(const QDateTime &now = QDateTime::currentDateTimeUtc());
    // Newest first, at most MaximumHistory.
    const std::deque<TrackHistoryElement> &history() const { return m_history; }

    // Of those that it was made of, where they are kept.
    ReportLink &newestReport() { return m_newestReport; }

    // The same for every track: left 13, top -13, 80 wide, 20 high.
    static QRectF rect() { return {13.0, -13.0, 80.0, 20.0}; }

    // UTC time of the last recorded position, of construction before the first.
    const QDateTime &lastUpdate() const { return m_lastUpdate; }

    State state() const { return m_state; }
    void setState(State state) { m_state = state; }
    bool tentative() const { return m_state == Tentative; }
    bool confirmed() const { return m_state == Confirmed; }
    bool coasting() const { return m_state == Coasting; }
    bool terminated() const { return m_state == Terminated; }

private:
    friend class TrackManager;

    // Its manager cannot find it by its identity before it is registered.
    void markUnindexed();
    void updateModeAString();

    quint64 m_incarnationId = 0;
    ReportLink m_newestReport = 0; // beside what a report is found by
    Type m_type = Unknown;
    Type m_detectedBy = Unknown;
    unsigned int m_trackNumber = 0;
    unsigned int m_otherTrackNumber = 0;
    unsigned int m_icaoAddr = 0;
    unsigned int m_modeACode = 0;
    int m_level = 0;
    int m_selectedAltitude = 0;
    int m_verticalRate = 0;
    VerticalTrend m_verticalTrend = TrendUnknown;
    State m_state = Tentative;
    Emergency m_reportedEmergency = NoEmergency;
    bool m_indexed = false; // by its manager, under its present identity
    bool m_icaoAddrValid = false;
    bool m_modeACodeValid = false;
    bool m_modeACodeSmoothed = false;
    bool m_modeACodeGarbled = false;
    bool m_modeACodeValidated = true;
    bool m_spi = false;
    bool m_geoCoordinateValid = false;
    bool m_carCoordinateValid = false;
    bool m_groundSpeedValid = false;
    bool m_headingValid = false;
    bool m_ground = false;
    bool m_levelValid = false;
    bool m_selectedAltitudeValid = false;
    bool m_verticalRateValid = false;
    double m_groundSpeed = 0.0;
    double m_heading = 0.0;
    QPointF m_carCoordinate;
    GeoCoordinate m_geoCoordinate;
    QString m_modeSCallsign;
    // Texts are made when their values change, not for every snapshot.
    QString m_icaoAddrString;
    QString m_modeAString;
    QDateTime m_selectedAltitudeLastUpdate;
    QDateTime m_verticalRateLastUpdate;
    QDateTime m_reportedEmergencyLastUpdate;
    QDateTime m_lastUpdate;
    QSet<QSharedPointer<Alert>> m_alerts;
    std::shared_ptr<int> m_unindexedCount; // how many tracks of its manager are not indexed; null without a manager
    // A list that is filled at the front and cut at the back would keep four times the memory that its elements need.
    std::deque<TrackHistoryElement> m_history;
};
