#include "airdb/lib_air_db.h"

int main()
{
    korvane::airdb::LibAirDB database;
    const bool isLoaded = database.loadFromDataFile(QFileInfo(DATA_FILE));
    const korvane::airdb::ICAOAddr address(0x4CA001);
    return isLoaded && database.getICAOAddrDict().getICAOAddrInfo(address).country().isoCode2() == "IE" ? 0 : 1;
}
