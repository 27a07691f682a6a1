#include "ui/plot_switch.h"

#include "display/geo_plot_map.h"
#include "engine/display_snapshot.h"

#include <QAction>

namespace {

constexpr qint64 PatienceMs = 5000; // from the first plot to the newest: tracks may come a little later than plots
constexpr int NoticeMs = 30000;

} // namespace

PlotSwitch::PlotSwitch(GeoPlotMap *layer, QAction *action) : m_layer(layer), m_action(action)
{
    m_noticeTimer.setSingleShot(true);
    m_noticeTimer.setInterval(NoticeMs);
    connect(&m_noticeTimer, &QTimer::timeout, this, &PlotSwitch::changed);
}

QString PlotSwitch::notice(const QString &input) const
{
    if (!standsIn() || !m_noticeTimer.isActive()) {
        return {};
    }
    return tr("Plots are shown because %1 brings target reports but no tracks (Map, Toggle Plots).").arg(input);
}

void PlotSwitch::setWanted(bool wanted)
{
    if (m_wanted != wanted) {
        m_wanted = wanted;
        switchTo(wanted);
    }
    show();
}

void PlotSwitch::switchTo(bool on)
{
    m_declined = !on;
    m_byItself = m_byItself && on;
    show();
    Q_EMIT changed();
}

void PlotSwitch::beginInput(const QString &recording)
{
    m_byItself = m_byItself && !recording.isEmpty() && recording == m_recording;
    m_recording = recording;
    m_endedRun = m_run;
    show();
    Q_EMIT changed();
}

void PlotSwitch::look(const DisplaySnapshot &snapshot)
{
    const PlotHistory &plots = snapshot.plots;
    if (plots.run == m_endedRun) {
        return;
    }
    if (plots.run != m_run) {
        m_run = plots.run;
        m_tracksCame = false;
        m_firstMs.reset();
    }
    if (!m_tracksCame && !snapshot.tracks.isEmpty()) {
        m_tracksCame = true;
        Q_EMIT changed();
    }
    if (m_tracksCame || m_byItself || plots.batches.isEmpty()) {
        return;
    }
    if (!m_firstMs) {
        m_firstMs = plots.batches.constFirst()->plots.front().timeMs;
    }
    if (plots.batches.constLast()->plots.back().timeMs - *m_firstMs >= PatienceMs) {
        standIn();
    }
}

void PlotSwitch::standIn()
{
    if (m_wanted || m_declined) {
        return;
    }
    m_byItself = true;
    m_noticeTimer.start();
    show();
    Q_EMIT changed();
}

void PlotSwitch::show()
{
    m_layer->setVisible(m_wanted || m_byItself);
    m_action->setChecked(m_wanted || m_byItself);
}
