// Drags the plan view of the whole terminal about while a scenario plays, in windows of two sizes, and prints how long
// a frame took: the median, the 95th percentile and the longest of the processor time that the window's thread spent
// on the move, the painting and whatever else was waiting, and of the time on the clock. Zoomed so that about 300
// labels are in view, then 100. Exit status 1 when a frame took more processor time than wanted: 33 ms with 300 labels,
// and 16.7 ms at the 95th percentile with 100. With a crowd of aircraft instead of a scenario it prints what dragging
// and zooming take with all of them in view, and wants nothing.

#include "window_frames.h"

#include "app/config.h"
#include "app/theme_library.h"
#include "demonstration/demo_traffic.h"
#include "display/geo_map_display.h"
#include "display/geo_track_display.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_widget.h"
#include "ui/main_window.h"
#include "ui/theme_menu.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QProcess>
#include <QThread>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr double LongestFrameMs = 33.0;
constexpr double WidestView = 700.0; // metres a pixel
constexpr int MostSteps = 30; // of zoom
constexpr double DragRadius = 180.0; // pixels
constexpr double DragStep = 0.06; // radians a frame: some 11 pixels
constexpr int ZoomSteps = 12; // of the wheel to each side
constexpr int WheelStep = 120;
constexpr double ReportPeriod = 4.0; // seconds, of each aircraft of a crowd

int labelsInView(GeoWidget &plan)
{
    plan.repaint(); // a new picture has no labels before it is painted
    const TrackFrame &frame = plan.trackDisplay()->frame();
    return static_cast<int>(std::count_if(frame.tracks.begin(), frame.tracks.end(),
        [&](const ShownTrack &shown) { return shown.label && frame.view.screenRect().contains(shown.place); }));
}

// The widest view with no more than that many labels, from which it is dragged about.
void zoomTo(GeoWidget &plan, int labels)
{
    const QPointF center = plan.mapDisplay()->rangeRingMap()->center();
    plan.setView(center.x(), center.y(), WidestView);
    for (int step = 0; step < MostSteps && labelsInView(plan) > labels; ++step) {
        plan.setView(center.x(), center.y(), plan.currentZoom() * 0.95);
    }
    let(2000);
}

void sendMouse(GeoWidget &plan, QEvent::Type type, const QPointF &place, Qt::MouseButton button)
{
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::RightButton;
    QMouseEvent event(type, place, plan.mapToGlobal(place), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&plan, &event);
}

// Where no label is, so that the drag does not take one along.
QPointF freePlace(const GeoWidget &plan)
{
    const QTransform transform = plan.screenTransform();
    for (int y = plan.height() / 2; y < plan.height(); y += 7) {
        for (int x = plan.width() / 2; x < plan.width(); x += 7) {
            if (plan.trackDisplay()->findTracks(transform, x, y).isEmpty()) {
                return QPointF(x, y);
            }
        }
    }
    return QPointF(1.0, 1.0);
}

// Where the time of frames went: layer by layer (on the clock), the tracks, and all that came before the painting.
class Shares {
public:
    void add(const GeoWidget &plan, double frameMs, double beforeMs, double paintMs)
    {
        std::vector<double> parts{frameMs, beforeMs};
        double layers = 0.0;
        m_names = {"frame", "before"};
        for (const GeoMapDisplay::LayerTime &layer : plan.mapDisplay()->layerTimes()) {
            m_names.append(layer.name);
            parts.push_back(layer.milliseconds);
            layers += layer.milliseconds;
        }
        m_names.append("tracks and rest");
        parts.push_back(paintMs - layers);
        m_frames.push_back(parts);
    }

    void print()
    {
        std::sort(m_frames.begin(), m_frames.end(),
            [](const auto &one, const auto &other) { return one.front() < other.front(); });
        const std::size_t count = m_frames.size();
        for (qsizetype part = 0; part < m_names.size(); ++part) {
            std::printf("  %-16s all %5.2f ms, slowest twentieth %5.2f ms, slowest %5.2f ms\n",
                qPrintable(m_names[part]), mean(std::size_t(part), 0, count),
                mean(std::size_t(part), count - count / 20, count), mean(std::size_t(part), count - 1, count));
        }
    }

private:
    double mean(std::size_t part, std::size_t first, std::size_t end) const
    {
        double sum = 0.0;
        for (std::size_t i = first; i < end; ++i) {
            sum += m_frames[i][part];
        }
        return sum / std::max<double>(1.0, double(end - first));
    }

    QStringList m_names;
    std::vector<std::vector<double>> m_frames;
};

Frames drag(GeoWidget &plan, double seconds, Shares &shares)
{
    Frames frames;
    const QPointF start = freePlace(plan);
    sendMouse(plan, QEvent::MouseButtonPress, start, Qt::RightButton);
    for (int i = 1; i < seconds * 1000.0 / FrameMs; ++i) {
        QElapsedTimer timer;
        timer.start();
        const double before = threadMs();
        QCoreApplication::processEvents();
        const double angle = i * DragStep;
        const QPointF way = QPointF(std::sin(angle), 1.0 - std::cos(angle)) * DragRadius;
        sendMouse(plan, QEvent::MouseMove, start + way.toPoint(), Qt::NoButton); // a mouse moves by whole pixels
        const double painting = threadMs();
        plan.repaint();
        frames.work.push_back(threadMs() - before);
        shares.add(plan, frames.work.back(), painting - before, threadMs() - painting);
        frames.clock.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        QThread::usleep(static_cast<unsigned long>(std::max(0.0, FrameMs - frames.clock.back()) * 1000.0));
    }
    sendMouse(plan, QEvent::MouseButtonRelease, start, Qt::RightButton);
    return frames;
}

// A step of the wheel a frame, in and out again.
Frames zoom(GeoWidget &plan, double seconds)
{
    Frames frames;
    const QPointF middle(plan.width() / 2.0, plan.height() / 2.0);
    for (int i = 0; i < seconds * 1000.0 / FrameMs; ++i) {
        QElapsedTimer timer;
        timer.start();
        const double before = threadMs();
        QCoreApplication::processEvents();
        const QPoint turn(0, i / ZoomSteps % 2 == 0 ? WheelStep : -WheelStep);
        QWheelEvent event(
            middle, plan.mapToGlobal(middle), {}, turn, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&plan, &event);
        plan.repaint();
        frames.work.push_back(threadMs() - before);
        frames.clock.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        QThread::usleep(static_cast<unsigned long>(std::max(0.0, FrameMs - frames.clock.back()) * 1000.0));
    }
    return frames;
}

struct Choice {
    QString scenario;
    int aircraft = 0; // 0: the scenario's
    double seconds = 10.0;
    int settlingSeconds = 40;
    bool shares = false;
};

void print(const MainWindow &window, const QString &theme, const QString &what, Frames &frames)
{
    const QString work = Frames::figures(frames.work);
    const QString clock = Frames::figures(frames.clock);
    const QSize scope = window.geoWidget()->size();
    std::printf("%-8s %dx%d, scope %dx%d, %s: median / 95th percentile / longest %s, on the clock %s\n",
        qPrintable(theme), window.width(), window.height(), scope.width(), scope.height(), qPrintable(what),
        qPrintable(work), qPrintable(clock));
}

bool measure(MainWindow &window, const QString &theme, int labels, const Choice &choice)
{
    GeoWidget &plan = *window.geoWidget();
    zoomTo(plan, labels);
    const int shown = labelsInView(plan);
    Shares shares;
    Frames frames = drag(plan, choice.seconds, shares);
    print(window, theme, QStringLiteral("%1 labels").arg(shown), frames);
    if (choice.shares) {
        shares.print();
    }
    std::fflush(stdout);
    const double p95 = frames.work[frames.work.size() * 95 / 100];
    return frames.work.back() <= LongestFrameMs && (labels > 100 || p95 <= FrameMs);
}

// Everything in view, then closer.
void measureCrowd(MainWindow &window, const QString &theme, const Choice &choice)
{
    for (const int labels : {choice.aircraft, choice.aircraft / 5}) {
        measure(window, theme, labels, choice);
        Frames zooming = zoom(*window.geoWidget(), choice.seconds);
        print(window, theme, "zooming", zooming);
    }
    std::fflush(stdout);
}

bool measureScenario(MainWindow &window, const QString &theme, const Choice &choice)
{
    bool good = true;
    for (const QSize &size : {QSize(1920, 1080), QSize(1600, 1000)}) {
        window.resize(size);
        let(500);
        for (const int labels : {300, 100}) {
            good = measure(window, theme, labels, choice) && good;
        }
    }
    return good;
}

// Sends what the aircraft of a crowd report to where the scenario would go.
void startCrowd(QProcess &process, const Choice &choice, const Config &config)
{
    process.start(DemoTraffic::findProgram(),
        {"--aircraft", QString::number(choice.aircraft), "--rate", QString::number(choice.aircraft / ReportPeriod),
            "--with-parent", "--wall-clock", "--to", QStringLiteral("udp:127.0.0.1:%1").arg(config.inputUdpPort1)});
}

int measureThemes(MainWindow &window, const QStringList &names, const Choice &choice)
{
    const ThemeLibrary themes;
    bool good = true;
    for (const QString &name : names) {
        const Theme *theme = themes.find(name);
        if (!theme) {
            std::fprintf(stderr, "no theme %s\n", qPrintable(name));
            return 2;
        }
        window.themes()->useForThisRun(*theme);
        if (choice.aircraft > 0) {
            measureCrowd(window, name, choice);
        } else {
            good = measureScenario(window, name, choice) && good;
        }
    }
    return good ? 0 : 1;
}

int run(const QStringList &themeNames, const Choice &choice)
{
    DemoTraffic demo(choice.scenario);
    if (!prepared(demo)) {
        return 2;
    }
    MainWindow window([&demo](Config &config) { demo.applyTo(config); });
    window.show();
    window.loadUi(QSize(1920, 1080));
    QProcess crowd;
    if (choice.aircraft > 0) {
        Config config;
        demo.applyTo(config);
        startCrowd(crowd, choice, config);
    } else {
        QObject::connect(&window, &MainWindow::inputOpened, &demo, &DemoTraffic::start);
    }
    window.openInput();
    let(choice.settlingSeconds * 1000);
    const int status = measureThemes(window, themeNames, choice);
    crowd.terminate();
    crowd.waitForFinished();
    endWindow(window);
    return status;
}

} // namespace

int main(int argc, char *argv[])
{
    const WindowProgram program(argc, argv, "panning",
        {
            {"scenario", "Scenario to play (busy).", "NAME", "busy"},
            {"aircraft", "A crowd of so many instead of a scenario, each with a report every four seconds.", "N", "0"},
            {"themes", "Separated by commas (Night,Classic).", "NAMES", "Night,Classic"},
            {"seconds", "How long each drag lasts (10).", "S", "10"},
            {"settling", "Seconds in which tracks come up first (40).", "S", "40"},
            {"shares", "1: tells where the time went.", "0|1", "0"},
        });
    Choice choice;
    choice.scenario = program.text("scenario");
    choice.aircraft = program.number("aircraft");
    choice.seconds = program.number("seconds");
    choice.settlingSeconds = program.number("settling");
    choice.shares = program.number("shares") != 0;
    return run(program.text("themes").split(','), choice);
}
