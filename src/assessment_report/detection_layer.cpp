#include "assessment_report/detection_layer.h"

#include "app/config.h"
#include "geo/polar_origin.h"
#include "geo/projector.h"
#include "view/contrast.h"
#include "view/geo_view.h"
#include "view/text_room.h"

#include <QGuiApplication>
#include <QPainter>

namespace {

constexpr int Opacity = 120; // of 255: what lies under it is still to be seen
constexpr int ArcSteps = 4;
constexpr double KeyWidth = 190.0; // pixels, as are the others
constexpr double KeyLine = 17.0;
constexpr double KeyMargin = 12.0;

QPolygonF outlineOf(Projector &projector, const PolarOrigin &site, int ring, int sector)
{
    constexpr double Width = 360.0 / DetectionGrid::Sectors;
    QPolygonF outline;
    const auto add = [&](double range, double azimuth) {
        const auto [latitude, longitude] = site.at(range, azimuth);
        outline += projector.toCartesian(latitude, longitude);
    };
    for (int step = 0; step <= ArcSteps; ++step) {
        add((ring + 1) * DetectionGrid::RingWidth, Width * (sector + static_cast<double>(step) / ArcSteps));
    }
    for (int step = ring > 0 ? ArcSteps : 0; step >= 0; --step) {
        add(ring * DetectionGrid::RingWidth, Width * (sector + static_cast<double>(step) / ArcSteps));
    }
    return outline;
}

double keyHeight()
{
    return KeyLine * (static_cast<double>(detectionscale::Steps.size()) + 1.0) + KeyMargin;
}

} // namespace

DetectionLayer::DetectionLayer(Projector *projector, QObject *parent)
    : GeoLayer(tr("Detection"), parent), m_projector(projector), m_ground(Config().mapBackgroundColor)
{
    setVisible(false);
}

void DetectionLayer::setDetection(const GeoCoordinate &site, const DetectionGrid &grid, const QString &title)
{
    m_cells.clear();
    m_title = title;
    const PolarOrigin origin(site);
    for (int ring = 0; site.isValid() && ring < grid.usedRings(); ++ring) {
        for (int sector = 0; sector < DetectionGrid::Sectors; ++sector) {
            const auto probability = detectionscale::probability(grid.cell(ring, sector), DetectionKind::Any);
            if (probability) {
                QColor color = detectionscale::color(*probability);
                color.setAlpha(Opacity);
                m_cells.push_back({outlineOf(*m_projector, origin, ring, sector), color});
            }
        }
    }
    Q_EMIT polluted();
}

void DetectionLayer::applyConfig(const Config &config)
{
    m_ground = config.mapBackgroundColor;
}

// In a corner that nothing else has taken.
void DetectionLayer::placeTexts(const GeoView &view, TextRoom &room)
{
    m_keyPlace = {};
    const QRectF screen = view.screenRect();
    const QSizeF size(KeyWidth, keyHeight());
    const QPointF corners[] = {{KeyMargin, KeyMargin}, {screen.width() - KeyWidth - KeyMargin, KeyMargin},
        {KeyMargin, screen.height() - size.height() - KeyMargin},
        {screen.width() - KeyWidth - KeyMargin, screen.height() - size.height() - KeyMargin}};
    for (const QPointF &corner : corners) {
        if (!m_cells.empty() && m_keyPlace.isEmpty() && room.takeIfFree(QRectF(corner, size))) {
            m_keyPlace = QRectF(corner, size);
        }
    }
}

void DetectionLayer::paint(QPainter &painter, const GeoView &view)
{
    painter.setPen(Qt::NoPen);
    for (const Cell &cell : m_cells) {
        if (cell.outline.boundingRect().intersects(view.planeRect())) {
            painter.setBrush(cell.color);
            painter.drawPolygon(cell.outline);
        }
    }
    if (!m_keyPlace.isEmpty()) {
        painter.resetTransform();
        paintKey(painter);
    }
}

void DetectionLayer::paintKey(QPainter &painter) const
{
    QColor ground = m_ground;
    ground.setAlpha(215);
    painter.fillRect(m_keyPlace, ground);
    const QColor ink = groundFor(m_ground); // black on light grounds, white on dark ones
    painter.setFont(QGuiApplication::font());
    painter.setPen(ink);
    double y = m_keyPlace.top() + KeyMargin / 2;
    painter.drawText(QRectF(m_keyPlace.left() + 8, y, KeyWidth - 16, KeyLine), Qt::AlignLeft | Qt::AlignVCenter,
        painter.fontMetrics().elidedText(m_title, Qt::ElideRight, static_cast<int>(KeyWidth) - 16));
    for (std::size_t step = detectionscale::Steps.size(); step > 0; --step) {
        y += KeyLine;
        QColor color(detectionscale::Steps[step - 1].color);
        color.setAlpha(Opacity); // as on the map
        painter.fillRect(QRectF(m_keyPlace.left() + 8, y + 3, 14, 11), color);
        painter.drawText(QRectF(m_keyPlace.left() + 30, y, KeyWidth - 38, KeyLine), Qt::AlignLeft | Qt::AlignVCenter,
            detectionscale::stepText(step - 1));
    }
}
