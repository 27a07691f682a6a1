#pragma once

#include "map_import/map_import.h"
#include "maps/map_file.h"
#include "vyx-map/tile_options.h"

#include <QString>
#include <QStringList>

// What the program is asked to do.
struct CommandLine {
    enum class Verb { Help, Version, Info, Convert, Tiles };

    Verb verb = Verb::Help;
    QString input;
    QString output;
    MapFile::Format inputFormat = MapFile::Unknown; // unknown: by the suffix
    MapFile::Format outputFormat = MapFile::Unknown;
    MapImport::Options import;
    TileOptions tiles;

    // The arguments without the program's name. False, with one line in error, when they make no sense.
    static bool parse(const QStringList &arguments, CommandLine &out, QString &error);

    static const char *helpText();
};
