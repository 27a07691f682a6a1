#pragma once

#include "app/log_level.h"

#include <QJsonObject>
#include <QObject>
#include <QProcess>
#include <QSharedPointer>

class Config;
class SensorInfo;

// The scenario generator running beside the terminal, sending to a loopback port of its own choice. It ends with this
// object, and with the process if that is killed.
class DemoTraffic final : public QObject {
    Q_OBJECT

public:
    // An empty scenario is the one that comes with the generator.
    explicit DemoTraffic(const QString &scenario, const QString &program = findProgram(), QObject *parent = nullptr);
    ~DemoTraffic() override;

    // The generator beside the executable, else in the path; empty when there is none.
    static QString findProgram();

    // Asks the generator for the scenario's sensor and finds a free port. False, with one line in error, when that
    // fails. Waits for the generator, a moment.
    bool prepare(QString *error);
    // The two halves of it. The first waits, on any thread: null, with one line in error, when the generator does not
    // answer.
    static QByteArray askForSensor(const QString &scenario, const QString &program, QString *error);
    bool takeSensor(const QByteArray &json, QString *error);
    // Input, sensor, maps and range rings of the demonstration. Only after prepare().
    void applyTo(Config &config) const;

    // The scenarios that come with the generator, a line each; empty, with one line in error, when that cannot be
    // asked.
    static QString list(QString *error, const QString &program = findProgram());

    // Sends from now on; a second call does nothing.
    void start();
    // Ends the traffic without waiting for it; this object deletes itself then.
    void endSoon();

Q_SIGNALS:
    void message(LogLevel level, const QString &text);

private:
    static QByteArray answer(const QString &program, const QStringList &arguments, QString *error);
    bool readSensor(const QByteArray &json, QString *error);
    bool findPort(QString *error);
    void fitRings(Config &config) const;
    void reportEnd(int exitCode, QProcess::ExitStatus status);

    const QString m_scenario;
    const QString m_program;
    QSharedPointer<SensorInfo> m_sensor;
    QJsonObject m_source; // what the generator says of the sensor, and of how it sends
    quint16 m_port = 0;
    QProcess m_process;
};
