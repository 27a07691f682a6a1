#pragma once

#include <QString>

// Where the map index and the style sheet are. What the settings name by a relative path is looked for among the
// user's own data first, then among the maps that are installed with the program.
namespace MapPlaces {

// The folder of the installed maps, which need not exist.
QString installedDir();

// Absolute. A file that is nowhere yet belongs to the user's data.
QString resolve(const QString &path);

// The file to write an index or a style sheet to that was read from this one: the user's own, where it is an installed
// one. Settings that name it by a relative path find that from then on.
QString writable(const QString &file);

} // namespace MapPlaces
