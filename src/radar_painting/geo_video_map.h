#pragma once

#include "geo/geo_coordinate.h"
#include "processors/shown_cells.h"
#include "processors/video_processor.h"
#include "radar_painting/video_palette.h"
#include "view/geo_layer.h"

#include <QList>
#include <QSharedPointer>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>

class Projector;
class SensorInfo;

// Radar video: the newest echoes of each radar around its site, fading until their validity ends. What a radar sends
// replaces what it sent of the same directions before. Radars are told apart by SAC and SIC; one that is neither the
// chosen sensor nor among the known ones is not drawn, since an echo at the wrong place is worse than none. Radials
// without a source, and all radials while the chosen sensor has no SAC and SIC, are the chosen sensor's.
class GeoVideoMap final : public GeoLayer {
    Q_OBJECT

public:
    // The projector must outlive the layer.
    explicit GeoVideoMap(Projector *projector, QObject *parent = nullptr);
    ~GeoVideoMap() override;

    void paint(QPainter &painter, const GeoView &view) override;
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override { return SettingGroup::Video; }

    // The cell that a place shows.
    // The strongest that is drawn within so many plane metres of a place; nothing where none is.
    std::optional<ShownEcho> echoAt(const QPointF &place, double reach) const;

    // Replaces the steady clock, milliseconds from any start.
    void setClock(std::function<qint64()> clock);

    // Further sensors whose video may come in. Forgets the picture.
    void setKnownSensors(const QList<QSharedPointer<SensorInfo>> &sensors);

public Q_SLOTS:
    // The sensor of the input; takes a copy of what it needs. Forgets the picture.
    void setSensor(const QSharedPointer<SensorInfo> &sensor);
    // Ignored while the layer is hidden, since video is worth nothing later. Does not ask for a repaint: video comes
    // all the time and is seen at the next one.
    void addRadial(const VideoProcessor::Radial &radial);
    void clear();

Q_SIGNALS:
    // Once for each of the first few sources whose place is not known; again after clear().
    void siteUnknown(unsigned char sac, unsigned char sic);

private:
    struct Place {
        GeoCoordinate location;
        int azimuthSteps = 0; // a turn, 0 when not known
    };
    struct Radar;
    using Source = std::pair<unsigned char, unsigned char>; // SAC and SIC

    static Place placeOf(const SensorInfo &sensor);
    const Place *findPlace(const Source &source) const;
    std::optional<ShownEcho> echoOf(const Source &source, const Radar &radar, const QPointF &place, double reach) const;
    Radar *radarFor(const VideoProcessor::Radial &radial);
    void paintRadar(QPainter &painter, const GeoView &view, Radar &radar);

    Projector *m_projector;
    std::function<qint64()> m_clock;
    VideoPalette::Settings m_colors;
    VideoPalette m_palette;
    qint64 m_validity = 0; // milliseconds

    Source m_sensorSource = {0, 0};
    Place m_sensorPlace;
    std::map<Source, Place> m_knownPlaces;
    std::map<Source, std::unique_ptr<Radar>> m_radars;
    std::set<Source> m_unknown; // reported
};
