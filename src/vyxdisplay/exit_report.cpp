#include "vyxdisplay/exit_report.h"

#include "engine/snapshot_json.h"
#include "ui/main_window.h"
#include "vyxdisplay/window_control.h"

#include <QImageWriter>

#include <cstdio>

ExitReport::ExitReport(MainWindow *window, const QString &screenshot, const QString &snapshot, QObject *parent)
    : QObject(parent), m_window(window), m_screenshot(screenshot), m_snapshot(snapshot)
{
    connect(window, &MainWindow::shutdownBegun, this, &ExitReport::write);
}

void ExitReport::exitWithInput()
{
    connect(m_window, &MainWindow::inputFailed, this, &ExitReport::fail);
    // Later, so that all others hear of the end before.
    connect(m_window, &MainWindow::inputFailed, m_window, &MainWindow::requestExit, Qt::QueuedConnection);
    connect(m_window, &MainWindow::inputClosed, m_window, &MainWindow::requestExit, Qt::QueuedConnection);
}

void ExitReport::write()
{
    if (m_screenshot.isEmpty() && m_snapshot.isEmpty()) {
        return;
    }
    // Also for the snapshot alone, which tells where things stand in it.
    const QImage picture = m_window->grab().toImage();
    if (!m_screenshot.isEmpty()) {
        writeScreenshot(picture);
    }
    if (!m_snapshot.isEmpty()) {
        writeSnapshot();
    }
}

void ExitReport::writeScreenshot(const QImage &picture)
{
    QImageWriter writer(m_screenshot);
    if (!writer.write(picture)) {
        failToWrite(m_screenshot, writer.errorString());
    }
}

void ExitReport::writeSnapshot()
{
    QString reason;
    if (!SnapshotJson::save(windowSnapshot(*m_window), m_snapshot, &reason)) {
        failToWrite(m_snapshot, reason);
    }
}

void ExitReport::failToWrite(const QString &fileName, const QString &reason)
{
    fail(tr("Cannot write %1: %2").arg(fileName, reason));
}

void ExitReport::fail(const QString &line)
{
    m_succeeded = false;
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
}
