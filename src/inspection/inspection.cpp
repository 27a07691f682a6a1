#include "inspection/inspection.h"

#include "app/config.h"
#include "display/geo_map_display.h"
#include "display/geo_plot_map.h"
#include "display/geo_track_display.h"
#include "display/track_label_lines.h"
#include "engine/data_engine.h"
#include "engine/display_snapshot.h"
#include "engine/engine_host.h"
#include "explanation/echo_explanation.h"
#include "explanation/symbol_explanation.h"
#include "explanation/weather_explanation.h"
#include "inspection/absence_window.h"
#include "inspection/inspection_pane.h"
#include "inspection/scope_targets.h"
#include "plan_view/geo_widget.h"
#include "sensors/radar_sensor_info.h"
#include "widgets/window_opening.h"

#include <QAction>
#include <QCursor>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>

#include <algorithm>

namespace {

constexpr int RefreshIntervalMs = 500;
constexpr QSize FirstSize(1240, 460);
constexpr double CloseZoom = 100.0; // metres per pixel at which labels have room
constexpr double SamePlace = 1.0; // metres

QList<ReportView> viewsOf(const QList<KeptReport> &reports)
{
    QList<ReportView> views;
    views.reserve(reports.size());
    std::transform(reports.begin(), reports.end(), std::back_inserter(views), viewReport);
    return views;
}

} // namespace

Inspection::Inspection(QMainWindow *window, const Sources &sources) : m_sources(sources), m_window(window)
{
    makeDock(window);
    const DataEngine *engine = m_sources.host->engine();
    connect(engine, &DataEngine::reportsAnswered, this, &Inspection::takeReports);
    connect(engine, &DataEngine::sightings, this, &Inspection::takeSightings);
    connect(&m_timer, &QTimer::timeout, this, &Inspection::refresh);
    connect(m_sources.plan, &GeoWidget::trackSelected, this, &Inspection::refresh);
    connect(m_dock, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible) {
            m_timer.start(RefreshIntervalMs);
            refresh();
        } else {
            m_timer.stop();
        }
    });
}

Inspection::~Inspection() = default;

void Inspection::makeDock(QMainWindow *window)
{
    m_pane = new InspectionPane(window);
    m_dock = new QDockWidget(tr("Explanation"), window);
    m_dock->setObjectName("inspectionDock"); // under which the window's state remembers it
    m_dock->setWidget(m_pane);
    window->addDockWidget(Qt::BottomDockWidgetArea, m_dock);
    // It wants more room than the scope can spare; who has a large screen docks it.
    m_dock->setFloating(true);
    m_dock->resize(FirstSize);
    m_dock->hide();
}

void Inspection::refresh()
{
    noteSelection();
    const bool isPast =
        m_question.about == ReportQuestion::About::Place || m_question.about == ReportQuestion::About::Weather;
    if (!m_dock->isVisible() || isPast) {
        return; // it was what it is
    }
    ReportQuestion question = m_question;
    if (question.about == ReportQuestion::About::Track) {
        const GeoTrackDisplay *tracks = m_sources.plan->trackDisplay();
        const TrackSnapshot *track = tracks->findTrack(tracks->selectedTrackId());
        if (!track) {
            m_reportsRequest = 0;
            m_pane->showHint(
                tr("Select a track to see where its values come from; or point at a plot, weather or radar "
                   "video and press Ctrl+E."));
            return;
        }
        question.trackNumber = track->trackNumber;
        question.incarnationId = track->incarnationId;
    }
    ask(question);
}

void Inspection::ask(const ReportQuestion &question)
{
    ReportQuestion numbered = question;
    numbered.requestId = m_reportsRequest = ++m_lastRequest;
    m_sources.host->askForReports(numbered);
}

// Whoever selects another track, on the plan view or in a list, has seen enough of plot or alert.
void Inspection::noteSelection()
{
    const quint64 selected = m_sources.plan->trackDisplay()->selectedTrackId();
    if (selected != 0 && selected != m_selectedTrack) {
        m_question = {};
    }
    m_selectedTrack = selected;
}

void Inspection::explainSelectedTrack()
{
    m_question = {};
    m_dock->show();
    m_dock->raise();
    refresh();
}

void Inspection::toggle(bool on)
{
    if (m_sources.plan->trackDisplay()->selectedTrackId() == 0 && explainPointedAt()) {
        return;
    }
    if (on) {
        explainSelectedTrack();
    } else {
        m_dock->hide();
    }
}

bool Inspection::explainPointedAt()
{
    const auto place = pointedAt();
    const PlaceContents contents = place ? contentsAt(*m_sources.plan, *place) : PlaceContents();
    if (contents.plot) {
        explainPlot(*contents.plot);
    } else if (contents.echo) {
        explainEcho(*contents.echo);
    } else if (contents.weather) {
        explainWeather(*contents.weather);
    }
    return contents.plot || contents.echo || contents.weather;
}

// Plane metres; nothing while the pointer is elsewhere.
std::optional<QPointF> Inspection::pointedAt() const
{
    const GeoWidget *plan = m_sources.plan;
    const QPoint pixel = plan->mapFromGlobal(QCursor::pos());
    const bool isThere = plan->underMouse() && plan->rect().contains(pixel);
    return isThere ? std::optional(plan->screenTransform().inverted().map(QPointF(pixel))) : std::nullopt;
}

void Inspection::addPlaceActions(QMenu *menu, const QPointF &planePoint)
{
    const PlaceContents contents = contentsAt(*m_sources.plan, planePoint);
    QAction *first = menu->actions().value(0);
    const auto add = [&](const QString &text, const auto &explain) {
        auto *action = new QAction(text, menu);
        connect(action, &QAction::triggered, this, explain);
        menu->insertAction(first, action);
        return action;
    };
    QAction *plot = add(tr("Explain Plot"), [this, plot = contents.plot.value_or(Plot())] { explainPlot(plot); });
    plot->setEnabled(contents.plot.has_value());
    if (contents.echo) {
        add(tr("Explain Radar Video"), [this, echo = *contents.echo] { explainEcho(echo); });
    }
    if (contents.weather) {
        add(tr("Explain Weather"), [this, weather = *contents.weather] { explainWeather(weather); });
    }
}

void Inspection::explainPlot(const Plot &plot)
{
    ReportQuestion question;
    question.about = ReportQuestion::About::Place;
    question.place = plot.place;
    question.radius = SamePlace;
    question.plotMs = plot.timeMs;
    show(question);
}

void Inspection::explainWeather(const ShownWeather &weather)
{
    m_weather = weather;
    ReportQuestion question;
    question.about = ReportQuestion::About::Weather;
    show(question);
}

void Inspection::explainEcho(const ShownEcho &echo)
{
    m_echo = echo;
    ReportQuestion question;
    question.about = ReportQuestion::About::Radial;
    question.radial = {echo.sac, echo.sic, echo.azimuth, 180.0 / echo.directions};
    show(question);
}

void Inspection::explainAlertOf(quint64 alert)
{
    m_alert = alert;
    ReportQuestion question;
    question.about = ReportQuestion::About::Alerts;
    show(question);
}

void Inspection::show(const ReportQuestion &question)
{
    noteSelection();
    m_question = question;
    m_dock->show();
    m_dock->raise();
    ask(question);
}

void Inspection::takeReports(const AskedReports &reports)
{
    const auto snapshot = m_sources.newest();
    if (reports.question.requestId != m_reportsRequest || !snapshot) {
        return;
    }
    switch (reports.question.about) {
    case ReportQuestion::About::Track:
        return showTrack(reports, *snapshot);
    case ReportQuestion::About::Place:
        return showPlot(reports, *snapshot);
    case ReportQuestion::About::Alerts:
        return showAlert(reports, *snapshot);
    case ReportQuestion::About::Weather:
        return showWeather(reports, *snapshot);
    case ReportQuestion::About::Radial:
        return showEcho(reports, *snapshot);
    }
}

void Inspection::showTrack(const AskedReports &reports, const DisplaySnapshot &snapshot)
{
    const TrackSnapshot *track = m_sources.plan->trackDisplay()->findTrack(reports.question.incarnationId);
    if (!track) {
        return;
    }
    const auto views = viewsOf(reports.reports);
    const auto values = explainTrack(*track, views, snapshot.time, explanationSettings());
    m_pane->explain(trackName(*track), values, reports.reports, views, snapshot.time);
}

void Inspection::showPlot(const AskedReports &reports, const DisplaySnapshot &snapshot)
{
    if (!reports.found) {
        m_pane->showHint(tr("The report of this plot is kept no more."));
        return;
    }
    const TrackSnapshot *track = m_sources.plan->trackDisplay()->findTrack(reports.trackOfPlot);
    const auto views = viewsOf(reports.reports);
    const auto values = ::explainPlot(views, snapshot.time, track ? trackName(*track) : QString());
    m_pane->explain(track ? tr("Plot of %1").arg(trackName(*track)) : tr("Plot"), values, reports.reports, views,
        snapshot.time, track ? QStringList{tr("Its report")} : QStringList());
}

void Inspection::showWeather(const AskedReports &reports, const DisplaySnapshot &snapshot)
{
    const WeatherOrigin origin = originOf(m_weather, reports.reports);
    const auto views = viewsOf(origin.reports);
    const auto values = ::explainWeather(m_weather, origin, views, snapshot.time);
    m_pane->explain(tr("Weather, level %1").arg(m_weather.vector.intensity), values, origin.reports, views,
        snapshot.time, {tr("Its vectors"), tr("Start of its picture"), tr("End of its picture")});
}

void Inspection::showEcho(const AskedReports &reports, const DisplaySnapshot &snapshot)
{
    const auto views = viewsOf(reports.reports);
    const auto values = ::explainEcho(m_echo, views, snapshot.time);
    m_pane->explain(tr("Radar video"), values, reports.reports, views, snapshot.time);
}

void Inspection::showAlert(const AskedReports &reports, const DisplaySnapshot &snapshot)
{
    const auto alert = std::find_if(snapshot.alerts.begin(), snapshot.alerts.end(),
        [this](const AlertSnapshot &candidate) { return AlertBoard::keyOf(candidate) == m_alert; });
    if (alert == snapshot.alerts.end()) {
        m_pane->showHint(tr("The alert is no longer there, or it is an emergency: what a track says of itself is "
                            "explained with the track."));
        return;
    }
    QList<KeptReport> own;
    for (const KeptReport &report : reports.reports) {
        if (isOfAlert(viewReport(report), alert->id)) {
            own.append(report);
        }
    }
    const auto views = viewsOf(own);
    const auto values = explainAlert(*alert, views, snapshot.time);
    m_pane->explain(tr("Alert %1").arg(alert->id), values, own, views, snapshot.time);
}

ExplanationSettings Inspection::explanationSettings() const
{
    const Config &config = *m_sources.config;
    const auto radar = m_sources.sensor().dynamicCast<RadarSensorInfo>();
    return {config.processorAsterixIgnoreWgs84Coordinates, config.processorAsterixIgnoreCartesianCoordinates,
        config.processorAsterixCorrectLongitudeWrap, radar && radar->slantRangeCorrected()};
}

void Inspection::showAbsenceWindow()
{
    if (!m_absence) {
        m_absence = new AbsenceWindow(m_window);
        connect(m_absence, &AbsenceWindow::asked, this, &Inspection::lookFor);
        connect(m_absence, &AbsenceWindow::cureChosen, this, &Inspection::applyCure);
    }
    bringUp(m_absence);
}

void Inspection::lookFor(const QString &text)
{
    m_sightingsRequest = ++m_lastRequest;
    if (text.isEmpty()) {
        m_absence->showFindings({}, {});
    } else {
        m_sources.host->lookUp(text, m_sightingsRequest);
    }
}

void Inspection::takeSightings(const Sightings &sightings)
{
    if (!m_absence || sightings.requestId != m_sightingsRequest) {
        return;
    }
    const auto query = IdentityQuery::fromText(sightings.text);
    AbsenceFacts facts = m_sources.inputFacts();
    const GeoTrackDisplay &tracks = *m_sources.plan->trackDisplay();
    facts.labelsOn = tracks.labelVisible();
    facts.detailsShown = tracks.frame().showsDetails();
    facts.plotsOn = m_sources.plan->mapDisplay()->plotMap()->visible();
    facts.seen = sightings.seen;
    const auto snapshot = m_sources.newest();
    if (snapshot) {
        facts.live = findOnScope(query, *snapshot, *m_sources.plan, m_sources.host->shared().projector);
    }
    m_absence->showFindings(explainAbsence(query, facts), snapshot ? snapshot->time : QDateTime());
}

void Inspection::applyCure(const AbsenceFinding &finding)
{
    GeoWidget *plan = m_sources.plan;
    if (finding.track != 0) {
        Q_EMIT trackChosen(finding.track);
    }
    switch (finding.cure) {
    case Cure::None:
    case Cure::Select:
        break;
    case Cure::Centre:
    case Cure::ZoomIn: {
        const TrackSnapshot *track = plan->trackDisplay()->findTrack(finding.track);
        const QPointF place = track ? track->carCoordinate : finding.place.value_or(QPointF());
        if (finding.cure == Cure::ZoomIn) {
            plan->setView(place.x(), place.y(), CloseZoom);
        } else {
            plan->jumpTo(place.x(), place.y());
        }
        break;
    }
    default:
        Q_EMIT cureChosen(finding.cure);
    }
    lookFor(m_absence->text());
}
