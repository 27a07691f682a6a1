#include "ui/input_notices.h"

#include "app/config.h"
#include "display/geo_map_display.h"
#include "lists/list_panes.h"
#include "plan_view/geo_widget.h"
#include "plan_view/plan_display.h"
#include "second_view/second_views.h"
#include "silence/geo_last_place_map.h"
#include "tile_windows/tile_maps.h"
#include "ui/input_session.h"
#include "ui/snapshot_pump.h"
#include "ui/status_read_outs.h"
#include "widgets/scope_notice.h"

#include <QAction>
#include <QTimer>

namespace {
constexpr int RefusalShownMs = 10000;
}

InputNotices::InputNotices(const Window &window)
    : m_window(window), m_scope(new ScopeNotice(window.plan->widget())),
      m_plots(window.plan->map()->plotMap(), window.togglePlots),
      m_health(window.plan->map()->addLayer<GeoLastPlaceMap>(MapLayer::Plots))
{
    watchPlots();
    watchScope();
    watchHealth();
    connect(m_window.session, &InputSession::changed, this, &InputNotices::noteSession);
    connect(m_window.tiles, &TileMaps::changed, this, &InputNotices::update);
}

void InputNotices::watchPlots()
{
    // Before the setting follows, which need not change by it.
    connect(m_window.togglePlots, &QAction::triggered, &m_plots, &PlotSwitch::switchTo);
    connect(m_window.session, &InputSession::openingBegun, &m_plots,
        [this] { m_plots.beginInput(m_window.session->recording().filePath()); });
    connect(m_window.pump, &SnapshotPump::snapshotTaken, &m_plots, &PlotSwitch::look);
    connect(&m_plots, &PlotSwitch::changed, this, &InputNotices::update);
}

void InputNotices::watchScope()
{
    connect(m_window.session, &InputSession::openingBegun, &m_empty, &EmptyScope::beginInput);
    connect(m_window.pump, &SnapshotPump::snapshotTaken, &m_empty, &EmptyScope::look);
    connect(m_window.pump, &SnapshotPump::radarPictureTaken, &m_empty, &EmptyScope::noteRadarPicture);
    connect(&m_empty, &EmptyScope::changed, this, &InputNotices::update);
}

void InputNotices::watchHealth()
{
    connect(m_window.session, &InputSession::openingBegun, &m_health, &InputHealth::beginInput);
    connect(m_window.pump, &SnapshotPump::snapshotTaken, &m_health, &InputHealth::look);
    connect(m_window.pump, &SnapshotPump::statisticsTaken, &m_health, &InputHealth::take);
    connect(m_window.togglePlots, &QAction::toggled, &m_health, &InputHealth::setPlotsShown);
    m_health.setPlotsShown(m_window.togglePlots->isChecked());
    connect(&m_health, &InputHealth::changed, this, &InputNotices::update);
}

void InputNotices::applyConfig(const Config &config, SettingGroups changed)
{
    m_plots.setWanted(config.mapPlotVisible);
    if (changed & RunGroups) {
        noteSession();
    }
}

void InputNotices::setSensor(const SensorInfo *sensor)
{
    m_health.setSensor(sensor);
    update();
}

void InputNotices::noteSession()
{
    const InputSession &session = *m_window.session;
    m_health.setInput(session.description(), session.isOpen() && !session.paused(), session.unicastPorts());
    update();
}

// Nothing is said twice: what is wrong with the input goes before what else there would be to say of it.
void InputNotices::update()
{
    if (const auto &warning = m_health.notice()) {
        m_scope->showWarning(warning->urgency, warning->headline, warning->text);
        m_window.views->showWarning(warning->urgency, warning->headline, warning->text);
        m_window.lists->setWarning(warning->urgency, warning->headline);
    } else {
        const QString text = scopeText();
        m_scope->showText(text);
        m_window.views->showText(text);
        m_window.lists->setWarning(Urgency::Note, {});
    }
    m_window.readOuts->showNetsUnheard(m_health.netsUnheard());
    const bool open = m_window.session->isOpen();
    const QString idle = tr("No input is running.");
    m_window.lists->setEmptyTexts(open ? emptyListText() : idle, open ? tr("No alerts.") : idle);
}

void InputNotices::showRefusal(const QString &reason)
{
    m_scope->showText(reason);
    if (!m_window.session->isClosed()) {
        QTimer::singleShot(RefusalShownMs, this, &InputNotices::update);
    }
}

// The first that has something to say.
QString InputNotices::scopeText() const
{
    const InputSession &session = *m_window.session;
    for (const QString &text :
        {session.notice(), m_plots.notice(session.description()), emptyText(), m_window.tiles->notice()}) {
        if (!text.isEmpty()) {
            return text;
        }
    }
    return {};
}

// By the truth about its sources, where they tell it.
QString InputNotices::emptyText() const
{
    const QString input = m_window.session->description();
    const QString why = m_empty.nothingIsSeen() ? m_health.explanation() : QString();
    return why.isEmpty() ? m_empty.notice(input)
                         : tr("Nothing of what %1 brings is seen. %2\nMore: View, Input Health.").arg(input, why);
}

QString InputNotices::emptyListText() const
{
    const QString input = m_window.session->description();
    if (m_plots.standsIn()) {
        return tr("No tracks. The target reports of %1 are shown as plots.").arg(input);
    }
    const QString why = m_health.explanation();
    if (!why.isEmpty()) {
        return tr("No tracks. %1").arg(why);
    }
    return m_window.session->replaying() ? tr("No tracks yet in %1.").arg(input)
                                         : tr("No tracks. Listening on %1.").arg(input);
}
