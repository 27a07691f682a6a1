#include "raw_view/stream_windows.h"

#include "raw_view/raw_view_window.h"
#include "widgets/window_opening.h"

StreamWindows::StreamWindows(QWidget *window, EngineHost *host, DiagnosisWindow::InputSettings settings)
    : m_window(window), m_host(host), m_settings(std::move(settings)), m_standing(host, m_settings)
{
    connect(&m_standing, &StandingDiagnosis::found, this, &StreamWindows::diagnosed);
}

// Before the host goes, which may be earlier than their parent.
StreamWindows::~StreamWindows()
{
    delete m_rawView;
    delete m_diagnosis;
}

void StreamWindows::showRawView()
{
    if (!m_rawView) {
        m_rawView = new RawViewWindow(m_host, m_window);
        connect(m_rawView, &RawViewWindow::diagnosisRequested, this, &StreamWindows::showDiagnosis);
    }
    bringUp(m_rawView);
}

void StreamWindows::showDiagnosis()
{
    if (!m_diagnosis) {
        m_diagnosis = new DiagnosisWindow(m_host, m_settings, m_window);
    }
    bringUp(m_diagnosis);
}

void StreamWindows::beginInput()
{
    m_standing.beginInput();
    if (m_rawView) {
        m_rawView->clear();
    }
}
