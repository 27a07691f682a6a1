#include "radar_painting/video_tile.h"

#include "geo/wgs84.h"
#include "radar_painting/site_offsets.h"
#include "radar_painting/video_palette.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::size_t PixelCount = static_cast<std::size_t>(VideoTile::Size) * VideoTile::Size;

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
        * static_cast<float>(0.5 / wgs84::Pi);
    const float octant = y > x ? 0.25f - angle : angle;
    const float half = north < 0.0f ? 0.5f - octant : octant;
    return east < 0.0f ? 1.0f - half : half;
}

} // namespace

int VideoScale::sectorOf(float range, float bin) const
{
    if (range < coreRange) {
        return VideoCells::Core;
    }
    const float sectorsPerBin = static_cast<float>(VideoCells::SectorCount) / static_cast<float>(binCount);
    return std::min(static_cast<int>(bin * sectorsPerBin), VideoCells::SectorCount - 1);
}

void VideoTile::place(const SiteOffsets &offsets, const QPoint &corner, const VideoScale &scale)
{
    m_range.resize(PixelCount);
    m_bin.resize(PixelCount);
    m_unsorted.clear();
    std::array<float, Size> east{};
    std::array<float, Size> north{};
    const float perMetre = static_cast<float>(1.0 / scale.cellSize);
    const float bins = static_cast<float>(scale.binCount);
    for (int y = 0; y < Size; ++y) {
        offsets.row(corner.y() + y, corner.x(), Size, east.data(), north.data());
        float *range = m_range.data() + static_cast<std::size_t>(y) * Size;
        float *bin = m_bin.data() + static_cast<std::size_t>(y) * Size;
        for (std::size_t x = 0; x < Size; ++x) {
            range[x] = std::sqrt(east[x] * east[x] + north[x] * north[x]) * perMetre;
            bin[x] = turnOf(east[x], north[x]) * bins;
        }
        addRuns(y, scale);
    }
    sortRuns();
    m_shows = false;
    if (!m_parts.empty()) {
        m_echoes.assign(PixelCount, {});
        m_image = m_image.isNull() ? QImage(Size, Size, QImage::Format_ARGB32_Premultiplied) : m_image;
        m_image.fill(Qt::transparent);
    }
}

void VideoTile::addRuns(int y, const VideoScale &scale)
{
    const auto start = static_cast<std::size_t>(y) * Size;
    const float reach = scale.reach + scale.halfRange;
    Run run;
    const auto finish = [this, &run] {
        if (run.count > 0) {
            m_unsorted.push_back(run);
        }
        run.count = 0;
    };
    for (std::size_t pixel = start; pixel < start + Size; ++pixel) {
        if (m_range[pixel] > reach) {
            finish();
            continue;
        }
        const int sector = scale.sectorOf(m_range[pixel], m_bin[pixel]);
        if (run.count == 0 || sector != run.sector) {
            finish();
            run = {static_cast<quint16>(pixel), 0, static_cast<quint16>(sector)};
        }
        ++run.count;
    }
    finish();
}

void VideoTile::sortRuns()
{
    std::array<quint32, VideoCells::SectorCount + 2> next{};
    for (const Run &run : m_unsorted) {
        ++next[run.sector + 1u];
    }
    m_parts.clear();
    for (std::size_t sector = 0; sector + 1 < next.size(); ++sector) {
        next[sector + 1] += next[sector];
        if (next[sector + 1] > next[sector]) {
            m_parts.push_back({static_cast<quint16>(sector), false, false, next[sector], next[sector + 1]});
        }
    }
    m_runs.resize(m_unsorted.size());
    for (const Run &run : m_unsorted) {
        m_runs[next[run.sector]++] = run;
    }
}

void VideoTile::draw(const VideoCells &cells, const VideoScale &scale, const VideoPalette &palette)
{
    for (Part &part : m_parts) {
        part.lit = resolve(part, cells, scale);
        part.shown = part.lit && colorize(part, cells, palette);
    }
    noteShown();
}

void VideoTile::update(
    const VideoCells &cells, const VideoCells::Changes &changes, const VideoScale &scale, const VideoPalette &palette)
{
    for (Part &part : m_parts) {
        const bool wasLit = part.lit;
        const bool changed = changes.echoes[part.sector];
        if (changed) {
            part.lit = resolve(part, cells, scale);
        }
        if (changed ? part.lit || wasLit : part.lit && changes.colors[part.sector]) {
            part.shown = colorize(part, cells, palette);
        }
    }
    noteShown();
}

void VideoTile::noteShown()
{
    m_shows = std::any_of(m_parts.begin(), m_parts.end(), [](const Part &part) { return part.shown; });
}

// True when there is an echo.
bool VideoTile::resolve(const Part &part, const VideoCells &cells, const VideoScale &scale)
{
    bool lit = false;
    for (std::size_t i = part.firstRun; i < part.endRun; ++i) {
        const Run &run = m_runs[i];
        for (std::size_t pixel = run.pixel; pixel < static_cast<std::size_t>(run.pixel) + run.count; ++pixel) {
            m_echoes[pixel] = strongest(pixel, cells, scale);
            lit = lit || m_echoes[pixel].amplitude > 0;
        }
    }
    return lit;
}

VideoTile::Echo VideoTile::strongest(std::size_t pixel, const VideoCells &cells, const VideoScale &scale) const
{
    const float range = m_range[pixel];
    const int binCount = scale.binCount;
    const auto firstCell = static_cast<qint64>(std::max(range - scale.halfRange, 0.0f));
    const auto endCell = static_cast<qint64>(range + scale.halfRange) + 1;
    int first = 0;
    int count = binCount;
    if (range > scale.halfRange) {
        // Close to the site a pixel spans a wider angle than its width suggests, half a turn where it touches the site.
        const float halfAngle =
            scale.halfAngle / range * (range < 4.0f * scale.halfRange ? static_cast<float>(wgs84::Pi / 2.0) : 1.0f);
        first = static_cast<int>(m_bin[pixel] + static_cast<float>(binCount) - halfAngle);
        count =
            std::min(static_cast<int>(m_bin[pixel] + static_cast<float>(binCount) + halfAngle) - first + 1, binCount);
        first -= first >= binCount ? binCount : 0;
    }
    Echo strongest;
    const unsigned char *before = nullptr;
    for (int i = 0, bin = first; i < count; ++i, ++bin) {
        bin -= bin >= binCount ? binCount : 0;
        const VideoCells::Row &row = cells.row(bin);
        if (row.amplitudes == before) {
            continue; // the same row, or none, over several bins
        }
        before = row.amplitudes;
        const qint64 end = std::min(endCell, row.end);
        unsigned char amplitude = 0;
        for (qint64 cell = std::max(firstCell, row.start); cell < end; ++cell) {
            amplitude = std::max(amplitude, row.amplitudes[cell - row.start]);
        }
        if (amplitude > strongest.amplitude) {
            strongest = {static_cast<quint16>(bin), amplitude};
        }
    }
    return strongest;
}

// True when a pixel is not transparent.
bool VideoTile::colorize(const Part &part, const VideoCells &cells, const VideoPalette &palette)
{
    auto *pixels = reinterpret_cast<QRgb *>(m_image.bits());
    QRgb any = 0;
    for (std::size_t i = part.firstRun; i < part.endRun; ++i) {
        const Run &run = m_runs[i];
        for (std::size_t pixel = run.pixel; pixel < static_cast<std::size_t>(run.pixel) + run.count; ++pixel) {
            const Echo echo = m_echoes[pixel];
            pixels[pixel] = palette.colors(cells.ageStep(echo.bin))[echo.amplitude];
            any |= pixels[pixel];
        }
    }
    return any != 0;
}
