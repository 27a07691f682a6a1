#include "first_start/first_start.h"

#include "app/run_config.h"
#include "first_start/first_start_guide.h"

namespace {
constexpr auto ThemeOfFirstStart = "Night";
}

FirstStart::FirstStart(const Window &window, const QString &demoProgram)
    : m_window(window), m_demo(window.config, demoProgram)
{
    connect(&m_demo, &DemoRun::message, this, &FirstStart::logMessage);
    connect(&m_demo, &DemoRun::begun, this, &FirstStart::demoBegun);
    connect(&m_demo, &DemoRun::ended, this, &FirstStart::demoEnded);
}

void FirstStart::show()
{
    if (m_guide) {
        m_guide->raise();
        m_guide->activateWindow();
        return;
    }
    RunConfig *config = m_window.config;
    m_guide =
        new FirstStartGuide([config] { return config->own(); }, m_window.sensors, m_window.engine, m_window.widget);
    m_guide->setAttribute(Qt::WA_DeleteOnClose);
    m_guide->preselectTheme(config->isNew() ? QString::fromLatin1(ThemeOfFirstStart) : config->live().displayTheme);
    m_guide->setInputRunning(!m_isClosed);
    connect(m_guide, &FirstStartGuide::themeChosen, this, &FirstStart::themeChosen);
    connect(m_guide, &FirstStartGuide::demoWanted, this, &FirstStart::startDemo);
    connect(m_guide, &FirstStartGuide::recordingWanted, this, &FirstStart::recordingWanted);
    connect(m_guide, &FirstStartGuide::liveWanted, this, &FirstStart::makeWayForLive);
    connect(m_guide, &FirstStartGuide::settingsEntered, this, &FirstStart::settingsEntered);
    m_guide->open();
}

void FirstStart::setInput(bool isClosed, bool isRecording)
{
    m_isClosed = isClosed;
    m_isRecording = isRecording;
    if (m_guide) {
        m_guide->setInputRunning(!isClosed);
    }
}

void FirstStart::startDemo()
{
    const bool isLive = !m_isClosed && !m_isRecording && !m_demo.isActive();
    if (!isLive || m_window.mayStop()) {
        m_demo.begin();
    }
}

void FirstStart::makeWayForLive()
{
    if (!m_isClosed && (m_isRecording || m_demo.isActive())) {
        Q_EMIT inputUnwanted();
    }
}

void FirstStart::onInputClosed()
{
    if (!m_isRecording) {
        m_demo.end();
    }
}
