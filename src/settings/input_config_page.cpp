#include "settings/input_config_page.h"

#include "app/config.h"
#include "settings/udp_input_fields.h"
#include "widgets/combo_items.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLineEdit>
#include <QPushButton>
#include <QSerialPort>
#include <QSerialPortInfo>

InputConfigPage::InputConfigPage(QWidget *parent) : ConfigPage(tr("Input"), parent), m_comm(new QComboBox)
{
    using Comm = Config::InputComm;
    for (const Comm comm : {Comm::Udp, Comm::Serial, Comm::File}) {
        m_comm->addItem(Config::inputMethodName(comm), static_cast<int>(comm));
    }
    m_comm->setObjectName(QStringLiteral("inputComm"));
    form()->addField(tr("&Data from:"), m_comm);
    m_udp1 = new UdpInputFields(1, form());
    form()->addSpacing();
    m_enable2 = new QCheckBox(tr("&Second input"));
    m_enable2->setObjectName(QStringLiteral("udpEnable2"));
    form()->addField(m_enable2);
    m_udp2 = new UdpInputFields(2, form());
    addSerialRows();
    addFileRows();
    form()->addStretch();
    connect(m_enable2, &QCheckBox::toggled, m_udp2, &UdpInputFields::setEnabled);
    connect(m_comm, &QComboBox::currentIndexChanged, this, &InputConfigPage::showChosen);
    m_udp2->setEnabled(false);
    showChosen();
}

void InputConfigPage::addSerialRows()
{
    m_serialDevice = new QComboBox;
    m_serialDevice->setObjectName(QStringLiteral("serialDevice"));
    m_serialDevice->setEditable(true);
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports) {
        m_serialDevice->addItem(port.portName());
    }
    m_baudRate = new QComboBox;
    m_baudRate->setObjectName(QStringLiteral("serialBaudRate"));
    m_baudRate->setEditable(true);
    m_baudRate->setValidator(new QIntValidator(1, 100'000'000, m_baudRate));
    for (const int rate : {1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200, 230400, 460800, 921600}) {
        m_baudRate->addItem(QString::number(rate), rate);
    }
    m_dataBits = new QComboBox;
    for (const int bits : {5, 6, 7, 8}) {
        m_dataBits->addItem(QString::number(bits), bits);
    }
    m_parity = new QComboBox;
    m_parity->addItem(tr("None"), QSerialPort::NoParity);
    m_parity->addItem(tr("Even"), QSerialPort::EvenParity);
    m_parity->addItem(tr("Odd"), QSerialPort::OddParity);
    m_parity->addItem(tr("Space"), QSerialPort::SpaceParity);
    m_parity->addItem(tr("Mark"), QSerialPort::MarkParity);
    m_stopBits = new QComboBox;
    m_stopBits->addItem(tr("1"), QSerialPort::OneStop);
    m_stopBits->addItem(tr("1.5"), QSerialPort::OneAndHalfStop);
    m_stopBits->addItem(tr("2"), QSerialPort::TwoStop);
    form()->addField(tr("D&evice:"), m_serialDevice);
    form()->addField(tr("&Baud rate:"), m_baudRate);
    form()->addField(tr("Da&ta bits:"), m_dataBits);
    form()->addField(tr("&Parity:"), m_parity);
    form()->addField(tr("&Stop bits:"), m_stopBits);
    m_serialFields = {m_serialDevice, m_baudRate, m_dataBits, m_parity, m_stopBits};
}

void InputConfigPage::addFileRows()
{
    m_fileRow = new QWidget;
    m_fileName = new QLineEdit(m_fileRow);
    m_fileName->setObjectName(QStringLiteral("fileName"));
    auto *browseButton = new QPushButton(tr("B&rowse..."), m_fileRow);
    browseButton->setAutoDefault(false);
    auto *row = new QHBoxLayout(m_fileRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_fileName, 1);
    row->addWidget(browseButton);
    m_fileRow->setFocusProxy(m_fileName);
    m_autoRewind = new QCheckBox(tr("Start &again at the end of the file"));
    form()->addField(tr("&File:"), m_fileRow);
    form()->addField(m_autoRewind);
    connect(browseButton, &QPushButton::clicked, this, &InputConfigPage::browse);
}

void InputConfigPage::showChosen()
{
    form()->clearNotes();
    const auto chosen = static_cast<Config::InputComm>(m_comm->currentData().toInt());
    m_udp1->setVisible(chosen == Config::InputComm::Udp);
    form()->setRowVisible(m_enable2, chosen == Config::InputComm::Udp);
    m_udp2->setVisible(chosen == Config::InputComm::Udp);
    for (QWidget *field : std::as_const(m_serialFields)) {
        form()->setRowVisible(field, chosen == Config::InputComm::Serial);
    }
    form()->setRowVisible(m_fileRow, chosen == Config::InputComm::File);
    form()->setRowVisible(m_autoRewind, chosen == Config::InputComm::File);
}

void InputConfigPage::browse()
{
    const QString chosen = QFileDialog::getOpenFileName(this, tr("Recording File"), m_fileName->text(),
        tr("Recordings (*.pcap *.pcapng *.cap *.raw *.bin *.ast);;All files (*)"));
    if (!chosen.isEmpty()) {
        m_fileName->setText(QDir::toNativeSeparators(chosen));
    }
}

void InputConfigPage::load(const Config &config)
{
    selectValue(m_comm, static_cast<int>(config.inputComm));
    m_udp1->load({config.inputUdpMulticast1, config.inputUdpMcastLanInterface1, config.inputUdpMcastAddress1,
        config.inputUdpPort1});
    m_enable2->setChecked(config.inputEnable2);
    m_udp2->load({config.inputUdpMulticast2, config.inputUdpMcastLanInterface2, config.inputUdpMcastAddress2,
        config.inputUdpPort2});
    m_serialDevice->setCurrentText(config.inputSerialDevice);
    m_baudRate->setCurrentText(QString::number(config.inputSerialBaudRate));
    selectValue(m_dataBits, config.inputSerialDataBits);
    selectValue(m_parity, config.inputSerialParity);
    selectValue(m_stopBits, config.inputSerialStopBits);
    m_fileName->setText(QDir::toNativeSeparators(config.inputFileName.filePath()));
    m_autoRewind->setChecked(config.inputFileAutoRewind);
    showChosen();
}

bool InputConfigPage::validate()
{
    form()->clearNotes();
    switch (static_cast<Config::InputComm>(m_comm->currentData().toInt())) {
    case Config::InputComm::Udp:
        return validateUdp();
    case Config::InputComm::Serial:
        return validateSerial();
    case Config::InputComm::File:
        return validateFile();
    }
    return form()->check(m_comm, tr("Choose where the data comes from."));
}

bool InputConfigPage::validateUdp()
{
    const bool firstGood = m_udp1->validate();
    return m_udp2->validate() && m_udp2->validateAgainst(*m_udp1) && firstGood;
}

bool InputConfigPage::validateSerial()
{
    const bool named = !m_serialDevice->currentText().trimmed().isEmpty();
    const bool deviceGood = form()->check(m_serialDevice, named ? QString() : tr("Name the serial device."));
    const bool rated = m_baudRate->lineEdit()->hasAcceptableInput();
    return form()->check(m_baudRate, rated ? QString() : tr("Enter a rate in bits per second.")) && deviceGood;
}

bool InputConfigPage::validateFile()
{
    const QFileInfo file(QDir::fromNativeSeparators(m_fileName->text().trimmed()));
    QString problem;
    if (m_fileName->text().trimmed().isEmpty()) {
        problem = tr("Choose a recording file.");
    } else if (!file.exists()) {
        problem = tr("This file does not exist.");
    } else if (!file.isFile() || !file.isReadable()) {
        problem = tr("This file cannot be read.");
    }
    return form()->check(m_fileRow, problem);
}

void InputConfigPage::store(Config *config) const
{
    config->inputComm = static_cast<Config::InputComm>(m_comm->currentData().toInt());
    UdpInput udp{config->inputUdpMulticast1, config->inputUdpMcastLanInterface1, config->inputUdpMcastAddress1,
        config->inputUdpPort1};
    m_udp1->store(&udp);
    config->inputUdpMulticast1 = udp.multicast;
    config->inputUdpMcastLanInterface1 = udp.interface;
    config->inputUdpMcastAddress1 = udp.group;
    config->inputUdpPort1 = udp.port;
    config->inputEnable2 = m_enable2->isChecked();
    udp = {config->inputUdpMulticast2, config->inputUdpMcastLanInterface2, config->inputUdpMcastAddress2,
        config->inputUdpPort2};
    m_udp2->store(&udp);
    config->inputUdpMulticast2 = udp.multicast;
    config->inputUdpMcastLanInterface2 = udp.interface;
    config->inputUdpMcastAddress2 = udp.group;
    config->inputUdpPort2 = udp.port;
    storeSerial(config);
    config->inputFileName.setFile(QDir::fromNativeSeparators(m_fileName->text().trimmed()));
    config->inputFileAutoRewind = m_autoRewind->isChecked();
}

void InputConfigPage::storeSerial(Config *config) const
{
    config->inputSerialDevice = m_serialDevice->currentText().trimmed();
    if (m_baudRate->lineEdit()->hasAcceptableInput()) {
        config->inputSerialBaudRate = m_baudRate->currentText().toInt();
    }
    config->inputSerialDataBits = m_dataBits->currentData().toInt();
    config->inputSerialParity = m_parity->currentData().toInt();
    config->inputSerialStopBits = m_stopBits->currentData().toInt();
}
