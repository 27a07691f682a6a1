#pragma once

#include "app/app_identity.h"
#include "app/app_paths.h"
#include "app/config.h"
#include "ui/main_window.h"

#include <QTemporaryDir>
#include <QTest>
#include <QUdpSocket>

#include <memory>

// Settings and window state in a directory that goes with the test, and a radar on a free loopback port.
class WindowFixture {
public:
    WindowFixture()
    {
        qputenv("XDG_CONFIG_HOME", m_directory.path().toUtf8());
        qputenv("XDG_DATA_HOME", m_directory.path().toUtf8());
        setApplicationIdentity();
        QUdpSocket socket;
        socket.bind(QHostAddress::AnyIPv4, 0);
        port = socket.localPort();
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
    QTemporaryDir m_directory;
};
