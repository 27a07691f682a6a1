#pragma once

#include "assessment/bias_estimator.h"
#include "assessment/delay_sample.h"
#include "assessment/plot_chains.h"
#include "assessment/reference_tracks.h"
#include "assessment/rotation_meter.h"
#include "geo/line_of_sight.h"

#include <map>

// All that is measured of one radar.
class RadarAssessor {
public:
    // Where it is not given, the place is what the radar says in its north markers.
    void setSite(const GeoCoordinate &site);
    void setName(const QString &name) { m_name = name; }

    // False for one that came before.
    bool addPlot(const RadarPlot &plot);
    // A service message of category 2 or 34.
    void addService(int category, const _ast_datarecord_t &record, double time);
    void addDelay(bool isService, double seconds) { (isService ? m_serviceDelay : m_plotDelay).note(seconds); }
    void addMatch(ReferenceKind kind, quint64 target, const RadarPlot &plot, const ReferencePoint &before,
        const ReferencePoint &after);
    void settle(double now);

    // Without identification.
    SensorReport report() const;

private:
    template <typename Service>
    void noteAntenna(const Service &record, double time);
    void heard(double time);

    QString m_name;
    GeoCoordinate m_site;
    bool m_siteIsGiven = false;
    std::optional<LineOfSight> m_antenna;
    RotationMeter m_rotation;
    PlotChains m_chains;
    DelaySample m_serviceDelay;
    DelaySample m_plotDelay;
    std::map<ReferenceKind, BiasEstimator> m_biases;
    qint64 m_plots = 0;
    qint64 m_serviceMessages = 0;
    double m_lastHeard = 0.0;
};
