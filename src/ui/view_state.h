#pragma once

#include "geo/geo_coordinate.h"

#include <QByteArray>

// What the plan view showed when a run ended, and for which sensor; kept with the window state.
struct ViewState {
    QString sensor; // name of the sensor that the view was made for
    GeoCoordinate center;
    double metresPerPixel = 0.0;
    double rotation = 0.0; // degrees clockwise
    GeoCoordinate ringCenter; // invalid: not placed by the operator

    QByteArray toBytes() const;
    // False, with nothing changed, when the bytes hold no usable view.
    bool fromBytes(const QByteArray &bytes);
};
