// Drags the plan view of the whole terminal about while a scenario plays, in windows of two sizes, and prints how long
// a frame took: the median, the 95th percentile and the longest of the processor time that the window's thread spent
// on the move, the painting and whatever else was waiting, and of the time on the clock. Zoomed so that about 300
// labels are in view, then 100. Exit status 1 when a frame took more processor time than wanted: 33 ms with 300 labels,
// and 16.7 ms at the 95th percentile with 100.

#include "window_frames.h"

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
#include <QThread>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr double LongestFrameMs = 33.0;
constexpr double WidestView = 700.0; // metres a pixel
constexpr int MostSteps = 30; // of zoom
constexpr double DragRadius = 180.0; // pixels
constexpr double DragStep = 0.06; // radians a frame: some 11 pixels

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

Frames drag(GeoWidget &plan, double seconds)
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
        plan.repaint();
        frames.work.push_back(threadMs() - before);
        frames.clock.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        QThread::usleep(static_cast<unsigned long>(std::max(0.0, FrameMs - frames.clock.back()) * 1000.0));
    }
    sendMouse(plan, QEvent::MouseButtonRelease, start, Qt::RightButton);
    return frames;
}

bool measure(MainWindow &window, const QString &theme, int labels, double seconds)
{
    GeoWidget &plan = *window.geoWidget();
    zoomTo(plan, labels);
    const int shown = labelsInView(plan);
    Frames frames = drag(plan, seconds);
    const QString work = Frames::figures(frames.work);
    const QString clock = Frames::figures(frames.clock);
    std::printf("%-8s %dx%d, scope %dx%d, %3d labels: median / 95th percentile / longest %s, on the clock %s\n",
        qPrintable(theme), window.width(), window.height(), plan.width(), plan.height(), shown, qPrintable(work),
        qPrintable(clock));
    std::fflush(stdout);
    const double p95 = frames.work[frames.work.size() * 95 / 100];
    return frames.work.back() <= LongestFrameMs && (labels > 100 || p95 <= FrameMs);
}

int run(const QString &scenario, const QStringList &themeNames, double seconds, int settlingSeconds)
{
    DemoTraffic demo(scenario);
    QString error;
    if (!demo.prepare(&error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 2;
    }
    const ThemeLibrary themes;
    MainWindow window([&demo](Config &config) { demo.applyTo(config); });
    window.show();
    window.loadUi(QSize(1920, 1080));
    QObject::connect(&window, &MainWindow::inputOpened, &demo, &DemoTraffic::start);
    window.openInput();
    let(settlingSeconds * 1000);
    bool good = true;
    for (const QString &name : themeNames) {
        const Theme *theme = themes.find(name);
        if (!theme) {
            std::fprintf(stderr, "no theme %s\n", qPrintable(name));
            return 2;
        }
        window.themes()->useForThisRun(*theme);
        for (const QSize &size : {QSize(1920, 1080), QSize(1600, 1000)}) {
            window.resize(size);
            let(500);
            for (const int labels : {300, 100}) {
                good = measure(window, name, labels, seconds) && good;
            }
        }
    }
    endWindow(window);
    return good ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const WindowProgram program(argc, argv, "panning",
        {
            {"scenario", "Scenario to play (busy).", "NAME", "busy"},
            {"themes", "Separated by commas (Night,Classic).", "NAMES", "Night,Classic"},
            {"seconds", "How long each drag lasts (10).", "S", "10"},
            {"settling", "Seconds in which tracks come up first (40).", "S", "40"},
        });
    return run(program.text("scenario"), program.text("themes").split(','), program.number("seconds"),
        program.number("settling"));
}
