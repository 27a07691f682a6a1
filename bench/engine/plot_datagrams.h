#pragma once

#include <QByteArray>
#include <QList>

// One scan of a radar that sees so many aircraft, as datagrams of one CAT048 block with plotsPerDatagram track reports
// each (fewer in the last): position, Mode 3/A code, level, address, call sign, track number, velocity. Without
// identity: no address, call sign, track number and velocity, as secondary radars send them.
QList<QByteArray> plotDatagrams(int aircraft, int plotsPerDatagram, bool identity = true);
