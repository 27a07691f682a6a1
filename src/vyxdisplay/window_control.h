#pragma once

#include "control/control_target.h"

#include <QCoreApplication>
#include <QElapsedTimer>

class MainWindow;

// The newest air picture of a window, with the sources and where things stand on the scope.
QJsonObject windowSnapshot(const MainWindow &window);

// A terminal with a window, as it is asked and told from outside. GUI thread.
class WindowControl final : public ControlTarget {
    Q_DECLARE_TR_FUNCTIONS(WindowControl)

public:
    // The window must outlive this object.
    explicit WindowControl(MainWindow *window);

    QJsonObject status() const override;
    QJsonObject snapshot() const override;
    QString start() override;
    QString stop() override;
    QString saveScreenshot(const QString &path) override;
    QJsonObject view() const override;
    QString setView(const QJsonObject &view) override;

private:
    MainWindow *m_window;
    QElapsedTimer m_uptime;
};
