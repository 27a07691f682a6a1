#include "app/app_identity.h"
#include "app/app_log.h"
#include "app/app_paths.h"
#include "app/config.h"
#include "app/crash_handler.h"
#include "app/languages.h"
#include "app/settings_owner.h"
#include "app/start_guard.h"
#include "control/control_client.h"
#include "control/control_commands.h"
#include "control/control_server.h"
#include "demonstration/demo_traffic.h"
#include "engine/replay_speed.h"
#include "plan_view/geo_widget.h"
#include "tile_windows/tile_maps.h"
#include "ui/input_session.h"
#include "ui/main_window.h"
#include "ui/recording_opener.h"
#include "ui/theme_menu.h"
#include "vyxdisplay/command_line.h"
#include "vyxdisplay/exit_report.h"
#include "vyxdisplay/first_frame.h"
#include "vyxdisplay/headless_run.h"
#include "vyxdisplay/restart.h"
#include "vyxdisplay/termination_signals.h"
#include "vyxdisplay/window_control.h"
#include "widgets/widget_style.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QIcon>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QSplashScreen>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <optional>

namespace {

constexpr int WrongUse = 2;

int complain(const QString &line)
{
    std::fprintf(stderr, "vyxdisplay: %s\n", qUtf8Printable(line));
    return WrongUse;
}

int print(const QString &text)
{
    std::fputs(qUtf8Printable(text), stdout);
    return 0;
}

// The toolkit aborts where it finds no screen.
bool screenAvailable([[maybe_unused]] const QStringList &arguments)
{
#ifdef Q_OS_LINUX
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(variable)) {
            return true;
        }
    }
    return arguments.contains("-platform") || arguments.contains("--platform");
#else
    return true;
#endif
}

void showSplash(QSplashScreen &splash)
{
    splash.setWindowFlag(Qt::WindowStaysOnTopHint);
    splash.setCursor(Qt::ArrowCursor);
    splash.show();
    splash.showMessage(QApplication::applicationDisplayName() + " " + QApplication::applicationVersion(),
        Qt::AlignRight | Qt::AlignBottom, Qt::white);
    QApplication::processEvents();
}

// What the command line names holds for every recording of this run.
void setUpRecordings(const CommandLine &commandLine, MainWindow &window)
{
    for (const ReplaySpeed::Speed speed : ReplaySpeed::values()) {
        if (ReplaySpeed::name(speed) == commandLine.replaySpeed) {
            window.setReplaySpeed(speed);
        }
    }
    window.recordingOpener()->setNamed([commandLine](Config &config) { commandLine.applyTo(config); });
    if (commandLine.exitAtEnd || commandLine.exitAfter) {
        window.recordingOpener()->setSiteQuestion({}); // such runs have no operator
    }
    if (commandLine.sensorAuto && window.config().inputComm != Config::InputComm::File) {
        window.showLog(LogLevel::Warning,
            MainWindow::tr("--sensor auto is for recordings; the live input is shown with the configured sensor."));
    }
}

void openInput(const CommandLine &commandLine, MainWindow &window)
{
    if (commandLine.sensorAuto && window.config().inputComm == Config::InputComm::File) {
        window.playRecording(window.config().inputFileName.filePath());
    } else {
        window.openInput();
    }
}

void openFiles(const CommandLine &commandLine, MainWindow &window)
{
    if (!commandLine.map.isEmpty()) {
        window.launchStaticMapEditor(commandLine.map, MapFile::Unknown);
    }
    if (commandLine.chooseRecording) {
        QTimer::singleShot(0, &window, &MainWindow::openRecordingFile); // its dialog has an event loop of its own
    }
}

void tellWhoKeepsSettings(MainWindow &window)
{
    if (!SettingsOwner::mayWrite()) {
        window.showLog(LogLevel::Warning,
            MainWindow::tr("Another window with these settings is open: changes in this one are not saved. (Other "
                           "settings: File, New Window With Profile...)"));
    }
}

bool startsByItself(const CommandLine &commandLine, const StartGuard &guard, MainWindow &window)
{
    if (!commandLine.start && window.config().inputAutoStart && !guard.startsWell()) {
        window.showLog(LogLevel::Warning,
            MainWindow::tr("The input is not started by itself: the program has crashed twice within a minute of its "
                           "start. Press Start to try again."));
        return false;
    }
    return commandLine.demo || commandLine.start || window.config().inputAutoStart;
}

void offerControl(const CommandLine &commandLine, ControlServer &server, MainWindow &window)
{
    if (commandLine.control.isEmpty()) {
        return;
    }
    const QString problem = server.listen(commandLine.control);
    if (!problem.isEmpty()) {
        window.showLog(LogLevel::Warning, problem);
    }
}

// The demonstration begins dark, as long as nobody has chosen another theme for it.
void setUpLook(const CommandLine &commandLine, const ThemeLibrary &themes, MainWindow &window)
{
    if (commandLine.demo) {
        window.themes()->beginWith(*themes.find("Night"));
    }
    if (!commandLine.theme.isEmpty()) {
        window.themes()->useForThisRun(*themes.find(commandLine.theme));
    }
}

// Somebody may be sitting there who wants to read something.
bool attended(const CommandLine &commandLine)
{
    return !commandLine.demo && !commandLine.exitAfter && !commandLine.exitAtEnd && commandLine.screenshot.isEmpty()
        && commandLine.snapshot.isEmpty();
}

// No tile service is asked for made-up traffic.
void connectDemo(DemoTraffic *demo, MainWindow &window)
{
    window.barTileServices();
    QObject::connect(demo, &DemoTraffic::message, &window, &MainWindow::showLog);
    QObject::connect(&window, &MainWindow::inputOpened, demo, &DemoTraffic::start);
}

// Layout and window state are as they were; what somebody may want to read first stands over them.
void openWindow(const CommandLine &commandLine, MainWindow &window, QSplashScreen &splash)
{
    window.show();
    window.loadUi(commandLine.size);
    splash.finish(&window);
    QApplication::processEvents();
    if (attended(commandLine)) {
        window.showChangesAfterUpdate();
    }
}

// What was asked for, here or in the settings. Who has neither is led.
void beginWork(const CommandLine &commandLine, const StartGuard &guard, MainWindow &window)
{
    setUpRecordings(commandLine, window);
    tellWhoKeepsSettings(window);
    if (!commandLine.demo && !commandLine.exitAtEnd) {
        window.keepInput();
    }
    if (startsByItself(commandLine, guard, window)) {
        openInput(commandLine, window);
    }
    openFiles(commandLine, window);
    if (!commandLine.saysWhatToDo() && !QFileInfo::exists(AppPaths::configFile())) {
        window.showGettingStarted();
    }
    if (commandLine.exitAfter) {
        QTimer::singleShot(*commandLine.exitAfter, &window, &MainWindow::requestExit);
    }
}

// From the main window's construction to the end of the event loop.
int runWindow(const CommandLine &commandLine, const ThemeLibrary &themes, DemoTraffic *demo, QSplashScreen &splash,
    const QElapsedTimer &clock, Shutdown::Afterwards &afterwards)
{
    MainWindow window([&commandLine, demo](Config &config) {
        if (demo) {
            demo->applyTo(config);
        }
        commandLine.applyTo(config);
    });
    if (demo) {
        connectDemo(demo, window);
    }
    setUpLook(commandLine, themes, window);
    FirstFrame firstFrame(window.geoWidget(), clock);
    QObject::connect(&firstFrame, &FirstFrame::painted, &window, [&window](qint64 milliseconds) {
        window.showLog(LogLevel::Debug, MainWindow::tr("First frame after %1 ms").arg(milliseconds));
    });
    ExitReport report(&window, commandLine.screenshot, commandLine.snapshot);
    if (commandLine.exitAtEnd) {
        report.exitWithInput();
    }
    const TerminationSignals signalsToEnd;
    QObject::connect(&signalsToEnd, &TerminationSignals::requested, &window, &MainWindow::requestExit);
    // Told to end from outside, the program does not wait until somebody answers a dialog.
    QObject::connect(&window, &MainWindow::shutdownComplete, qApp, [] { QCoreApplication::exit(); });
    openWindow(commandLine, window, splash);
    WindowControl control(&window);
    const ControlCommands commands(&control);
    ControlServer server([&commands](const QByteArray &request) { return commands.answer(request); });
    offerControl(commandLine, server, window);
    const StartGuard guard;
    beginWork(commandLine, guard, window);
    const int status = QApplication::exec();
    afterwards = window.afterwards();
    return status != 0 || report.succeeded() ? status : 1;
}

int runApplication(int argc, char *argv[], const CommandLine &commandLine, const QElapsedTimer &clock,
    Shutdown::Afterwards &afterwards)
{
    QApplication application(argc, argv);
    setApplicationIdentity();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/application/vyxdisplay.svg")));
    QApplication::setDesktopFileName(QStringLiteral("com.korvane.VyxDisplay")); // whose icon Wayland shows
    if (!debugModeMarked()) {
        QLoggingCategory::setFilterRules("default.debug=false");
    }
    const SettingsOwner owner(AppPaths::configDir());
    Config config;
    config.load(AppPaths::configFile());
    applyWidgetStyle(config.displayStyle);
    applyFontScale(config.displayFontScale);
    Languages::install(config.displayLanguage);

    const ThemeLibrary themes;
    if (!commandLine.theme.isEmpty() && !themes.find(commandLine.theme)) {
        const QString problem = CommandLine::tr("--theme: '%1' is not a theme (%2)");
        return complain(problem.arg(commandLine.theme, themes.names().join(", ")));
    }
    std::unique_ptr<DemoTraffic> demo;
    if (commandLine.demo) {
        demo = std::make_unique<DemoTraffic>(*commandLine.demo);
        QString error;
        if (!demo->prepare(&error)) {
            return complain(error);
        }
    }
    QSplashScreen splash(QPixmap(":resource/local/splash.png"));
    showSplash(splash);
    return runWindow(commandLine, themes, demo.get(), splash, clock, afterwards);
}

// Without a window. The platform that draws nowhere has what fonts and pictures need.
int runHeadless(int argc, char *argv[], const CommandLine &commandLine)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    setApplicationIdentity();
    Config config;
    config.load(AppPaths::configFile());
    Languages::install(config.displayLanguage);
    std::unique_ptr<DemoTraffic> demo;
    QString error;
    if (commandLine.demo) {
        demo = std::make_unique<DemoTraffic>(*commandLine.demo);
        if (!demo->prepare(&error)) {
            return complain(error);
        }
    }
    HeadlessRun run(commandLine, demo.get());
    const ControlCommands commands(&run);
    ControlServer server([&commands](const QByteArray &request) { return commands.answer(request); });
    if (!commandLine.control.isEmpty()) {
        error = server.listen(commandLine.control);
        if (!error.isEmpty()) {
            return complain(error);
        }
    }
    const TerminationSignals signalsToEnd;
    QObject::connect(&signalsToEnd, &TerminationSignals::requested, &run, &HeadlessRun::end);
    QObject::connect(&run, &HeadlessRun::finished, &application, &QCoreApplication::quit, Qt::QueuedConnection);
    run.begin();
    QGuiApplication::exec();
    return run.succeeded() ? 0 : 1;
}

int ask(int argc, char *argv[], const CommandLine::Question &question)
{
    const QCoreApplication application(argc, argv);
    QString error;
    const QByteArray answer = ControlClient::ask(question.path, question.request, &error);
    if (answer.isEmpty()) {
        complain(error);
        return 1;
    }
    std::printf("%s\n", answer.constData());
    return QJsonDocument::fromJson(answer)["ok"].toBool() ? 0 : 1;
}

// What needs no screen; the exit status, or nothing where a window is wanted.
std::optional<int> runWithoutWindow(int argc, char *argv[], const CommandLine &commandLine)
{
    if (commandLine.help) {
        return print(CommandLine::helpText());
    }
    if (commandLine.version) {
        return print(CommandLine::versionText());
    }
    if (commandLine.demo == "list") {
        QString error;
        const QString scenarios = DemoTraffic::list(&error);
        return scenarios.isEmpty() ? complain(error) : print(scenarios);
    }
    if (commandLine.ask) {
        return ask(argc, argv, *commandLine.ask);
    }
    return commandLine.headless ? std::optional(runHeadless(argc, argv, commandLine)) : std::nullopt;
}

int qMain(int argc, char *argv[])
{
    QElapsedTimer clock;
    clock.start();
    setApplicationIdentity();
    installCrashHandler(AppPaths::crashLogFile());

    const QStringList arguments(argv, argv + argc);
    QString error;
    const std::optional<CommandLine> commandLine = CommandLine::parse(arguments, &error);
    if (!commandLine) {
        return complain(error);
    }
    const QString profile = commandLine->demo ? QStringLiteral("demo") : commandLine->profile;
    if (!profile.isEmpty()) {
        AppPaths::setProfile(profile);
        installCrashHandler(AppPaths::crashLogFile());
    }
    if (const auto status = runWithoutWindow(argc, argv, *commandLine)) {
        return *status;
    }
    if (!screenAvailable(arguments)) {
        return complain(QCoreApplication::translate(
            "main", "no screen: set DISPLAY or WAYLAND_DISPLAY, or QT_QPA_PLATFORM=offscreen to run without one"));
    }
    auto afterwards = Shutdown::Afterwards::Nothing;
    const int status = runApplication(argc, argv, *commandLine, clock, afterwards);
    if (afterwards == Shutdown::Afterwards::Nothing) {
        return status;
    }
    // When nothing of this run is left: settings, control socket and serial devices are the next one's.
    restartProgram(restartArguments(arguments, afterwards == Shutdown::Afterwards::StartWithInput));
    return complain(QCoreApplication::translate("main", "the program cannot be started again"));
}

} // namespace

int main(int argc, char *argv[])
{
    return qMain(argc, argv);
}
