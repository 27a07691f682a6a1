// Makes the pictures of the manual, and those that show the terminal to who has not got it: with simulated traffic, and
// its windows. Run by packaging/make_manual_pictures.sh; by hand: manual_pictures DOCS_FOLDER [SITTING...]

#include "app/app_identity.h"
#include "app/app_paths.h"
#include "app/map_places.h"
#include "app/theme_library.h"
#include "demonstration/demo_traffic.h"
#include "display/geo_track_display.h"
#include "engine/display_snapshot.h"
#include "inspection/absence_window.h"
#include "manual/picture_palette.h"
#include "plan_view/geo_widget.h"
#include "ui/actions.h"
#include "ui/main_window.h"
#include "ui/theme_menu.h"
#include "widgets/file_edit.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTreeView>

#include <algorithm>
#include <cstdio>

namespace {

// What is to be seen of the widget, and what is to be done before.
struct Picture {
    const char *name;
    std::function<QWidget *(MainWindow &)> show;
    QRect part = {}; // of the widget, a negative y from its foot; null: all of it
};

struct Sitting {
    const char *name;
    const char *scenario; // empty: a recording of the demonstration
    const char *theme;
    QSize size;
    int seconds; // of traffic before the first picture
    std::vector<Picture> pictures;
    const char *folder = "manual/pictures";
};

void let(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
}

QAction *action(const MainWindow &window, ActionId id)
{
    return (*window.findChild<Actions *>())[id];
}

QWidget *wholeWindow(MainWindow &window)
{
    return &window;
}

QWidget *scope(MainWindow &window)
{
    return window.geoWidget();
}

// Around the middle, metres a pixel; 0: as it is.
std::function<QWidget *(MainWindow &)> scopeWith(std::vector<ActionId> switches, double zoom = 0.0)
{
    return [switches, zoom](MainWindow &window) {
        GeoWidget *plan = window.geoWidget();
        const QPointF middle = plan->screenTransform().inverted().map(QPointF(plan->rect().center()));
        if (zoom > 0.0) {
            plan->setView(middle.x(), middle.y(), zoom);
        }
        for (const ActionId id : switches) {
            if (!action(window, id)->isChecked()) {
                action(window, id)->trigger();
            }
        }
        let(1500);
        return scope(window);
    };
}

QWidgetList shownWindows()
{
    QWidgetList shown;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->windowType() != Qt::ToolTip) {
            shown.append(widget);
        }
    }
    return shown;
}

// The window that comes up, of that size where one is given.
QWidget *opened(const std::function<void()> &open, const QSize &size, int waitMs)
{
    const QWidgetList before = shownWindows();
    open();
    let(500);
    for (QWidget *widget : shownWindows()) {
        if (!before.contains(widget)) {
            if (!size.isEmpty()) {
                widget->resize(size);
            }
            let(waitMs);
            return widget;
        }
    }
    return nullptr;
}

std::function<QWidget *(MainWindow &)> windowOf(ActionId id, const QSize &size = {}, int waitMs = 2500)
{
    return [id, size, waitMs](
               MainWindow &window) { return opened([&window, id] { action(window, id)->trigger(); }, size, waitMs); };
}

QWidget *mapEditor(MainWindow &window)
{
    const QString map = MapPlaces::resolve("demo-airspace.xml");
    QWidget *editor = opened([&] { window.launchStaticMapEditor(map, MapFile::Xml); }, {860, 560}, 2000);
    if (auto *tree = editor ? editor->findChild<QTreeView *>() : nullptr) {
        const QModelIndex group = tree->model()->index(0, 0);
        tree->expand(group);
        tree->setCurrentIndex(tree->model()->index(0, 0, group));
        let(1000);
    }
    return editor;
}

QString recordingOf(const QString &scenario, int seconds, const QTemporaryDir &folder)
{
    const QString file = folder.filePath(scenario + ".pcap");
    QProcess::execute(
        DemoTraffic::findProgram(), {scenario, "--duration", QString::number(seconds), "--fast", "--pcap", file});
    return file;
}

QWidget *sensorCheck(MainWindow &window)
{
    const QTemporaryDir files;
    QWidget *check = windowOf(ActionId::SensorCheck)(window);
    if (check) {
        auto *source = check->findChild<QComboBox *>("source");
        source->setCurrentIndex(source->count() - 1); // a recording
        check->findChild<FileEdit *>("file")->setPath(recordingOf("check", 1800, files));
        check->findChild<QPushButton *>("start")->click();
        let(20000);
    }
    return check;
}

// Of some that are in the view, and some that are not; it stays as near as that.
QWidget *absence(MainWindow &window)
{
    scopeWith({}, 150.0)(window);
    QWidget *opened = windowOf(ActionId::WhyNotShown, {520, 300})(window);
    if (auto *question = qobject_cast<AbsenceWindow *>(opened)) {
        question->setText(QStringLiteral("VYX"));
        let(2500);
    }
    return opened;
}

QWidget *rawView(MainWindow &window)
{
    QWidget *raw = windowOf(ActionId::RawView, {900, 560}, 6000)(window);
    if (auto *records = raw ? raw->findChild<QAbstractItemView *>("records") : nullptr) {
        records->setCurrentIndex(records->model()->index(records->model()->rowCount() - 4, 0));
        let(500);
    }
    return raw;
}

// The page of the settings window with that number, after so many milliseconds.
std::function<QWidget *(MainWindow &)> settingsPage(int page, int waitMs = 500)
{
    return [page, waitMs](MainWindow &window) -> QWidget * {
        QWidget *settings = windowOf(ActionId::Settings, {760, 620}, 300)(window);
        if (auto *list = settings ? settings->findChild<QAbstractItemView *>() : nullptr) {
            list->setCurrentIndex(list->model()->index(page, 0));
            let(waitMs);
        }
        return settings;
    };
}

// The pane, out of the window.
QWidget *pane(MainWindow &window, const char *name, const QSize &size)
{
    auto *dock = window.findChild<QDockWidget *>(QString::fromLatin1(name));
    if (dock) {
        dock->setFloating(true);
        dock->show();
        dock->resize(size);
        let(3000);
    }
    return dock;
}

QWidget *health(MainWindow &window)
{
    return pane(window, "healthDock", {900, 130});
}

// Of the first track that has told its callsign.
QWidget *explanation(MainWindow &window)
{
    for (const TrackSnapshot &track : window.newestSnapshot()->tracks) {
        if (track.callsignValid && track.levelValid) {
            window.geoWidget()->trackDisplay()->setSelected(track.incarnationId);
            break;
        }
    }
    return pane(window, "inspectionDock", {1000, 460});
}

std::vector<Sitting> sittings()
{
    using Id = ActionId;
    const QSize wide(1280, 720);
    const QSize crowded(1230, 692); // costs more octets
    constexpr auto Shown = "pictures";
    return {
        {"shown-night", "weather", "Night", wide, 60, {{"night", wholeWindow}}, Shown},
        {"shown-dusk", "demo", "Dusk", wide, 60, {{"dusk", wholeWindow}}, Shown},
        {"shown-day", "alerts", "Day", wide, 60, {{"day", wholeWindow}}, Shown},
        {"shown-classic", "demo", "Classic", wide, 60, {{"classic", wholeWindow}}, Shown},
        {"shown-surface", "smr", "Night", wide, 60, {{"surface", wholeWindow}}, Shown},
        {"night", "busy", "Night", crowded, 60, {{"busy-night", wholeWindow}}},
        {"dusk", "busy", "Dusk", crowded, 60, {{"busy-dusk", wholeWindow}}},
        {"day", "busy", "Day", crowded, 60, {{"busy-day", wholeWindow}}},
        {"alerts", "alerts", "Night", {1000, 760}, 60, {{"alerts", scope}}},
        {"weather", "weather", "Night", {1000, 700}, 60,
            {{"weather", scopeWith({Id::ToggleWeatherMap, Id::ToggleKey}, 400.0)}}},
        {"video", "video", "Night", {1000, 700}, 40, {{"video", scopeWith({Id::ToggleVideoMap}, 130.0)}}},
        {"surface", "smr", "Night", wide, 60, {{"surface", wholeWindow}}},
        {"windows", "demo", "Night", wide, 75,
            {
                {"demo", wholeWindow},
                {"orientation",
                    scopeWith({Id::ToggleRangeRings, Id::ToggleRangeRingLabels, Id::ToggleCompassRose,
                        Id::ToggleScaleBar, Id::ToggleKey})},
                {"key", scopeWith({Id::ToggleKey}), QRect(4, -144, 190, 118)},
                {"label-format", windowOf(Id::TrackLabelFormat)},
                {"settings-input", settingsPage(1, 12000)},
                {"settings-tracks", settingsPage(8)},
                {"sensors", windowOf(Id::SensorManager, {1020, 350})},
                {"static-maps", windowOf(Id::StaticMaps, {940, 380})},
                {"map-editor", mapEditor},
                {"statistics", windowOf(Id::Statistics, {}, 11000)},
                {"raw-view", rawView},
                {"diagnosis", windowOf(Id::DiagnoseInput, {720, 240}, 12000)},
                {"sensor-check", sensorCheck},
                {"getting-started", windowOf(Id::GettingStarted, {560, 360})},
                {"plan-view", windowOf(Id::NewPlanView, {720, 480}, 3000)},
                {"manual", windowOf(Id::Contents, {900, 600})},
                {"cheat-sheet", windowOf(Id::CheatSheet)},
                {"health", health},
                {"explanation", explanation},
                {"absence", absence},
            }},
        {"playback", "", "Night", wide, 20, {{"playback", windowOf(Id::PlaybackWindow, {620, 190}, 6000)}}},
    };
}

// Paths as they are where the program is installed.
QString asInstalled(QString text)
{
    const QString share = QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/../share")).canonicalPath();
    static const QRegularExpression temporary(
        QRegularExpression::escape(QDir::tempPath()) + QStringLiteral("/VyxDisplay-\\w+"));
    return text.replace(share, QStringLiteral("/usr/share")).replace(temporary, QStringLiteral("/home/user"));
}

void showPathsAsInstalled(const QWidget &widget)
{
    const auto show = [](auto *field) {
        const QString shown = asInstalled(field->text());
        if (shown != field->text()) {
            const QSignalBlocker blocker(field);
            field->setText(shown);
        }
    };
    for (QLabel *label : widget.findChildren<QLabel *>()) {
        show(label);
    }
    for (QLineEdit *edit : widget.findChildren<QLineEdit *>()) {
        show(edit);
    }
}

bool write(QWidget *widget, const Picture &picture, const QDir &folder)
{
    if (!widget) {
        std::fprintf(stderr, "manual_pictures: nothing to see of %s\n", picture.name);
        return false;
    }
    showPathsAsInstalled(*widget);
    QRect part = picture.part.isNull() ? widget->rect() : picture.part;
    if (part.y() < 0) {
        part.translate(0, widget->height());
    }
    const QImage taken = widget->grab(part).toImage();
    const QString file = folder.filePath(QString::fromLatin1(picture.name) + ".png");
    const bool written = PicturePalette(taken).apply(taken).save(file, "PNG", 0); // as small as it goes
    std::printf("%s %d x %d, %lld octets\n", qPrintable(file), taken.width(), taken.height(),
        static_cast<long long>(QFileInfo(file).size()));
    std::fflush(stdout);
    return written;
}

// The sensors of some scenarios.
QString sensorFile(const QTemporaryDir &folder)
{
    QJsonArray sensors;
    for (const char *scenario : {"demo", "adsb", "mlat", "sdps", "smr"}) {
        QProcess process;
        process.start(DemoTraffic::findProgram(), {QString::fromLatin1(scenario), "--sensor-json"});
        process.waitForFinished();
        sensors.append(QJsonDocument::fromJson(process.readAllStandardOutput()).object());
    }
    QFile file(folder.filePath("sensors.json"));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(sensors).toJson());
    }
    return file.fileName();
}

bool sit(const Sitting &sitting, const QDir &docs)
{
    const QDir folder(docs.filePath(QString::fromLatin1(sitting.folder)));
    const ThemeLibrary themes;
    DemoTraffic traffic(*sitting.scenario ? sitting.scenario : "demo");
    QString error;
    if (!traffic.prepare(&error)) {
        std::fprintf(stderr, "manual_pictures: %s\n", qPrintable(error));
        return false;
    }
    const QTemporaryDir files;
    MainWindow window([&traffic, &files](Config &config) {
        traffic.applyTo(config);
        config.sensorDatabase = sensorFile(files);
    });
    window.themes()->useForThisRun(*themes.find(sitting.theme));
    window.setExitQuestion([] { return true; });
    window.show();
    window.loadUi(sitting.size);
    if (*sitting.scenario) {
        QObject::connect(&window, &MainWindow::inputOpened, &traffic, &DemoTraffic::start);
        window.openInput();
    } else {
        window.playRecording(recordingOf("demo", 600, files));
    }
    let(sitting.seconds * 1000);
    bool good = true;
    for (const Picture &picture : sitting.pictures) {
        QWidget *shown = picture.show(window);
        good &= write(shown, picture, folder);
        if (shown && shown->isWindow() && shown != &window) {
            shown->close();
            let(300);
        }
    }
    window.requestExit();
    let(2000);
    return good;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setApplicationIdentity();
    AppPaths::setProfile("demo");
    QStringList names = QCoreApplication::arguments().mid(1);
    if (names.isEmpty()) {
        std::fprintf(stderr, "manual_pictures DOCS_FOLDER [SITTING...]\n");
        return 2;
    }
    const QDir docs(names.takeFirst());
    bool good = true;
    for (const Sitting &sitting : sittings()) {
        if (names.isEmpty() || names.contains(QString::fromLatin1(sitting.name))) {
            good &= sit(sitting, docs);
        }
    }
    return good ? 0 : 1;
}
