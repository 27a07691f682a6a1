#include "engine/serial_input.h"

#include "engine/input_recorder.h"

#include <QFile>
#include <QHostAddress>
#include <QSerialPortInfo>

#include <algorithm>
#include <optional>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

constexpr qsizetype ReceiveBufferSize = 65536; // grows for larger chunks
constexpr int RetryIntervalMs = 2000;

// The port as the system lists it.
std::optional<QSerialPortInfo> listedPort(const QString &portName)
{
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    const auto port = std::find_if(ports.begin(), ports.end(),
        [&portName](const QSerialPortInfo &candidate) { return candidate.portName() == portName; });
    return port == ports.end() ? std::nullopt : std::optional(*port);
}

// Virtual ports, such as a technician's pseudo-terminal, are in no list: they are named by the path of their device.
bool isDevicePath(const QString &path)
{
#ifdef Q_OS_UNIX
    struct stat status = {};
    return path.startsWith(u'/') && stat(QFile::encodeName(path).constData(), &status) == 0 && S_ISCHR(status.st_mode);
#else
    Q_UNUSED(path);
    return false;
#endif
}

struct PortDetails {
    QString name;
    QString path;
    QString description;
    QString manufacturer;
    std::optional<quint16> vendor;
    std::optional<quint16> product;
};

std::optional<PortDetails> findPort(const QString &device)
{
    if (const auto port = listedPort(device)) {
        return PortDetails{port->portName(), port->systemLocation(), port->description(), port->manufacturer(),
            port->hasVendorIdentifier() ? std::optional(port->vendorIdentifier()) : std::nullopt,
            port->hasProductIdentifier() ? std::optional(port->productIdentifier()) : std::nullopt};
    }
    return isDevicePath(device) ? std::optional(PortDetails{device, device, {}, {}, {}, {}}) : std::nullopt;
}

QString presentPorts()
{
    QStringList names;
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        names += port.portName();
    }
    return names.isEmpty() ? SerialInput::tr("none") : names.join(QStringLiteral(", "));
}

QStringList describe(const PortDetails &port)
{
    return {
        SerialInput::tr("Open async serial device: %1").arg(port.name),
        SerialInput::tr("Device path: %1").arg(port.path),
        SerialInput::tr("Description: %1").arg(port.description),
        SerialInput::tr("Manufacturer: %1").arg(port.manufacturer),
        port.vendor ? SerialInput::tr("Vendor Identifier: %1").arg(*port.vendor, 0, 16)
                    : SerialInput::tr("Vendor Identifier: Not exist"),
        port.product ? SerialInput::tr("Product Identifier: %1").arg(*port.product, 0, 16)
                     : SerialInput::tr("Product Identifier: Not exist"),
    };
}

} // namespace

SerialInput::SerialInput(
    const Config &config, std::unique_ptr<MessageRouter> router, InputRecorder *recorder, QObject *parent)
    : Input(std::move(router), parent), m_config(config), m_recorder(recorder), m_receiveBuffer(ReceiveBufferSize, '\0')
{
}

Input::Opening SerialInput::open()
{
    const auto port = findPort(m_config.inputSerialDevice);
    if (!port) {
        reportFault(tr("There is no serial device %1 (present: %2).").arg(m_config.inputSerialDevice, presentPorts()));
        Q_EMIT message(LogLevel::Info, tr("Serial device not found: %1").arg(m_config.inputSerialDevice));
        return Opening::Failed;
    }
    for (const QString &line : describe(*port)) {
        Q_EMIT message(LogLevel::Info, line);
    }
    m_port.setPortName(port->path);
    if (!m_port.open(QIODevice::ReadOnly)) {
        reportFault(tr("The serial device %1 cannot be opened: %2").arg(port->name, m_port.errorString()));
        Q_EMIT message(LogLevel::Info, tr("Failed to open serial device: %1").arg(static_cast<int>(m_port.error())));
        return Opening::Failed;
    }
    applySettings();
    connect(&m_port, &QSerialPort::readyRead, this, &SerialInput::read);
    // Queued: the port closes itself no sooner than its own notification is through.
    connect(&m_port, &QSerialPort::errorOccurred, this, &SerialInput::procError, Qt::QueuedConnection);
    connect(&m_retryTimer, &QTimer::timeout, this, &SerialInput::reopen);
    return Opening::Opened;
}

// A port may refuse some setting, a pseudo-terminal its parity for one; the data can be good all the same.
void SerialInput::applySettings()
{
    const auto warnUnless = [this](bool set, const QString &what) {
        if (!set) {
            Q_EMIT message(
                LogLevel::Warning, tr("The serial device refuses its %1: %2").arg(what, m_port.errorString()));
        }
    };
    warnUnless(m_port.setBaudRate(m_config.inputSerialBaudRate), tr("baud rate"));
    warnUnless(m_port.setDataBits(static_cast<QSerialPort::DataBits>(m_config.inputSerialDataBits)), tr("data bits"));
    warnUnless(m_port.setParity(static_cast<QSerialPort::Parity>(m_config.inputSerialParity)), tr("parity"));
    warnUnless(m_port.setStopBits(static_cast<QSerialPort::StopBits>(m_config.inputSerialStopBits)), tr("stop bits"));
    warnUnless(m_port.setFlowControl(QSerialPort::NoFlowControl), tr("flow control"));
    m_port.clearError();
}

void SerialInput::read()
{
    m_receiveBuffer.resize(std::max(m_receiveBuffer.size(), m_port.bytesAvailable()));
    const qint64 size = m_port.read(m_receiveBuffer.data(), m_receiveBuffer.size());
    if (size <= 0) {
        return;
    }
    const QByteArray chunk = QByteArray::fromRawData(m_receiveBuffer.constData(), size);
    if (m_recorder->active()) {
        const auto line = InputRecorder::endpoint(QHostAddress(QHostAddress::LocalHost), 0);
        m_recorder->record(chunk, line, line);
    }
    if (!m_paused) {
        router().procMessage(chunk);
    }
}

// An unplugged adapter never delivers again, and would be found readable for ever: the port is closed until it is back.
void SerialInput::procError()
{
    const bool gone = m_port.error() == QSerialPort::ResourceError || m_port.error() == QSerialPort::ReadError;
    if (!gone || !m_port.isOpen()) {
        return;
    }
    Q_EMIT message(LogLevel::Warning,
        tr("The serial device is gone: %1. It is opened again when it is back.").arg(m_port.errorString()));
    m_port.close();
    m_retryTimer.start(RetryIntervalMs);
}

// Silent until it succeeds: a device that has just been plugged in may not be accessible yet.
void SerialInput::reopen()
{
    const auto port = findPort(m_config.inputSerialDevice);
    if (!port) {
        return;
    }
    m_port.setPortName(port->path);
    if (!m_port.open(QIODevice::ReadOnly)) {
        return;
    }
    m_retryTimer.stop();
    applySettings();
    Q_EMIT message(LogLevel::Info, tr("The serial device %1 is back.").arg(port->name));
}

void SerialInput::close()
{
    Q_EMIT message(LogLevel::Info, tr("Close async serial device"));
    m_retryTimer.stop();
    m_port.disconnect(this);
    m_port.close();
}
