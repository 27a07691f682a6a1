#pragma once

#include <QByteArray>
#include <QFont>
#include <QJsonObject>

class GeoTrackDisplay;

// How tracks are drawn, apart from colours: label fields, symbols, trail and vector. A plain value, kept with the
// window state between runs.
struct TrackDisplayFormat {
    bool labelVisible = true;
    bool alertIndicatorVisible = true;
    bool trackNumVisible = false;
    bool callsignVisible = true;
    bool icaoAddrVisible = false;
    bool squawkVisible = true;
    bool levelVisible = true;
    bool selectedAltitudeVisible = false;
    bool verticalRateVisible = false;
    bool groundSpeedVisible = true;
    bool headingVisible = false;
    bool backgroundVisible = true;
    int backgroundPadding = 3; // pixels, 0 to MaxBackgroundPadding
    QFont labelFont;
    bool targetTypeSymbol = false; // an aircraft turned to its heading instead of the kind of surveillance
    int symbolSize = 24; // pixels, MinSymbolSize to MaxSymbolSize
    bool trailVisible = true;
    int trailDots = 20; // 1 to MaxTrailDots
    bool vectorVisible = true;
    bool vectorTimeMode = true; // the range counts minutes of flight; else nautical miles
    int vectorRange = 1; // 1 to MaxVectorRange
    bool vectorTicksVisible = true;

    static constexpr int MaxBackgroundPadding = 16;
    static constexpr int MinSymbolSize = 12;
    static constexpr int MaxSymbolSize = 64;
    static constexpr int MaxTrailDots = 50;
    static constexpr int MaxVectorRange = 30;
    static constexpr int MinFontSize = 6; // points
    static constexpr int MaxFontSize = 36;

    bool operator==(const TrackDisplayFormat &other) const = default;

    void readFrom(const GeoTrackDisplay &display);
    void applyTo(GeoTrackDisplay &display) const;

    // What a theme says of it: font, sizes, background. Keys and values are those of the bytes.
    QJsonObject look() const;
    // What the look lacks, or has a value for that cannot be, stays as it is; what is no matter of a look too.
    void takeLook(const QJsonObject &look);

    QByteArray toBytes() const;
    // Values that are absent, unknown or out of range leave the field as it is, so that bytes of an older or newer
    // build, or damaged ones, do no harm. False when nothing could be read.
    bool fromBytes(const QByteArray &bytes);

private:
    QJsonObject toJson() const;
    void takeJson(const QJsonObject &object);
};
