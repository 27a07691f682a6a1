#include "settings/udp_input_fields.h"

#include "geo/input_validator.h"
#include "settings/config_page.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QSpinBox>

namespace {

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

} // namespace

UdpInputFields::UdpInputFields(const Members &members, bool second, ConfigPage *page)
    : QObject(page), m_form(page->form()), m_multicast(new QCheckBox(second ? tr("M&ulticast") : tr("&Multicast"))),
      m_group(new QLineEdit), m_interface(new QComboBox), m_port(new QSpinBox)
{
    m_group->setValidator(InputValidator::ipAddrValidator());
    m_group->setPlaceholderText(QStringLiteral("239.0.0.1"));
    m_group->setToolTip(tr("The multicast group that the sensor sends to, 224.0.0.0 to 239.255.255.255."));
    m_interface->setToolTip(tr("The network interface on which the group is joined."));
    fillInterfaces();
    addRows(second);
    bindTo(page, members);
    connect(m_multicast, &QCheckBox::toggled, this, &UdpInputFields::updateEnabled);
    updateEnabled();
}

void UdpInputFields::addRows(bool second)
{
    m_form->addField(second ? tr("Po&rt:") : tr("&Port:"), m_port);
    m_form->addField(m_multicast);
    m_form->addField(second ? tr("Gr&oup:") : tr("&Group:"), m_group);
    m_form->addField(second ? tr("I&nterface:") : tr("&Interface:"), m_interface);
}

void UdpInputFields::bindTo(ConfigPage *page, const Members &members)
{
    page->bind(m_port, members.port);
    page->bind(m_multicast, members.multicast);
    page->bind<QHostAddress>(
        m_group, members.group, [this](const QHostAddress &group) { m_group->setText(group.toString()); },
        [this] { return group().isNull() ? std::nullopt : std::optional(group()); });
    page->bind<QNetworkInterface>(
        m_interface, members.interface, [this](const QNetworkInterface &interface) { showInterface(interface); },
        [this] {
            const QString name = m_interface->currentData().toString();
            return std::optional(name.isEmpty() ? QNetworkInterface() : QNetworkInterface::interfaceFromName(name));
        });
}

void UdpInputFields::fillInterfaces()
{
    m_interface->addItem(tr("Chosen by the system"), QString());
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &interface : interfaces) {
        if (interface.flags().testFlag(QNetworkInterface::CanMulticast)) {
            m_interface->addItem(interfaceText(interface), interface.name());
        }
    }
}

void UdpInputFields::showInterface(const QNetworkInterface &interface)
{
    const QString name = interface.name();
    if (interface.isValid() && m_interface->findData(name) < 0) {
        m_interface->addItem(interfaceText(interface), name);
    }
    m_interface->setCurrentIndex(interface.isValid() ? m_interface->findData(name) : 0);
}

QHostAddress UdpInputFields::group() const
{
    const QHostAddress address(m_group->text());
    const bool ipv4 = address.protocol() == QAbstractSocket::IPv4Protocol && m_group->hasAcceptableInput();
    return ipv4 && address.isMulticast() ? address : QHostAddress();
}

bool UdpInputFields::validate()
{
    m_form->check(m_port, QString());
    QString problem;
    if (!m_enabled || !m_multicast->isChecked()) {
        problem.clear();
    } else if (!m_group->hasAcceptableInput()) {
        problem = tr("This is no IP address.");
    } else if (group().isNull()) {
        problem = tr("A multicast group lies between 224.0.0.0 and 239.255.255.255.");
    }
    return m_form->check(m_group, problem);
}

bool UdpInputFields::validateAgainst(const UdpInputFields &other)
{
    if (!m_enabled || !other.m_enabled || m_port->value() != other.m_port->value()) {
        return true;
    }
    // Inputs of different groups may share a port.
    const bool groups = m_multicast->isChecked() && other.m_multicast->isChecked();
    if (groups && group() != other.group()) {
        return true;
    }
    return m_form->check(
        m_port, groups ? tr("Both inputs have the same group and port.") : tr("Both inputs have the same port."));
}

void UdpInputFields::setVisible(bool visible)
{
    for (QWidget *field : QList<QWidget *>{m_port, m_multicast, m_group, m_interface}) {
        m_form->setRowVisible(field, visible);
    }
}

void UdpInputFields::setEnabled(bool enabled)
{
    m_enabled = enabled;
    updateEnabled();
}

void UdpInputFields::updateEnabled()
{
    const bool multicast = m_enabled && m_multicast->isChecked();
    m_port->setEnabled(m_enabled);
    m_multicast->setEnabled(m_enabled);
    m_group->setEnabled(multicast);
    m_interface->setEnabled(multicast);
}
