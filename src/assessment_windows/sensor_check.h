#pragma once

#include "assessment_windows/live_assessment.h"
#include "assessment_windows/sensor_check_window.h"

#include <QObject>
#include <QPointer>

class DetectionLayer;
class GeoMapDisplay;
class SensorManager;
class Projector;

// The sensor check of a main window: its window, made when it is first asked for, and its layer on the map. GUI thread.
class SensorCheck final : public QObject {
    Q_OBJECT

public:
    // All must outlive this object. The window of the check stands over the one that is given.
    SensorCheck(GeoMapDisplay *display, Projector *projector, const SensorManager *sensors, QWidget *window);
    ~SensorCheck() override; // closes its window, and with it the tap

    // Before show().
    void setSwitchTap(LiveAssessment::SwitchTap switchTap) { m_switchTap = std::move(switchTap); }
    // The input that is open; a null sensor is one that nothing is known of.
    void setInput(bool isOpen, const QString &name, const Config &config);

    SensorCheckWindow *show();

private:
    SensorAssessor::Options options() const;
    void showDetection(const std::optional<SensorReport> &sensor);

    QWidget *m_parentWindow;
    const SensorManager *m_sensors;
    DetectionLayer *m_layer; // the display's
    LiveAssessment::SwitchTap m_switchTap;
    QPointer<SensorCheckWindow> m_window;
    Config m_config;
    bool m_isInputOpen = false;
    QString m_inputName;
};
