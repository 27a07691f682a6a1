#pragma once

#include <QJsonObject>

class GeoWidget;

// What the last frame of a scope with tracks shows and where: {"labels": [{"trackNumber", "rect": [x, y, width,
// height], "lines", "pinned"}], "symbols": [{"trackNumber", "place": [x, y]}], "plots": their number, in view or not,
// "view": {"size": [width, height], "metresPerPixel", "rotation"}}. Pixels are those of a picture of the scope's whole
// window; the rotation is in degrees clockwise.
QJsonObject pictureJson(const GeoWidget &scope);
