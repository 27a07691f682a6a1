#include "lists/list_pane.h"
#include "lists/list_view.h"
#include "lists/track_list_model.h"

#include <QCoreApplication>
#include <QLineEdit>

#include <benchmark/benchmark.h>

// What the track list costs when a new picture comes, once a second.

namespace {

QSharedPointer<const DisplaySnapshot> picture(int tracks, int shift)
{
    auto snapshot = QSharedPointer<DisplaySnapshot>::create();
    snapshot->time = QDateTime(QDate(2024, 5, 1), QTime(12, 0, 0), Qt::UTC).addSecs(shift);
    for (int i = 0; i < tracks; ++i) {
        TrackSnapshot track;
        track.incarnationId = static_cast<quint64>(i) + 1;
        track.trackNumber = static_cast<unsigned int>(i);
        track.callsign = QString("VYX%1").arg(i * 7919 % tracks);
        track.callsignValid = track.levelValid = track.groundSpeedValid = track.modeACodeValid = true;
        track.modeAString = QStringLiteral("3102");
        track.level = (i * 31 + shift * 13) % 400 * 100;
        track.groundSpeed = 200.0 + (i + shift) % 300;
        track.type = Track::Adsb;
        snapshot->tracks.append(track);
    }
    return snapshot;
}

// Arguments: tracks, the column to sort by, whether a filter is set.
void showPicture(benchmark::State &state)
{
    const int tracks = static_cast<int>(state.range(0));
    const QList pictures{picture(tracks, 0), picture(tracks, 1), picture(tracks, 2)};
    TrackListModel model;
    ListPane pane(&model, "trackList");
    pane.resize(400, 600);
    pane.show();
    pane.list()->sortByColumn(static_cast<int>(state.range(1)), Qt::AscendingOrder);
    if (state.range(2)) {
        pane.findChild<QLineEdit *>("trackListFilter")->setText("fl>100 adsb");
    }
    QCoreApplication::processEvents();
    qsizetype next = 0;
    for (auto _ : state) {
        pane.takeChange([&] { model.setSnapshot(pictures[next]); });
        pane.list()->viewport()->repaint();
        next = (next + 1) % pictures.size();
    }
}
BENCHMARK(showPicture)
    ->ArgNames({"tracks", "column", "filter"})
    ->Args({300, TrackListModel::Callsign, 0})
    ->Args({5000, TrackListModel::Callsign, 0})
    ->Args({5000, TrackListModel::Level, 0})
    ->Args({5000, TrackListModel::Level, 1})
    ->Unit(benchmark::kMillisecond);

} // namespace
