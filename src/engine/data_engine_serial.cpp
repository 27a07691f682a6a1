#include "engine/data_engine.h"

#include <QFileInfo>
#include <QSerialPort>
#include <QSerialPortInfo>

#include <algorithm>
#include <optional>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

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

QStringList describe(const PortDetails &port)
{
    return {
        DataEngine::tr("Open async serial device: %1").arg(port.name),
        DataEngine::tr("Device path: %1").arg(port.path),
        DataEngine::tr("Description: %1").arg(port.description),
        DataEngine::tr("Manufacturer: %1").arg(port.manufacturer),
        port.vendor ? DataEngine::tr("Vendor Identifier: %1").arg(*port.vendor, 0, 16)
                    : DataEngine::tr("Vendor Identifier: Not exist"),
        port.product ? DataEngine::tr("Product Identifier: %1").arg(*port.product, 0, 16)
                     : DataEngine::tr("Product Identifier: Not exist"),
    };
}

} // namespace

bool DataEngine::openInputSerial()
{
    const auto port = findPort(m_config.inputSerialDevice);
    if (!port) {
        Q_EMIT logMessage(LogLevel::Info, tr("Serial device not found: %1").arg(m_config.inputSerialDevice));
        return false;
    }
    for (const QString &line : describe(*port)) {
        Q_EMIT logMessage(LogLevel::Info, line);
    }
    m_serialPort = new QSerialPort(this);
    m_serialPort->setPortName(port->path);
    if (!m_serialPort->open(QIODevice::ReadOnly)) {
        Q_EMIT logMessage(
            LogLevel::Info, tr("Failed to open serial device: %1").arg(static_cast<int>(m_serialPort->error())));
        delete m_serialPort;
        return false;
    }
    applySerialSettings();
    connect(m_serialPort, &QSerialPort::readyRead, this, &DataEngine::procInputSerial);
    // Queued: the port closes itself no sooner than its own notification is through.
    connect(m_serialPort, &QSerialPort::errorOccurred, this, &DataEngine::procSerialError, Qt::QueuedConnection);
    return true;
}

// A port may refuse some setting, a pseudo-terminal its parity for one; the data can be good all the same.
void DataEngine::applySerialSettings()
{
    const auto warnUnless = [this](bool set, const QString &what) {
        if (!set) {
            Q_EMIT logMessage(
                LogLevel::Warning, tr("The serial device refuses its %1: %2").arg(what, m_serialPort->errorString()));
        }
    };
    warnUnless(m_serialPort->setBaudRate(m_config.inputSerialBaudRate), tr("baud rate"));
    warnUnless(
        m_serialPort->setDataBits(static_cast<QSerialPort::DataBits>(m_config.inputSerialDataBits)), tr("data bits"));
    warnUnless(m_serialPort->setParity(static_cast<QSerialPort::Parity>(m_config.inputSerialParity)), tr("parity"));
    warnUnless(
        m_serialPort->setStopBits(static_cast<QSerialPort::StopBits>(m_config.inputSerialStopBits)), tr("stop bits"));
    warnUnless(m_serialPort->setFlowControl(QSerialPort::NoFlowControl), tr("flow control"));
    m_serialPort->clearError();
}

// The line is not framed: what has arrived is one message, and the block decoder walks the blocks in it.
void DataEngine::procInputSerial()
{
    if (!m_serialPort) {
        return;
    }
    m_receiveBuffer.resize(std::max(m_receiveBuffer.size(), m_serialPort->bytesAvailable()));
    const qint64 size = m_serialPort->read(m_receiveBuffer.data(), m_receiveBuffer.size());
    if (size <= 0) {
        return;
    }
    const QByteArray chunk = QByteArray::fromRawData(m_receiveBuffer.constData(), size);
    if (m_recorder.active()) {
        recordSerialData(chunk);
    }
    if (!m_inputPaused) {
        procMessage(chunk);
    }
}

// An unplugged adapter never delivers again, and would be found readable for ever. The input is closed so that the
// operator sees it and can open it again.
void DataEngine::procSerialError()
{
    const auto error = m_serialPort ? m_serialPort->error() : QSerialPort::NoError;
    if (error != QSerialPort::ResourceError && error != QSerialPort::ReadError) {
        return;
    }
    Q_EMIT logMessage(LogLevel::Warning, tr("The serial device is gone: %1").arg(m_serialPort->errorString()));
    closeInput();
}

void DataEngine::closeInputSerial()
{
    Q_EMIT logMessage(LogLevel::Info, tr("Close async serial device"));
    if (m_serialPort) {
        m_serialPort->disconnect(this);
        m_serialPort->close();
        m_serialPort->deleteLater();
        m_serialPort = nullptr;
    }
}
