// Makes the pictures of the manual, and those that show the terminal to who has not got it: with simulated traffic, and
// its windows. Run by packaging/make_manual_pictures.sh; by hand: manual_pictures DOCS_FOLDER [SITTING...]

#include "app/app_identity.h"
#include "app/app_paths.h"
#include "app/map_places.h"
#include "app/theme_library.h"
#include "demonstration/demo_traffic.h"
#include "display/geo_track_display.h"
#include "engine/display_snapshot.h"
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
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

namespace {

constexpr int PaletteSize = 256;

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

// The page of the settings window with that number.
std::function<QWidget *(MainWindow &)> settingsPage(int page)
{
    return [page](MainWindow &window) -> QWidget * {
        QWidget *settings = windowOf(ActionId::Settings, {760, 620}, 300)(window);
        if (auto *list = settings ? settings->findChild<QAbstractItemView *>() : nullptr) {
            list->setCurrentIndex(list->model()->index(page, 0));
            let(500);
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
    return pane(window, "healthDock", {900, 260});
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
                {"key", scopeWith({Id::ToggleKey}), QRect(4, -180, 220, 145)},
                {"label-format", windowOf(Id::TrackLabelFormat)},
                {"settings-input", settingsPage(1)},
                {"settings-tracks", settingsPage(8)},
                {"sensors", windowOf(Id::SensorManager)},
                {"static-maps", windowOf(Id::StaticMaps, {760, 420})},
                {"map-editor", mapEditor},
                {"statistics", windowOf(Id::Statistics, {}, 11000)},
                {"raw-view", windowOf(Id::RawView, {900, 560}, 6000)},
                {"diagnosis", windowOf(Id::DiagnoseInput, {}, 12000)},
                {"sensor-check", sensorCheck},
                {"manual", windowOf(Id::Contents, {900, 600})},
                {"cheat-sheet", windowOf(Id::CheatSheet)},
                {"health", health},
                {"explanation", explanation},
            }},
        {"playback", "", "Night", wide, 20, {{"playback", windowOf(Id::PlaybackWindow, {620, 220}, 6000)}}},
    };
}

// The colours that a picture has most need of: boxes of colours are cut in two at their middle until there are as many
// as a palette holds.
class Palette {
public:
    explicit Palette(const QImage &picture)
    {
        std::map<QRgb, int> counts;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                ++counts[picture.pixel(x, y) | 0xFF000000];
            }
        }
        std::vector<std::vector<Color>> boxes(1);
        for (const auto &[color, count] : counts) {
            boxes[0].push_back({color, count});
        }
        while (boxes.size() < PaletteSize && cutWidest(boxes)) { }
        for (const std::vector<Color> &box : boxes) {
            const QRgb mean = meanOf(box);
            for (const Color &color : box) {
                m_index[color.rgb] = static_cast<uchar>(m_colors.size());
            }
            m_colors.append(mean);
        }
    }

    QImage apply(const QImage &picture) const
    {
        QImage indexed(picture.size(), QImage::Format_Indexed8);
        indexed.setColorTable(m_colors);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                indexed.scanLine(y)[x] = m_index.at(picture.pixel(x, y) | 0xFF000000);
            }
        }
        return indexed;
    }

private:
    struct Color {
        QRgb rgb;
        int count;
    };

    static int channel(QRgb color, int which) { return static_cast<int>(color >> (8 * which)) & 0xFF; }

    static std::pair<int, int> widest(const std::vector<Color> &box)
    {
        std::pair<int, int> found{0, 0}; // width, channel
        for (int which = 0; which < 3; ++which) {
            const auto [low, high] = std::minmax_element(box.begin(), box.end(),
                [which](const Color &a, const Color &b) { return channel(a.rgb, which) < channel(b.rgb, which); });
            found = std::max(found, {channel(high->rgb, which) - channel(low->rgb, which), which});
        }
        return found;
    }

    // False when every box has one colour.
    static bool cutWidest(std::vector<std::vector<Color>> &boxes)
    {
        const auto box = std::max_element(
            boxes.begin(), boxes.end(), [](const auto &a, const auto &b) { return widest(a).first < widest(b).first; });
        const auto [width, which] = widest(*box);
        if (width == 0) {
            return false;
        }
        std::sort(box->begin(), box->end(),
            [which = which](const Color &a, const Color &b) { return channel(a.rgb, which) < channel(b.rgb, which); });
        const auto middle = box->begin() + static_cast<std::ptrdiff_t>(box->size() / 2);
        std::vector<Color> upper(middle, box->end());
        box->erase(middle, box->end());
        boxes.push_back(std::move(upper));
        return true;
    }

    static QRgb meanOf(const std::vector<Color> &box)
    {
        std::array<qint64, 3> sums{};
        qint64 all = 0;
        for (const Color &color : box) {
            for (int which = 0; which < 3; ++which) {
                sums[static_cast<std::size_t>(which)] += qint64(channel(color.rgb, which)) * color.count;
            }
            all += color.count;
        }
        return qRgb(int(sums[2] / all), int(sums[1] / all), int(sums[0] / all));
    }

    QList<QRgb> m_colors;
    std::map<QRgb, uchar> m_index;
};

bool write(QWidget *widget, const Picture &picture, const QDir &folder)
{
    if (!widget) {
        std::fprintf(stderr, "manual_pictures: nothing to see of %s\n", picture.name);
        return false;
    }
    QRect part = picture.part.isNull() ? widget->rect() : picture.part;
    if (part.y() < 0) {
        part.translate(0, widget->height());
    }
    const QImage taken = widget->grab(part).toImage();
    const QString file = folder.filePath(QString::fromLatin1(picture.name) + ".png");
    const bool written = Palette(taken).apply(taken).save(file, "PNG", 0); // as small as it goes
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
