#include "settings/udp_input_fields.h"

#include "geo/input_validator.h"
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

UdpInputFields::UdpInputFields(int number, FieldForm *form)
    : QObject(form), m_form(form), m_multicast(new QCheckBox(number == 1 ? tr("&Multicast") : tr("M&ulticast"))),
      m_group(new QLineEdit), m_interface(new QComboBox), m_port(new QSpinBox)
{
    m_multicast->setObjectName(QStringLiteral("udpMulticast%1").arg(number));
    m_group->setObjectName(QStringLiteral("udpGroup%1").arg(number));
    m_interface->setObjectName(QStringLiteral("udpInterface%1").arg(number));
    m_port->setObjectName(QStringLiteral("udpPort%1").arg(number));
    m_group->setValidator(InputValidator::ipAddrValidator());
    m_group->setPlaceholderText(QStringLiteral("239.0.0.1"));
    m_port->setRange(1, 65535);
    fillInterfaces();
    form->addField(number == 1 ? tr("&Port:") : tr("Po&rt:"), m_port);
    form->addField(m_multicast);
    form->addField(number == 1 ? tr("&Group:") : tr("Gr&oup:"), m_group);
    form->addField(number == 1 ? tr("&Interface:") : tr("I&nterface:"), m_interface);
    connect(m_multicast, &QCheckBox::toggled, this, &UdpInputFields::updateEnabled);
    updateEnabled();
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

void UdpInputFields::load(const UdpInput &input)
{
    m_multicast->setChecked(input.multicast);
    m_group->setText(input.group.toString());
    m_port->setValue(input.port);
    const QString name = input.interface.name();
    if (input.interface.isValid() && m_interface->findData(name) < 0) {
        m_interface->addItem(interfaceText(input.interface), name);
    }
    m_interface->setCurrentIndex(input.interface.isValid() ? m_interface->findData(name) : 0);
}

void UdpInputFields::store(UdpInput *input) const
{
    input->multicast = m_multicast->isChecked();
    if (!group().isNull()) {
        input->group = group();
    }
    input->port = static_cast<quint16>(m_port->value());
    const QString name = m_interface->currentData().toString();
    input->interface = name.isEmpty() ? QNetworkInterface() : QNetworkInterface::interfaceFromName(name);
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
