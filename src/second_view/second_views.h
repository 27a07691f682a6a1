#pragma once

#include "second_view/plan_view_window.h"
#include "widgets/urgency.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

// The further plan views, each in a window of its own: they are made, kept over restarts and given what the main one
// gets. GUI thread.
class SecondViews final : public QObject {
    Q_OBJECT

public:
    using MayStore = std::function<bool()>;

    // Asked before what is open is stored: a locked position keeps its set-up.
    SecondViews(const PlanViewWindow::Shared &shared, MayStore mayStore);
    ~SecondViews() override;

    // Looks where the main view looks, with its layers.
    PlanViewWindow *open();
    const std::vector<std::unique_ptr<PlanViewWindow>> &windows() const { return m_windows; }

    // The views of the last run, from the window state.
    void restore();
    // From now on closing a view is the program's end and not the operator's wish.
    void closeAll();

    void applyConfig(const Config &config, SettingGroups changed);
    void setSensor(const QSharedPointer<SensorInfo> &sensor);
    void beginRadarPicture(const QList<QSharedPointer<SensorInfo>> &known);
    void setSnapshot(const QSharedPointer<const DisplaySnapshot> &snapshot);
    // No tile service is asked.
    void barTileServices();
    // As over the main view; the texts are empty when there is nothing to say.
    void showText(const QString &text);
    void showWarning(Urgency urgency, const QString &headline, const QString &text);

public Q_SLOTS:
    void showWeather(const WeatherProcessor::Picture &picture);
    void showRadial(const VideoProcessor::Radial &radial);
    void antennaRotated(double azimuthDegrees);
    void antennaNorthCrossed();

Q_SIGNALS:
    void trackSelected(unsigned long long id);
    void explainRequested();
    void acknowledgeRequested(unsigned long long id);
    void tileConsentGiven();
    void logMessage(LogLevel level, const QString &text);

private:
    using Notice = std::function<void(PlanViewWindow &)>;

    PlanViewWindow *add();
    void forget(PlanViewWindow *window);
    void save() const;
    int freeNumber() const;
    void forEach(const Notice &notice);

    const PlanViewWindow::Shared m_shared;
    const MayStore m_mayStore;
    std::vector<std::unique_ptr<PlanViewWindow>> m_windows;
    QTimer m_lookDelay; // changes of the look come many at a time
    Config m_config;
    QSharedPointer<SensorInfo> m_sensor;
    QList<QSharedPointer<SensorInfo>> m_knownSensors;
    QSharedPointer<const DisplaySnapshot> m_snapshot;
    Notice m_notice; // what stands over the views
    bool m_tilesBarred = false;
    bool m_ending = false;
};
