// Moves and zooms the plan view of the terminal over a map of tiles whose server, on this machine, takes its time, and
// prints how long the window's thread was busy at a time: the median, the 95th percentile and the longest of the turns
// of its event loop that did something, in processor time and on the clock. Exit status 1 when one took more processor
// time than wanted, 20 ms. With --longest N it tells what the longest N turns were spent on.

#include "window_frames.h"

#include "display/geo_map_display.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_widget.h"
#include "tile_server.h"

#include <QSemaphore>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr double LongestTurnMs = 20.0;
constexpr double IdleTurnMs = 0.05; // a turn that found nothing to do
constexpr int ViewMs = 200; // until the next view
constexpr double Kilometre = 1000.0;

// The server beside the window, so that its work is not counted to the window's thread.
class ServerThread : public QThread {
public:
    explicit ServerThread(int latency) : m_latency(latency) { }
    ~ServerThread() override
    {
        quit();
        wait();
    }
    // Starts it.
    QString tileTemplate()
    {
        start();
        m_ready.acquire();
        return m_template;
    }

protected:
    void run() override
    {
        TileServer server;
        server.setLatency(m_latency);
        m_template = server.tileTemplate();
        m_ready.release();
        exec();
    }

private:
    const int m_latency;
    QSemaphore m_ready;
    QString m_template;
};

// A turn of the event loop, and what it was spent on.
struct Turn {
    double work = 0.0; // milliseconds of processor time
    double clock = 0.0;
    std::vector<WatchedApplication::Handled> events;
    QList<GeoMapDisplay::LayerTime> layers; // of the last frame
};

struct Scene {
    GeoWidget &plan;
    WatchedApplication &application;
    double rotation = 0.0; // degrees
};

void turnFor(int milliseconds, const Scene &scene, std::vector<Turn> &turns)
{
    QElapsedTimer whole;
    whole.start();
    while (whole.elapsed() < milliseconds) {
        QElapsedTimer timer;
        timer.start();
        const double before = threadMs();
        QCoreApplication::processEvents();
        const double work = threadMs() - before;
        std::vector<WatchedApplication::Handled> events = scene.application.takeHandled();
        if (work > IdleTurnMs) {
            const double clock = static_cast<double>(timer.nsecsElapsed()) / 1e6;
            turns.push_back({work, clock, std::move(events), scene.plan.mapDisplay()->layerTimes()});
        }
        QThread::usleep(500);
    }
}

std::vector<Turn> look(const Scene &scene, int views)
{
    const QPointF center = scene.plan.mapDisplay()->rangeRingMap()->center();
    std::vector<Turn> turns;
    for (int view = 0; view < views; ++view) {
        const double angle = view * 0.7;
        const double zoom = 400.0 * std::pow(0.5, view % 5); // metres a pixel
        const QPointF place = center + QPointF(std::cos(angle), std::sin(angle)) * (view * Kilometre);
        const auto show = [scene, place, zoom] {
            scene.plan.setView(place.x(), place.y(), zoom);
            if (scene.rotation != 0.0) {
                scene.plan.rotate(scene.rotation);
            }
        };
        QMetaObject::invokeMethod(&scene.plan, show, Qt::QueuedConnection); // as an event of the mouse
        turnFor(ViewMs, scene, turns);
    }
    std::ranges::sort(turns, {}, &Turn::work);
    return turns;
}

void tell(const Turn &turn)
{
    std::printf("  %.1f ms, on the clock %.1f:", turn.work, turn.clock);
    for (const auto &[what, milliseconds] : turn.events) {
        std::printf(" [%s %.1f]", qPrintable(what), milliseconds);
    }
    for (const auto &[name, milliseconds] : turn.layers) {
        if (milliseconds > 0.2) {
            std::printf(" %s %.1f", qPrintable(name), milliseconds);
        }
    }
    std::printf("\n");
}

Frames framesOf(const std::vector<Turn> &turns)
{
    Frames frames;
    for (const Turn &turn : turns) {
        frames.work.push_back(turn.work);
        frames.clock.push_back(turn.clock);
    }
    return frames;
}

int run(WindowProgram &program)
{
    const int views = program.number("views");
    const int latency = program.number("latency");
    ServerThread server(latency);
    const QString address = server.tileTemplate();
    MainWindow window([&address](Config &config) {
        config.mapTileBottomLayerProvider = TileService::Custom;
        config.mapCustomTileUrl = address;
        config.mapTileConsent = true;
    });
    window.show();
    window.loadUi(QSize(program.number("width"), program.number("height")));
    let(3000);
    const Scene scene{*window.geoWidget(), program.application(), program.text("rotation").toDouble()};
    const std::vector<Turn> turns = look(scene, views);
    Frames frames = framesOf(turns);
    const QString work = Frames::figures(frames.work);
    const QString clock = Frames::figures(frames.clock);
    std::printf("%dx%d, %d views, %d ms: %zu turns, median / 95th percentile / longest %s, on the clock %s\n",
        window.width(), window.height(), views, latency, frames.work.size(), qPrintable(work), qPrintable(clock));
    for (std::size_t i = 0; i < std::min(turns.size(), static_cast<std::size_t>(program.number("longest"))); ++i) {
        tell(turns[turns.size() - 1 - i]);
    }
    endWindow(window);
    return frames.work.back() <= LongestTurnMs ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    WindowProgram program(argc, argv, "tile-views",
        {
            {"views", "How many (200).", "N", "200"},
            {"latency", "Of the server, milliseconds (50).", "MS", "50"},
            {"width", "Of the window (1920).", "PIXELS", "1920"},
            {"height", "Of the window (1080).", "PIXELS", "1080"},
            {"rotation", "Of the views (0).", "DEGREES", "0"},
            {"longest", "Tells of so many turns what took the time (0).", "N", "0"},
        });
    return run(program);
}
