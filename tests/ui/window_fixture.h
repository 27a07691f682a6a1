#pragma once

#include "app/app_identity.h"
#include "app/app_paths.h"
#include "app/config.h"
#include "ui/actions.h"
#include "ui/log_pane.h"
#include "ui/main_window.h"

#include <QTemporaryDir>
#include <QTest>
#include <QUdpSocket>

#include <sys/socket.h>

#include <memory>

// Settings and window state in a directory that goes with the test, and a radar on a loopback port of its own.
class WindowFixture {
public:
    WindowFixture()
    {
        qputenv("XDG_CONFIG_HOME", m_directory.path().toUtf8());
        qputenv("XDG_DATA_HOME", m_directory.path().toUtf8());
        setApplicationIdentity();
        reservePort();
        Config config;
        config.inputUdpMulticast1 = false;
        config.inputUdpPort1 = port;
        config.sensorType = RadarSensor;
        config.sensorName = "TEST";
        config.sensorSac = 1;
        config.sensorSic = 2;
        config.sensorLocation = GeoCoordinate(48.0, 16.0);
        config.displayLocalTimeZoneName = "Europe/Vienna";
        config.save(AppPaths::configFile());
    }

    static std::unique_ptr<MainWindow> makeWindow(const std::function<void(Config &)> &overrides = {})
    {
        auto window = std::make_unique<MainWindow>(overrides);
        window->show();
        window->loadUi();
        return window;
    }

    static void missingSerialLine(Config &config)
    {
        config.inputComm = Config::InputComm::Serial;
        config.inputSerialDevice = "no-such-line";
    }

    static bool openInput(MainWindow &window)
    {
        window.openInput();
        return QTest::qWaitFor([&window] { return window.inputOpen(); }, 3000);
    }

    static bool close(MainWindow &window)
    {
        window.requestExit();
        return QTest::qWaitFor([&window] { return !window.isVisible(); }, 8000);
    }

    quint16 port = 0;

private:
    // Nobody else is given the port as long as this socket has it. The input shares it: at an address to which nothing
    // is sent the socket takes nothing away from it.
    void reservePort()
    {
        m_reservation.bind(QHostAddress("127.0.0.2"), 0, QUdpSocket::DontShareAddress);
        const int share = 1;
        setsockopt(int(m_reservation.socketDescriptor()), SOL_SOCKET, SO_REUSEADDR, &share, sizeof share);
        port = m_reservation.localPort();
    }

    QTemporaryDir m_directory;
    QUdpSocket m_reservation;
};

inline QAction *action(const MainWindow &window, ActionId id)
{
    return (*window.findChild<Actions *>())[id];
}

inline QString logText(const MainWindow &window)
{
    return window.findChild<LogPane *>()->toPlainText();
}
