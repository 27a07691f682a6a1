// Makes the database file from its CSV texts: make_airdb FOLDER FILE. The folder holds regions.csv, countries.csv,
// blocks.csv and sac.csv, and may hold sensors.csv and aircraft.csv.

#include "airdb/air_db_builder.h"

#include <cstdio>
#include <QFile>

namespace {

using korvane::airdb::AirDBBuilder;

struct Source {
    const char *name;
    AirDBBuilder::Report (AirDBBuilder::*import)(QIODevice &);
    bool isOptional = false;
};

constexpr Source Sources[] = {
    {"regions.csv", &AirDBBuilder::importRegions},
    {"countries.csv", &AirDBBuilder::importCountries},
    {"blocks.csv", &AirDBBuilder::importBlocks},
    {"sac.csv", &AirDBBuilder::importSACs},
    {"sensors.csv", &AirDBBuilder::importSensors, true},
    {"aircraft.csv", &AirDBBuilder::importAircraft, true},
};

bool import(AirDBBuilder &builder, const QString &folder, const Source &source)
{
    QFile file(folder + QLatin1Char('/') + QLatin1String(source.name));
    if (source.isOptional && !file.exists()) {
        return true;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
        return false;
    }
    const AirDBBuilder::Report report = (builder.*source.import)(file);
    for (const AirDBBuilder::Error &error : report.errors) {
        std::fprintf(stderr, "%s:%d: %s\n", qPrintable(file.fileName()), error.line, qPrintable(error.reason));
    }
    return report.isGood();
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3) {
        std::fputs("usage: make_airdb FOLDER FILE\n", stderr);
        return 2;
    }
    AirDBBuilder builder;
    for (const Source &source : Sources) {
        if (!import(builder, QFile::decodeName(argv[1]), source)) {
            return 1;
        }
    }
    QString error;
    if (builder.save(QFileInfo(QFile::decodeName(argv[2])), &error)) {
        return 0;
    }
    std::fprintf(stderr, "%s\n", qPrintable(error));
    return 1;
}
