#include "radar_painting/radial_store.h"

#include <algorithm>
#include <cmath>

namespace {

// Some sources send one azimuth a radial; its neighbour before then tells how wide it is, unless that is too far away.
constexpr double WidestUnstatedRadial = 2.0; // degrees
// Continuations that would make a row longer than any radar's are taken as new rows.
constexpr quint64 LongestRow = 1u << 20;

double wrapped(double azimuth)
{
    const double rest = std::fmod(azimuth, 360.0);
    return rest < 0.0 ? rest + 360.0 : rest;
}

} // namespace

RadialStore::RadialStore(int binCount)
    : m_bins(static_cast<std::size_t>(binCount)), m_changed(static_cast<std::size_t>(binCount), false)
{
}

RadialStore::Extent RadialStore::extentOf(const VideoProcessor::Radial &radial)
{
    Extent extent{wrapped(radial.startAzimuth), wrapped(radial.endAzimuth - radial.startAzimuth)};
    // An antenna that turns the other way sends the edges the other way round.
    if (extent.width > 180.0) {
        extent = {wrapped(radial.endAzimuth), 360.0 - extent.width};
    }
    return extent;
}

void RadialStore::closeGap(Extent &extent) const
{
    if (!m_lastRow) {
        return;
    }
    const double bin = 360.0 / binCount();
    const double gap = wrapped(extent.start - m_lastEdge);
    if (gap > (extent.width > 0.0 ? std::max(extent.width / 2.0, bin) : WidestUnstatedRadial)) {
        return;
    }
    extent = {m_lastEdge, extent.width + gap};
}

bool RadialStore::continuesLast(const VideoProcessor::Radial &radial) const
{
    return m_lastRow && radial.startAzimuth == m_lastStart && radial.endAzimuth == m_lastEnd
        && radial.startCell >= m_lastRow->endCell();
}

bool RadialStore::extendLast(const VideoProcessor::Radial &radial)
{
    const quint64 end = static_cast<quint64>(radial.startCell) + static_cast<quint64>(radial.amplitudes.size());
    if (end - m_lastRow->startCell > LongestRow) {
        return false;
    }
    mergeInto(*m_lastRow, radial);
    markBinsOf(m_lastRow.get());
    return true;
}

// Keeps the stronger of two amplitudes of the same cell.
void RadialStore::mergeInto(Row &row, const VideoProcessor::Radial &radial)
{
    const quint64 radialEnd = static_cast<quint64>(radial.startCell) + static_cast<quint64>(radial.amplitudes.size());
    const quint32 start = std::min(row.startCell, radial.startCell);
    const quint64 end = std::max(row.endCell(), radialEnd);
    if (end - start > LongestRow) {
        return;
    }
    QList<unsigned char> merged(static_cast<qsizetype>(end - start), 0);
    std::copy(row.amplitudes.cbegin(), row.amplitudes.cend(), merged.begin() + (row.startCell - start));
    const auto target = merged.begin() + (radial.startCell - start);
    std::transform(radial.amplitudes.cbegin(), radial.amplitudes.cend(), target, target,
        [](unsigned char one, unsigned char other) { return std::max(one, other); });
    row.amplitudes = merged;
    row.startCell = start;
    m_endCell = std::max(m_endCell, end);
}

void RadialStore::markBinsOf(const Row *row)
{
    for (int i = 0; i < binCount(); ++i) {
        const int bin = (m_lastFirstBin + i) % binCount();
        if (m_bins[static_cast<std::size_t>(bin)].get() != row) {
            break;
        }
        m_changed[static_cast<std::size_t>(bin)] = true;
    }
}

void RadialStore::put(int bin, const std::shared_ptr<Row> &row)
{
    auto &place = m_bins[static_cast<std::size_t>(bin)];
    m_filled += static_cast<int>(row != nullptr) - static_cast<int>(place != nullptr);
    place = row;
    m_changed[static_cast<std::size_t>(bin)] = true;
}

RadialStore::BinSpan RadialStore::binsOf(const Extent &extent) const
{
    const double perDegree = binCount() / 360.0;
    if (extent.width * perDegree < 1.0) {
        // It can miss the middle of every bin: it belongs to the one that holds its own middle.
        return {static_cast<int>((extent.start + extent.width / 2.0) * perDegree) % binCount(), 1, true};
    }
    const int first = static_cast<int>(std::ceil(extent.start * perDegree - 0.5));
    const int end = static_cast<int>(std::ceil((extent.start + extent.width) * perDegree - 0.5));
    return {first % binCount(), end - first, false};
}

void RadialStore::add(const VideoProcessor::Radial &radial, qint64 now)
{
    if (!std::isfinite(radial.startAzimuth) || !std::isfinite(radial.endAzimuth)) {
        return;
    }
    if (continuesLast(radial) && extendLast(radial)) {
        return;
    }
    Extent extent = extentOf(radial);
    closeGap(extent);
    const BinSpan bins = binsOf(extent);
    if (bins.narrow && m_lastRow && m_lastBin == bins.first && m_lastStart != radial.startAzimuth) {
        mergeInto(*m_lastRow, radial);
        markBinsOf(m_lastRow.get());
    } else {
        m_lastRow = std::make_shared<Row>(Row{radial.amplitudes, radial.startCell, now});
        m_endCell = std::max(m_endCell, m_lastRow->endCell());
        for (int i = 0; i < bins.count; ++i) {
            put((bins.first + i) % binCount(), m_lastRow);
        }
        m_lastFirstBin = bins.first;
        m_lastBin = (bins.first + bins.count - 1) % binCount();
    }
    m_lastStart = radial.startAzimuth;
    m_lastEnd = radial.endAzimuth;
    m_lastEdge = wrapped(extent.start + extent.width);
}

void RadialStore::dropOlder(qint64 oldest)
{
    for (int bin = 0; bin < binCount(); ++bin) {
        if (row(bin) && row(bin)->time < oldest) {
            put(bin, nullptr);
        }
    }
    if (m_lastRow && m_lastRow->time < oldest) {
        m_lastRow.reset();
    }
}

RadialStore::Cell RadialStore::strongest(const Sector &sector, qint64 oldest) const
{
    const double perDegree = binCount() / 360.0;
    const int first = static_cast<int>(std::floor((sector.azimuth - sector.halfAngle) * perDegree));
    const int last = static_cast<int>(std::floor((sector.azimuth + sector.halfAngle) * perDegree));
    Cell found;
    for (int i = 0; i <= std::min(last - first, binCount() - 1); ++i) {
        const int bin = (first + i + binCount()) % binCount();
        const Row *there = row(bin);
        if (!there || there->time <= oldest) {
            continue;
        }
        const quint64 end = std::min(sector.endCell, there->endCell());
        for (quint64 cell = std::max<quint64>(sector.firstCell, there->startCell); cell < end; ++cell) {
            const int amplitude = there->amplitudes[static_cast<qsizetype>(cell - there->startCell)];
            if (amplitude > found.amplitude) {
                found = {bin, cell, amplitude};
            }
        }
    }
    return found;
}

void RadialStore::forgetChanges()
{
    m_changed.assign(m_changed.size(), false);
}
