#include "settings/input_config_page.h"

#include "astfile/rec_file.h"
#include "engine/engine_host.h"
#include "probe_view/probe_view.h"
#include "recognition/input_proposal.h"
#include "sensors/sensor_manager.h"
#include "settings/udp_input_fields.h"
#include "widgets/field_form.h"
#include "widgets/file_edit.h"

#include <QCheckBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QSerialPort>
#include <QSerialPortInfo>
#include <QSignalBlocker>
#include <QVBoxLayout>

using korvane::astfile::RecFile;

namespace {

constexpr int TypingPauseMs = 500;

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

InputConfigPage::InputConfigPage(const SensorManager *sensors, QWidget *parent, Offer offer)
    : ConfigPage(tr("Input"), parent), m_offer(offer), m_sensors(sensors), m_probeView(new ProbeView(this))
{
    using Comm = Config::InputComm;
    Choices<Comm> methods;
    for (const Comm comm : {Comm::Udp, Comm::Serial, Comm::File}) {
        if (comm != Comm::File || offer == Offer::Everything) {
            methods.append({Config::inputMethodName(comm), comm});
        }
    }
    m_comm = addChoice(tr("&Data from:"), &Config::inputComm, methods,
        tr("How the sensor's messages come in: over a network, a serial line, or from a recording."));
    setChooser(m_comm);
    addUdpRows();
    addSerialRows();
    addFileRows();
    if (offer == Offer::Everything) {
        form()->addSpacing();
        addSwitch(tr("Start input a&t program start"), &Config::inputAutoStart,
            tr("The input is opened by itself as soon as the program runs."));
    }
    layout()->setSpacing(2 * layout()->spacing());
    layout()->addWidget(m_probeView); // not in the form, which is locked while the input runs
    static_cast<QVBoxLayout *>(layout())->addStretch(1);
    connect(m_comm, &QComboBox::currentIndexChanged, this, &InputConfigPage::showChosen);
    connect(&m_devices, &DeviceWatch::changed, this, &InputConfigPage::takeDevices);
    connectProbe();
    showChosen();
}

InputConfigPage::~InputConfigPage() = default;

void InputConfigPage::connectProbe()
{
    m_listenTimer.setSingleShot(true);
    m_listenTimer.setInterval(TypingPauseMs);
    connect(&m_listenTimer, &QTimer::timeout, this, &InputConfigPage::listen);
    connect(&m_probe, &InputProbe::changed, this, &InputConfigPage::showFound);
    connect(m_probeView, &ProbeView::useWanted, this, [this] {
        if (const auto found = proposal()) {
            Q_EMIT useWanted(*found);
        }
    });
    for (const UdpInputFields *udp : {m_udp1, m_udp2}) {
        connect(udp, &UdpInputFields::edited, this, &InputConfigPage::listenSoon);
    }
    connect(m_enable2, &QCheckBox::toggled, this, &InputConfigPage::listenSoon);
    for (QWidget *field : std::as_const(m_serialFields)) {
        connect(static_cast<QComboBox *>(field), &QComboBox::currentTextChanged, this, &InputConfigPage::listenSoon);
    }
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
    connect(m_enable2, &QCheckBox::toggled, m_udp2, &UdpInputFields::setVisible);
    m_udp2->setEnabled(false);
}

void InputConfigPage::addSerialRows()
{
    m_serialDevice = new QComboBox;
    m_serialDevice->setEditable(true);
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        m_serialPorts += port.portName();
    }
    m_serialDevice->addItems(m_serialPorts);
    m_serialDevice->setToolTip(tr("The serial port that the sensor's line is plugged into."));
    form()->addField(tr("D&evice:"), m_serialDevice);
    bind<QString>(
        m_serialDevice, &Config::inputSerialDevice, [this](const QString &device) { showDevice(device); },
        [this] { return std::optional(m_serialDevice->currentText().trimmed()); });

    m_baudRate = new QComboBox;
    m_baudRate->setEditable(true);
    const Setting &baudRate = Setting::of(&Config::inputSerialBaudRate);
    m_baudRate->setValidator(
        new QIntValidator(static_cast<int>(baudRate.minimum()), static_cast<int>(baudRate.maximum()), m_baudRate));
    for (const int rate : {1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200, 230400, 460800, 921600}) {
        m_baudRate->addItem(QString::number(rate));
    }
    m_baudRate->setToolTip(tr("Bits per second, as the sender has it set."));
    form()->addField(tr("&Baud rate:"), m_baudRate);
    bind<int>(
        m_baudRate, &Config::inputSerialBaudRate,
        [this](int rate) { m_baudRate->setCurrentText(QString::number(rate)); },
        [this] {
            return m_baudRate->lineEdit()->hasAcceptableInput() ? std::optional(m_baudRate->currentText().toInt())
                                                                : std::nullopt;
        });
    m_serialFields = {m_serialDevice, m_baudRate,
        addChoice(tr("Data b&its:"), &Config::inputSerialDataBits,
            {{QStringLiteral("5"), 5}, {QStringLiteral("6"), 6}, {QStringLiteral("7"), 7}, {QStringLiteral("8"), 8}},
            tr("Bits of a character on the line.")),
        addChoice(tr("&Parity:"), &Config::inputSerialParity,
            {{tr("None"), QSerialPort::NoParity}, {tr("Even"), QSerialPort::EvenParity},
                {tr("Odd"), QSerialPort::OddParity}, {tr("Space"), QSerialPort::SpaceParity},
                {tr("Mark"), QSerialPort::MarkParity}},
            tr("The check bit of a character on the line.")),
        addChoice(tr("&Stop bits:"), &Config::inputSerialStopBits,
            {{tr("1"), QSerialPort::OneStop}, {tr("1.5"), QSerialPort::OneAndHalfStop},
                {tr("2"), QSerialPort::TwoStop}},
            tr("How long the line rests between two characters."))};
}

void InputConfigPage::addFileRows()
{
    m_file = new FileEdit(tr("Recording File"), RecFile::formatNameFilter(RecFile::formats()));
    m_file->setToolTip(tr("The recording that is played when the input is started."));
    form()->addField(tr("&File:"), m_file);
    bind<QFileInfo>(
        m_file, &Config::inputFileName, [this](const QFileInfo &file) { m_file->setPath(file.filePath()); },
        [this] { return std::optional(QFileInfo(m_file->path())); });
    m_autoRewind = addSwitch(tr("Start &again at the end of the file"), &Config::inputFileAutoRewind,
        tr("Plays the recording over and over until it is stopped."));
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
    m_udp2->setVisible(comm == Config::InputComm::Udp && m_enable2->isChecked());
    for (QWidget *field : std::as_const(m_serialFields)) {
        form()->setRowVisible(field, comm == Config::InputComm::Serial);
    }
    form()->setRowVisible(m_file, comm == Config::InputComm::File);
    form()->setRowVisible(m_autoRewind, comm == Config::InputComm::File);
    listenSoon();
}

void InputConfigPage::setEngine(EngineHost *engine)
{
    m_engine = engine;
}

void InputConfigPage::load(const Config &config)
{
    m_loaded = config;
    if (m_offer == Offer::LiveInputs && config.inputComm == Config::InputComm::File) {
        m_loaded.inputComm = Config::InputComm::Udp;
    }
    ConfigPage::load(m_loaded);
    showChosen();
}

void InputConfigPage::setInputRunning(bool running)
{
    const bool before = inputRunning();
    ConfigPage::setInputRunning(running);
    if (running != before) {
        m_probe.stop(); // at once: the input may want the same line
        if (m_isUseOffered) {
            offerUse();
        }
        listenSoon();
    }
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

QWidget *InputConfigPage::reveal(QWidget *field)
{
    QWidget *shown = ConfigPage::reveal(field);
    const bool ofTheSecond = chosen() == Config::InputComm::Udp && field->objectName().endsWith(u'2');
    return shown == m_comm && ofTheSecond ? m_enable2 : shown;
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

// What has gone stays in its field, and is said to have.
void InputConfigPage::takeDevices(const DeviceWatch::Devices &devices)
{
    m_udp1->setInterfaces(devices.interfaces);
    m_udp2->setInterfaces(devices.interfaces);
    if (devices.serialPorts == m_serialPorts) {
        return;
    }
    m_serialPorts = devices.serialPorts;
    const QString entered = m_serialDevice->currentText();
    {
        const QSignalBlocker blocker(m_serialDevice);
        m_serialDevice->clear();
        m_serialDevice->addItems(m_serialPorts);
        showDevice(entered);
    }
    noteMissingDevice();
    listenSoon();
}

// A name that is not offered has no place among them, so that the keys lead from it to the first.
void InputConfigPage::showDevice(const QString &device)
{
    m_serialDevice->setCurrentIndex(m_serialDevice->findText(device));
    m_serialDevice->setCurrentText(device);
}

void InputConfigPage::noteMissingDevice()
{
    const QString device = m_serialDevice->currentText().trimmed();
    const bool there = device.isEmpty() || m_serialPorts.contains(device) || QFileInfo::exists(device);
    form()->check(m_serialDevice, there ? QString() : tr("%1 is not there now.").arg(device));
}

void InputConfigPage::showEvent(QShowEvent *event)
{
    ConfigPage::showEvent(event);
    m_devices.start();
    listen();
}

void InputConfigPage::hideEvent(QHideEvent *event)
{
    ConfigPage::hideEvent(event);
    m_devices.stop();
    stopListening();
}

void InputConfigPage::stopListening()
{
    m_listenTimer.stop();
    m_probe.stop();
}

bool InputConfigPage::isComplete() const
{
    return chosen() == Config::InputComm::Serial
        ? !m_serialDevice->currentText().trimmed().isEmpty() && m_baudRate->lineEdit()->hasAcceptableInput()
        : m_udp1->isComplete() && m_udp2->isComplete();
}

void InputConfigPage::listenSoon()
{
    if (isVisible()) {
        m_listenTimer.start();
    }
}

void InputConfigPage::listen()
{
    m_listenTimer.stop();
    Config config = m_loaded;
    store(&config);
    m_probeView->setVisible(inputRunning() || chosen() != Config::InputComm::File);
    if (inputRunning() && m_engine) {
        m_probe.watch(m_engine, config);
    } else if (!inputRunning() && chosen() != Config::InputComm::File && isComplete()) {
        m_probe.listen(config);
    } else {
        m_probe.stop();
        m_probeView->showHint(inputRunning() ? QString() : tr("Complete the fields above to see what arrives."));
    }
}

void InputConfigPage::showFound()
{
    m_probeView->showResult(m_probe.result(), m_probe.config());
    const auto found = proposal();
    m_probeView->showProposal(found ? &*found : nullptr);
    Q_EMIT foundChanged();
}

void InputConfigPage::offerUse()
{
    m_isUseOffered = true;
    m_probeView->offerUse(
        inputRunning() ? tr("Stop the input first: its settings are locked while it runs.") : QString());
}

std::optional<InputProposal> InputConfigPage::proposal() const
{
    static const SensorManager none;
    const ProbeResult &result = m_probe.result();
    return result.isRecognised()
        ? std::optional<InputProposal>(std::in_place, result.findings, m_sensors ? *m_sensors : none)
        : std::nullopt;
}
