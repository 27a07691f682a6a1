#include "radar_painting/video_cells.h"

#include "radar_painting/radial_store.h"
#include "radar_painting/video_palette.h"

#include <algorithm>
#include <utility>

void VideoCells::reset(int binCount)
{
    m_rows.assign(static_cast<std::size_t>(binCount), Row());
    m_ageSteps.assign(static_cast<std::size_t>(binCount), 0);
    m_changes = {};
}

void VideoCells::read(RadialStore &store, qint64 now, qint64 validity)
{
    const int binCount = static_cast<int>(m_rows.size());
    const auto note = [this](std::size_t sector, bool changed) {
        m_changes.echoes[sector] = m_changes.echoes[sector] || changed;
        m_changes.colors[sector] = true;
    };
    for (int bin = 0; bin < binCount; ++bin) {
        const bool changed = store.changed(bin);
        const bool aged = readBin(store, bin, now, validity);
        if (!changed && !aged) {
            continue;
        }
        const int sector = bin * SectorCount / binCount;
        // A pixel next to the sector's edge sees bins on both sides of it.
        for (const int neighbour : {sector + SectorCount - 1, sector, sector + 1}) {
            note(static_cast<std::size_t>(neighbour % SectorCount), changed);
        }
        note(Core, changed);
    }
    store.forgetChanges();
}

// True when the bin's echoes have another colour now.
bool VideoCells::readBin(const RadialStore &store, int bin, qint64 now, qint64 validity)
{
    const RadialStore::Row *row = store.row(bin);
    Row &cells = m_rows[static_cast<std::size_t>(bin)];
    if (!row) {
        cells = Row();
        return false;
    }
    cells = {row->amplitudes.constData(), static_cast<qint64>(row->startCell), static_cast<qint64>(row->endCell())};
    const qint64 step = validity > 0 ? (now - row->time) * VideoPalette::AgeSteps / validity : VideoPalette::AgeSteps;
    const auto ageStep = static_cast<quint8>(std::clamp<qint64>(step, 0, VideoPalette::AgeSteps));
    return std::exchange(m_ageSteps[static_cast<std::size_t>(bin)], ageStep) != ageStep;
}
