#pragma once

#include "geo/geo_coordinate.h"

#include <QList>

#include <optional>

// Reads a position as people write it: degrees, minutes and seconds with hemisphere letters (395427N1162317E,
// 395427.35n 1162317.08e), or decimal degrees, latitude first (39.9076, 116.3881 or -33.87 151.21). Invalid when it is
// neither, or out of range. Exact where GeoCoordinate::fromATCString is lenient: minutes and seconds stay below 60, and
// the longitude has three digits of degrees.
GeoCoordinate coordinateFromText(const QString &text);

// One position a line; empty lines are passed over. Nothing when a line cannot be read: badLine, which may be null,
// then holds its text.
std::optional<QList<GeoCoordinate>> coordinatesFromLines(const QString &text, QString *badLine);
