#pragma once

#include <QGeoCoordinate>
#include <QString>

// A WGS-84 position: latitude and longitude in decimal degrees, optionally an altitude in metres; may be invalid.
class GeoCoordinate : public QGeoCoordinate {
public:
    // Degrees-minutes-seconds texts of controller working positions, for 39°54′27.35″ N, 116°23′17.08″ E.
    enum ATCStringFormat : int {
        NormalPrecision = 0, // 395427N1162317E
        NormalPrecisionComma = 1, // 395427N,1162317E
        NormalPrecisionSpace = 2, // 395427N 1162317E
        NormalPrecisionCommaSpace = 3, // 395427N, 1162317E
        HighPrecision = 4, // 395427.35N1162317.08E
        DecimalDegrees = 5, // 39.907597,116.388078
    };

    GeoCoordinate() = default;
    GeoCoordinate(double latitude, double longitude) : QGeoCoordinate(latitude, longitude) { }
    GeoCoordinate(double latitude, double longitude, double altitude)
        : QGeoCoordinate(latitude, longitude, altitude) { }
    GeoCoordinate(const QGeoCoordinate &other) : QGeoCoordinate(other) { }

    // Empty when the coordinate is invalid. The value is rounded to 0.01 seconds first; formats without hundredths then
    // drop them, so that the whole seconds of all formats agree. An unknown format is taken as NormalPrecision.
    QString toATCString(ATCStringFormat format = NormalPrecision) const;

    // NormalPrecision or HighPrecision, found by the text; upper-case hemisphere letters; invalid when neither matches.
    static GeoCoordinate fromATCString(const QString &text);
    static GeoCoordinate fromATCString(QLatin1String text);
    // One format; only NormalPrecision and HighPrecision can be read, any other gives an invalid coordinate. Fields are
    // not range-checked: 996000N reads as 100 degrees, which makes the coordinate invalid.
    static GeoCoordinate fromATCString(const QString &text, ATCStringFormat format);
};
