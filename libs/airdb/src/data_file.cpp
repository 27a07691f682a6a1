#include "data_file.h"

#include "airdb/icao_addr.h"
#include "octets.h"

#include <algorithm>
#include <QCryptographicHash>

namespace korvane::airdb {

namespace {

constexpr char Magic[] = {'K', 'V', 'A', 'I', 'R', 'D', 'B', '\n'};
constexpr quint32 Version = 1;
constexpr qsizetype DigestSize = 32;
constexpr qsizetype HeaderSize = sizeof Magic + 8 + DigestSize; // magic, version, payload size, digest

constexpr quint32 NoIndex = 0xFFFF;

QByteArray digestOf(const QByteArray &payload)
{
    return QCryptographicHash::hash(payload, QCryptographicHash::Sha256);
}

void appendIndex(QByteArray &octets, int index)
{
    appendNumber(octets, index < 0 ? NoIndex : static_cast<quint32>(index), 2);
}

// The index of one of so many rows, or none.
int readIndex(OctetReader &reader, qsizetype rows)
{
    const quint32 index = reader.number(2);
    if (index == NoIndex) {
        return -1;
    }
    if (index >= rows) {
        reader.fail();
    }
    return static_cast<int>(index);
}

template <typename Value>
QList<quint32> sortedKeys(const QHash<quint32, Value> &hash)
{
    QList<quint32> keys = hash.keys();
    std::sort(keys.begin(), keys.end());
    return keys;
}

void writeCountries(QByteArray &octets, const Tables &tables)
{
    appendNumber(octets, static_cast<quint32>(tables.regions.size()), 4);
    for (const Region &region : tables.regions) {
        appendText(octets, region.code());
        appendText(octets, region.name());
    }
    appendNumber(octets, static_cast<quint32>(tables.countries.size()), 4);
    for (qsizetype i = 0; i < tables.countries.size(); ++i) {
        appendText(octets, tables.countries.at(i).isoCode2());
        appendText(octets, tables.countries.at(i).isoCode3());
        appendText(octets, tables.countries.at(i).name());
        appendIndex(octets, tables.countryRegions.at(i));
    }
}

void writeBlocks(QByteArray &octets, const Tables &tables)
{
    appendNumber(octets, static_cast<quint32>(tables.blocks.size()), 4);
    for (const AddressBlock &block : tables.blocks) {
        appendNumber(octets, block.first, 3);
        appendNumber(octets, block.last, 3);
        appendIndex(octets, block.country);
        appendNumber(octets, block.isMilitary, 1);
    }
}

void writeSensors(QByteArray &octets, const Tables &tables)
{
    appendNumber(octets, static_cast<quint32>(tables.sacs.size()), 4);
    for (const quint32 sac : sortedKeys(tables.sacs)) {
        appendNumber(octets, sac, 1);
        appendIndex(octets, tables.sacs.value(sac));
    }
    appendNumber(octets, static_cast<quint32>(tables.sensors.size()), 4);
    for (const quint32 sacSic : sortedKeys(tables.sensors)) {
        appendNumber(octets, sacSic, 2);
        appendText(octets, tables.sensors.value(sacSic));
    }
}

void writeAircraft(QByteArray &octets, const Tables &tables)
{
    appendNumber(octets, static_cast<quint32>(tables.aircraft.size()), 4);
    for (const quint32 address : sortedKeys(tables.aircraft)) {
        const Aircraft aircraft = tables.aircraftAt(address);
        appendNumber(octets, address, 3);
        appendText(octets, aircraft.registration);
        appendText(octets, aircraft.type);
        appendText(octets, aircraft.aircraftOperator);
    }
}

void readCountries(OctetReader &reader, Tables &tables)
{
    for (qsizetype left = reader.count(2, NoIndex); left > 0 && reader.isGood(); --left) {
        const QString code = reader.text();
        tables.regions.append(Region(code, reader.text()));
    }
    for (qsizetype left = reader.count(5, NoIndex); left > 0 && reader.isGood(); --left) {
        const QString isoCode2 = reader.text();
        const QString isoCode3 = reader.text();
        const QString name = reader.text();
        const int region = readIndex(reader, tables.regions.size());
        if (isoCode2.isEmpty()) {
            reader.fail();
        }
        if (reader.isGood()) {
            tables.addCountry(name, isoCode2, isoCode3, region);
        }
    }
}

void readBlocks(OctetReader &reader, Tables &tables)
{
    for (qsizetype left = reader.count(9, Tables::MaximumBlocks); left > 0 && reader.isGood(); --left) {
        AddressBlock block;
        block.first = reader.number(3);
        block.last = reader.number(3);
        block.country = readIndex(reader, tables.countries.size());
        block.isMilitary = reader.number(1) != 0;
        if (block.first > block.last) {
            reader.fail();
        }
        tables.blocks.append(block);
    }
}

void readSensors(OctetReader &reader, Tables &tables)
{
    for (qsizetype left = reader.count(3, 256); left > 0 && reader.isGood(); --left) {
        const quint32 sac = reader.number(1);
        const int country = readIndex(reader, tables.countries.size());
        if (country < 0 || tables.sacs.contains(sac)) {
            reader.fail();
        }
        tables.sacs.insert(sac, country);
    }
    for (qsizetype left = reader.count(3, 65536); left > 0 && reader.isGood(); --left) {
        const quint32 sacSic = reader.number(2);
        if (tables.sensors.contains(sacSic)) {
            reader.fail();
        }
        tables.sensors.insert(sacSic, reader.text());
    }
}

// The texts are checked here and kept as they are in the file.
void readAircraft(OctetReader &reader, const QByteArray &payload, Tables &tables)
{
    const qsizetype rows = reader.count(6, ICAOAddr::Last);
    const qsizetype start = reader.at();
    tables.aircraft.reserve(rows);
    qint64 previous = -1;
    for (qsizetype left = rows; left > 0 && reader.isGood(); --left) {
        const quint32 address = reader.number(3);
        tables.aircraft.insert(address, static_cast<quint32>(reader.at() - start));
        if (reader.text().isEmpty() || address <= previous) {
            reader.fail();
        }
        reader.text();
        reader.text();
        previous = address;
    }
    tables.aircraftTexts = payload.mid(start);
}

} // namespace

QByteArray writeDataFile(const Tables &tables)
{
    QByteArray payload;
    writeCountries(payload, tables);
    writeBlocks(payload, tables);
    writeSensors(payload, tables);
    writeAircraft(payload, tables);
    QByteArray octets(Magic, sizeof Magic);
    appendNumber(octets, Version, 4);
    appendNumber(octets, static_cast<quint32>(payload.size()), 4);
    return octets + digestOf(payload) + payload;
}

std::unique_ptr<Tables> readDataFile(const QByteArray &octets, DataFileError &error)
{
    error = DataFileError::NotADatabase;
    if (octets.size() < HeaderSize || !octets.startsWith(QByteArray(Magic, sizeof Magic))) {
        return nullptr;
    }
    OctetReader header(octets.sliced(sizeof Magic, 8));
    error = DataFileError::OtherVersion;
    if (header.number(4) != Version) {
        return nullptr;
    }
    error = DataFileError::Damaged;
    const QByteArray payload = octets.sliced(HeaderSize);
    if (header.number(4) != payload.size() || octets.sliced(HeaderSize - DigestSize, DigestSize) != digestOf(payload)) {
        return nullptr;
    }
    auto tables = std::make_unique<Tables>();
    OctetReader reader(payload);
    readCountries(reader, *tables);
    readBlocks(reader, *tables);
    readSensors(reader, *tables);
    readAircraft(reader, payload, *tables);
    if (!reader.isGood() || !reader.atEnd()) {
        return nullptr;
    }
    tables->buildPages();
    error = DataFileError::None;
    return tables;
}

} // namespace korvane::airdb
