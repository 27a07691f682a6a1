#pragma once

#include <QNetworkInterface>
#include <QString>

// A network interface that was chosen, by its name. It may be absent: not plugged in yet, or not up as the machine
// starts. The name is kept all the same, and whoever needs the interface asks for it as it is at that moment.
class LanInterface {
public:
    LanInterface() = default; // none is chosen; the system chooses
    explicit LanInterface(const QString &name) : m_name(name) { }
    LanInterface(const QNetworkInterface &interface) : m_name(interface.name()) { }

    const QString &name() const { return m_name; }
    bool isChosen() const { return !m_name.isEmpty(); }

    // Asks the system, which takes some microseconds an interface; invalid while it is absent.
    QNetworkInterface now() const
    {
        return m_name.isEmpty() ? QNetworkInterface() : QNetworkInterface::interfaceFromName(m_name);
    }
    // For the operator; the name while the interface is absent.
    QString humanReadableName() const
    {
        const QNetworkInterface interface = now();
        return interface.isValid() ? interface.humanReadableName() : m_name;
    }
    bool isValid() const { return now().isValid(); }

    bool operator==(const LanInterface &other) const = default;

private:
    QString m_name;
};
