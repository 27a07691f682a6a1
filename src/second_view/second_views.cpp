#include "second_view/second_views.h"

#include "app/ui_state.h"
#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "orientation/geo_range_ring_map.h"
#include "orientation/geo_sensor_map.h"
#include "plan_view/geo_widget.h"
#include "widgets/scope_notice.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <utility>

namespace {
constexpr auto StateGroup = "planViews";
constexpr auto ViewsKey = "views";
constexpr qsizetype MostRestored = 16; // whatever a damaged state says
} // namespace

SecondViews::SecondViews(const PlanViewWindow::Shared &shared, MayStore mayStore)
    : m_shared(shared), m_mayStore(std::move(mayStore))
{
    GeoTrackDisplay *tracks = shared.main->tracks();
    m_lookDelay.setSingleShot(true);
    m_lookDelay.setInterval(0);
    connect(&m_lookDelay, &QTimer::timeout, this, [this] { forEach(&PlanViewWindow::followLook); });
    connect(tracks, &GeoTrackDisplay::polluted, this, [this] {
        if (!m_windows.empty()) {
            m_lookDelay.start();
        }
    });
    connect(tracks, &GeoTrackDisplay::selectedChanged, this, [this](unsigned long long id) {
        forEach([id](PlanViewWindow &window) { window.plan()->tracks()->setSelected(id); });
    });
    connect(tracks, &GeoTrackDisplay::acknowledged, this, [this] {
        forEach(
            [this](PlanViewWindow &window) { window.plan()->tracks()->takeAlertBoardOf(*m_shared.main->tracks()); });
    });
    connect(shared.main->map()->rangeRingMap(), &GeoLayer::polluted, this,
        [this] { forEach(&PlanViewWindow::followRings); });
}

SecondViews::~SecondViews()
{
    m_ending = true;
}

void SecondViews::forEach(const Notice &notice)
{
    for (const auto &window : m_windows) {
        notice(*window);
    }
}

PlanViewWindow *SecondViews::open()
{
    PlanViewWindow *window = add();
    window->show();
    window->restore({});
    save();
    return window;
}

PlanViewWindow *SecondViews::add()
{
    m_windows.push_back(std::make_unique<PlanViewWindow>(m_shared, freeNumber(), m_config));
    PlanViewWindow *window = m_windows.back().get();
    PlanDisplay *plan = window->plan();
    plan->beginRadarPicture(m_knownSensors);
    plan->setSensor(m_sensor);
    plan->setSnapshot(m_snapshot);
    plan->tracks()->setSelected(m_shared.main->tracks()->selectedTrackId());
    window->takeStateOfMain();
    window->followRings(); // the sensor has a centre of its own for them
    if (m_tilesBarred) {
        window->setTilesBarred();
    }
    if (m_notice) {
        m_notice(*window);
    }
    connect(window, &PlanViewWindow::trackSelected, this, &SecondViews::trackSelected);
    connect(window, &PlanViewWindow::explainRequested, this, &SecondViews::explainRequested);
    connect(window, &PlanViewWindow::acknowledgeRequested, this, &SecondViews::acknowledgeRequested);
    connect(window, &PlanViewWindow::tileConsentGiven, this, &SecondViews::tileConsentGiven);
    connect(window, &PlanViewWindow::logMessage, this, &SecondViews::logMessage);
    // Later: it is still at work on its closing.
    connect(
        window, &PlanViewWindow::closed, this, [this, window] { forget(window); }, Qt::QueuedConnection);
    return window;
}

int SecondViews::freeNumber() const
{
    int number = 2;
    const auto taken = [this, &number] {
        return std::any_of(
            m_windows.begin(), m_windows.end(), [number](const auto &window) { return window->number() == number; });
    };
    while (taken()) {
        ++number;
    }
    return number;
}

void SecondViews::forget(PlanViewWindow *window)
{
    if (!m_ending) {
        std::erase_if(m_windows, [window](const auto &one) { return one.get() == window; });
        save();
    }
}

void SecondViews::save() const
{
    if (!m_mayStore()) {
        return;
    }
    QJsonArray views;
    for (const auto &window : m_windows) {
        views.append(window->state());
    }
    UiState::saveValue(StateGroup, ViewsKey, QJsonDocument(views).toJson(QJsonDocument::Compact));
}

void SecondViews::restore()
{
    const QJsonArray views = QJsonDocument::fromJson(UiState::value(StateGroup, ViewsKey)).array();
    for (qsizetype i = 0; i < std::min(views.size(), MostRestored); ++i) {
        PlanViewWindow *window = add();
        window->show();
        window->restore(views[i].toObject());
    }
}

void SecondViews::closeAll()
{
    if (!std::exchange(m_ending, true)) {
        save();
        forEach([](PlanViewWindow &window) { window.close(); });
    }
}

void SecondViews::applyConfig(const Config &config, SettingGroups changed)
{
    m_config = config;
    forEach([&](PlanViewWindow &window) { window.applyConfig(config, changed); });
}

void SecondViews::setSensor(const QSharedPointer<SensorInfo> &sensor)
{
    m_sensor = sensor;
    forEach([&](PlanViewWindow &window) { window.plan()->setSensor(sensor); });
}

void SecondViews::beginRadarPicture(const QList<QSharedPointer<SensorInfo>> &known)
{
    m_knownSensors = known;
    forEach([&](PlanViewWindow &window) { window.plan()->beginRadarPicture(known); });
}

void SecondViews::setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot)
{
    m_snapshot = snapshot;
    forEach([&](PlanViewWindow &window) { window.plan()->setSnapshot(snapshot); });
}

void SecondViews::barTileServices()
{
    m_tilesBarred = true;
    forEach(&PlanViewWindow::setTilesBarred);
}

void SecondViews::showText(const QString &text)
{
    m_notice = [text](PlanViewWindow &window) { window.notice()->showText(text); };
    forEach(m_notice);
}

void SecondViews::showWarning(Urgency urgency, const QString &headline, const QString &text)
{
    m_notice = [=](PlanViewWindow &window) { window.notice()->showWarning(urgency, headline, text); };
    forEach(m_notice);
}

void SecondViews::showWeather(const WeatherProcessor::Picture &picture)
{
    forEach([&](PlanViewWindow &window) { window.plan()->showWeather(picture); });
}

void SecondViews::showRadial(const VideoProcessor::Radial &radial)
{
    forEach([&](PlanViewWindow &window) { window.plan()->showRadial(radial); });
}

void SecondViews::antennaRotated(double azimuthDegrees)
{
    forEach([=](PlanViewWindow &window) { window.plan()->map()->sensorMap()->antennaRotated(azimuthDegrees); });
}

void SecondViews::antennaNorthCrossed()
{
    forEach([](PlanViewWindow &window) { window.plan()->map()->sensorMap()->antennaNorthCrossed(); });
}
