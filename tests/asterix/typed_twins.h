#pragma once

#include "asterix/asterix.h"
#include "octets.h"
#include "random_records.h"

#include <QTest>

#include <cstddef>

template <typename Typed>
using Disassemble = void (*)(Typed *, const _ast_datarecord_t &);

// The only record of a block.
template <typename Typed>
Typed typedRecord(const Octets &octets, Disassemble<Typed> disassemble)
{
    _ast_datablock_t block;
    ast_datablock_smart_decode(&block, octets.data(), octets.size());
    Typed typed{};
    if (block.valid && block.records.size() == 1) {
        disassemble(&typed, block.records[0]);
    }
    return typed;
}

// Values that typed records and the JSON text both have: two ways through the same octets.
template <typename Typed>
struct Twin {
    const char *path;
    double (*value)(const Typed &); // NaN where absent
    double perUnit = 1; // of the typed value in one of the document's
};

inline constexpr double KnotsPerNauticalMileASecond = 3600;
inline const double absent = qQNaN();

template <typename Typed, std::size_t N>
void compareTwins(int category, const char *variation, Disassemble<Typed> disassemble, const Twin<Typed> (&twins)[N])
{
    RandomRecords random(category, nullptr, variation, 7);
    const Octets octets(bytesOf(random.makeBlock(300).block()));
    _ast_datablock_t block;
    ast_datablock_smart_decode(&block, octets.data(), octets.size());
    QVERIFY(block.valid);
    for (const _ast_datarecord_t &record : block.records) {
        Typed typed;
        disassemble(&typed, record);
        QVERIFY(typed.valid);
        const QJsonObject items = itemsOf(record);
        for (const Twin<Typed> &twin : twins) {
            const QJsonValue value = valueAt(items, twin.path);
            const double expected = value.isUndefined() ? absent : value.toDouble() * twin.perUnit;
            const double actual = twin.value(typed);
            QVERIFY2(qIsNaN(expected) ? qIsNaN(actual) : qAbs(actual - expected) < 1e-6, twin.path);
        }
    }
}
