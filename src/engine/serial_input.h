#pragma once

#include "app/config.h"
#include "engine/input.h"

#include <QByteArray>
#include <QSerialPort>

class InputRecorder;

// A serial line. It is not framed: what has arrived at once is one message.
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
    void read();
    void procError();

    const Config m_config;
    InputRecorder *const m_recorder;
    QSerialPort m_port;
    QByteArray m_receiveBuffer; // reused by every chunk
};
