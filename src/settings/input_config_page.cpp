#include "settings/input_config_page.h"

#include "astfile/rec_file.h"
#include "settings/udp_input_fields.h"
#include "widgets/field_form.h"
#include "widgets/file_edit.h"

#include <QCheckBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QSerialPort>
#include <QSerialPortInfo>

using korvane::astfile::RecFile;

namespace {

// Why a file cannot be played; empty when it can.
QString playingProblem(const QFileInfo &file)
{
    if (file.filePath().isEmpty()) {
        return InputConfigPage::tr("Choose a recording file.");
    }
    if (!file.exists()) {
        return InputConfigPage::tr("This file does not exist.");
    }
    if (!file.isFile() || !file.isReadable()) {
        return InputConfigPage::tr("This file cannot be read.");
    }
    QString reason;
    RecFile::formatOfFile(file.filePath(), &reason);
    return reason;
}

} // namespace

InputConfigPage::InputConfigPage(QWidget *parent) : ConfigPage(tr("Input"), parent)
{
    using Comm = Config::InputComm;
    Choices<Comm> methods;
    for (const Comm comm : {Comm::Udp, Comm::Serial, Comm::File}) {
        methods.append({Config::inputMethodName(comm), comm});
    }
    m_comm = addChoice(tr("&Data from:"), &Config::inputComm, methods);
    addUdpRows();
    addSerialRows();
    addFileRows();
    form()->addSpacing();
    addSwitch(tr("Start &input at program start"), &Config::inputAutoStart);
    form()->addStretch();
    connect(m_comm, &QComboBox::currentIndexChanged, this, &InputConfigPage::showChosen);
    showChosen();
}

void InputConfigPage::addUdpRows()
{
    m_udp1 = new UdpInputFields({&Config::inputUdpPort1, &Config::inputUdpMulticast1, &Config::inputUdpMcastAddress1,
                                    &Config::inputUdpMcastLanInterface1},
        false, this);
    form()->addSpacing();
    m_enable2 = addSwitch(tr("&Second input"), &Config::inputEnable2,
        tr("Listens on another port too: for sensors that send over two networks."));
    m_udp2 = new UdpInputFields({&Config::inputUdpPort2, &Config::inputUdpMulticast2, &Config::inputUdpMcastAddress2,
                                    &Config::inputUdpMcastLanInterface2},
        true, this);
    connect(m_enable2, &QCheckBox::toggled, m_udp2, &UdpInputFields::setEnabled);
    m_udp2->setEnabled(false);
}

void InputConfigPage::addSerialRows()
{
    m_serialDevice = new QComboBox;
    m_serialDevice->setEditable(true);
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports) {
        m_serialDevice->addItem(port.portName());
    }
    form()->addField(tr("D&evice:"), m_serialDevice);
    bind<QString>(
        m_serialDevice, &Config::inputSerialDevice,
        [this](const QString &device) { m_serialDevice->setCurrentText(device); },
        [this] { return std::optional(m_serialDevice->currentText().trimmed()); });

    m_baudRate = new QComboBox;
    m_baudRate->setEditable(true);
    const Setting &baudRate = Setting::of(&Config::inputSerialBaudRate);
    m_baudRate->setValidator(
        new QIntValidator(static_cast<int>(baudRate.minimum()), static_cast<int>(baudRate.maximum()), m_baudRate));
    for (const int rate : {1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200, 230400, 460800, 921600}) {
        m_baudRate->addItem(QString::number(rate));
    }
    m_baudRate->setToolTip(tr("Bits per second."));
    form()->addField(tr("&Baud rate:"), m_baudRate);
    bind<int>(
        m_baudRate, &Config::inputSerialBaudRate,
        [this](int rate) { m_baudRate->setCurrentText(QString::number(rate)); },
        [this] {
            return m_baudRate->lineEdit()->hasAcceptableInput() ? std::optional(m_baudRate->currentText().toInt())
                                                                : std::nullopt;
        });
    m_serialFields = {m_serialDevice, m_baudRate,
        addChoice(tr("Da&ta bits:"), &Config::inputSerialDataBits,
            {{QStringLiteral("5"), 5}, {QStringLiteral("6"), 6}, {QStringLiteral("7"), 7}, {QStringLiteral("8"), 8}}),
        addChoice(tr("&Parity:"), &Config::inputSerialParity,
            {{tr("None"), QSerialPort::NoParity}, {tr("Even"), QSerialPort::EvenParity},
                {tr("Odd"), QSerialPort::OddParity}, {tr("Space"), QSerialPort::SpaceParity},
                {tr("Mark"), QSerialPort::MarkParity}}),
        addChoice(tr("&Stop bits:"), &Config::inputSerialStopBits,
            {{tr("1"), QSerialPort::OneStop}, {tr("1.5"), QSerialPort::OneAndHalfStop},
                {tr("2"), QSerialPort::TwoStop}})};
}

void InputConfigPage::addFileRows()
{
    m_file = new FileEdit(tr("Recording File"), RecFile::formatNameFilter(RecFile::formats()));
    form()->addField(tr("&File:"), m_file);
    bind<QFileInfo>(
        m_file, &Config::inputFileName, [this](const QFileInfo &file) { m_file->setPath(file.filePath()); },
        [this] { return std::optional(QFileInfo(m_file->path())); });
    m_autoRewind = addSwitch(tr("Start &again at the end of the file"), &Config::inputFileAutoRewind);
}

Config::InputComm InputConfigPage::chosen() const
{
    return static_cast<Config::InputComm>(m_comm->currentData().toInt());
}

void InputConfigPage::showChosen()
{
    form()->clearNotes();
    const Config::InputComm comm = chosen();
    m_udp1->setVisible(comm == Config::InputComm::Udp);
    form()->setRowVisible(m_enable2, comm == Config::InputComm::Udp);
    m_udp2->setVisible(comm == Config::InputComm::Udp);
    for (QWidget *field : std::as_const(m_serialFields)) {
        form()->setRowVisible(field, comm == Config::InputComm::Serial);
    }
    form()->setRowVisible(m_file, comm == Config::InputComm::File);
    form()->setRowVisible(m_autoRewind, comm == Config::InputComm::File);
}

void InputConfigPage::load(const Config &config)
{
    ConfigPage::load(config);
    showChosen();
}

bool InputConfigPage::validate()
{
    form()->clearNotes();
    switch (chosen()) {
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
    return form()->check(m_file, playingProblem(QFileInfo(m_file->path())));
}
