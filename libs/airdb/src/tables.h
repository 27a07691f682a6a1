#pragma once

#include "airdb/dict_items.h"
#include "block_pages.h"

#include <QByteArray>
#include <QHash>
#include <QList>

namespace korvane::airdb {

struct AddressBlock {
    quint32 first = 0;
    quint32 last = 0;
    int country = -1; // -1: nobody's
    bool isMilitary = false;

    quint32 size() const { return last - first + 1; }
};

// Everything that a database holds.
struct Tables {
    // As many as make loading cheap whatever their sizes are.
    static constexpr qsizetype MaximumBlocks = 16384;

    QList<Region> regions;
    QList<Country> countries;
    QList<int> countryRegions; // beside countries: -1 for none
    QList<AddressBlock> blocks;
    QHash<quint32, int> sacs; // to the country
    QHash<quint32, QString> sensors; // by SAC × 256 + SIC

    // Where an aircraft's texts start in aircraftTexts: registration, type and operator, as in the file. Half a million
    // aircraft as strings would take several times the memory, and the time to load them.
    QHash<quint32, quint32> aircraft;
    QByteArray aircraftTexts;

    BlockPages pages; // of the blocks

    int regionIndex(const QString &code) const;
    int countryIndex(const QString &isoCode2) const;
    void addCountry(const QString &name, const QString &isoCode2, const QString &isoCode3, int region);
    Aircraft aircraftAt(quint32 address) const;
    // After the last block.
    void buildPages();
};

} // namespace korvane::airdb
