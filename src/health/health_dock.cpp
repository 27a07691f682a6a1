#include "health/health_dock.h"

#include "health/health_lamp.h"
#include "health/health_pane.h"
#include "health/input_health.h"

#include <QMainWindow>
#include <QStatusBar>

namespace {
constexpr int UsefulHeight = 180; // pixels
}

HealthDock::HealthDock(const InputHealth *health, QMainWindow *window, QDockWidget *beside)
    : QDockWidget(tr("Input Health"), window), m_health(health), m_window(window), m_pane(new HealthPane(health, this)),
      m_lamp(new HealthLamp(window->statusBar()))
{
    setObjectName("healthDock"); // under which the window's state remembers it
    setWidget(m_pane);
    window->addDockWidget(Qt::BottomDockWidgetArea, this);
    window->tabifyDockWidget(beside, this);
    hide();
    window->statusBar()->insertPermanentWidget(0, m_lamp);
    connect(m_lamp, &HealthLamp::clicked, this, &HealthDock::bringUp);
    connect(m_pane, &HealthPane::cureRequested, this, &HealthDock::cureRequested);
    connect(health, &InputHealth::sourcesChanged, this, &HealthDock::refresh);
    connect(health, &InputHealth::changed, this, &HealthDock::refresh);
    // The health may go before the window.
    connect(this, &QDockWidget::visibilityChanged, health, [this] { refresh(); });
}

void HealthDock::setDiagnosis(const QStringList &sentences)
{
    m_pane->setDiagnosis(sentences);
}

void HealthDock::bringUp()
{
    show();
    raise();
    if (!isFloating() && height() < UsefulHeight) {
        m_window->resizeDocks({this}, {UsefulHeight}, Qt::Vertical);
    }
}

// The table is not kept up to date while it is out of sight.
void HealthDock::refresh()
{
    m_lamp->setLight(m_health->light(), m_health->remarks());
    if (m_pane->isVisible() || m_pane->isWatched()) {
        m_pane->refresh();
    }
}
