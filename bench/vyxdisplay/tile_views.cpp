// Moves and zooms the plan view of the terminal over a map of tiles whose server, on this machine, takes its time, and
// prints how long the window's thread was busy at a time: the median, the 95th percentile and the longest of the turns
// of its event loop that did something, in processor time and on the clock. Exit status 1 when one took more processor
// time than wanted, 20 ms.

#include "window_frames.h"

#include "display/geo_map_display.h"
#include "orientation/geo_range_ring_map.h"
#include "plan_view/geo_widget.h"
#include "tile_server.h"

#include <QSemaphore>

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

void turnFor(int milliseconds, Frames &frames)
{
    QElapsedTimer whole;
    whole.start();
    while (whole.elapsed() < milliseconds) {
        QElapsedTimer timer;
        timer.start();
        const double before = threadMs();
        QCoreApplication::processEvents();
        const double work = threadMs() - before;
        if (work > IdleTurnMs) {
            frames.work.push_back(work);
            frames.clock.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        }
        QThread::usleep(500);
    }
}

Frames look(GeoWidget &plan, int views)
{
    const QPointF center = plan.mapDisplay()->rangeRingMap()->center();
    Frames frames;
    for (int view = 0; view < views; ++view) {
        const double angle = view * 0.7;
        const double zoom = 400.0 * std::pow(0.5, view % 5); // metres a pixel
        const QPointF place = center + QPointF(std::cos(angle), std::sin(angle)) * (view * Kilometre);
        plan.setView(place.x(), place.y(), zoom);
        turnFor(ViewMs, frames);
    }
    return frames;
}

int run(const QSize &size, int views, int latency)
{
    ServerThread server(latency);
    const QString address = server.tileTemplate();
    MainWindow window([&address](Config &config) {
        config.mapTileBottomLayerProvider = TileService::Custom;
        config.mapCustomTileUrl = address;
        config.mapTileConsent = true;
    });
    window.show();
    window.loadUi(size);
    let(3000);
    Frames frames = look(*window.geoWidget(), views);
    const QString work = Frames::figures(frames.work);
    const QString clock = Frames::figures(frames.clock);
    std::printf("%dx%d, %d views, %d ms: %zu turns, median / 95th percentile / longest %s, on the clock %s\n",
        window.width(), window.height(), views, latency, frames.work.size(), qPrintable(work), qPrintable(clock));
    endWindow(window);
    return frames.work.back() <= LongestTurnMs ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const WindowProgram program(argc, argv, "tile-views",
        {
            {"views", "How many (200).", "N", "200"},
            {"latency", "Of the server, milliseconds (50).", "MS", "50"},
            {"width", "Of the window (1920).", "PIXELS", "1920"},
            {"height", "Of the window (1080).", "PIXELS", "1080"},
        });
    return run(
        QSize(program.number("width"), program.number("height")), program.number("views"), program.number("latency"));
}
