#include "example/who_is.h"

using namespace korvane::airdb;

QString whoIs(const LibAirDB &database, quint32 address)
{
    const ICAOAddrInfo info = database.getICAOAddrDict().getICAOAddrInfo(ICAOAddr(address));
    if (!info.isValid()) {
        return "nobody";
    }
    QString line = info.country().isValid() ? info.country().name() : "unknown country";
    if (info.isMilitary()) {
        line += ", State aircraft";
    }
    if (const Aircraft aircraft = info.aircraft(); aircraft.isValid()) {
        line += ": " + aircraft.registration + ' ' + aircraft.type;
    }
    return line;
}
