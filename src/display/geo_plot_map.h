#pragma once

#include "display/plot_marks.h"
#include "tracking/plot.h"
#include "view/geo_layer.h"

#include <QColor>
#include <QPixmap>
#include <QSharedPointer>
#include <QString>

#include <bitset>
#include <deque>
#include <optional>
#include <vector>

class SensorInfo;
struct DisplaySnapshot;

// Every target report at its place, whether or not a track has been made of it, fading with its age. Ages are those of
// the picture: they count to the time of the newest snapshot.
class GeoPlotMap final : public GeoLayer {
    Q_OBJECT

public:
    // Held at once; with more of them the oldest go before they have faded. 16 MB.
    static constexpr std::size_t MaximumPlots = 500000;

    explicit GeoPlotMap(QObject *parent = nullptr);

    void paint(QPainter &painter, const GeoView &view) override;
    // Takes colour, visibility and the time that a plot is seen.
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override { return SettingGroup::Plots; }

    struct MarkMeaning {
        QString meaning;
        QPixmap picture; // carries the ratio
    };
    // The marks that the last frame showed, each once, in its pixels; none while the layer is hidden.
    std::vector<MarkMeaning> shownMarks() const;

    // The nearest that is drawn within so many metres of a place, plane metres; nothing where none is.
    std::optional<Plot> plotAt(const QPointF &place, double reach) const;

    // All that have not faded, in view or not; 0 while the layer is hidden.
    std::size_t shownPlots() const;
    // Since the layer was made: those that came and went between two snapshots, and those for which there was no room.
    quint64 lostPlots() const { return m_lost; }

public Q_SLOTS:
    // Takes over what has come since the snapshot before. Plots of another run replace those that are there.
    void setSnapshot(const DisplaySnapshot &snapshot);
    // Plots are seen for three of its report periods unless the settings name a time. Null: an unknown one.
    void setSensor(const QSharedPointer<SensorInfo> &sensor);

private:
    void take(const PlotHistory &history);
    void removeOld();
    // Milliseconds that a plot is seen.
    qint64 lifeTime() const;

    PlotMarks m_marks;
    std::bitset<PlotMarks::Kinds> m_painted; // by the last frame
    double m_ratio = 1.0; // of the last frame
    std::deque<QSharedPointer<const PlotBatch>> m_batches; // the oldest first
    std::size_t m_held = 0; // plots in them
    quint64 m_run = 0; // of the plots
    quint64 m_next = 0; // number of the first plot of the run that has not been seen
    quint64 m_lost = 0;
    qint64 m_nowMs = 0; // of the newest snapshot, since 1970 UTC
    double m_seconds = 0.0; // that a plot is seen; 0: by the report period
    double m_reportPeriod = 0.0; // seconds; 0 when not known
    QColor m_color;
};
