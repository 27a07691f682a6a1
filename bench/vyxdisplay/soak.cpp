// Runs the whole terminal on a scenario for a long time, faster than real time, and prints once a minute what matters
// to those who leave it running: memory, what came in, what was lost on which way, and the longest time for which the
// window did not answer. The last lines allow to compare what was sent with what was received. Exit status 1 when
// memory grew by more than 5 % after the first five minutes, or when the window was held up for more than 200 ms.

#include "window_frames.h"

#include "demonstration/demo_traffic.h"
#include "display/geo_track_display.h"
#include "engine/data_engine.h"
#include "engine/display_snapshot.h"
#include "plan_view/geo_widget.h"
#include "ui/actions.h"
#include "ui/main_window.h"

#include <QAction>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <utility>

namespace {

constexpr int SettlingMinutes = 5;
constexpr int StallTickMs = 20;
constexpr qint64 AllowedStallMs = 200;

double residentMegabytes()
{
    QFile file("/proc/self/statm");
    const QList<QByteArray> fields = file.open(QIODevice::ReadOnly) ? file.readAll().split(' ') : QList<QByteArray>();
    return fields.size() > 1 ? fields.at(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1048576.0 : 0.0;
}

// Datagrams that the system threw away on a port because nobody had read them yet.
qint64 systemDrops(quint16 port)
{
    QFile file("/proc/net/udp");
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray local = ":" + QByteArray::number(port, 16).rightJustified(4, '0').toUpper();
    qint64 drops = 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        drops += fields.size() > 12 && fields.at(1).endsWith(local) ? fields.at(12).toLongLong() : 0;
    }
    return drops;
}

// Largest time between two turns of the event loop.
class StallMeter : public QObject {
public:
    StallMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this,
            [this] { m_longest = std::max(m_longest, m_clock.restart() - StallTickMs); });
        m_clock.start();
        m_timer.start(StallTickMs);
    }
    qint64 takeLongest() { return std::exchange(m_longest, 0); }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_longest = 0;
};

struct Soak {
    QString scenario;
    QString speed;
    int minutes = 30;
    bool isInspected = false; // with everything open that looks at what comes in
};

// A track is explained as soon as there is one.
void inspect(MainWindow &window)
{
    const Actions &actions = *window.findChild<Actions *>();
    actions[ActionId::RawView]->trigger();
    window.findChild<QDockWidget *>("healthDock")->show();
    auto *choose = new QTimer(&window);
    QObject::connect(choose, &QTimer::timeout, &window, [&window, &actions, choose] {
        const auto snapshot = window.newestSnapshot();
        if (snapshot && !snapshot->tracks.isEmpty()) {
            window.geoWidget()->trackDisplay()->setSelected(snapshot->tracks.first().incarnationId);
            actions[ActionId::ExplainTrack]->trigger();
            choose->deleteLater();
        }
    });
    choose->start(1000);
}

int run(const Soak &soak)
{
    DemoTraffic demo(soak.scenario);
    if (!prepared(demo)) {
        return 2;
    }
    MainWindow window([&demo](Config &config) { demo.applyTo(config); });
    window.resize(1600, 900);
    window.show();
    window.loadUi();
    const quint16 port = window.config().inputUdpPort1;

    QProcess traffic;
    traffic.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QObject::connect(&window, &MainWindow::inputOpened, &traffic, [&] {
        traffic.start(DemoTraffic::findProgram(),
            {soak.scenario, "--to", QString("udp:127.0.0.1:%1").arg(port), "--speed", soak.speed, "--wall-clock",
                "--duration", QString::number(soak.minutes * 60 * soak.speed.toDouble())});
    });

    DropStats drops;
    PipelineStats pipeline;
    QObject::connect(&window, &MainWindow::dropStats, &window, [&drops](const DropStats &stats) { drops = stats; });
    QObject::connect(window.engineHost().engine(), &DataEngine::pipelineStats, &window,
        [&pipeline](const PipelineStats &stats) { pipeline = stats; });

    StallMeter stalls;
    double settled = 0.0;
    double grown = 0.0;
    qint64 longestStall = 0;
    int minute = 0;
    if (soak.isInspected) {
        inspect(window);
    }
    QTimer minutes;
    QObject::connect(&minutes, &QTimer::timeout, &window, [&] {
        ++minute;
        const double memory = residentMegabytes();
        const qint64 stall = stalls.takeLongest();
        longestStall = minute > 1 ? std::max(longestStall, stall) : 0; // the first minute holds the start
        settled = minute <= SettlingMinutes ? memory : settled;
        grown = std::max(grown, memory);
        std::printf("%3d min  %6.1f MB  %4d tracks  %3d alerts  %7.0f in/s  %6.0f radials/s  dropped by slots: %llu "
                    "snapshots %llu video %llu weather  by the system: %lld  longest stall %lld ms\n",
            minute, memory, pipeline.snapshotTracks, pipeline.snapshotAlerts, pipeline.inputPacketsPerSecond,
            pipeline.videoRadialsPerSecond, drops.snapshots, drops.videoBatches, drops.weatherPictures,
            systemDrops(port), stall);
        std::fflush(stdout);
    });
    minutes.start(60000);
    QObject::connect(&traffic, &QProcess::finished, &window, [&] {
        // Datagrams sent are the generator's own count, on its standard error; the engine's are asked for on its
        // thread.
        QTimer::singleShot(1000, &window, [&] {
            quint64 received = 0;
            QMetaObject::invokeMethod(
                window.engineHost().engine(), [&] { received = window.engineHost().engine()->messagesReceived(); },
                Qt::BlockingQueuedConnection);
            std::printf("received %llu, dropped by the system %lld\n", received, systemDrops(port));
            window.requestExit();
        });
    });
    window.openInput();
    QApplication::exec();
    const bool level = settled <= 0.0 || grown <= settled * 1.05;
    std::printf("memory after settling %.1f MB, most %.1f MB; longest stall after the first minute %lld ms\n", settled,
        grown, longestStall);
    return level && longestStall <= AllowedStallMs ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const WindowProgram program(argc, argv, "soak",
        {
            {"scenario", "Scenario to play (busy).", "NAME", "busy"},
            {"speed", "Times real time (8).", "F", "8"},
            {"minutes", "How long (30).", "N", "30"},
            {"inspected", "With the raw view, input health and the explanation of a track open."},
        });
    return run({program.text("scenario"), program.text("speed"), std::max(1, program.number("minutes")),
        program.isSet("inspected")});
}
