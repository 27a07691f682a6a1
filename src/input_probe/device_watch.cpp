#include "input_probe/device_watch.h"

#include <QSerialPortInfo>

namespace {
constexpr int DeviceIntervalMs = 2000;
}

QString interfaceText(const QNetworkInterface &interface)
{
    QStringList addresses;
    const QList<QNetworkAddressEntry> entries = interface.addressEntries();
    for (const QNetworkAddressEntry &entry : entries) {
        if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol) {
            addresses.append(entry.ip().toString());
        }
    }
    if (addresses.isEmpty()) {
        return interface.humanReadableName();
    }
    return QStringLiteral("%1 (%2)").arg(interface.humanReadableName(), addresses.join(QStringLiteral(", ")));
}

DeviceWatch::Devices DeviceWatch::present()
{
    Devices devices{QNetworkInterface::allInterfaces(), {}};
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        devices.serialPorts += port.portName();
    }
    return devices;
}

DeviceWatch::DeviceWatch(QObject *parent) : QObject(parent)
{
    m_timer.setInterval(DeviceIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &DeviceWatch::look);
}

void DeviceWatch::start()
{
    m_timer.start();
    look();
}

void DeviceWatch::stop()
{
    m_timer.stop();
    m_pass.cancel();
}

void DeviceWatch::look()
{
    if (!m_pass.running()) {
        m_pass.start([source = m_source](const BackgroundPass::Token &) { return source(); },
            [this](const Devices &devices) { take(devices); });
    }
}

void DeviceWatch::take(const Devices &devices)
{
    QStringList found = devices.serialPorts;
    for (const QNetworkInterface &interface : devices.interfaces) {
        const bool multicast = interface.flags().testFlag(QNetworkInterface::CanMulticast); // may come later
        found += QStringLiteral("%1 %2 %3").arg(interface.name(), interfaceText(interface)).arg(multicast);
    }
    if (found != m_known) {
        m_known = found;
        Q_EMIT changed(devices);
    }
}
