// Opens further plan views beside the terminal's own while a scenario plays, and prints for each number of them what
// the window's thread does a second, and what a picture and a frame of each view cost, the median and the longest, in
// processor time.

#include "window_frames.h"

#include "demonstration/demo_traffic.h"
#include "plan_view/geo_widget.h"
#include "second_view/plan_view_window.h"
#include "ui/actions.h"
#include "ui/main_window.h"

#include <QAction>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

constexpr int Rounds = 100;
constexpr int BetweenRoundsMs = 97; // some of them with a new picture, some without

double timed(const std::function<void()> &work)
{
    const double before = threadMs();
    work();
    return threadMs() - before;
}

QList<PlanViewWindow *> views()
{
    QList<PlanViewWindow *> found;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *view = qobject_cast<PlanViewWindow *>(window)) {
            found.append(view);
        }
    }
    return found;
}

QString figures(std::vector<double> &times)
{
    std::sort(times.begin(), times.end());
    return QString("%1 / %2 ms").arg(times[times.size() / 2], 0, 'f', 2).arg(times.back(), 0, 'f', 2);
}

void measure(MainWindow &window, int seconds)
{
    const double busy = timed([seconds] { let(seconds * 1000); }) / seconds;
    std::printf(
        "%lld further views: %.0f ms of processor time a second\n", static_cast<long long>(views().size()), busy);
    std::vector<double> main;
    std::vector<double> takes;
    std::vector<double> frames;
    std::vector<double> unchanged;
    for (int round = 0; round < Rounds; ++round) {
        let(BetweenRoundsMs);
        main.push_back(timed([&] { window.geoWidget()->repaint(); }));
        for (PlanViewWindow *view : views()) {
            takes.push_back(timed([&] { view->plan()->setSnapshot(window.newestSnapshot()); }));
            frames.push_back(timed([&] { view->plan()->widget()->repaint(); }));
            unchanged.push_back(timed([&] { view->plan()->widget()->repaint(); }));
        }
    }
    std::printf("  main view: frame %s\n", qPrintable(figures(main)));
    if (!frames.empty()) {
        std::printf("  further views: picture %s, frame after it %s, unchanged frame %s\n", qPrintable(figures(takes)),
            qPrintable(figures(frames)), qPrintable(figures(unchanged)));
    }
    std::fflush(stdout);
}

int run(const QString &scenario, int most, int seconds, int settlingSeconds)
{
    DemoTraffic demo(scenario);
    if (!prepared(demo)) {
        return 2;
    }
    MainWindow window([&demo](Config &config) { demo.applyTo(config); });
    window.show();
    window.loadUi(QSize(1600, 900));
    QObject::connect(&window, &MainWindow::inputOpened, &demo, &DemoTraffic::start);
    window.openInput();
    let(settlingSeconds * 1000);
    for (int opened = 0; opened <= most; ++opened) {
        if (opened > 0) {
            (*window.findChild<Actions *>())[ActionId::NewPlanView]->trigger();
        }
        let(2000);
        measure(window, seconds);
    }
    for (PlanViewWindow *view : views()) {
        view->showMinimized();
    }
    let(1000);
    std::printf("all of them minimised: %.0f ms of processor time a second\n",
        timed([seconds] { let(seconds * 1000); }) / seconds);
    endWindow(window);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const WindowProgram program(argc, argv, "plan-views",
        {
            {"scenario", "Scenario to play (busy).", "NAME", "busy"},
            {"views", "The most further views (2).", "N", "2"},
            {"seconds", "How long each number of them is watched (10).", "S", "10"},
            {"settling", "Seconds in which tracks come up first (40).", "S", "40"},
        });
    return run(
        program.text("scenario"), program.number("views"), program.number("seconds"), program.number("settling"));
}
