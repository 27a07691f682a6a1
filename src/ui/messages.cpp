#include "ui/messages.h"

#include "app/app_log.h"
#include "app/config.h"
#include "app/log_gate.h"
#include "ui/log_pane.h"

#include <QDateTime>
#include <QDockWidget>
#include <QMainWindow>

namespace {
constexpr qint64 OctetsPerMebibyte = 1024 * 1024;
}

Messages::Messages(QMainWindow *window)
    : QObject(window), m_statusLine(window->statusBar()), m_pane(new LogPane(window)),
      m_dock(new QDockWidget(tr("Messages"), window))
{
    m_dock->setObjectName("messagesDock"); // under which the window's state remembers it
    m_dock->setWidget(m_pane);
    window->addDockWidget(Qt::BottomDockWidgetArea, m_dock);
}

void Messages::setMinimumLevel(LogLevel minimum)
{
    m_minimumLevel = minimum;
    LogGate::setShownLevel(minimum);
}

void Messages::applyConfig(const Config &config)
{
    m_file.setLimits(config.logFileSize * OctetsPerMebibyte, config.logFileCount);
}

void Messages::show(LogLevel level, const QString &text)
{
    if (level < m_minimumLevel) {
        return;
    }
    m_pane->appendLine(level, formatLogLine(level, QDateTime::currentDateTime(), text));
    if (!m_pane->isVisible()) {
        m_statusLine.showLine(level, text);
    }
    const QString problem = m_file.append(level, QDateTime::currentDateTimeUtc(), text);
    if (!problem.isEmpty()) {
        show(LogLevel::Warning, problem);
    }
}
