#pragma once

#include "tracking/tracker.h"

#include <QHash>
#include <QPointF>

#include <optional>

// What the sources have in common that report positions on the globe, in metres around their own location, or both.
class SystemTracker : public Tracker {
    Q_OBJECT

public:
    void procModeSMessage(const std::shared_ptr<korvane::modes::ModeSMessage> &message) final { refuse(*message); }

    // Positions of the kind are taken as if they had not been sent. Off at first.
    bool ignoreWgs84Coordinates() const { return m_ignoreWgs84Coordinates; }
    void setIgnoreWgs84Coordinates(bool ignore) { m_ignoreWgs84Coordinates = ignore; }
    bool ignoreCartesianCoordinates() const { return m_ignoreCartesianCoordinates; }
    void setIgnoreCartesianCoordinates(bool ignore) { m_ignoreCartesianCoordinates = ignore; }

protected:
    SystemTracker(const GeoCoordinate &location, const QSharedPointer<TrackManager> &trackManager, Projector *projector,
        QObject *parent);

    // Leaves a record's positions out as the options ask for.
    template <typename Wgs84Item, typename CartesianItem>
    void applyOptions(Wgs84Item &wgs84, CartesianItem &cartesian) const
    {
        wgs84.present = wgs84.present && !m_ignoreWgs84Coordinates;
        cartesian.present = cartesian.present && !m_ignoreCartesianCoordinates;
    }

    // What is watched of one of the sources behind the sensor.
    struct Source {
        bool warnedOfPositions = false;
        bool warnedOfTrends = false;
        int contradictions = 0; // of trends and levels, less the reports in which they agree
        int contradictedFeet = 0; // by which levels changed in those
    };
    Source &source(const _ast_sacsic_t &code) { return m_sources[static_cast<quint16>(code.sac << 8 | code.sic)]; }

    // As it is reported, or of the WGS-84 position where only that one is. Nothing where there is none. Items as
    // _ast_item_wgs84_t and _ast_item_cartesian_t.
    template <typename Wgs84Item, typename CartesianItem>
    std::optional<QPointF> planePosition(const Wgs84Item &wgs84, const CartesianItem &cartesian) const
    {
        if (cartesian.present) {
            return m_sensorPlanePosition + QPointF(cartesian.x, cartesian.y);
        }
        const Place place = wgs84.present ? placeOf(wgs84.latitude, wgs84.longitude) : Place();
        return place.valid ? std::optional(place.plane) : std::nullopt;
    }

    // Where the target is, of the plane position as planePosition() makes it: nothing where the report has no position.
    template <typename Wgs84Item>
    static std::optional<Place> reportedPlace(const Wgs84Item &wgs84, const std::optional<QPointF> &plane)
    {
        if (plane) {
            return Place{wgs84.latitude, wgs84.longitude, true, *plane};
        }
        return wgs84.present ? std::optional(Place{wgs84.latitude, wgs84.longitude}) : std::nullopt;
    }

    // Each position as it is reported, or derived from the other where only that one is; both are left as they were
    // where there is none. Positions that contradict each other are taken all the same, and warned of once a source.
    // The plane position as planePosition() makes it of the same items.
    template <typename Wgs84Item, typename CartesianItem>
    void placeReported(Track &track, const _ast_sacsic_t &code, const Wgs84Item &wgs84, const CartesianItem &cartesian,
        const std::optional<QPointF> &plane)
    {
        if (wgs84.present) {
            track.setGeoCoordinate({wgs84.latitude, wgs84.longitude});
        }
        if (plane) {
            placeOnPlane(track, *plane, !wgs84.present);
        }
        if (wgs84.present && cartesian.present) {
            comparePositions(track, code);
        }
    }

private:
    void placeOnPlane(Track &track, const QPointF &position, bool deriveWgs84) const;
    void comparePositions(const Track &track, const _ast_sacsic_t &code);

    QHash<quint16, Source> m_sources; // by SAC and SIC
    QPointF m_sensorPlanePosition;
    bool m_ignoreWgs84Coordinates = false;
    bool m_ignoreCartesianCoordinates = false;
};
