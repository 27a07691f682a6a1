#pragma once

#include "display/geo_map_display.h"
#include "engine/pipeline_stats.h"
#include "ui/drop_stats.h"
#include "view/paint_stats.h"
#include "widgets/geometry_dialog.h"

#include <QHash>

class QBoxLayout;
class QGridLayout;
class QLabel;

#include <optional>

// What the pipeline carries, what was lost on the way to the screen, and what painting costs. Each value stands as a
// dash until its first report has come.
class StatsWindow final : public GeometryDialog {
    Q_OBJECT

public:
    explicit StatsWindow(QWidget *parent = nullptr);

    void setPipelineStats(const PipelineStats &stats);
    void setDropStats(const DropStats &stats);
    void setPaintStats(const PaintStats &stats);
    void setLayerTimes(const QList<GeoMapDisplay::LayerTime> &times);

    // One "Name:value" a line; values that have not been reported yet are left out.
    QString clipboardText() const;

private:
    static QGridLayout *addPane(QBoxLayout *panes);
    void addHeading(QGridLayout *grid, const QString &text);
    void addValue(QGridLayout *grid, const QString &name, const QString &label);
    void showValue(const QString &name, const QString &text);

    QGridLayout *m_grid = nullptr;
    QHash<QString, QLabel *> m_values;
    std::optional<PipelineStats> m_pipeline;
    std::optional<DropStats> m_drops;
    std::optional<PaintStats> m_paint;
    QList<GeoMapDisplay::LayerTime> m_layers;
};
