#pragma once

#include "app/config.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QSize>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

// What the command line of the terminal asks for. It is read before there is an application object, so that help and
// errors need no screen; options that the toolkit takes from the command line (-platform, -style, ...) pass unread.
struct CommandLine {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    struct Input {
        Config::InputComm comm = Config::InputComm::Udp;
        QHostAddress group; // null: unicast
        QNetworkInterface interface; // invalid: the system chooses
        quint16 port = 0;
        QString path; // of the serial device or the file
        int baudRate = 0; // 0: as configured
    };
    // A format that is not given: as configured.
    struct Processor {
        Config::ProcessorType type = Config::ProcessorType::Asterix;
        std::optional<Config::AsterixFormat> asterixFormat;
        std::optional<korvane::modes::ModeSEncapsulation::Format> encapsulation;
        std::optional<Config::AleniaSirMFormat> sirMFormat;
    };
    struct Sensor {
        SensorType type = UnknownSensor;
        GeoCoordinate location;
        QString name;
    };

    // The program's arguments, its name first. Nothing, and one line of text in error, for arguments that are wrong.
    static std::optional<CommandLine> parse(const QStringList &arguments, QString *error);

    static QString helpText();
    static QString versionText();

    // Puts the input, the processor and the sensor in the place of the configured ones, the second UDP input out of
    // use.
    void applyTo(Config &config) const;

    // Of a running terminal.
    struct Question {
        QString path; // of its control socket
        QJsonObject request;
    };
    // Somebody has said what is to be seen, or nobody is there to be asked.
    bool saysWhatToDo() const;

    bool help = false;
    bool version = false;
    bool start = false; // open the input at once
    bool exitAtEnd = false; // when the input has ended
    bool headless = false; // no window; the input is opened at once
    QString profile; // a name that is possible; empty: the ordinary settings
    QString control; // path of the control socket, or empty
    std::optional<Question> ask; // and nothing else
    QString replaySpeed; // name of the speed, or empty
    std::optional<QString> demo; // scenario, file or "list"; empty: the one shown first
    std::optional<Input> input;
    bool chooseRecording = false; // which one, the window asks
    QString map; // path of the map to be opened in the editor, or empty
    std::optional<Sensor> sensor;
    bool sensorAuto = false; // the one that the data tell
    std::optional<Processor> processor;
    std::optional<int> uap; // as in Config::processorAsterixUap
    bool ignoreCartesian = false;
    bool ignoreWgs84 = false;
    QString theme; // its name, which is not looked up here; empty: as configured
    QSize size; // of the window, pixels; empty: as it was
    std::optional<std::chrono::milliseconds> exitAfter;
    QString screenshot; // path of the picture to be written at exit, or empty
    QString snapshot; // path of the snapshot to be written at exit, or empty
    std::optional<std::chrono::milliseconds> snapshotEvery; // and before, without a window
};
