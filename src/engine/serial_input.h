#pragma once

#include "app/config.h"
#include "engine/input.h"

#include <QByteArray>
#include <QSerialPort>
#include <QTimer>

class InputRecorder;

// A serial line. It is not framed: what has arrived at once is one message. A device that is unplugged leaves the input
// open, and is opened again when it is back.
class SerialInput final : public Input {
    Q_OBJECT

public:
    // The recorder outlives the input.
    SerialInput(const Config &config, std::unique_ptr<MessageRouter> router, InputRecorder *recorder,
        QObject *parent = nullptr);

    Opening open() override;
    void close() override;
    QStringList endpoints() const override { return {m_config.inputSerialDevice}; }

private:
    void applySettings();
    void reopen();
    void read();
    void procError();

    const Config m_config;
    InputRecorder *const m_recorder;
    QSerialPort m_port;
    QTimer m_retryTimer{this}; // runs while the device is gone
    QByteArray m_receiveBuffer; // reused by every chunk
};
