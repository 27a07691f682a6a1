#include "assessment_windows/sensor_check.h"

#include "assessment_report/detection_layer.h"
#include "display/geo_map_display.h"
#include "sensors/radar_sensor_info.h"
#include "sensors/sensor_manager.h"
#include "widgets/window_opening.h"

namespace {

SensorAssessor::Radar radarOf(const RadarSensorInfo &sensor)
{
    GeoCoordinate site = sensor.location();
    if (site.isValid()) {
        site.setAltitude(sensor.antennaAltitude());
    }
    return {sensor.sac(), sensor.sic(), sensor.name(), site};
}

} // namespace

SensorCheck::SensorCheck(GeoMapDisplay *display, Projector *projector, const SensorManager *sensors, QWidget *window)
    : m_parentWindow(window), m_sensors(sensors),
      m_layer(display->addLayer<DetectionLayer>(MapLayer::Weather, projector))
{
}

SensorCheck::~SensorCheck()
{
    delete m_window.data();
}

void SensorCheck::setInput(bool isOpen, const QString &name, const Config &config)
{
    m_isInputOpen = isOpen;
    m_inputName = name;
    m_config = config;
    if (m_window) {
        m_window->setInput(isOpen, name);
    }
}

SensorCheckWindow *SensorCheck::show()
{
    if (!m_window) {
        m_window = new SensorCheckWindow(
            m_switchTap, [this] { return options(); }, m_parentWindow);
        m_window->setInput(m_isInputOpen, m_inputName);
        connect(m_window, &SensorCheckWindow::detectionChosen, this, &SensorCheck::showDetection);
    }
    bringUp(m_window);
    return m_window;
}

// The configured sensor goes before one of the file with the same identification.
SensorAssessor::Options SensorCheck::options() const
{
    SensorAssessor::Options options;
    options.format = m_config.processorAsterixFormat;
    if (const auto radar = m_config.sensor(nullptr).dynamicCast<RadarSensorInfo>()) {
        options.radars += radarOf(*radar);
    }
    for (const QString &name : m_sensors->sensorNames()) {
        if (const auto radar = m_sensors->findSensor(name).dynamicCast<RadarSensorInfo>()) {
            options.radars += radarOf(*radar);
        }
    }
    return options;
}

void SensorCheck::showDetection(const std::optional<SensorReport> &sensor)
{
    m_layer->setVisible(sensor.has_value());
    if (sensor) {
        m_layer->setDetection(sensor->site, sensor->detection.grid, tr("Detected, %1").arg(sensor->title()));
    }
}
