// How well and how quickly labels are placed: first a table of three minutes of the scenario "busy", then timings.

#include "recorded_picture.h"

#include "display/alert_board.h"
#include "display/label_field.h"
#include "display/track_frame.h"
#include "display/track_label_places.h"
#include "view/label_face.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHash>
#include <QLineF>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>

namespace {

constexpr QSize Screen(1600, 1000);
constexpr double SettlingSeconds = 30.0; // in which tracks and labels come up
constexpr double Seconds = 180.0;
constexpr std::size_t SettlingPictures = std::size_t(SettlingSeconds * 1000.0 / RecordedPicture::IntervalMs);

TrackLook lookOf(Config::TrackLabelLayout layout, int points, int symbolSize)
{
    TrackLook look;
    look.layout = layout;
    look.autoPlace = true;
    look.symbolSize = symbolSize;
    QFont font = look.labelFont;
    font.setPointSize(points);
    look.setLabelFont(font);
    return look;
}

const TrackLook &compactLook()
{
    static const TrackLook look = lookOf(Config::TrackLabelLayout::Compact, 9, 12);
    return look;
}

// A scope without a painter.
class Scope {
public:
    Scope(const TrackLook &look, double metresPerPixel)
    {
        m_frame.look = look;
        const QTransform transform = QTransform::fromScale(1.0 / metresPerPixel, -1.0 / metresPerPixel)
            * QTransform::fromTranslate(Screen.width() / 2.0, Screen.height() / 2.0);
        m_frame.view = GeoView(transform, Screen);
    }

    void take(const QList<TrackSnapshot> &tracks)
    {
        m_frame.snapshot = QSharedPointer<DisplaySnapshot>::create(DisplaySnapshot{tracks, {}, {}});
        m_frame.collect(AlertBoard());
        m_labels.noteContentChange();
        for (const ShownTrack &shown : m_frame.tracks) {
            m_labels.refresh(*shown.track, m_frame.look, m_frame.snapshot->time);
        }
        for (ShownTrack &shown : m_frame.tracks) {
            shown.label = m_labels.find(shown.track->incarnationId);
        }
    }
    void place() { m_places.place(m_frame); }
    void forget() { m_places.resetAll(); }
    const TrackFrame &frame() const { return m_frame; }

private:
    TrackFrame m_frame;
    TrackLabelCache m_labels;
    TrackLabelPlaces m_places;
};

const std::vector<QList<TrackSnapshot>> &busyMinutes()
{
    static const auto pictures = RecordedPicture::play("busy", 0.0, SettlingSeconds + Seconds);
    return pictures;
}

// At which so many tracks are within the view.
double metresPerPixelFor(const QList<TrackSnapshot> &tracks, int count)
{
    std::vector<double> needed;
    for (const TrackSnapshot &track : tracks) {
        needed.push_back(std::max(std::abs(track.carCoordinate.x()) / (Screen.width() / 2.0),
            std::abs(track.carCoordinate.y()) / (Screen.height() / 2.0)));
    }
    std::sort(needed.begin(), needed.end());
    return needed.at(std::min<std::size_t>(std::size_t(count), needed.size()) - 1);
}

// What one run of pictures came to.
class Figures {
public:
    void add(const TrackFrame &frame)
    {
        m_rects.clear();
        m_leaders.clear();
        for (const ShownTrack &shown : frame.tracks) {
            if (frame.view.screenRect().contains(shown.place)) {
                add(frame, shown);
            }
        }
        const auto [covered, area] = coverage();
        m_covered += covered / area;
        m_symbols += symbolsUnderLabels(frame);
        m_crossings += crossings();
        m_throughs += leadersThroughLabels();
        ++m_pictures;
    }

    void addTime(double ms)
    {
        m_longest = std::max(m_longest, ms);
        m_time += ms;
    }

    void print(const char *name, int wanted) const
    {
        std::vector<double> moves;
        double sum = 0.0;
        for (const Followed &track : m_followed) {
            const double minutes = track.pictures * RecordedPicture::IntervalMs / 60000.0;
            if (minutes >= 1.0) {
                moves.push_back(track.moves / minutes);
                sum += moves.back();
            }
        }
        const double p95 = percentile95(moves);
        std::printf(
            "%-8s %4d labels (%.0f in view): covered %.3f %%, whole %.1f %%, hidden %.2f, symbols under a label "
            "%.1f, leaders crossing %.1f, through labels %.1f, long %.0f px (95th %.0f), moves a minute %.2f (95th "
            "%.1f), "
            "%.2f ms (longest %.2f)\n",
            name, wanted, m_inView / m_pictures, 100.0 * m_covered / m_pictures, 100.0 * m_whole / m_inView,
            m_hidden / m_pictures, m_symbols / m_pictures, m_crossings / m_pictures, m_throughs / m_pictures,
            m_lengthSum / std::max<double>(1.0, double(m_lengths.size())), percentile95(m_lengths),
            sum / double(std::max<std::size_t>(1, moves.size())), p95, m_time / m_pictures, m_longest);
    }

private:
    static double percentile95(std::vector<double> values)
    {
        std::sort(values.begin(), values.end());
        return values.empty() ? 0.0 : values[values.size() * 95 / 100];
    }

    struct Followed {
        QRect last; // from the symbol; null: hidden
        int pictures = 0;
        int moves = 0;
    };

    void add(const TrackFrame &frame, const ShownTrack &shown)
    {
        const QRect rect = shown.label ? frame.look.padded(shown.labelRect) : QRect();
        m_inView += 1.0;
        m_hidden += shown.label ? 0.0 : 1.0;
        m_whole += shown.label && shown.lines == int(shown.label->lines.size()) ? 1.0 : 0.0;
        if (shown.label) {
            m_rects.push_back(rect);
            m_leaders.emplace_back(shown.place, LabelField::leaderEnd(shown.place, rect));
            m_lengths.push_back(m_leaders.back().length());
            m_lengthSum += m_lengths.back();
        }
        follow(shown.track->incarnationId, shown.label ? rect.translated(-shown.place) : QRect());
    }

    // A label whose size changed has moved when neither of two opposite edges stayed.
    void follow(quint64 id, const QRect &now)
    {
        Followed &track = m_followed[id];
        const QRect before = track.last;
        const bool shown = !now.isNull() && !before.isNull();
        const bool moved = (before.left() != now.left() && before.right() != now.right())
            || (before.top() != now.top() && before.bottom() != now.bottom());
        track.moves += track.pictures > 0 && (shown ? moved : now.isNull() != before.isNull()) ? 1 : 0;
        track.last = now;
        ++track.pictures;
    }

    std::pair<double, double> coverage() const
    {
        double covered = 0.0;
        double area = 1.0;
        for (std::size_t i = 0; i < m_rects.size(); ++i) {
            area += m_rects[i].width() * m_rects[i].height();
            for (std::size_t j = 0; j < i; ++j) {
                const QRect shared = m_rects[i] & m_rects[j];
                covered += shared.isEmpty() ? 0 : shared.width() * shared.height();
            }
        }
        return {covered, area};
    }

    double symbolsUnderLabels(const TrackFrame &frame) const
    {
        return double(std::count_if(frame.tracks.begin(), frame.tracks.end(), [this](const ShownTrack &shown) {
            return std::any_of(m_rects.begin(), m_rects.end(),
                [&shown](const QRect &rect) { return rect.contains(shown.place, true); });
        }));
    }

    double crossings() const
    {
        double count = 0.0;
        for (auto leader = m_leaders.begin(); leader != m_leaders.end(); ++leader) {
            count += double(std::count_if(m_leaders.begin(), leader,
                [&](const QLineF &other) { return leader->intersects(other) == QLineF::BoundedIntersection; }));
        }
        return count;
    }

    // What the eye would take for the leader of the label that it runs through.
    double leadersThroughLabels() const
    {
        double count = 0.0;
        for (std::size_t i = 0; i < m_leaders.size(); ++i) {
            for (std::size_t j = 0; j < m_rects.size(); ++j) {
                count += i != j && reaches(m_leaders[i], m_rects[j]) ? 1.0 : 0.0;
            }
        }
        return count;
    }

    static bool reaches(const QLineF &line, const QRectF &rect)
    {
        const QLineF sides[] = {{rect.topLeft(), rect.topRight()}, {rect.bottomLeft(), rect.bottomRight()},
            {rect.topLeft(), rect.bottomLeft()}, {rect.topRight(), rect.bottomRight()}};
        return std::any_of(std::begin(sides), std::end(sides),
            [&line](const QLineF &side) { return line.intersects(side) == QLineF::BoundedIntersection; });
    }

    std::vector<QRect> m_rects;
    std::vector<QLineF> m_leaders;
    std::vector<double> m_lengths; // of all leaders of all pictures, pixels
    double m_lengthSum = 0.0;
    double m_throughs = 0.0;
    QHash<quint64, Followed> m_followed;
    double m_covered = 0.0;
    double m_symbols = 0.0;
    double m_crossings = 0.0;
    double m_inView = 0.0;
    double m_whole = 0.0;
    double m_hidden = 0.0;
    double m_pictures = 0.0;
    double m_longest = 0.0;
    double m_time = 0.0;
};

void printFigures(const char *name, const TrackLook &look, int count)
{
    Scope scope(look, metresPerPixelFor(busyMinutes().at(SettlingPictures), count));
    Figures figures;
    std::size_t picture = 0;
    for (const QList<TrackSnapshot> &tracks : busyMinutes()) {
        scope.take(tracks);
        QElapsedTimer timer;
        timer.start();
        scope.place();
        if (picture++ >= SettlingPictures) {
            figures.addTime(double(timer.nsecsElapsed()) / 1e6);
            figures.add(scope.frame());
        }
    }
    figures.print(name, count);
}

constexpr double CrowdMetresPerPixel = 300.0;

// The tracks of the scenario again and again, at random places in the view.
QList<TrackSnapshot> crowd(int count)
{
    const QList<TrackSnapshot> &tracks = busyMinutes().back();
    std::mt19937 random(1);
    QList<TrackSnapshot> result;
    for (int i = 0; i < count; ++i) {
        TrackSnapshot track = tracks[i % tracks.size()];
        track.incarnationId = quint64(i + 1);
        const QPointF place(double(random() % unsigned(Screen.width())), double(random() % unsigned(Screen.height())));
        track.carCoordinate = (place - QPointF(Screen.width() / 2.0, Screen.height() / 2.0)) * CrowdMetresPerPixel;
        track.carCoordinateValid = true;
        result += track;
    }
    return result;
}

void placeFirst(benchmark::State &state)
{
    const QList<TrackSnapshot> tracks = crowd(int(state.range(0)));
    Scope scope(compactLook(), CrowdMetresPerPixel);
    for (auto _ : state) {
        state.PauseTiming();
        scope.forget();
        scope.take(tracks);
        state.ResumeTiming();
        scope.place();
    }
}

// All tracks move on by a snapshot.
void placeNext(benchmark::State &state)
{
    QList<TrackSnapshot> tracks = crowd(int(state.range(0)));
    Scope scope(compactLook(), CrowdMetresPerPixel);
    for (auto _ : state) {
        state.PauseTiming();
        for (TrackSnapshot &track : tracks) {
            track.carCoordinate += QPointF(double(track.incarnationId % 7) - 3.0, double(track.incarnationId % 5) - 2.0)
                * (RecordedPicture::IntervalMs / 1000.0 * 80.0);
        }
        scope.take(tracks);
        state.ResumeTiming();
        scope.place();
    }
}

} // namespace

BENCHMARK(placeFirst)->Arg(300)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(placeNext)->Arg(300)->Arg(1000)->Arg(5000)->Unit(benchmark::kMillisecond)->Iterations(100);

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    loadLabelFace();
    benchmark::Initialize(&argc, argv);
    for (const int count : {100, 300}) {
        printFigures("Compact", compactLook(), count);
        printFigures("Standard", lookOf(Config::TrackLabelLayout::Standard, 12, 24), count);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
