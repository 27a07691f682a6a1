#pragma once

#include "app/log_file.h"
#include "app/log_level.h"
#include "ui/status_line.h"

#include <QObject>

class Config;
class LogPane;
class QDockWidget;
class QMainWindow;

// The program's messages: each goes to the log pane, to the log file, and to the status bar while the pane is out of
// sight. GUI thread.
class Messages final : public QObject {
    Q_OBJECT

public:
    // The window is the parent, of the pane's dock too, which comes to its lower edge.
    explicit Messages(QMainWindow *window);

    QDockWidget *dock() const { return m_dock; }
    // What is below it is dropped, at best before it comes here.
    void setMinimumLevel(LogLevel minimum);
    // How large the file grows.
    void applyConfig(const Config &config);

public Q_SLOTS:
    void show(LogLevel level, const QString &text);
    // See StatusLine.
    void showProgress(const QString &text) { m_statusLine.showProgress(text); }
    void clearProgress() { m_statusLine.clearProgress(); }

private:
    StatusLine m_statusLine;
    LogFile m_file;
    LogPane *m_pane; // these two are the window's
    QDockWidget *m_dock;
    LogLevel m_minimumLevel = LogLevel::Info;
};
