#pragma once

#include "maps/map_data.h"

#include <QDir>
#include <QString>

// Writes the picture of a map's image to its file, relative to the map's folder, and leaves a file that shows the same
// picture as it is. Returns the image's file name: for one that states none a name made from the image's, which no file
// has yet. Empty on failure, with the reason in the error. A null picture is not written.
QString writeMapImage(const MapImageElement &image, const QDir &folder, QString *error);
