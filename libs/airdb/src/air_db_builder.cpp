#include "airdb/air_db_builder.h"

#include "csv_import.h"
#include "data_file.h"
#include "octets.h"
#include "tables.h"

#include <algorithm>
#include <QSaveFile>
#include <QSet>

namespace korvane::airdb {

namespace {

bool isCode(const QString &text, qsizetype letters)
{
    return text.size() == letters && std::all_of(text.begin(), text.end(), [](QChar c) {
        return c >= QLatin1Char('A') && c <= QLatin1Char('Z');
    });
}

} // namespace

AirDBBuilder::AirDBBuilder() : m_tables(std::make_unique<Tables>()) { }

AirDBBuilder::AirDBBuilder(const LibAirDB &database) : m_tables(std::make_unique<Tables>(database.tables())) { }

AirDBBuilder::~AirDBBuilder() = default;

AirDBBuilder::Report AirDBBuilder::importRegions(QIODevice &csv)
{
    return CsvImport::run(csv, {"code", "name"}, [this](const QStringList &values) {
        if (!isCode(values.at(0), 2) || values.at(1).isEmpty()) {
            return tr("a region needs a code of two capitals and a name");
        }
        if (m_tables->regionIndex(values.at(0)) >= 0) {
            return tr("region %1 is there already").arg(values.at(0));
        }
        m_tables->regions.append(Region(values.at(0), values.at(1)));
        return QString();
    });
}

AirDBBuilder::Report AirDBBuilder::importCountries(QIODevice &csv)
{
    return CsvImport::run(csv, {"iso2", "iso3", "region", "name"}, [this](const QStringList &values) {
        const int region = m_tables->regionIndex(values.at(2));
        if (!isCode(values.at(0), 2) || !(values.at(1).isEmpty() || isCode(values.at(1), 3))) {
            return tr("country codes have two and three capitals");
        }
        if (!values.at(2).isEmpty() && region < 0) {
            return tr("there is no region %1").arg(values.at(2));
        }
        if (m_tables->countryIndex(values.at(0)) >= 0) {
            return tr("country %1 is there already").arg(values.at(0));
        }
        m_tables->addCountry(values.at(3), values.at(0), values.at(1), region);
        return QString();
    });
}

AirDBBuilder::Report AirDBBuilder::importBlocks(QIODevice &csv)
{
    QSet<QPair<quint32, quint32>> ranges;
    for (const AddressBlock &block : std::as_const(m_tables->blocks)) {
        ranges.insert({block.first, block.last});
    }
    const auto takeRow = [this, &ranges](const QStringList &values) {
        AddressBlock block;
        const bool isRange = CsvImport::readHex(values.at(0), ICAOAddr::Last, block.first)
            && CsvImport::readHex(values.at(1), ICAOAddr::Last, block.last) && block.first <= block.last;
        if (!isRange) {
            return tr("%1 to %2 are not addresses in their order").arg(values.at(0), values.at(1));
        }
        if (ranges.contains({block.first, block.last})) {
            return tr("the block is there already");
        }
        if (m_tables->blocks.size() >= Tables::MaximumBlocks) {
            return tr("there are too many blocks");
        }
        block.country = m_tables->countryIndex(values.at(2));
        if (!values.at(2).isEmpty() && block.country < 0) {
            return tr("there is no country %1").arg(values.at(2));
        }
        if (!values.at(3).isEmpty() && values.at(3) != QLatin1String("1")) {
            return tr("military is 1 or empty");
        }
        block.isMilitary = !values.at(3).isEmpty();
        ranges.insert({block.first, block.last});
        m_tables->blocks.append(block);
        return QString();
    };
    return CsvImport::run(csv, {"first", "last", "country", "military"}, takeRow);
}

AirDBBuilder::Report AirDBBuilder::importSACs(QIODevice &csv)
{
    return CsvImport::run(csv, {"sac", "country"}, [this](const QStringList &values) {
        quint32 sac = 0;
        if (!CsvImport::readHex(values.at(0), 0xFF, sac)) {
            return tr("%1 is not a system area code").arg(values.at(0));
        }
        const int country = m_tables->countryIndex(values.at(1));
        if (country < 0) {
            return tr("there is no country %1").arg(values.at(1));
        }
        if (m_tables->sacs.contains(sac)) {
            return tr("system area code %1 is there already").arg(values.at(0));
        }
        m_tables->sacs.insert(sac, country);
        return QString();
    });
}

AirDBBuilder::Report AirDBBuilder::importSensors(QIODevice &csv)
{
    return CsvImport::run(csv, {"sac", "sic", "name"}, [this](const QStringList &values) {
        quint32 sac = 0;
        quint32 sic = 0;
        if (!CsvImport::readHex(values.at(0), 0xFF, sac) || !CsvImport::readHex(values.at(1), 0xFF, sic)) {
            return tr("%1/%2 is not a sensor").arg(values.at(0), values.at(1));
        }
        if (values.at(2).isEmpty()) {
            return tr("a sensor needs a name");
        }
        if (m_tables->sensors.contains(sac << 8 | sic)) {
            return tr("sensor %1/%2 is there already").arg(values.at(0), values.at(1));
        }
        m_tables->sensors.insert(sac << 8 | sic, values.at(2));
        return QString();
    });
}

AirDBBuilder::Report AirDBBuilder::importAircraft(QIODevice &csv)
{
    QSet<quint32> taken;
    const auto takeRow = [this, &taken](const QStringList &values) {
        quint32 address = 0;
        if (!CsvImport::readHex(values.at(0), ICAOAddr::Last, address) || !ICAOAddr(address).isValid()) {
            return tr("%1 is not an aircraft's address").arg(values.at(0));
        }
        if (values.at(1).isEmpty()) {
            return tr("an aircraft needs a registration");
        }
        if (taken.contains(address)) {
            return tr("aircraft %1 is there already").arg(values.at(0));
        }
        taken.insert(address);
        m_tables->aircraft.insert(address, static_cast<quint32>(m_tables->aircraftTexts.size()));
        for (int column = 1; column <= 3; ++column) {
            appendText(m_tables->aircraftTexts, values.at(column));
        }
        return QString();
    };
    return CsvImport::run(csv, {"address", "registration", "type", "operator"}, takeRow);
}

QByteArray AirDBBuilder::toData() const
{
    return writeDataFile(*m_tables);
}

bool AirDBBuilder::save(const QFileInfo &file, QString *error) const
{
    QSaveFile data(file.filePath());
    const bool isSaved = data.open(QIODevice::WriteOnly) && data.write(toData()) >= 0 && data.commit();
    if (!isSaved && error) {
        *error = tr("%1 cannot be written: %2").arg(file.filePath(), data.errorString());
    }
    return isSaved;
}

} // namespace korvane::airdb
