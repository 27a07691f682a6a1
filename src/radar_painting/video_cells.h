#pragma once

#include <QtGlobal>

#include <bitset>
#include <utility>
#include <vector>

class RadialStore;

// What a store of radials holds, in the form that the innermost loop over a picture's pixels wants, and in which
// sectors of the antenna's turn it has changed.
class VideoCells {
public:
    static constexpr int SectorCount = 256;
    // Close to the site a pixel is wider than a sector. These pixels are a sector of their own, in which every change
    // counts.
    static constexpr int Core = SectorCount;

    struct Row {
        const unsigned char *amplitudes = nullptr; // the store's; null: no row
        qint64 start = 0; // cells
        qint64 end = 0;
    };

    // By sector, the core last.
    struct Changes {
        std::bitset<SectorCount + 1> echoes;
        std::bitset<SectorCount + 1> colors;

        Changes &operator|=(const Changes &other)
        {
            echoes |= other.echoes;
            colors |= other.colors;
            return *this;
        }
    };

    void reset(int binCount);
    // Takes over what the store says has changed. Rows stay valid until the store changes again. The age goes from 0 to
    // the palette's end after the validity; milliseconds.
    void read(RadialStore &store, qint64 now, qint64 validity);

    const Row &row(int bin) const { return m_rows[static_cast<std::size_t>(bin)]; }
    int ageStep(int bin) const { return m_ageSteps[static_cast<std::size_t>(bin)]; }

    // What has changed since the last call.
    Changes takeChanges() { return std::exchange(m_changes, {}); }
    void recolorAll() { m_changes.colors.set(); }

private:
    bool readBin(const RadialStore &store, int bin, qint64 now, qint64 validity);

    std::vector<Row> m_rows; // by bin
    std::vector<quint8> m_ageSteps;
    Changes m_changes;
};
