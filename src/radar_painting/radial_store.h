#pragma once

#include "processors/video_processor.h"

#include <QList>

#include <memory>
#include <vector>

// The newest video of one radar all round, in azimuth bins of equal width from north clockwise. A bin shows the newest
// radial over its middle; radials narrower than a bin share one. Cells are shared with the radials that brought them.
// Times are milliseconds of one steady clock.
class RadialStore {
public:
    // What one or several radials brought; the bins that they cover share it.
    struct Row {
        QList<unsigned char> amplitudes;
        quint32 startCell = 0;
        qint64 time = 0;

        quint64 endCell() const { return static_cast<quint64>(startCell) + static_cast<quint64>(amplitudes.size()); }
    };

    explicit RadialStore(int binCount);

    int binCount() const { return static_cast<int>(m_bins.size()); }

    // Small gaps to the radial before are closed; a radial that repeats the azimuths of the one before with other
    // cells continues it in range. Azimuths that are no numbers are ignored.
    void add(const VideoProcessor::Radial &radial, qint64 now);
    // Drops what came before that time.
    void dropOlder(qint64 oldest);

    // Null where nothing was received.
    const Row *row(int bin) const { return m_bins[static_cast<std::size_t>(bin)].get(); }
    bool empty() const { return m_filled == 0; }
    // One behind the last cell ever stored.
    quint64 endCell() const { return m_endCell; }

    // A piece of the turn, in degrees to either side of an azimuth, and of the cells.
    struct Sector {
        double azimuth = 0.0;
        double halfAngle = 0.0;
        quint64 firstCell = 0;
        quint64 endCell = 0;
    };
    struct Cell {
        int bin = 0;
        quint64 cell = 0;
        int amplitude = 0; // 0: there is none
    };
    // In what came after that time.
    Cell strongest(const Sector &sector, qint64 oldest) const;

    // Since the last forgetChanges().
    bool changed(int bin) const { return m_changed[static_cast<std::size_t>(bin)]; }
    void forgetChanges();

private:
    struct Extent {
        double start = 0.0; // degrees, 0 to 360
        double width = 0.0; // 0 to 180
    };
    struct BinSpan {
        int first = 0;
        int count = 0;
        bool narrow = false; // less than a bin
    };
    static Extent extentOf(const VideoProcessor::Radial &radial);
    void closeGap(Extent &extent) const;
    BinSpan binsOf(const Extent &extent) const;
    bool continuesLast(const VideoProcessor::Radial &radial) const;
    bool extendLast(const VideoProcessor::Radial &radial);
    void mergeInto(Row &row, const VideoProcessor::Radial &radial);
    void put(int bin, const std::shared_ptr<Row> &row);
    void markBinsOf(const Row *row);

    std::vector<std::shared_ptr<Row>> m_bins;
    std::vector<bool> m_changed;
    int m_filled = 0;
    quint64 m_endCell = 0;

    // The radial before.
    std::shared_ptr<Row> m_lastRow;
    double m_lastStart = 0.0; // as received
    double m_lastEnd = 0.0;
    double m_lastEdge = 0.0; // where its extent ended, 0 to 360
    int m_lastBin = -1; // the bin that it ended in
    int m_lastFirstBin = 0;
};
