#include "vyx-modes/command_line.h"

#include <charconv>
#include <cmath>
#include <utility>

namespace {

using korvane::modes::ModeSEncapsulation;

bool parseVerb(const std::string &text, CommandLine::Verb &verb)
{
    using Verb = CommandLine::Verb;
    for (const auto &[name, value] :
        {std::pair{"decode", Verb::Decode}, {"--help", Verb::Help}, {"-h", Verb::Help}, {"--version", Verb::Version}}) {
        if (text == name) {
            verb = value;
            return true;
        }
    }
    return false;
}

bool parseFormat(const std::string &text, CommandLine &out, std::string &error)
{
    for (const auto &[name, format] : {std::pair{"raw", ModeSEncapsulation::Raw}, {"avr", ModeSEncapsulation::Avr},
             {"beast", ModeSEncapsulation::Beast}, {"rawrssi", ModeSEncapsulation::RawRssi}}) {
        if (text == name || text == ModeSEncapsulation::identifier(format)) {
            out.format = format;
            return true;
        }
    }
    error = "--format takes raw, avr, beast or rawrssi, not \"" + text + "\"";
    return false;
}

bool parseReference(const std::string &text, CommandLine &out, std::string &error)
{
    const char *const end = text.data() + text.size();
    korvane::modes::LatLon place;
    const auto latitude = std::from_chars(text.data(), end, place.latitude);
    if (latitude.ec == std::errc() && latitude.ptr != end && *latitude.ptr == ',') {
        const auto longitude = std::from_chars(latitude.ptr + 1, end, place.longitude);
        const bool isWhole = longitude.ec == std::errc() && longitude.ptr == end;
        if (isWhole && std::abs(place.latitude) <= 90 && std::abs(place.longitude) <= 180) {
            out.reference = place;
            return true;
        }
    }
    error = "--reference takes LATITUDE,LONGITUDE in degrees, such as 47.46,8.55, not \"" + text + "\"";
    return false;
}

bool parseValue(const std::string &option, const std::string &text, CommandLine &out, std::string &error)
{
    return option == "--format" ? parseFormat(text, out, error) : parseReference(text, out, error);
}

bool parseOption(const std::string &text, CommandLine &out, std::string &error)
{
    if (text == "--correct") {
        out.isCorrecting = true;
    } else if (text == "--known-addresses") {
        out.isCheckingAddress = true;
    } else {
        error = "unknown option \"" + text + "\"";
    }
    return error.empty();
}

bool parseFile(const std::string &text, CommandLine &out, std::string &error)
{
    if (!out.fileName.empty() || out.verb != CommandLine::Verb::Decode) {
        error = "one argument too many: \"" + text + "\"";
    }
    out.fileName = text;
    return error.empty();
}

} // namespace

bool CommandLine::parse(const std::vector<std::string> &arguments, CommandLine &out, std::string &error)
{
    out = {};
    error.clear();
    if (arguments.empty() || !parseVerb(arguments.front(), out.verb)) {
        error = arguments.empty() ? "decode? Try --help" : "unknown command \"" + arguments.front() + "\"; try --help";
        return false;
    }
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string &argument = arguments[i];
        if (argument == "--help" || argument == "-h") {
            out.verb = Verb::Help;
            return true;
        }
        const bool takesValue = argument == "--format" || argument == "--reference";
        if (takesValue && i + 1 == arguments.size()) {
            error = argument + " needs a value";
            return false;
        }
        const bool isOption = argument.size() > 1 && argument.front() == '-';
        const bool isGood = takesValue ? parseValue(argument, arguments[++i], out, error)
            : isOption                 ? parseOption(argument, out, error)
                                       : parseFile(argument, out, error);
        if (!isGood) {
            return false;
        }
    }
    if (out.fileName.empty() && out.verb == Verb::Decode) {
        error = "decode needs a file";
    }
    return error.empty();
}

const char *CommandLine::helpText()
{
    return R"(vyx-modes: Mode S frames to text

  vyx-modes decode [--format raw|avr|beast|rawrssi] [--reference LAT,LON] [--correct] [--known-addresses] FILE
        One line of JSON a good frame on standard output:
        {"frame":"8D406B90...","time":12.5,"df":17,"icao":"406B90","typecode":11,"altitude":36000,...}
        time is that of the receiver's counter in seconds, where the format carries it; latitude and longitude appear
        with the first report that decides them; bds names every register that a Comm-B field can be, and its values
        follow when that is one.
  vyx-modes --help | --version

FILE holds frames as a receiver sends them; "-" is standard input. Without --format the first octet tells AVR text;
anything else is taken for Beast.

--reference is the receiver's place: needed for positions on the surface; far positions are then left away.
--correct puts single wrong bits right in DF 11, 17 and 18. --known-addresses leaves away replies whose address was not
heard in those formats before; without it an address that comes out of a damaged reply is printed as any other.

Frames that are left away are counted by reason on standard error.
Exit status: 0 done, 1 a file that cannot be read or output that cannot be written, 2 wrong arguments.
)";
}
