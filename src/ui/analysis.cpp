#include "ui/analysis.h"

#include "app/config.h"
#include "engine/engine_host.h"
#include "health/health_dock.h"
#include "plan_view/geo_widget.h"
#include "plan_view/plan_display.h"
#include "sensors/sensor_info.h"
#include "ui/actions.h"
#include "ui/input_session.h"
#include "ui/snapshot_pump.h"
#include "ui/track_commands.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>

Analysis::Analysis(const Window &window)
    : m_window(window),
      m_inspection(window.widget,
          {window.plan->widget(), window.host, window.config, [this] { return m_window.pump->newest(); },
              [this] { return m_window.session->sensor(); }, [this] { return inputFacts(); }}),
      m_stream(window.widget, window.host, [this] { return m_window.session->isOpen() ? m_window.config : nullptr; }),
      m_sensorCheck(window.plan->map(), &window.host->shared().projector, window.sensors, window.widget)
{
    connectInspection();
    connectStreamWindows();
    m_sensorCheck.setSwitchTap([this](const std::shared_ptr<StreamTap> &tap, bool open) {
        open ? m_window.host->openTap(tap) : m_window.host->closeTap(tap);
    });
    connect((*m_window.actions)[ActionId::SensorCheck], &QAction::triggered, &m_sensorCheck, &SensorCheck::show);
    connect(m_window.session, &InputSession::changed, this, &Analysis::noteSession);
    noteSession();
}

void Analysis::connectInspection()
{
    QAction *explain = (*m_window.actions)[ActionId::ExplainTrack];
    QDockWidget *pane = m_inspection.dock();
    connect(explain, &QAction::triggered, &m_inspection, [this, explain, pane](bool on) {
        m_inspection.toggle(on);
        explain->setChecked(pane->isVisible());
    });
    connect(pane->toggleViewAction(), &QAction::toggled, explain, &QAction::setChecked);
    const QAction *absence = (*m_window.actions)[ActionId::WhyNotShown];
    connect(absence, &QAction::triggered, &m_inspection, &Inspection::showAbsenceWindow);
    TrackCommands *tracks = m_window.tracks;
    connect(tracks, &TrackCommands::trackToExplain, &m_inspection, &Inspection::explainSelectedTrack);
    connect(tracks, &TrackCommands::placeMenuMade, &m_inspection, &Inspection::addPlaceActions);
    connect(tracks, &TrackCommands::alertToExplain, &m_inspection, &Inspection::explainAlertOf);
    connect(&m_inspection, &Inspection::trackChosen, tracks, &TrackCommands::select);
    connect(&m_inspection, &Inspection::cureChosen, this, &Analysis::cureChosen);
}

void Analysis::connectStreamWindows()
{
    connect(m_window.session, &InputSession::openingBegun, &m_stream, &StreamWindows::beginInput);
    const Actions &actions = *m_window.actions;
    connect(actions[ActionId::RawView], &QAction::triggered, &m_stream, &StreamWindows::showRawView);
    connect(actions[ActionId::DiagnoseInput], &QAction::triggered, &m_stream, &StreamWindows::showDiagnosis);
}

void Analysis::diagnoseFor(HealthDock *health)
{
    connect(health, &QDockWidget::visibilityChanged, &m_stream, &StreamWindows::setWatched);
    connect(&m_stream, &StreamWindows::diagnosed, health, &HealthDock::setDiagnosis);
}

void Analysis::noteSession()
{
    const InputSession &session = *m_window.session;
    m_sensorCheck.setInput(session.isOpen(), session.description(), *m_window.config);
}

AbsenceFacts Analysis::inputFacts() const
{
    AbsenceFacts facts;
    facts.inputOpen = m_window.session->isOpen();
    facts.paused = m_window.session->paused();
    const auto &sensor = m_window.session->sensor();
    if (m_window.config->processorAsterixVerifySacSic && sensor) {
        facts.sensorSac = sensor->sac();
        facts.sensorSic = sensor->sic();
    }
    return facts;
}
