#include "settings/udp_input_fields.h"

#include "geo/input_validator.h"
#include "input_probe/device_watch.h"
#include "settings/config_page.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QSpinBox>

UdpInputFields::UdpInputFields(const Members &members, bool second, ConfigPage *page)
    : QObject(page), m_form(page->form()), m_multicast(new QCheckBox(second ? tr("M&ulticast") : tr("&Multicast"))),
      m_group(new QLineEdit), m_interface(new QComboBox), m_port(new QSpinBox)
{
    m_group->setValidator(InputValidator::ipAddrValidator());
    m_group->setPlaceholderText(QStringLiteral("239.0.0.1"));
    m_group->setToolTip(tr("The multicast group that the sensor sends to, 224.0.0.0 to 239.255.255.255."));
    m_interface->setToolTip(tr("The network interface on which the group is joined."));
    m_port->setToolTip(tr("The UDP port that the sensor sends to."));
    m_multicast->setToolTip(tr("For a sensor that sends to a group of receivers instead of to this machine alone."));
    setInterfaces(QNetworkInterface::allInterfaces());
    addRows(second);
    bindTo(page, members);
    connectFields();
    updateEnabled();
}

void UdpInputFields::connectFields()
{
    connect(m_multicast, &QCheckBox::toggled, this, &UdpInputFields::updateEnabled);
    connect(m_multicast, &QCheckBox::toggled, this, &UdpInputFields::edited);
    connect(m_group, &QLineEdit::textChanged, this, &UdpInputFields::edited);
    connect(m_interface, &QComboBox::currentIndexChanged, this, &UdpInputFields::edited);
    connect(m_port, &QSpinBox::valueChanged, this, &UdpInputFields::edited);
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
    page->bind<LanInterface>(
        m_interface, members.interface, [this](const LanInterface &interface) { showInterface(interface); },
        [this] { return std::optional(LanInterface(m_interface->currentData().toString())); });
}

void UdpInputFields::setInterfaces(const QList<QNetworkInterface> &interfaces)
{
    const QString chosen = m_interface->currentData().toString();
    const QString before = m_interface->currentText();
    {
        const QSignalBlocker blocker(m_interface);
        m_interface->clear();
        m_interface->addItem(tr("Chosen by the system"), QString());
        for (const QNetworkInterface &interface : interfaces) {
            if (interface.flags().testFlag(QNetworkInterface::CanMulticast) || interface.name() == chosen) {
                m_interface->addItem(interfaceText(interface), interface.name());
            }
        }
        if (m_interface->findData(chosen) < 0) {
            addAbsent(chosen);
        }
        m_interface->setCurrentIndex(m_interface->findData(chosen));
    }
    if (m_interface->currentText() != before) {
        Q_EMIT edited();
    }
}

void UdpInputFields::addAbsent(const QString &name)
{
    m_interface->addItem(tr("%1 (not there)").arg(name), name);
}

void UdpInputFields::showInterface(const LanInterface &interface)
{
    if (m_interface->findData(interface.name()) < 0) {
        const QNetworkInterface now = interface.now();
        if (now.isValid()) {
            m_interface->addItem(interfaceText(now), now.name());
        } else {
            addAbsent(interface.name());
        }
    }
    m_interface->setCurrentIndex(m_interface->findData(interface.name()));
}

QHostAddress UdpInputFields::group() const
{
    const QHostAddress address(m_group->text());
    const bool ipv4 = address.protocol() == QAbstractSocket::IPv4Protocol && m_group->hasAcceptableInput();
    return ipv4 && address.isMulticast() ? address : QHostAddress();
}

QString UdpInputFields::faultOfGroup() const
{
    if (!m_enabled || !m_multicast->isChecked()) {
        return {};
    }
    if (!m_group->hasAcceptableInput()) {
        return tr("This is no IP address.");
    }
    return group().isNull() ? tr("A multicast group lies between 224.0.0.0 and 239.255.255.255.") : QString();
}

bool UdpInputFields::validate()
{
    m_form->check(m_port, QString());
    return m_form->check(m_group, faultOfGroup());
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
    m_form->setRowEnabled(m_port, m_enabled);
    m_form->setRowEnabled(m_multicast, m_enabled);
    m_form->setRowEnabled(m_group, multicast);
    m_form->setRowEnabled(m_interface, multicast);
}
