// Loads its input as a database file, and imports it as a CSV text. The first octet chooses: 0 the file as it is, 1 a
// file around the rest as its payload, with the right digest; higher ones the kind of text.

#include "airdb/air_db_builder.h"

#include <cstdio>
#include <cstdlib>
#include <QBuffer>
#include <QCryptographicHash>
#include <QtEndian>

namespace {

using namespace korvane::airdb;

void require(bool condition, const char *what)
{
    if (condition) {
        return;
    }
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

QByteArray sealed(const QByteArray &payload)
{
    QByteArray header("KVAIRDB\n\0\0\0\1\0\0\0\0", 16);
    qToBigEndian(static_cast<quint32>(payload.size()), header.data() + 12);
    return header + QCryptographicHash::hash(payload, QCryptographicHash::Sha256) + payload;
}

void lookAround(const LibAirDB &database)
{
    for (quint32 address = 0; address <= ICAOAddr::Last; address += 65521) {
        const ICAOAddrInfo info = database.getICAOAddrDict().getICAOAddrInfo(ICAOAddr(address));
        require(info.isValid() || !info.country().isValid(), "country of nobody");
        info.aircraft();
    }
    for (unsigned sac = 0; sac < 256; ++sac) {
        database.sacDictItem(sac);
        database.sensorDictItem(sac, sac);
    }
}

void load(const QByteArray &octets)
{
    LibAirDB database;
    const bool isLoaded = database.loadFromData(octets);
    require(isLoaded == database.lastError().isEmpty(), "loaded and error disagree");
    lookAround(database);
    if (!isLoaded) {
        return;
    }
    // What loads is written such that it loads, and is then written the same.
    const QByteArray written = AirDBBuilder(database).toData();
    LibAirDB again;
    require(again.loadFromData(written), "written database does not load");
    require(AirDBBuilder(again).toData() == written, "written database differs");
}

void import(unsigned kind, const QByteArray &text)
{
    static constexpr AirDBBuilder::Report (AirDBBuilder::*Imports[])(QIODevice &) = {&AirDBBuilder::importRegions,
        &AirDBBuilder::importCountries, &AirDBBuilder::importBlocks, &AirDBBuilder::importSACs,
        &AirDBBuilder::importSensors, &AirDBBuilder::importAircraft};
    QBuffer csv;
    csv.setData(text);
    csv.open(QIODevice::ReadOnly);
    AirDBBuilder builder;
    const AirDBBuilder::Report report = (builder.*Imports[kind % std::size(Imports)])(csv);
    require(report.errors.size() <= 100, "too many errors are told");
    LibAirDB database;
    require(database.loadFromData(builder.toData()), "imported database does not load");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray octets(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const unsigned kind = size == 0 ? 0 : *data;
    if (kind == 0) {
        load(octets.mid(1));
    } else if (kind == 1) {
        load(sealed(octets.mid(1)));
    } else {
        import(kind - 2, octets.mid(1));
    }
    return 0;
}
