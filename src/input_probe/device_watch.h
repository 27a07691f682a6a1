#pragma once

#include "app/background_pass.h"

#include <QList>
#include <QNetworkInterface>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

// The network interfaces and serial ports of this machine, which come and go. Asks for them on a worker, as that may
// take some milliseconds. GUI thread.
class DeviceWatch final : public QObject {
    Q_OBJECT

public:
    struct Devices {
        QList<QNetworkInterface> interfaces;
        QStringList serialPorts; // names such as "ttyUSB0"
    };
    static Devices present();

    explicit DeviceWatch(QObject *parent = nullptr);

    // Replaces what the system is asked; runs on a worker.
    void setSource(const std::function<Devices()> &source) { m_source = source; }

    // Looks at once and then every other second.
    void start();
    void stop();

Q_SIGNALS:
    // After the first look, and whenever something has come, gone or got another address.
    void changed(const DeviceWatch::Devices &devices);

private:
    void look();
    void take(const Devices &devices);

    std::function<Devices()> m_source = present;
    QStringList m_known; // a line for each of them
    QTimer m_timer;
    BackgroundPass m_pass;
};

// "eth0 (192.168.1.5)"
QString interfaceText(const QNetworkInterface &interface);
