#pragma once

#include <QImage>
#include <QRect>

#include <vector>

class RadialStore;
class SiteOffsets;
class VideoPalette;

// The video of one radar as a picture of one view. Keeps which cells fall into which pixel; a pixel shows the strongest
// cell that touches it, so that no echo falls between pixels, and no pixel between radials, at any scale. Only sectors
// of the antenna's turn in which something changed are worked out anew.
class VideoRaster {
public:
    // Forgets the picture and works out the table of a view. Cells beyond reach(), a little more than the store holds
    // now, have no place in it.
    void setView(const SiteOffsets &offsets, const RadialStore &store, double cellSizeMetres);
    // The same for a view that differs by whole pixels only: what stays in sight is moved.
    void moveView(const SiteOffsets &offsets, const QPoint &shift);
    quint64 reach() const { return m_reach; } // cells; 0 before the first setView()

    enum class Extent { All, Exposed };
    // Brings the picture up to date with what changed in the store, or only that part of it which the last moves have
    // brought into sight; fades by age, which reaches the palette's end after the validity. Times in milliseconds.
    void update(const RadialStore &store, const VideoPalette &palette, qint64 now, qint64 validity,
        Extent extent = Extent::All);
    // To be called when the palette has changed.
    void recolor() { m_recolorAll = true; }

    // Device pixels, as large as the view.
    const QImage &image() const { return m_image; }
    // Holds the part of the image where the radar reaches.
    const QRect &bounds() const { return m_bounds; }

private:
    static constexpr int SectorCount = 256;
    // Close to the site a pixel is wider than a sector. These pixels are a sector of their own, in which every change
    // counts.
    static constexpr int Core = SectorCount;

    // Pixels of one row that lie in one sector.
    struct Run {
        quint32 pixel = 0; // index of the first
        quint16 count = 0;
        quint16 sector = 0;
    };
    struct Cells {
        const unsigned char *amplitudes = nullptr; // null: no row
        qint64 start = 0;
        qint64 end = 0;
    };
    struct Echo {
        quint16 bin = 0;
        quint8 amplitude = 0;
    };

    void placePixels(const QRect &rect, const SiteOffsets &offsets);
    void findRuns();
    void addRuns(int y, int width);
    int sectorOf(float range, float bin) const;
    void sortRuns();
    void expose(const VideoPalette &palette);
    void readStore(const RadialStore &store, qint64 now, qint64 validity);
    bool readBin(const RadialStore &store, int bin, qint64 now, qint64 validity);
    Echo strongest(std::size_t pixel) const;
    void resolve(int sector);
    void colorize(int sector, const VideoPalette &palette);

    QImage m_image;
    QRect m_bounds;
    quint64 m_reach = 0;
    double m_cellSize = 1.0;
    int m_binCount = 0;
    float m_halfRange = 0.0f; // half a pixel's diagonal in cells
    float m_halfAngle = 0.0f; // the same in bins for a pixel one cell away
    float m_coreRange = 0.0f; // cells
    float m_sectorsPerBin = 0.0f;

    std::vector<float> m_east; // of the row at hand
    std::vector<float> m_north;
    std::vector<QRect> m_exposed; // pixels that the last move brought into sight

    // Of every pixel: distance in cells and direction in bins.
    std::vector<float> m_range;
    std::vector<float> m_bin;
    std::vector<Echo> m_echoes;

    bool m_runsStale = false; // the view has been moved since they were found
    std::vector<Run> m_runs; // sector by sector
    std::vector<std::size_t> m_firstRun; // of each sector, and one behind the last

    // What the store holds, in the form that the innermost loop wants.
    std::vector<Cells> m_cells;
    std::vector<quint8> m_ageSteps;
    std::vector<bool> m_dirty; // sectors to resolve
    std::vector<bool> m_aged; // sectors to colour
    std::vector<bool> m_lit; // sectors with any echo in the picture
    bool m_recolorAll = false;
};
