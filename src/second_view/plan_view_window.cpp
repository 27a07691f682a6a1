#include "second_view/plan_view_window.h"

#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "display/track_display_format.h"
#include "display/track_label_lines.h"
#include "geo/projector.h"
#include "map_painting/geo_static_map.h"
#include "map_windows/static_map_feed.h"
#include "maps/map_library.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_widget.h"
#include "radar_painting/geo_weather_map.h"
#include "tile_windows/tile_maps.h"
#include "widgets/action_icon.h"
#include "widgets/figure_font.h"
#include "widgets/scope_notice.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QJsonValue>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>

#include <cmath>

namespace {

// They have a class of their own, which may have to ask.
bool isTiles(const PlanLayer &layer)
{
    return layer.visible == &Config::mapTileVisible;
}

} // namespace

PlanViewWindow::PlanViewWindow(const Shared &shared, int number, const Config &config)
    : m_shared(shared), m_number(number), m_config(config), m_plan(shared.projector, this),
      m_notice(new ScopeNotice(m_plan.widget()))
{
    setObjectName(QStringLiteral("planView%1").arg(number));
    setWindowTitle(tr("Plan View %1 - %2").arg(number).arg(QGuiApplication::applicationDisplayName()));
    m_plan.widget()->setAccessibleName(tr("Plan View %1").arg(number));
    setCentralWidget(m_plan.widget());
    m_plan.widget()->setFocus();
    m_plan.map()->staticMap()->shareGeometryOf(shared.main->map()->staticMap());
    new StaticMapFeed(shared.maps, m_plan.map()->staticMap(), this);
    m_layers.takeFrom(config);
    m_layers.showLabels(shared.main->tracks()->labelVisible());
    makeTiles();
    makeToolBar();
    makeReadOuts();
    connectPlan();
    applyConfig(config, AllSettings);
    followLook();
    followRings();
    resize(720, 540);
}

// The feed works on a layer of the plan, which goes before the window's children do.
PlanViewWindow::~PlanViewWindow()
{
    qDeleteAll(findChildren<StaticMapFeed *>(Qt::FindDirectChildrenOnly));
}

void PlanViewWindow::makeTiles()
{
    const auto edit = [this](const std::function<void(Config &)> &change) {
        Config edited = ownConfig();
        change(edited);
        m_layers.takeFrom(edited);
        const bool agreed = edited.mapTileConsent && !m_config.mapTileConsent;
        m_config.mapTileConsent = edited.mapTileConsent;
        m_tiles->applyConfig(ownConfig());
        if (agreed) {
            Q_EMIT tileConsentGiven();
        }
    };
    m_tiles = std::make_unique<TileMaps>(this, m_plan.widget(), m_shared.projector, m_shared.tiles, edit);
    connect(m_tiles.get(), &TileMaps::logMessage, this, &PlanViewWindow::logMessage);
}

void PlanViewWindow::makeToolBar()
{
    auto *bar = new QToolBar(tr("View"), this);
    bar->setObjectName("viewToolBar");
    bar->setIconSize({20, 20});
    bar->setMovable(false);
    addToolBar(bar);
    makeViewActions(bar);
    bar->addSeparator();
    makeLayerActions(bar);
    drawIcons();
}

QAction *PlanViewWindow::addAction(QToolBar *bar, const QString &text, const char *icon, const char *shortcut)
{
    auto *action = new QAction(text, this);
    action->setShortcut(QKeySequence::fromString(QLatin1String(shortcut), QKeySequence::PortableText));
    QWidget::addAction(action); // works while the tool bar has no room for it, too
    bar->addAction(action);
    m_icons.append({action, icon});
    return action;
}

void PlanViewWindow::makeViewActions(QToolBar *bar)
{
    GeoWidget *plan = m_plan.widget();
    const auto on = [&](const QString &text, const char *icon, const char *shortcut, auto slot) {
        connect(addAction(bar, text, icon, shortcut), &QAction::triggered, plan, slot);
    };
    on(tr("Zoom In"), "zoom-in", "=", &GeoWidget::zoomIn);
    on(tr("Zoom Out"), "zoom-out", "-", &GeoWidget::zoomOut);
    on(tr("Rotate Right"), "rotate-right", "]", &GeoWidget::rotateClockWise);
    on(tr("Rotate Left"), "rotate-left", "[", &GeoWidget::rotateCounterClockWise);
    on(tr("Rotate North Up"), "north-up", "", &GeoWidget::rotateNorthUp);
    constexpr std::pair<const char *, void (GeoWidget::*)()> Moves[] = {{"Left", &GeoWidget::moveLeft},
        {"Right", &GeoWidget::moveRight}, {"Up", &GeoWidget::moveUp}, {"Down", &GeoWidget::moveDown}};
    for (const auto &[key, move] : Moves) {
        auto *action = new QAction(this);
        action->setShortcut(QKeySequence(QLatin1String(key)));
        QWidget::addAction(action);
        connect(action, &QAction::triggered, plan, move);
    }
    connect(addAction(bar, tr("View of the Main Window"), "go-to", "Home"), &QAction::triggered, this,
        &PlanViewWindow::lookWhereMainLooks);
    m_follow = addAction(bar, tr("Follow Selected Track"), "follow-track");
    m_follow->setCheckable(true);
    connect(m_follow, &QAction::toggled, plan, &GeoWidget::setFollowSelectedTrack);
    connect(plan, &GeoWidget::followSelectedTrackChanged, m_follow, &QAction::setChecked);
}

void PlanViewWindow::makeLayerActions(QToolBar *bar)
{
    m_labels = addAction(bar, tr("Labels"), "track-label");
    m_labels->setCheckable(true);
    connect(m_labels, &QAction::triggered, this, &PlanViewWindow::showLabels);
    for (const PlanLayer &layer : PlanLayers::all()) {
        QAction *action = addAction(bar, QCoreApplication::translate("PlanLayers", layer.text), layer.icon);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, &layer](bool on) { showLayer(layer, on); });
        m_layerActions.append(action);
    }
}

void PlanViewWindow::makeReadOuts()
{
    m_position = new QLabel(this);
    m_scale = new QLabel(this);
    m_position->setToolTip(tr("Position under the pointer"));
    m_scale->setToolTip(tr("Scale, metres per pixel"));
    for (auto &[label, widest] : {std::pair(m_position, "8959599N 17959599W"), std::pair(m_scale, "SCL 14000")}) {
        label->setFont(figureFont());
        label->setMinimumWidth(QFontMetrics(label->font()).horizontalAdvance(QLatin1String(widest)) + 8);
        label->setTextFormat(Qt::PlainText);
        statusBar()->addPermanentWidget(label);
    }
}

void PlanViewWindow::connectPlan()
{
    GeoWidget *plan = m_plan.widget();
    connect(plan, &GeoWidget::cursorMoved, this, [this](const QPointF &point) {
        m_position->setText(
            GeoCoordinate(m_shared.projector->toWgs84(point)).toATCString(GeoCoordinate::NormalPrecisionSpace));
    });
    connect(plan, &GeoWidget::zoomChanged, this, [this](double metresPerPixel) {
        m_scale->setText(tr("SCL %1").arg(std::llround(metresPerPixel), 5, 10, QChar(' ')));
    });
    connect(plan, &GeoWidget::trackSelected, this, &PlanViewWindow::trackSelected);
    connect(plan, &GeoWidget::trackMenuRequested, this, &PlanViewWindow::showMenu);
    for (const PlanLayer &layer : PlanLayers::all()) {
        if (isTiles(layer)) { // which show nothing as long as their service may not be asked
            QAction *tiles = actionOf(layer);
            connect(m_tiles.get(), &TileMaps::changed, tiles, [this, tiles] { tiles->setChecked(m_tiles->shown()); });
        }
    }
}

Config PlanViewWindow::ownConfig() const
{
    Config config = m_config;
    m_layers.applyTo(config);
    return config;
}

void PlanViewWindow::applyConfig(const Config &config, SettingGroups changed)
{
    m_config = config;
    const Config own = ownConfig();
    m_plan.applyConfig(own, changed);
    if (changed & SettingGroup::Tiles) {
        m_tiles->applyConfig(own);
    }
    for (const PlanLayer &layer : PlanLayers::all()) {
        actionOf(layer)->setChecked(isTiles(layer) ? m_tiles->shown() : m_layers.shown(layer));
    }
    m_labels->setChecked(m_layers.labelsShown());
}

QAction *PlanViewWindow::actionOf(const PlanLayer &layer) const
{
    return m_layerActions[&layer - PlanLayers::all().data()];
}

void PlanViewWindow::showLayer(const PlanLayer &layer, bool on)
{
    if (isTiles(layer)) {
        m_tiles->show(on);
        return;
    }
    const Config before = ownConfig();
    m_layers.show(layer, on);
    applyConfig(m_config, Config::changedGroups(before, ownConfig()));
}

void PlanViewWindow::showLabels(bool on)
{
    m_layers.showLabels(on);
    m_plan.tracks()->showLabel(on);
}

void PlanViewWindow::followLook()
{
    TrackDisplayFormat format;
    format.readFrom(*m_shared.main->tracks());
    format.labelVisible = m_layers.labelsShown();
    TrackDisplayFormat shown;
    shown.readFrom(*m_plan.tracks());
    if (format != shown) {
        format.applyTo(*m_plan.tracks());
    }
}

void PlanViewWindow::followRings()
{
    const GeoRangeRingMap *main = m_shared.main->map()->rangeRingMap();
    GeoRangeRingMap *own = m_plan.map()->rangeRingMap();
    if (own->center() != main->center() || own->number() != main->number() || own->distance() != main->distance()) {
        own->setRings(main->center(), main->number(), main->distance());
    }
}

void PlanViewWindow::takeStateOfMain()
{
    m_plan.tracks()->takeAlertBoardOf(*m_shared.main->tracks());
    m_plan.map()->weatherMap()->takePictureOf(*m_shared.main->map()->weatherMap());
}

void PlanViewWindow::setTilesBarred()
{
    m_tiles->barServices();
}

void PlanViewWindow::showMenu(unsigned long long track, const QPoint &globalPosition)
{
    GeoTrackDisplay *tracks = m_plan.tracks();
    const TrackSnapshot *shown = tracks->findTrack(track);
    if (!shown) {
        return;
    }
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSection(trackName(*shown));
    const auto select = [this, tracks, track] {
        tracks->setSelected(track);
        Q_EMIT trackSelected(track);
    };
    menu->addAction(tr("Select"), this, select)->setEnabled(track != tracks->selectedTrackId());
    menu->addAction(tr("Follow"), this, [this, select] {
        select();
        m_follow->setChecked(true);
    });
    menu->addAction(tr("Centre"), this, [this, track] { m_plan.widget()->showTrack(track); });
    QAction *reset =
        menu->addAction(tr("Reset Label"), tracks, [tracks, track] { tracks->resetTrackLabelOffset(track); });
    reset->setEnabled(!tracks->trackLabelOffsetDefault(track));
    menu->addAction(tr("Explain"), this, [this, select] {
        select();
        Q_EMIT explainRequested();
    });
    menu->addSeparator();
    menu->addAction(tr("Acknowledge"), this, [this, track] { Q_EMIT acknowledgeRequested(track); });
    menu->popup(globalPosition);
}

void PlanViewWindow::lookWhereMainLooks()
{
    QTransform view;
    m_shared.main->widget()->saveViewport(view);
    m_plan.widget()->changeViewPort(view);
}

QJsonObject PlanViewWindow::state() const
{
    const GeoWidget *plan = m_plan.widget();
    const QPointF middle = plan->screenTransform().inverted().map(QPointF(plan->width() / 2, plan->height() / 2));
    const GeoCoordinate center = m_shared.projector->toWgs84(middle);
    return {{"geometry", QString::fromLatin1(saveGeometry().toBase64())}, {"latitude", center.latitude()},
        {"longitude", center.longitude()}, {"metresPerPixel", plan->currentZoom()},
        {"rotation", plan->currentRotation()}, {"layers", m_layers.toJson()}};
}

void PlanViewWindow::restore(const QJsonObject &state)
{
    restoreGeometry(QByteArray::fromBase64(state["geometry"].toString().toLatin1()));
    m_layers.takeJson(state["layers"].toObject());
    applyConfig(m_config, AllSettings);
    followLook();
    const GeoCoordinate center(state["latitude"].toDouble(qQNaN()), state["longitude"].toDouble(qQNaN()));
    const double zoom = state["metresPerPixel"].toDouble();
    if (!center.isValid() || zoom <= 0.0) {
        lookWhereMainLooks();
        return;
    }
    const QPointF middle = m_shared.projector->toCartesian(center);
    m_plan.widget()->setView(middle.x(), middle.y(), zoom);
    m_plan.widget()->rotate(state["rotation"].toDouble());
}

void PlanViewWindow::drawIcons()
{
    for (const auto &[action, icon] : std::as_const(m_icons)) {
        action->setIcon(actionIcon(QLatin1String(icon), palette()));
    }
}

void PlanViewWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange) {
        drawIcons();
    }
    QMainWindow::changeEvent(event);
}

void PlanViewWindow::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    Q_EMIT closed();
}
