#pragma once

#include "airdb/lib_air_db.h"

class QIODevice;

namespace korvane::airdb {

// Makes database files from CSV texts.
//
// A text is UTF-8; lines that begin with # and empty ones are passed over; the first line left names the columns, in
// any order and with others among them. Values stand in quotes where they hold commas, quotes (doubled) or line ends.
// Good rows are taken, each bad one is an error; of two rows for one key, the second one is bad. Not for several
// threads.
class AirDBBuilder {
    Q_DECLARE_TR_FUNCTIONS(korvane::airdb::AirDBBuilder)

public:
    struct Error {
        int line = 0; // the first one is 1; 0 when it is about the whole text
        QString reason;
    };
    struct Report {
        int rows = 0; // taken
        QList<Error> errors; // the first hundred
        bool isGood() const { return errors.isEmpty(); }
    };

    // Empty, or with all that a database holds.
    AirDBBuilder();
    explicit AirDBBuilder(const LibAirDB &database);
    ~AirDBBuilder();

    // Columns code, name.
    Report importRegions(QIODevice &csv);
    // Columns iso2, iso3, region, name; after the regions.
    Report importCountries(QIODevice &csv);
    // Columns first, last (hexadecimal), country (iso2 or empty: nobody's), military (1 or empty); after the countries.
    Report importBlocks(QIODevice &csv);
    // Columns sac (hexadecimal), country; after the countries.
    Report importSACs(QIODevice &csv);
    // Columns sac, sic (hexadecimal), name.
    Report importSensors(QIODevice &csv);
    // Columns address (hexadecimal), registration, type, operator. A row for an aircraft that was there before this
    // call takes its place.
    Report importAircraft(QIODevice &csv);

    // The file's octets, the same ones for the same contents.
    QByteArray toData() const;
    // Replaces the file or leaves it as it was; false with the reason in error.
    bool save(const QFileInfo &file, QString *error = nullptr) const;

private:
    std::unique_ptr<Tables> m_tables;
};

} // namespace korvane::airdb
