#pragma once

#include "engine/report_archive.h"
#include "explanation/absence.h"
#include "explanation/track_explanation.h"
#include "inspection/place_contents.h"

#include <QObject>
#include <QPointer>
#include <QSharedPointer>
#include <QTimer>

#include <functional>

class AbsenceWindow;
class Config;
class EngineHost;
class GeoTrackDisplay;
class GeoWidget;
class InspectionPane;
class QDockWidget;
class QMainWindow;
class QMenu;
class SensorInfo;
struct DisplaySnapshot;

// Answers two questions of the operator: where does what he sees come from, a track, plot, alert, weather or radar
// video, in a pane; and why is a target not shown, in a window. Asks the engine for what it keeps; answers to older
// questions are passed over. GUI thread.
class Inspection final : public QObject {
    Q_OBJECT

public:
    // All must outlive this object.
    struct Sources {
        GeoWidget *plan = nullptr; // with its displays
        EngineHost *host = nullptr;
        const Config *config = nullptr;
        std::function<QSharedPointer<const DisplaySnapshot>()> newest;
        std::function<QSharedPointer<SensorInfo>()> sensor; // of the input; null: none
        // What the window knows of the input: whether it is open or paused, and the source that is checked.
        std::function<AbsenceFacts()> inputFacts;
    };

    // The pane becomes the window's.
    Inspection(QMainWindow *window, const Sources &sources);
    ~Inspection() override;

    QDockWidget *dock() const { return m_dock; }
    InspectionPane *pane() const { return m_pane; }

public Q_SLOTS:
    // Asks again for what the pane shows, while it is in sight.
    void refresh();
    // Shows the pane with what the selected track is made of, or an alert, by its key on the AlertBoard.
    void explainSelectedTrack();
    void explainAlertOf(quint64 alert);
    // Shows or hides the pane. While no track is selected it shows what the pointer is on, and hides only where that is
    // nothing.
    void toggle(bool on);
    // Puts in front of the menu of a place, plane metres, what there is to explain.
    void addPlaceActions(QMenu *menu, const QPointF &planePoint);
    void showAbsenceWindow();

Q_SIGNALS:
    // What the window has to do: the cures that concern labels, plots, input and settings.
    void cureChosen(Cure cure);
    // The operator wants this track to be the selected one.
    void trackChosen(unsigned long long id);

private:
    void makeDock(QMainWindow *window);
    void ask(const ReportQuestion &question);
    void takeReports(const AskedReports &reports);
    void showTrack(const AskedReports &reports, const DisplaySnapshot &snapshot);
    void showPlot(const AskedReports &reports, const DisplaySnapshot &snapshot);
    void showWeather(const AskedReports &reports, const DisplaySnapshot &snapshot);
    void showEcho(const AskedReports &reports, const DisplaySnapshot &snapshot);
    void showAlert(const AskedReports &reports, const DisplaySnapshot &snapshot);
    void explainPlot(const Plot &plot);
    void explainWeather(const ShownWeather &weather);
    void explainEcho(const ShownEcho &echo);
    std::optional<QPointF> pointedAt() const;
    bool explainPointedAt();
    void show(const ReportQuestion &question);
    void noteSelection();
    void lookFor(const QString &text);
    void takeSightings(const Sightings &sightings);
    void applyCure(const AbsenceFinding &finding);
    ExplanationSettings explanationSettings() const;

    const Sources m_sources;
    QMainWindow *m_window;
    QDockWidget *m_dock = nullptr; // these two are the window's
    InspectionPane *m_pane = nullptr;
    QPointer<AbsenceWindow> m_absence;
    ReportQuestion m_question; // about the subject of the pane
    ShownWeather m_weather; // these two as they were drawn when they were asked about
    ShownEcho m_echo;
    quint64 m_alert = 0; // that is explained
    quint64 m_selectedTrack = 0; // as last seen
    QTimer m_timer;
    quint64 m_lastRequest = 0; // of either kind
    quint64 m_reportsRequest = 0; // the newest of each
    quint64 m_sightingsRequest = 0;
};
