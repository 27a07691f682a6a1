#include "tables.h"

#include "octets.h"

#include <algorithm>
#include <numeric>

namespace korvane::airdb {

int Tables::regionIndex(const QString &code) const
{
    const auto found =
        std::find_if(regions.begin(), regions.end(), [&code](const Region &region) { return region.code() == code; });
    return found == regions.end() ? -1 : static_cast<int>(found - regions.begin());
}

int Tables::countryIndex(const QString &isoCode2) const
{
    const auto found = std::find_if(countries.begin(), countries.end(),
        [&isoCode2](const Country &country) { return country.isoCode2().compare(isoCode2, Qt::CaseInsensitive) == 0; });
    return found == countries.end() ? -1 : static_cast<int>(found - countries.begin());
}

void Tables::addCountry(const QString &name, const QString &isoCode2, const QString &isoCode3, int region)
{
    countries.append(Country(name, isoCode2, isoCode3, region < 0 ? Region() : regions.at(region)));
    countryRegions.append(region);
}

Aircraft Tables::aircraftAt(quint32 address) const
{
    const auto found = aircraft.constFind(address);
    if (found == aircraft.cend()) {
        return {};
    }
    OctetReader reader(QByteArray::fromRawData(aircraftTexts.constData() + *found, aircraftTexts.size() - *found));
    const QString registration = reader.text();
    const QString type = reader.text();
    return {address, registration, type, reader.text()};
}

void Tables::buildPages()
{
    // Large blocks first: the small ones then stand where they overlap.
    QList<int> order(blocks.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(
        order.begin(), order.end(), [this](int a, int b) { return blocks.at(a).size() > blocks.at(b).size(); });
    pages = BlockPages();
    for (const int block : std::as_const(order)) {
        pages.paint(blocks.at(block).first, blocks.at(block).last, block);
    }
}

} // namespace korvane::airdb
