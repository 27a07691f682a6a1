#include "ui/stats_window.h"

#include "widgets/figure_font.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr auto NotReported = "-";
constexpr auto LayerPrefix = "layer "; // of the names of their values
constexpr auto WidestFlow = "100000.0/s, 100000.0 KB/s";
constexpr auto WidestCost = "1000.0 / 1000.0 ms";
constexpr int Gap = 24; // pixels

QString fixed(double value)
{
    return QString::number(value, 'f', 1);
}

} // namespace

StatsWindow::StatsWindow(QWidget *parent) : GeometryDialog("StatsWindow", parent)
{
    setWindowTitle(tr("Statistics"));
    // Beside each other: the layers are many, and the window has to fit onto a small screen.
    auto *panes = new QHBoxLayout;
    QGridLayout *grid = addPane(panes);
    addHeading(grid, tr("Data Pipeline (10 s window)"));
    addValue(grid, "tracks", tr("Tracks in snapshot:"));
    addValue(grid, "alerts", tr("Alerts in snapshot:"));
    addValue(grid, "generation", tr("Snapshot generation, average / maximum:"));
    addValue(grid, "input", tr("Input:"));
    addValue(grid, "radials", tr("Video radials:"));
    addValue(grid, "weatherInterval", tr("Weather picture interval:"));
    addValue(grid, "weatherVectors", tr("Vectors of last weather picture:"));
    addHeading(grid, tr("Dropped before display (since start)"));
    addValue(grid, "droppedSnapshots", tr("Snapshots:"));
    addValue(grid, "droppedPlots", tr("Plots:"));
    addValue(grid, "droppedVideo", tr("Video batches:"));
    addValue(grid, "droppedWeather", tr("Weather pictures:"));
    addValue(grid, "emptyWeather", tr("Weather pictures without content:"));
    addValue(grid, "placelessWeather", tr("Weather pictures without the radar's place:"));
    addValue(grid, "videoDelay", tr("Largest video delay:"));
    addValue(grid, "weatherDelay", tr("Largest weather delay:"));
    panes->addSpacing(Gap);
    m_grid = grid = addPane(panes);
    addHeading(grid, tr("Painting (10 s window)"));
    addValue(grid, "frames", tr("Frames:"));
    addValue(grid, "mapPaint", tr("Maps, average / maximum:"));
    addValue(grid, "trackPaint", tr("Tracks, average / maximum:"));
    addValue(grid, "paint", tr("Whole frame, average / maximum:"));
    addHeading(grid, tr("Map layers (last frame)"));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    auto *copy = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    copy->setObjectName("copy");
    copy->setToolTip(tr("Copy the figures to the clipboard"));
    connect(copy, &QPushButton::clicked, this, [this] { QGuiApplication::clipboard()->setText(clipboardText()); });
    connect(buttons, &QDialogButtonBox::rejected, this, &StatsWindow::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(panes, 1);
    layout->addWidget(buttons);
}

QGridLayout *StatsWindow::addPane(QBoxLayout *panes)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(Gap);
    grid->setColumnStretch(1, 1);
    auto *pane = new QVBoxLayout;
    pane->addLayout(grid);
    pane->addStretch(1);
    panes->addLayout(pane);
    return grid;
}

void StatsWindow::addHeading(QGridLayout *grid, const QString &text)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    const int row = grid->rowCount();
    grid->setRowMinimumHeight(row, row > 1 ? 2 * label->sizeHint().height() : 0);
    grid->addWidget(label, row, 0, 1, 2, Qt::AlignBottom);
}

void StatsWindow::addValue(QGridLayout *grid, const QString &name, const QString &label)
{
    auto *value = new QLabel(NotReported);
    value->setObjectName(name);
    value->setFont(figureFont());
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    value->setMinimumWidth(value->fontMetrics().horizontalAdvance(grid == m_grid ? WidestCost : WidestFlow));
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const int row = grid->rowCount();
    grid->addWidget(new QLabel(label), row, 0);
    grid->addWidget(value, row, 1);
    m_values.insert(name, value);
}

void StatsWindow::showValue(const QString &name, const QString &text)
{
    m_values.value(name)->setText(text);
}

void StatsWindow::setPipelineStats(const PipelineStats &stats)
{
    m_pipeline = stats;
    showValue("tracks", QString::number(stats.snapshotTracks));
    showValue("alerts", QString::number(stats.snapshotAlerts));
    showValue("generation", tr("%1 / %2 ms").arg(stats.generationAverageMs).arg(stats.generationMaximumMs));
    showValue(
        "input", tr("%1/s, %2 KB/s").arg(fixed(stats.inputPacketsPerSecond), fixed(stats.inputKilobytesPerSecond)));
    showValue("radials", tr("%1/s").arg(fixed(stats.videoRadialsPerSecond)));
    showValue("weatherInterval",
        stats.weatherIntervalValid ? tr("%1 s").arg(fixed(stats.weatherSecondsPerPicture)) : QString(NotReported));
    showValue("weatherVectors", QString::number(stats.weatherVectors));
}

void StatsWindow::setDropStats(const DropStats &stats)
{
    m_drops = stats;
    showValue("droppedSnapshots", QString::number(stats.snapshots));
    showValue("droppedPlots", QString::number(stats.plots));
    showValue("droppedVideo", QString::number(stats.videoBatches));
    showValue("droppedWeather", QString::number(stats.weatherPictures));
    showValue("emptyWeather", QString::number(stats.emptyWeatherPictures));
    showValue("placelessWeather", QString::number(stats.placelessWeatherPictures));
    showValue("videoDelay", tr("%1 ms").arg(stats.videoDelayMs));
    showValue("weatherDelay", tr("%1 ms").arg(stats.weatherDelayMs));
}

void StatsWindow::setPaintStats(const PaintStats &stats)
{
    m_paint = stats;
    const auto cost = [](double average, double maximum) {
        return tr("%1 / %2 ms").arg(fixed(average), fixed(maximum));
    };
    showValue("frames", QString::number(stats.frameCount));
    showValue("mapPaint", cost(stats.mapAverage, stats.mapMaximum));
    showValue("trackPaint", cost(stats.trackAverage, stats.trackMaximum));
    showValue("paint", cost(stats.paintAverage, stats.paintMaximum));
}

void StatsWindow::setLayerTimes(const QList<GeoMapDisplay::LayerTime> &times)
{
    m_layers = times;
    for (const GeoMapDisplay::LayerTime &time : times) {
        const QString name = LayerPrefix + time.name;
        if (!m_values.contains(name)) {
            addValue(m_grid, name, tr("%1:").arg(time.name));
        }
        showValue(name, tr("%1 ms").arg(fixed(time.milliseconds)));
    }
}

QString StatsWindow::clipboardText() const
{
    QStringList lines;
    const auto add = [&lines](const char *name, const auto value) {
        lines += QString("%1:%2").arg(QString(name)).arg(value);
    };
    if (m_pipeline) {
        add("PipelineSnapshotTracks", m_pipeline->snapshotTracks);
        add("PipelineSnapshotAlerts", m_pipeline->snapshotAlerts);
        add("PipelineGenAvgMs", m_pipeline->generationAverageMs);
        add("PipelineGenMaxMs", m_pipeline->generationMaximumMs);
        add("PipelineInputPacketsPerSec", m_pipeline->inputPacketsPerSecond);
        add("PipelineInputKBytesPerSec", m_pipeline->inputKilobytesPerSecond);
        add("PipelineVideoRadialsPerSec", m_pipeline->videoRadialsPerSecond);
        add("PipelineWeatherSecondsPerPicture", m_pipeline->weatherSecondsPerPicture);
        add("PipelineWeatherVectors", m_pipeline->weatherVectors);
    }
    if (m_drops) {
        add("DropSnapshots", m_drops->snapshots);
        add("DropPlots", m_drops->plots);
        add("DropVideoBatches", m_drops->videoBatches);
        add("DropWeatherPictures", m_drops->weatherPictures);
        add("DropEmptyWeatherPictures", m_drops->emptyWeatherPictures);
        add("DropPlacelessWeatherPictures", m_drops->placelessWeatherPictures);
        add("DropVideoMaxDelayMs", m_drops->videoDelayMs);
        add("DropWeatherMaxDelayMs", m_drops->weatherDelayMs);
    }
    if (m_paint) {
        add("PaintFrames", m_paint->frameCount);
        add("PaintMapAvgMs", m_paint->mapAverage);
        add("PaintMapMaxMs", m_paint->mapMaximum);
        add("PaintTrackAvgMs", m_paint->trackAverage);
        add("PaintTrackMaxMs", m_paint->trackMaximum);
        add("PaintFrameAvgMs", m_paint->paintAverage);
        add("PaintFrameMaxMs", m_paint->paintMaximum);
    }
    for (const GeoMapDisplay::LayerTime &time : m_layers) {
        lines += QString("Layer%1Ms:%2").arg(QString(time.name).remove(u' ')).arg(time.milliseconds);
    }
    return lines.join(QLatin1Char('\n'));
}
