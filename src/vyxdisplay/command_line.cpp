#include "vyxdisplay/command_line.h"

#include "app/app_identity.h"
#include "maps/map_file.h"
#include "vyxdisplay/command_line_values.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>

namespace {

using namespace CommandLineValues;
using Input = CommandLine::Input;
using Processor = CommandLine::Processor;

void applyInput(const Input &input, Config &config)
{
    config.inputComm = input.comm;
    switch (input.comm) {
    case Config::InputComm::Udp:
        config.inputUdpMulticast1 = !input.group.isNull();
        config.inputUdpPort1 = input.port;
        config.inputEnable2 = false;
        if (!input.group.isNull()) {
            config.inputUdpMcastAddress1 = input.group;
            config.inputUdpMcastLanInterface1 = input.interface;
        }
        break;
    case Config::InputComm::Serial:
        config.inputSerialDevice = input.path;
        if (input.baudRate > 0) {
            config.inputSerialBaudRate = input.baudRate;
        }
        break;
    case Config::InputComm::File:
        config.inputFileName.setFile(input.path);
        break;
    }
}

void applyProcessor(const Processor &processor, Config &config)
{
    config.processorType = processor.type;
    config.processorAsterixFormat = processor.asterixFormat.value_or(config.processorAsterixFormat);
    config.processorModeSEncapsulation = processor.encapsulation.value_or(config.processorModeSEncapsulation);
    config.processorAleniaSirMFormat = processor.sirMFormat.value_or(config.processorAleniaSirMFormat);
}

// Options that the toolkit reads and removes by itself, written with one dash or two.
bool isToolkitSwitch(const QString &name)
{
    static constexpr std::array Names{"reverse", "widgetcount"};
    return std::find(Names.begin(), Names.end(), name) != Names.end();
}

bool isToolkitOption(const QString &name)
{
    static constexpr std::array Names{"platform", "platformpluginpath", "platformtheme", "plugin", "style",
        "stylesheet", "qwindowgeometry", "qwindowicon", "qwindowtitle", "display", "session"};
    return std::find(Names.begin(), Names.end(), name) != Names.end();
}

// Walks over the arguments. An option's value is the next argument or follows an equals sign.
class Parser {
public:
    explicit Parser(const QStringList &arguments) : m_arguments(arguments.mid(1)) { }

    // The first thing that is wrong, or empty.
    QString run()
    {
        while (m_error.isEmpty() && !m_arguments.isEmpty()) {
            takeOption(m_arguments.takeFirst());
        }
        // A recording that is named by itself tells what it is.
        m_result.sensorAuto = m_result.sensorAuto || (m_recordingAlone && !m_result.sensor);
        if (m_error.isEmpty()) {
            m_error = contradiction();
        }
        return m_error;
    }

    const CommandLine &result() const { return m_result; }

private:
    // Empty where the options go together.
    QString contradiction() const
    {
        const bool ownInput = m_result.input || m_result.chooseRecording;
        const bool own = ownInput || m_result.sensor || m_result.sensorAuto || m_result.processor;
        if (m_result.demo && own) {
            return CommandLine::tr("--demo brings an input, a processor and a sensor of its own");
        }
        if (m_result.demo && !m_result.profile.isEmpty()) {
            return CommandLine::tr("--demo brings a profile of its own");
        }
        if (m_result.headless && !m_result.screenshot.isEmpty()) {
            return CommandLine::tr("--screenshot needs a window, --headless shows none");
        }
        if (m_result.headless && (m_result.chooseRecording || !m_result.map.isEmpty())) {
            return CommandLine::tr("a map, and '--input file', need a window, --headless shows none");
        }
        if (m_result.snapshotEvery && (!m_result.headless || m_result.snapshot.isEmpty())) {
            return CommandLine::tr("--snapshot-every needs --headless and --snapshot");
        }
        return {};
    }

    void takeOption(const QString &argument)
    {
        const auto equals = argument.indexOf(QLatin1Char('='));
        m_option = equals < 0 ? argument : argument.left(equals);
        m_inlineValue = equals < 0 ? std::nullopt : std::optional(argument.mid(equals + 1));
        const auto name = m_option.mid(m_option.startsWith(QLatin1String("--")) ? 2 : 1);
        const bool hasFile = m_result.input || !m_result.map.isEmpty();
        if (!argument.startsWith(QLatin1Char('-')) && !argument.isEmpty() && !hasFile) {
            takeFile(argument);
        } else if (name.isEmpty() || !argument.startsWith(QLatin1Char('-'))) {
            m_error = CommandLine::tr("unexpected argument '%1'").arg(argument);
        } else if (isToolkitOption(name)) {
            value();
        } else if (!isToolkitSwitch(name) && !takeSwitch() && !takeOptionWithValue()) {
            m_error = CommandLine::tr("unknown option '%1'").arg(m_option);
        }
    }

    // A recording named by itself is played at once; a map opens in the editor.
    void takeFile(const QString &path)
    {
        if (MapFile::formatFromFileName(path) != MapFile::Unknown) {
            m_result.map = path;
            return;
        }
        m_result.input = fileInput(path, &m_error);
        m_result.start = true;
        m_recordingAlone = true;
    }

    bool takeSwitch()
    {
        if (m_option == QLatin1String("--help") || m_option == QLatin1String("-h")) {
            m_result.help = true;
        } else if (m_option == QLatin1String("--version") || m_option == QLatin1String("-v")) {
            m_result.version = true;
        } else if (m_option == QLatin1String("--start")) {
            m_result.start = true;
        } else if (m_option == QLatin1String("--exit-at-end")) {
            m_result.exitAtEnd = true;
        } else if (m_option == QLatin1String("--headless")) {
            m_result.headless = true;
        } else if (m_option == QLatin1String("--ignore-cartesian")) {
            m_result.ignoreCartesian = true;
        } else if (m_option == QLatin1String("--ignore-wgs84")) {
            m_result.ignoreWgs84 = true;
        } else {
            return false;
        }
        if (m_inlineValue) {
            m_error = CommandLine::tr("%1 takes no value").arg(m_option);
        }
        return true;
    }

    bool takeOptionWithValue()
    {
        if (m_option == QLatin1String("--demo")) {
            m_result.demo = optionalValue();
        } else if (m_option == QLatin1String("--input")) {
            takeInput();
        } else if (m_option == QLatin1String("--sensor")) {
            takeSensor();
        } else if (m_option == QLatin1String("--processor")) {
            m_result.processor = parsedValue(parsedProcessor);
        } else if (m_option == QLatin1String("--uap")) {
            m_result.uap = parsedValue(parsedUap);
        } else if (m_option == QLatin1String("--theme")) {
            m_result.theme = value();
        } else if (m_option == QLatin1String("--size")) {
            m_result.size = parsedValue(parsedSize).value_or(QSize());
        } else if (m_option == QLatin1String("--exit-after")) {
            m_result.exitAfter = parsedValue(parsedSeconds);
        } else if (m_option == QLatin1String("--replay-speed")) {
            m_result.replaySpeed = parsedValue(parsedSpeed).value_or(QString());
        } else if (m_option == QLatin1String("--screenshot")) {
            m_result.screenshot = value();
        } else if (m_option == QLatin1String("--snapshot")) {
            m_result.snapshot = value();
        } else {
            return takeServiceOption();
        }
        return true;
    }

    // What runs by itself, or beside another.
    bool takeServiceOption()
    {
        if (m_option == QLatin1String("--profile")) {
            m_result.profile = parsedValue(parsedProfile).value_or(QString());
        } else if (m_option == QLatin1String("--snapshot-every")) {
            m_result.snapshotEvery = parsedValue(parsedSeconds);
        } else if (m_option == QLatin1String("--control")) {
            m_result.control = value();
        } else if (m_option == QLatin1String("--ask")) {
            takeQuestion();
        } else {
            return false;
        }
        return true;
    }

    void takeInput()
    {
        const auto text = value();
        m_result.chooseRecording = text == QLatin1String("file");
        if (m_error.isEmpty() && !m_result.chooseRecording) {
            m_result.input = parsedValue(text, parsedInput);
        }
    }

    // PATH COMMAND [PARAMETERS], and nothing behind it: what was meant for a terminal would go unheard.
    void takeQuestion()
    {
        CommandLine::Question question;
        question.path = value();
        const QString command = question.path.isEmpty() || m_arguments.isEmpty() ? QString() : m_arguments.takeFirst();
        if (command.isEmpty()) {
            m_error = CommandLine::tr("--ask needs the path of a control socket and a command");
            return;
        }
        if (!m_arguments.isEmpty()) {
            question.request = parsedValue(m_arguments.takeFirst(), parsedParameters).value_or(QJsonObject());
        }
        if (m_error.isEmpty() && !m_arguments.isEmpty()) {
            m_error = CommandLine::tr("unexpected argument '%1'").arg(m_arguments.constFirst());
        }
        question.request.insert("command", command);
        m_result.ask = question;
    }

    void takeSensor()
    {
        const auto text = value();
        m_result.sensorAuto = text == QLatin1String("auto");
        if (m_error.isEmpty() && !m_result.sensorAuto) {
            m_result.sensor = parsedValue(text, parsedSensor);
        }
    }

    QString value()
    {
        const auto text = optionalValue();
        if (text.isEmpty()) {
            m_error = CommandLine::tr("%1 needs a value").arg(m_option);
        }
        return text;
    }

    // Empty when none follows: another option is no value.
    QString optionalValue()
    {
        if (m_inlineValue) {
            return *m_inlineValue;
        }
        const bool follows = !m_arguments.isEmpty() && !m_arguments.constFirst().startsWith(QLatin1Char('-'));
        return follows ? m_arguments.takeFirst() : QString();
    }

    template <typename Value>
    std::optional<Value> parsedValue(std::optional<Value> (*parse)(const QString &, QString *))
    {
        const auto text = value();
        return m_error.isEmpty() ? parsedValue(text, parse) : std::nullopt;
    }

    template <typename Value>
    std::optional<Value> parsedValue(const QString &text, std::optional<Value> (*parse)(const QString &, QString *))
    {
        const auto parsed = parse(text, &m_error);
        if (!parsed) {
            m_error.prepend(m_option + QStringLiteral(": "));
        }
        return parsed;
    }

    QStringList m_arguments; // those not yet read
    QString m_option; // the one being read
    std::optional<QString> m_inlineValue;
    CommandLine m_result;
    bool m_recordingAlone = false; // without an option before it
    QString m_error;
};

} // namespace

std::optional<CommandLine> CommandLine::parse(const QStringList &arguments, QString *error)
{
    Parser parser(arguments);
    *error = parser.run();
    return error->isEmpty() ? std::optional(parser.result()) : std::nullopt;
}

QString CommandLine::helpText()
{
    return tr("Usage: vyxdisplay [options] [RECORDING|MAP]\n"
              "Air-traffic surveillance display.\n"
              "\n"
              "  --demo [SCENARIO]     show simulated traffic, with settings of its own;\n"
              "                        SCENARIO is a file or one of those that --demo list\n"
              "                        prints\n"
              "  --input INPUT         in place of the configured input, for this run:\n"
              "                          udp:PORT\n"
              "                          udp:GROUP:PORT[@INTERFACE]\n"
              "                          serial:DEVICE[:BAUD]\n"
              "                          file:PATH, or file to be asked for a recording\n"
              "  --sensor TYPE:LAT,LON[:NAME]\n"
              "                        in place of the configured sensor, for this run;\n"
              "                        TYPE is radar, adsb, mlat, sdps or smr, the location\n"
              "                        decimal degrees or 395427N1162317E\n"
              "  --sensor auto         the sensor that the data come from, as far as they tell\n"
              "  --processor PROCESSOR in place of the configured processor, for this run:\n"
              "                          asterix[:FORMAT]\n"
              "                          modes[:ENCAPSULATION]\n"
              "                          sirm[:FORMAT]\n"
              "                        FORMAT is raw, hdlc or managair, ENCAPSULATION raw,\n"
              "                        avr, beast or raw-rssi\n"
              "  --uap NAME            decode ASTERIX with that user application profile:\n"
              "                          auto, standard, cat001-plot, asr10ss, cat021-0.23,\n"
              "                          cat021-0.26, cat021-2.1, cat021-2.7 or thales\n"
              "  --ignore-cartesian    place MLAT and SDPS tracks by their WGS-84 positions\n"
              "  --ignore-wgs84        place MLAT and SDPS tracks by their Cartesian positions\n"
              "  RECORDING             play that file as what it holds, as\n"
              "                        --input file:RECORDING --sensor auto --start\n"
              "  MAP                   open that map (.map, .mapx, .xml) in the map editor\n"
              "  --replay-speed SPEED  of recordings: 0.5x, 1x, 2x, 4x, 8x or Max\n"
              "  --start               open the input at once\n"
              "  --profile NAME        with settings, layouts, window state and log files of that\n"
              "                        name: letters, digits and - _ . only\n"
              "  --theme NAME          show that theme in this run: Classic, Night, Dusk, Day\n"
              "                        or one of your own\n"
              "  --size WIDTHxHEIGHT   of the window in this run, pixels\n"
              "  --exit-at-end         exit when the input has ended, as recordings do; status 1\n"
              "                        when it could not be opened\n"
              "  --exit-after SECONDS  exit after that time\n"
              "  --screenshot FILE     at exit, write the window as a PNG picture\n"
              "  --snapshot FILE       at exit, write the newest tracks and alerts, and where\n"
              "                        they stand in the picture, as JSON\n"
              "  --headless            run without a window, with the input opened at once and\n"
              "                        again when it fails, until SIGTERM; log on standard error\n"
              "  --snapshot-every SECONDS\n"
              "                        with --headless and --snapshot: write it that often, too\n"
              "  --control PATH        answer requests on that local socket, a JSON object a line\n"
              "  --ask PATH COMMAND [JSON]\n"
              "                        put a request to the terminal with that control socket and\n"
              "                        print its answer; status 1 when it refuses or is not there.\n"
              "                        COMMAND is status, start, stop, snapshot, screenshot or\n"
              "                        view, JSON an object of parameters\n"
              "  --help                show this text\n"
              "  --version             show the version\n");
}

QString CommandLine::versionText()
{
    return tr("%1 %2 (%3)\n")
        .arg(QGuiApplication::applicationDisplayName(), QCoreApplication::applicationVersion(), buildRevision());
}

bool CommandLine::saysWhatToDo() const
{
    return start || demo || input || sensor || sensorAuto || processor || exitAtEnd || exitAfter || chooseRecording
        || headless || !map.isEmpty() || !control.isEmpty() || !screenshot.isEmpty() || !snapshot.isEmpty();
}

void CommandLine::applyTo(Config &config) const
{
    if (input) {
        applyInput(*input, config);
    }
    if (processor) {
        applyProcessor(*processor, config);
    }
    config.processorAsterixUap = uap.value_or(config.processorAsterixUap);
    config.processorAsterixIgnoreCartesianCoordinates |= ignoreCartesian;
    config.processorAsterixIgnoreWgs84Coordinates |= ignoreWgs84;
    if (sensor) {
        config.sensorType = sensor->type;
        config.sensorLocation = sensor->location;
        config.sensorName = sensor->name;
    }
}
