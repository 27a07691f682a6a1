#pragma once

class QRegularExpressionValidator;

// The validators of the line edits for coordinates, IP addresses and aircraft addresses. Each exists once, from before
// main to the end of the process, and may be attached to several line edits; callers never delete it. Coordinate
// validators accept lower-case hemisphere letters: upper-case the text before GeoCoordinate::fromATCString.
class InputValidator {
public:
    static QRegularExpressionValidator *ipAddrValidator();
    static QRegularExpressionValidator *icaoAddrValidator();
    static QRegularExpressionValidator *atcCoordinateValidator();
    static QRegularExpressionValidator *atcCoordinateLongitudeValidator();
    static QRegularExpressionValidator *atcCoordinateLatitudeValidator();
    static QRegularExpressionValidator *atcCoordinateHighPrecisionValidator();
    static QRegularExpressionValidator *atcCoordinateHighPrecisionLongitudeValidator();
    static QRegularExpressionValidator *atcCoordinateHighPrecisionLatitudeValidator();
};
