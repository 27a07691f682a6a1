#include "vyx-map/command_line.h"

#include <utility>

namespace {

using Verb = CommandLine::Verb;

// One option: false with the error set where the value makes no sense.
using Apply = bool (*)(const QString &value, CommandLine &out, QString &error);

struct Option {
    const char *name;
    bool takesValue;
    Verb verb; // of which command; of all that read a map for Help
    Apply apply;
};

bool parseFormat(const QString &value, int capability, MapFile::Format &format, QString &error)
{
    format = MapFile::formatFromString(value);
    if (format != MapFile::Unknown && (MapFile::create(format)->capability() & capability)) {
        return true;
    }
    error = QStringLiteral("there is no format \"%1\" for that; try --help").arg(value);
    return false;
}

bool parseTolerance(const QString &value, CommandLine &out, QString &error)
{
    bool isNumber = false;
    out.import.tolerance = value.toDouble(&isNumber);
    if (!isNumber || out.import.tolerance < 0) {
        error = QStringLiteral("--tolerance takes metres, not \"%1\"").arg(value);
    }
    return error.isEmpty();
}

bool parseEpsg(const QString &value, CommandLine &out, QString &error)
{
    bool isNumber = false;
    out.import.epsg = value.toInt(&isNumber);
    if (!isNumber || out.import.epsg <= 0) {
        error = QStringLiteral("--epsg takes the number of a reference system, such as 4326, not \"%1\"").arg(value);
    }
    return error.isEmpty();
}

// An option whose value is stored as it is, or as a list at the commas.
template <auto Member>
bool store(const QString &value, CommandLine &out, QString &)
{
    if constexpr (std::is_same_v<std::decay_t<decltype(out.import.*Member)>, QStringList>) {
        out.import.*Member = value.split(QLatin1Char(','), Qt::SkipEmptyParts);
    } else {
        out.import.*Member = value;
    }
    return true;
}

template <auto Member>
bool clear(const QString &, CommandLine &out, QString &)
{
    out.import.*Member = false;
    return true;
}

using Import = MapImport::Options;

constexpr Option Options[] = {
    {"--from", true, Verb::Help,
        [](const QString &value, CommandLine &out, QString &error) {
            return parseFormat(value, MapFile::Read, out.inputFormat, error);
        }},
    {"--to", true, Verb::Convert,
        [](const QString &value, CommandLine &out, QString &error) {
            return parseFormat(value, MapFile::Write, out.outputFormat, error);
        }},
    {"--class", true, Verb::Convert, store<&Import::className>},
    {"--class-property", true, Verb::Convert, store<&Import::classProperties>},
    {"--name-property", true, Verb::Convert, store<&Import::nameProperties>},
    {"--caption-property", true, Verb::Convert, store<&Import::captionProperties>},
    {"--symbol", true, Verb::Convert, store<&Import::symbolType>},
    {"--layer", true, Verb::Help,
        [](const QString &value, CommandLine &out, QString &) {
            out.import.layers.append(value);
            return true;
        }},
    {"--no-symbols", false, Verb::Convert, clear<&Import::pointSymbols>},
    {"--no-labels", false, Verb::Convert, clear<&Import::pointLabels>},
    {"--outlines", false, Verb::Convert, clear<&Import::fillAreas>},
    {"--no-airspaces", false, Verb::Convert, clear<&Import::airspaces>},
    {"--tolerance", true, Verb::Convert, parseTolerance},
    {"--out", true, Verb::Tiles,
        [](const QString &value, CommandLine &out, QString &) {
            out.output = value;
            return true;
        }},
    {"--levels", true, Verb::Tiles,
        [](const QString &value, CommandLine &out, QString &error) { return out.tiles.setLevels(value, error); }},
    {"--area", true, Verb::Tiles,
        [](const QString &value, CommandLine &out, QString &error) { return out.tiles.setArea(value, error); }},
    {"--style", true, Verb::Tiles,
        [](const QString &value, CommandLine &out, QString &) {
            out.tiles.styleSheet = value;
            return true;
        }},
    {"--theme", true, Verb::Tiles,
        [](const QString &value, CommandLine &out, QString &) {
            out.tiles.theme = value;
            return true;
        }},
    {"--epsg", true, Verb::Help, parseEpsg},
};

bool parseVerb(const QString &text, Verb &verb)
{
    for (const auto &[name, value] : {std::pair{"info", Verb::Info}, {"convert", Verb::Convert}, {"tiles", Verb::Tiles},
             {"--help", Verb::Help}, {"-h", Verb::Help}, {"--version", Verb::Version}}) {
        if (text == QLatin1String(name)) {
            verb = value;
            return true;
        }
    }
    return false;
}

const Option *findOption(const QString &text, Verb verb)
{
    for (const Option &option : Options) {
        if (text == QLatin1String(option.name) && (option.verb == verb || option.verb == Verb::Help)) {
            return &option;
        }
    }
    return nullptr;
}

bool parseOption(const QStringList &arguments, qsizetype &i, CommandLine &out, QString &error)
{
    const Option *const option = findOption(arguments[i], out.verb);
    if (!option) {
        error = QStringLiteral("unknown option \"%1\"; try --help").arg(arguments[i]);
    } else if (option->takesValue && i + 1 == arguments.size()) {
        error = QStringLiteral("%1 needs a value").arg(arguments[i]);
    } else {
        return option->apply(option->takesValue ? arguments[++i] : QString(), out, error);
    }
    return false;
}

bool parseFile(const QString &text, CommandLine &out, QString &error)
{
    if (out.verb == Verb::Tiles) {
        out.tiles.maps.append(text);
    } else if (out.input.isEmpty()) {
        out.input = text;
    } else if (out.output.isEmpty() && out.verb == Verb::Convert) {
        out.output = text;
    } else {
        error = QStringLiteral("one argument too many: \"%1\"").arg(text);
    }
    return error.isEmpty();
}

bool completeTiles(const CommandLine &out, QString &error)
{
    if (out.tiles.maps.isEmpty()) {
        error = QStringLiteral("which maps? Try --help");
    } else if (out.output.isEmpty()) {
        error = QStringLiteral("tiles needs --out, a file or a folder to write");
    } else if (!out.tiles.theme.isEmpty() && !out.tiles.styleSheet.isEmpty()) {
        error = QStringLiteral("--theme or --style, not both");
    }
    return error.isEmpty();
}

// Files that are there, in formats that are known.
bool complete(CommandLine &out, QString &error)
{
    if (out.input.isEmpty()) {
        error = QStringLiteral("which file? Try --help");
    } else if (out.verb == Verb::Convert && out.output.isEmpty()) {
        error = QStringLiteral("convert needs a file to write");
    }
    if (!error.isEmpty()) {
        return false;
    }
    if (out.inputFormat == MapFile::Unknown) {
        out.inputFormat = MapFile::formatFromFileName(out.input);
    }
    if (out.inputFormat == MapFile::Unknown && !MapImport::handles(out.input)) {
        error = QStringLiteral("what is \"%1\"? Its suffix does not tell; try --from").arg(out.input);
    }
    if (out.verb == Verb::Convert && out.outputFormat == MapFile::Unknown) {
        parseFormat(
            MapFile::formatToString(MapFile::formatFromFileName(out.output)), MapFile::Write, out.outputFormat, error);
    }
    return error.isEmpty();
}

} // namespace

bool CommandLine::parse(const QStringList &arguments, CommandLine &out, QString &error)
{
    out = {};
    error.clear();
    if (arguments.isEmpty() || !parseVerb(arguments.first(), out.verb)) {
        error = arguments.isEmpty() ? QStringLiteral("info, convert or tiles? Try --help")
                                    : QStringLiteral("unknown command \"%1\"; try --help").arg(arguments.first());
        return false;
    }
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--help") || arguments[i] == QLatin1String("-h")) {
            out.verb = Verb::Help;
            return true;
        }
        const bool isGood = arguments[i].startsWith(QLatin1Char('-')) ? parseOption(arguments, i, out, error)
                                                                      : parseFile(arguments[i], out, error);
        if (!isGood) {
            return false;
        }
    }
    if (out.verb == Verb::Tiles) {
        return completeTiles(out, error);
    }
    return out.verb == Verb::Help || out.verb == Verb::Version || complete(out, error);
}

const char *CommandLine::helpText()
{
    return R"(vyx-map: map files described, converted, imported and drawn as tiles

  vyx-map info [--from FORMAT] [--layer NAME]... [--epsg N] FILE
        What is in FILE: format, texts, groups with the number of their elements, bounds, images that are missing.
  vyx-map convert [--from FORMAT] [--to FORMAT] [options] IN OUT
        Writes the map IN to OUT, whose images come to stand beside it.
  vyx-map tiles [--levels A-B] [--area LAT,LON,LAT,LON] [--theme NAME | --style SHEET] --out OUT MAP...
        Draws the maps, each a map file or a map index (.idx), as tiles of 256 pixels in spherical Mercator: into the
        file OUT where it ends in .mbtiles, else into the folder OUT as level/column/row.png.
  vyx-map --help | --version

FORMAT is map (binary), xml or, to read only, legacy; without it the suffix tells (.map, .xml, .mapx). Geographic files
(.geojson, .json, .kml, .shp, .dxf) are imported. Properties' names are compared without regard to case; of a list,
given with commas, the first that a feature has counts. The options for importing:

  --class NAME              the style class of everything; else ...
  --class-property LIST     ... the value of a property (class,icaoClass,type,Layer), or the layer's name
  --name-property LIST      the elements' names (name,ident,icao,icaoCode)
  --caption-property LIST   the labels' texts (caption,label,Text); without one the name
  --symbol TYPE             of all points; else the property "symbol", or what the class suggests
  --layer NAME              read this layer alone; may be given several times
  --no-symbols              points become labels only
  --no-labels               points become symbols only, and airspaces get no label
  --outlines                areas become lines
  --no-airspaces            no class and no caption from an airspace's type and limits
  --tolerance METRES        simplify lines and areas to within METRES
  --epsg N                  the reference system of the coordinates; else the file's own or, where it has none, degrees

The options of tiles:

  --levels A-B              from level 0, the world in one tile, to 22 (0-6)
  --area LAT,LON,LAT,LON    two opposite corners in degrees; else all that the maps hold
  --theme NAME              style and ground of a theme of the terminal (Day)
  --style SHEET             this style sheet, on a transparent ground

Exit status: 0 done, 1 cancelled, or a file that cannot be read or written, 2 wrong arguments.
)";
}
