#include "radar_painting/video_raster.h"

#include "geo/wgs84.h"
#include "radar_painting/radial_store.h"
#include "radar_painting/site_offsets.h"
#include "radar_painting/video_palette.h"

#include <QRegion>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace {

// From the middle of a pixel to its corners, with a little to spare for interpolation.
constexpr double HalfDiagonal = 0.75;

// The direction of (east, north) clockwise from north as a part of a turn, 0 to 1. Good to 2 millionths of a turn and
// free of branches, so that the compiler can work on several pixels at a time.
inline float turnOf(float east, float north)
{
    const float x = std::abs(north);
    const float y = std::abs(east);
    const float larger = std::max(std::max(x, y), 1e-6f);
    const float smaller = std::min(x, y);
    const float a = smaller / larger;
    const float s = a * a;
    const float angle =
        ((((((-0.0117212f * s + 0.05265332f) * s - 0.11643287f) * s + 0.19354346f) * s - 0.33262347f) * s + 0.99997726f)
            * a)
        * float(0.5 / wgs84::Pi);
    const float octant = y > x ? 0.25f - angle : angle;
    const float half = north < 0.0f ? 0.5f - octant : octant;
    return east < 0.0f ? 1.0f - half : half;
}

// Moves a picture by whole pixels; what comes into sight keeps what was there before.
template <typename Pixel>
void movePixels(Pixel *pixels, const QSize &size, const QPoint &shift)
{
    const int count = std::max(size.width() - std::abs(shift.x()), 0);
    const int rows = std::max(size.height() - std::abs(shift.y()), 0);
    for (int i = 0; i < rows; ++i) {
        // Rows that are still to be read must not be written first.
        const int row = shift.y() > 0 ? size.height() - 1 - i : i;
        Pixel *to = pixels + row * size.width() + std::max(shift.x(), 0);
        const Pixel *from = pixels + (row - shift.y()) * size.width() + std::max(-shift.x(), 0);
        std::memmove(to, from, std::size_t(count) * sizeof(Pixel));
    }
}

} // namespace

void VideoRaster::setView(const SiteOffsets &offsets, const RadialStore &store, double cellSizeMetres)
{
    const QSize size = offsets.size();
    const std::size_t pixels = std::size_t(size.width()) * std::size_t(size.height());
    m_binCount = store.binCount();
    m_cellSize = cellSizeMetres;
    m_reach = store.endCell() + store.endCell() / 8 + 1;
    const double pixelCells = offsets.pixelMetres(double(m_reach) * cellSizeMetres) / cellSizeMetres;
    m_halfRange = float(HalfDiagonal * pixelCells);
    m_halfAngle = float(m_halfRange * m_binCount / (2.0 * wgs84::Pi));
    m_sectorsPerBin = float(SectorCount) / float(m_binCount);
    m_coreRange = m_halfAngle * m_sectorsPerBin;
    if (m_image.size() != size) {
        m_image = QImage(size, QImage::Format_ARGB32_Premultiplied);
    }
    m_image.fill(Qt::transparent);
    m_range.resize(pixels);
    m_bin.resize(pixels);
    m_echoes.resize(pixels);
    m_exposed.clear();
    placePixels(m_image.rect(), offsets);
    findRuns();
    m_cells.assign(std::size_t(m_binCount), Cells());
    m_ageSteps.assign(std::size_t(m_binCount), 0);
    m_dirty.assign(SectorCount + 1, true);
    m_aged.assign(SectorCount + 1, true);
    m_lit.assign(SectorCount + 1, false);
}

void VideoRaster::moveView(const SiteOffsets &offsets, const QPoint &shift)
{
    const QSize size = m_image.size();
    movePixels(m_range.data(), size, shift);
    movePixels(m_bin.data(), size, shift);
    movePixels(m_echoes.data(), size, shift);
    movePixels(reinterpret_cast<QRgb *>(m_image.bits()), size, shift);
    const QRegion exposed = QRegion(m_image.rect()) - QRegion(m_image.rect().translated(shift));
    m_exposed.assign(exposed.begin(), exposed.end());
    m_bounds.translate(shift);
    for (const QRect &rect : m_exposed) {
        placePixels(rect, offsets);
        m_bounds |= rect;
    }
    m_bounds &= m_image.rect();
    m_runsStale = true;
}

// Works out range and bin of the pixels in a part of the picture.
void VideoRaster::placePixels(const QRect &rect, const SiteOffsets &offsets)
{
    const int width = m_image.width();
    m_east.resize(std::size_t(width));
    m_north.resize(std::size_t(width));
    const float perMetre = float(1.0 / m_cellSize);
    const float bins = float(m_binCount);
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        offsets.row(y, m_east.data(), m_north.data());
        float *range = m_range.data() + std::size_t(y) * std::size_t(width);
        float *bin = m_bin.data() + std::size_t(y) * std::size_t(width);
        for (int x = rect.left(); x <= rect.right(); ++x) {
            const float east = m_east[std::size_t(x)];
            const float north = m_north[std::size_t(x)];
            range[x] = std::sqrt(east * east + north * north) * perMetre;
            bin[x] = turnOf(east, north) * bins;
        }
    }
}

void VideoRaster::findRuns()
{
    m_runs.clear();
    m_runsStale = false;
    m_bounds = QRect();
    for (int y = 0; y < m_image.height(); ++y) {
        addRuns(y, m_image.width());
    }
    sortRuns();
}

void VideoRaster::addRuns(int y, int width)
{
    const quint32 start = quint32(y) * quint32(width);
    const float reach = float(m_reach) + m_halfRange;
    Run run;
    const auto finish = [this, &run] {
        if (run.count > 0) {
            m_runs.push_back(run);
        }
        run.count = 0;
    };
    for (int x = 0; x < width; ++x) {
        const float range = m_range[start + quint32(x)];
        if (range > reach) {
            finish();
            continue;
        }
        const int sector = sectorOf(range, m_bin[start + quint32(x)]);
        if (run.count == 0 || sector != run.sector) {
            finish();
            run = {start + quint32(x), 0, quint16(sector)};
            m_bounds |= QRect(x, y, 1, 1);
        }
        ++run.count;
        if (x > m_bounds.right()) {
            m_bounds.setRight(x);
        }
    }
    finish();
}

int VideoRaster::sectorOf(float range, float bin) const
{
    if (range < m_coreRange) {
        return Core;
    }
    return std::min(int(bin * m_sectorsPerBin), SectorCount - 1);
}

void VideoRaster::sortRuns()
{
    m_firstRun.assign(SectorCount + 2, 0);
    for (const Run &run : m_runs) {
        ++m_firstRun[run.sector + 1u];
    }
    for (std::size_t i = 1; i < m_firstRun.size(); ++i) {
        m_firstRun[i] += m_firstRun[i - 1];
    }
    std::vector<std::size_t> next(m_firstRun.begin(), m_firstRun.end() - 1);
    std::vector<Run> sorted(m_runs.size());
    for (const Run &run : m_runs) {
        sorted[next[run.sector]++] = run;
    }
    m_runs.swap(sorted);
}

void VideoRaster::update(
    const RadialStore &store, const VideoPalette &palette, qint64 now, qint64 validity, Extent extent)
{
    readStore(store, now, validity);
    expose(palette);
    if (extent == Extent::Exposed) {
        return;
    }
    if (m_runsStale) {
        findRuns();
    }
    for (int sector = 0; sector <= SectorCount; ++sector) {
        const auto index = std::size_t(sector);
        const bool wasLit = m_lit[index];
        if (m_dirty[index]) {
            resolve(sector);
        }
        if (m_dirty[index] ? m_lit[index] || wasLit : m_lit[index] && (m_aged[index] || m_recolorAll)) {
            colorize(sector, palette);
        }
        m_dirty[index] = false;
        m_aged[index] = false;
    }
    m_recolorAll = false;
}

void VideoRaster::expose(const VideoPalette &palette)
{
    auto *pixels = reinterpret_cast<QRgb *>(m_image.bits());
    const float reach = float(m_reach) + m_halfRange;
    for (const QRect &rect : m_exposed) {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                const auto pixel = std::size_t(y) * std::size_t(m_image.width()) + std::size_t(x);
                const Echo echo = m_range[pixel] <= reach ? strongest(pixel) : Echo();
                m_echoes[pixel] = echo;
                pixels[pixel] = palette.colors(m_ageSteps[echo.bin])[echo.amplitude];
                if (echo.amplitude > 0) {
                    m_lit[std::size_t(sectorOf(m_range[pixel], m_bin[pixel]))] = true;
                }
            }
        }
    }
    m_exposed.clear();
}

void VideoRaster::readStore(const RadialStore &store, qint64 now, qint64 validity)
{
    for (int bin = 0; bin < m_binCount; ++bin) {
        const bool changed = store.changed(bin);
        const bool aged = readBin(store, bin, now, validity);
        if (!changed && !aged) {
            continue;
        }
        const int sector = bin * SectorCount / m_binCount;
        // A pixel next to the sector's edge sees bins on both sides of it.
        for (int neighbour : {sector + SectorCount - 1, sector, sector + 1}) {
            const auto index = std::size_t(neighbour % SectorCount);
            m_dirty[index] = m_dirty[index] || changed;
            m_aged[index] = true;
        }
        m_dirty[Core] = m_dirty[Core] || changed;
        m_aged[Core] = true;
    }
}

// True when the bin's echoes have another colour now.
bool VideoRaster::readBin(const RadialStore &store, int bin, qint64 now, qint64 validity)
{
    const RadialStore::Row *row = store.row(bin);
    Cells &cells = m_cells[std::size_t(bin)];
    if (!row) {
        cells = Cells();
        return false;
    }
    cells = {row->amplitudes.constData(), qint64(row->startCell), qint64(row->endCell())};
    const qint64 step = validity > 0 ? (now - row->time) * VideoPalette::AgeSteps / validity : VideoPalette::AgeSteps;
    const auto ageStep = quint8(std::clamp<qint64>(step, 0, VideoPalette::AgeSteps));
    return std::exchange(m_ageSteps[std::size_t(bin)], ageStep) != ageStep;
}

VideoRaster::Echo VideoRaster::strongest(std::size_t pixel) const
{
    const float range = m_range[pixel];
    const auto firstCell = qint64(std::max(range - m_halfRange, 0.0f));
    const auto endCell = qint64(range + m_halfRange) + 1;
    int first = 0;
    int count = m_binCount;
    if (range > m_halfRange) {
        // Close to the site a pixel spans a wider angle than its width suggests, half a turn where it touches the site.
        const float halfAngle = m_halfAngle / range * (range < 4.0f * m_halfRange ? float(wgs84::Pi / 2.0) : 1.0f);
        first = int(m_bin[pixel] + float(m_binCount) - halfAngle);
        count = std::min(int(m_bin[pixel] + float(m_binCount) + halfAngle) - first + 1, m_binCount);
        first -= first >= m_binCount ? m_binCount : 0;
    }
    Echo strongest;
    const unsigned char *before = nullptr;
    for (int i = 0, bin = first; i < count; ++i, ++bin) {
        bin -= bin >= m_binCount ? m_binCount : 0;
        const Cells &cells = m_cells[std::size_t(bin)];
        if (cells.amplitudes == before) {
            continue; // the same row, or none, over several bins
        }
        before = cells.amplitudes;
        const qint64 end = std::min(endCell, cells.end);
        unsigned char amplitude = 0;
        for (qint64 cell = std::max(firstCell, cells.start); cell < end; ++cell) {
            amplitude = std::max(amplitude, cells.amplitudes[cell - cells.start]);
        }
        if (amplitude > strongest.amplitude) {
            strongest = {quint16(bin), amplitude};
        }
    }
    return strongest;
}

void VideoRaster::resolve(int sector)
{
    const auto index = std::size_t(sector);
    bool lit = false;
    for (std::size_t i = m_firstRun[index]; i < m_firstRun[index + 1]; ++i) {
        const Run &run = m_runs[i];
        for (std::size_t pixel = run.pixel; pixel < run.pixel + run.count; ++pixel) {
            m_echoes[pixel] = strongest(pixel);
            lit = lit || m_echoes[pixel].amplitude > 0;
        }
    }
    m_lit[index] = lit;
}

void VideoRaster::colorize(int sector, const VideoPalette &palette)
{
    const auto index = std::size_t(sector);
    auto *pixels = reinterpret_cast<QRgb *>(m_image.bits());
    for (std::size_t i = m_firstRun[index]; i < m_firstRun[index + 1]; ++i) {
        const Run &run = m_runs[i];
        for (std::size_t pixel = run.pixel; pixel < run.pixel + run.count; ++pixel) {
            const Echo echo = m_echoes[pixel];
            pixels[pixel] = palette.colors(m_ageSteps[echo.bin])[echo.amplitude];
        }
    }
}
