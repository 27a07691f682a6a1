#pragma once

#include "geo/geo_coordinate.h"

#include <QList>

#include <optional>

// What keeps a text from being read as a position.
enum class CoordinateFault {
    None,
    Empty,
    Notation, // not a position in any notation
    Ambiguous, // it could mean several
    Range, // minutes or seconds of 60 and more, or beyond a pole or the 180th meridian
};

// Reads a position as people write or paste it, in upper or lower case:
// - degrees, minutes and seconds without gaps: 395427N1162317E, 395427.35n 1162317.08e, 3954N11623E;
// - degrees, with or without minutes and seconds, with gaps or signs (° ′ ″ ' " :) between them, and hemisphere letters
//   before or after: 39°54'27.35"N 116°23'17"E, N39 54.45 E116 23.3;
// - the same without letters, latitude first, south and west negative: 39.9076, 116.3881 or -33 52 10 151 12 30.
// A decimal comma is read where no other reading is possible: 48,1234; 16,5678. With letters the longitude may come
// first. Without gaps a latitude has two digits of degrees, a longitude three.
struct CoordinateReading {
    GeoCoordinate coordinate; // invalid unless there is no fault
    CoordinateFault fault = CoordinateFault::None;
};
CoordinateReading readCoordinate(const QString &text);

// Its coordinate, or an invalid one.
GeoCoordinate coordinateFromText(const QString &text);

// What is wrong, in a sentence with an example; empty for none.
QString coordinateFaultText(CoordinateFault fault);

// One position a line; empty lines are passed over. Nothing when a line cannot be read: badLine, which may be null,
// then holds its text.
std::optional<QList<GeoCoordinate>> coordinatesFromLines(const QString &text, QString *badLine);
