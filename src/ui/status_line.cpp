#include "ui/status_line.h"

#include <QStatusBar>

namespace {

constexpr int LineMs = 8000;
constexpr int ProgressMs = 2000; // what goes on comes again before

} // namespace

void StatusLine::showLine(LogLevel level, const QString &text)
{
    m_warning = level >= LogLevel::Warning ? text : QString();
    m_bar->showMessage(text, LineMs);
}

void StatusLine::showProgress(const QString &text)
{
    if (m_warning.isEmpty() || m_bar->currentMessage() != m_warning) {
        m_progress = text;
        m_bar->showMessage(text, ProgressMs);
    }
}

void StatusLine::clearProgress()
{
    if (m_bar->currentMessage() == m_progress) {
        m_bar->clearMessage();
    }
}
