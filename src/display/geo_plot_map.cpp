#include "display/geo_plot_map.h"

#include "app/config.h"
#include "display/track_symbols.h"
#include "engine/display_snapshot.h"
#include "sensors/sensor_info.h"
#include "view/geo_view.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double ReportPeriodsSeen = 3.0;
constexpr double ShortestPeriod = 0.1; // seconds; anything shorter was not entered
constexpr double AssumedPeriod = 4.0; // seconds

} // namespace

GeoPlotMap::GeoPlotMap(QObject *parent) : GeoLayer(tr("Plots"), parent)
{
    applyConfig(Config());
}

void GeoPlotMap::applyConfig(const Config &config)
{
    m_color = config.mapPlotColor;
    m_seconds = config.mapPlotSeconds;
    setVisible(config.mapPlotVisible);
    Q_EMIT polluted();
}

void GeoPlotMap::setSensor(const QSharedPointer<SensorInfo> &sensor)
{
    m_reportPeriod = sensor ? sensor->reportPeriod() : 0.0;
    Q_EMIT polluted();
}

qint64 GeoPlotMap::lifeTime() const
{
    const double period = m_reportPeriod >= ShortestPeriod ? m_reportPeriod : AssumedPeriod;
    return std::llround(1000.0 * (m_seconds > 0.0 ? m_seconds : ReportPeriodsSeen * period));
}

void GeoPlotMap::setSnapshot(const DisplaySnapshot &snapshot)
{
    m_nowMs = snapshot.time.toMSecsSinceEpoch();
    take(snapshot.plots);
    removeOld();
    if (visible()) {
        Q_EMIT polluted();
    }
}

void GeoPlotMap::take(const PlotHistory &history)
{
    if (history.run != m_run) {
        m_batches.clear();
        m_held = 0;
        m_run = history.run;
        m_next = 0;
    }
    for (const auto &batch : history.batches) {
        if (batch->first < m_next) {
            continue;
        }
        m_lost += batch->first - m_next;
        m_next = batch->first + batch->plots.size();
        m_held += batch->plots.size();
        m_batches.push_back(batch);
    }
}

void GeoPlotMap::removeOld()
{
    const qint64 oldest = m_nowMs - lifeTime();
    while (!m_batches.empty()) {
        const PlotBatch &batch = *m_batches.front();
        const bool faded = batch.plots.back().timeMs <= oldest;
        if (!faded && m_held <= MaximumPlots) {
            return;
        }
        m_lost += faded ? 0 : batch.plots.size();
        m_held -= batch.plots.size();
        m_batches.pop_front();
    }
}

std::size_t GeoPlotMap::shownPlots() const
{
    const qint64 oldest = m_nowMs - lifeTime();
    std::size_t count = 0;
    for (const auto &batch : m_batches) {
        const auto seen = std::partition_point(
            batch->plots.begin(), batch->plots.end(), [oldest](const Plot &plot) { return plot.timeMs <= oldest; });
        count += static_cast<std::size_t>(batch->plots.end() - seen);
    }
    return visible() ? count : 0;
}

std::optional<Plot> GeoPlotMap::plotAt(const QPointF &place, double reach) const
{
    const qint64 oldest = m_nowMs - lifeTime();
    std::optional<Plot> nearest;
    double least = reach;
    for (const auto &batch : m_batches) {
        for (const Plot &plot : batch->plots) {
            const QPointF away = plot.place - place;
            const double distance = std::hypot(away.x(), away.y());
            if (plot.timeMs > oldest && distance <= least) { // of those at one place the newest
                least = distance;
                nearest = plot;
            }
        }
    }
    return visible() ? nearest : std::nullopt;
}

std::vector<GeoPlotMap::MarkMeaning> GeoPlotMap::shownMarks() const
{
    std::vector<MarkMeaning> shown;
    for (std::size_t kind = 0; visible() && kind < PlotMarks::Kinds; ++kind) {
        if (m_painted.test(kind)) {
            const auto type = static_cast<Track::Type>(kind);
            QPixmap picture = QPixmap::fromImage(m_marks.mark(type, 0));
            picture.setDevicePixelRatio(m_ratio);
            shown.push_back({tr("%1 plot").arg(TrackSymbols::meaning(TrackSymbols::forTrackType(type))), picture});
        }
    }
    return shown;
}

// In device pixels, so that each mark stays as sharp as it was drawn.
void GeoPlotMap::paint(QPainter &painter, const GeoView &view)
{
    const double ratio = view.devicePixelRatio();
    m_marks.prepare(m_color, ratio);
    m_ratio = ratio;
    m_painted.reset();
    painter.setWorldTransform(QTransform::fromScale(1.0 / ratio, 1.0 / ratio));
    const QTransform toDevice = view.screenTransform() * QTransform::fromScale(ratio, ratio);
    const int reach = m_marks.reach();
    const QRectF seen = QRectF(QPointF(), QSizeF(view.screenRect().size()) * ratio)
                            .adjusted(-reach - 1, -reach - 1, reach + 1, reach + 1);
    const qint64 life = std::max<qint64>(1, lifeTime());
    for (const auto &batch : m_batches) {
        for (const Plot &plot : batch->plots) {
            const qint64 age = std::max<qint64>(0, m_nowMs - plot.timeMs);
            const QPointF place = toDevice.map(plot.place);
            if (age >= life || !seen.contains(place)) {
                continue;
            }
            const QPoint pixel(static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y())));
            const QImage &mark = m_marks.mark(plot.type, static_cast<int>(age * PlotMarks::FadeSteps / life));
            painter.drawImage(pixel - QPoint(mark.width() / 2, mark.height() / 2), mark);
            m_painted.set(PlotMarks::kindOf(plot.type));
        }
    }
}
