#pragma once

#include "map_import/import_feature.h"

// Shapes made fit for a map, whose polygons have one ring. A step of more than half the globe is taken to go the other
// way round, over the 180th meridian. Free functions on values; any thread.
namespace RingShape {

// With longitudes that go on beyond the meridian instead of jumping there.
LonLatLine unwound(const LonLatLine &line);

// Holes joined to the outside by seams between near points, so that even-odd filling leaves them out.
LonLatLine withHoles(const LonLatArea &area);

// Without points that are less than the tolerance, in metres, away from the line through those that stay. Ends stay. A
// ring that would vanish stays as it is.
LonLatLine simplified(const LonLatLine &line, double tolerance);
LonLatLine simplifiedRing(const LonLatLine &ring, double tolerance);

// A place well inside of the outline for its label: the centre of gravity or, where that lies outside, the middle of
// the widest part at its latitude.
LonLat labelPlace(const LonLatLine &outline);

} // namespace RingShape
