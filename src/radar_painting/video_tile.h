#pragma once

#include "radar_painting/video_cells.h"

#include <QImage>
#include <QPoint>

#include <vector>

class SiteOffsets;
class VideoPalette;

// How a radar's cells and the pixels of a view compare.
struct VideoScale {
    int binCount = 1;
    double cellSize = 1.0; // metres
    float reach = 0.0f; // cells; beyond it there are none
    float halfRange = 0.0f; // half a pixel's diagonal in cells
    float halfAngle = 0.0f; // the same in bins for a pixel one cell away
    float coreRange = 0.0f; // cells

    int sectorOf(float range, float bin) const;
};

// A square piece of one radar's video. Keeps which cells fall into which pixel; a pixel shows the strongest cell that
// touches it, so that no echo falls between pixels, and no pixel between radials, at any scale.
class VideoTile {
public:
    static constexpr int Size = 128; // device pixels

    // Empties it and works out its pixels' cells; its upper left corner is that pixel of the offsets.
    void place(const SiteOffsets &offsets, const QPoint &corner, const VideoScale &scale);
    // Draws all of it.
    void draw(const VideoCells &cells, const VideoScale &scale, const VideoPalette &palette);
    // Brings it up to date with what has changed in the cells.
    void update(const VideoCells &cells, const VideoCells::Changes &changes, const VideoScale &scale,
        const VideoPalette &palette);

    // False: there is nothing to be seen.
    bool shows() const { return m_shows; }
    const QImage &image() const { return m_image; }

private:
    // Pixels of one row that lie in one sector.
    struct Run {
        quint16 pixel = 0; // index of the first
        quint16 count = 0;
        quint16 sector = 0;
    };
    // The runs of one sector.
    struct Part {
        quint16 sector = 0;
        bool lit = false; // there is an echo
        bool shown = false; // that can be seen
        quint32 firstRun = 0;
        quint32 endRun = 0;
    };
    struct Echo {
        quint16 bin = 0;
        quint8 amplitude = 0;
    };

    void addRuns(int y, const VideoScale &scale);
    void sortRuns();
    bool resolve(const Part &part, const VideoCells &cells, const VideoScale &scale);
    bool colorize(const Part &part, const VideoCells &cells, const VideoPalette &palette);
    Echo strongest(std::size_t pixel, const VideoCells &cells, const VideoScale &scale) const;
    void noteShown();

    QImage m_image;
    bool m_shows = false;
    // Of every pixel: distance in cells and direction in bins.
    std::vector<float> m_range;
    std::vector<float> m_bin;
    std::vector<Echo> m_echoes;
    std::vector<Run> m_runs; // sector by sector
    std::vector<Part> m_parts;
    std::vector<Run> m_unsorted; // kept for its memory
};
