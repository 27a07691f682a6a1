#include "vyx-asterix/command_line.h"

#include "asterix/profile.h"

#include <algorithm>
#include <charconv>

namespace {

bool parseEdition(const std::string &text, CommandLine &out, std::string &error)
{
    const std::size_t equals = text.find('=');
    int category = -1;
    const char *const end = text.data() + (equals == std::string::npos ? 0 : equals);
    if (end == text.data() || std::from_chars(text.data(), end, category).ptr != end) {
        error = "--uap takes CATEGORY=EDITION, such as 48=1.32, not \"" + text + "\"";
        return false;
    }
    const std::string edition = text.substr(equals + 1);
    if (category < 0 || category > 255 || !korvane::asterix::Profile().select(category, edition)) {
        error = "no table for edition \"" + edition + "\" of category " + std::to_string(category);
        return false;
    }
    out.editions.emplace_back(category, edition);
    return true;
}

bool parseVerb(const std::string &text, CommandLine::Verb &verb)
{
    using Verb = CommandLine::Verb;
    for (const auto &[name, value] :
        {std::pair{"decode", Verb::Decode}, {"encode", Verb::Encode}, {"stat", Verb::Stat}, {"doctor", Verb::Doctor},
            {"assess", Verb::Assess}, {"--help", Verb::Help}, {"-h", Verb::Help}, {"--version", Verb::Version}}) {
        if (text == name) {
            verb = value;
            return true;
        }
    }
    return false;
}

bool parseSensor(const std::string &text, CommandLine &out, std::string &error)
{
    int sac = -1;
    int sic = -1;
    const char *const end = text.data() + text.size();
    const char *const slash = std::from_chars(text.data(), end, sac).ptr;
    const bool isSplit = slash != end && *slash == '/';
    if (!isSplit || std::from_chars(slash + 1, end, sic).ptr != end || sac < 0 || sac > 255 || sic < 0 || sic > 255) {
        error = "--sensor takes SAC/SIC, such as 25/11, not \"" + text + "\"";
        return false;
    }
    out.assess.sensors.push_back(sac * 256 + sic);
    return true;
}

bool parseSite(const std::string &text, CommandLine &out, std::string &error)
{
    const char *at = text.data();
    const char *const end = at + text.size();
    int count = 0;
    while (count < 3 && at != end) {
        const auto [next, fault] = std::from_chars(at, end, out.assess.site[count]);
        if (fault != std::errc() || (next != end && *next != ',')) {
            break;
        }
        ++count;
        at = next == end ? end : next + 1;
    }
    const auto &[latitude, longitude, height] = out.assess.site;
    out.assess.isSiteGiven = count >= 2 && at == end && latitude >= -90 && latitude <= 90 && longitude >= -180
        && longitude <= 180 && height >= -1000 && height <= 10000;
    if (!out.assess.isSiteGiven) {
        error = "--site takes LATITUDE,LONGITUDE[,METRES] in degrees, such as 40.05,116.73,45, not \"" + text + "\"";
    }
    return out.assess.isSiteGiven;
}

bool takesValue(const std::string &argument, CommandLine::Verb verb)
{
    const bool isOfAssess = argument == "--sensor" || argument == "--site" || argument == "--report";
    return argument == "--uap" || argument == "-o" || (isOfAssess && verb == CommandLine::Verb::Assess);
}

bool parseAssessValue(const std::string &option, const std::string &value, CommandLine &out, std::string &error)
{
    if (option == "--sensor") {
        return parseSensor(value, out, error);
    }
    if (option == "--site") {
        return parseSite(value, out, error);
    }
    out.assess.reportName = value;
    return true;
}

bool isHelp(const std::string &argument)
{
    return argument == "--help" || argument == "-h";
}

bool isInformation(CommandLine::Verb verb)
{
    return verb == CommandLine::Verb::Help || verb == CommandLine::Verb::Version;
}

// Commands that find out editions by themselves and can print an object.
bool choosesItself(CommandLine::Verb verb)
{
    return verb == CommandLine::Verb::Doctor || verb == CommandLine::Verb::Assess;
}

// The argument at index, and the value that follows it where it takes one.
bool parseArgument(const std::vector<std::string> &arguments, std::size_t &index, CommandLine &out, std::string &error)
{
    const std::string &argument = arguments[index];
    const bool isAssessing = out.verb == CommandLine::Verb::Assess;
    if (takesValue(argument, out.verb) && index + 1 == arguments.size()) {
        error = argument + " needs a value";
        return false;
    }
    if (isAssessing && takesValue(argument, out.verb) && argument != "-o" && argument != "--uap") {
        return parseAssessValue(argument, arguments[++index], out, error);
    }
    if (argument == "--uap" && !choosesItself(out.verb)) {
        return parseEdition(arguments[++index], out, error);
    }
    if (argument == "-o" && out.verb == CommandLine::Verb::Encode) {
        out.outputName = arguments[++index];
    } else if (argument == "--expand" && out.verb == CommandLine::Verb::Decode) {
        out.isExpanding = true;
    } else if (argument == "--json" && choosesItself(out.verb)) {
        out.isJson = true;
    } else if (argument.size() > 1 && argument.front() == '-') {
        error = "unknown option \"" + argument + "\"";
        return false;
    } else if (!out.fileName.empty() || isInformation(out.verb)) {
        error = "one argument too many: \"" + argument + "\"";
        return false;
    } else {
        out.fileName = argument;
    }
    return true;
}

} // namespace

bool CommandLine::parse(const std::vector<std::string> &arguments, CommandLine &out, std::string &error)
{
    out = {};
    if (arguments.empty() || !parseVerb(arguments.front(), out.verb)) {
        error = arguments.empty() ? "decode, encode, stat, doctor or assess? Try --help"
                                  : "unknown command \"" + arguments.front() + "\"; try --help";
        return false;
    }
    if (std::any_of(arguments.begin(), arguments.end(), isHelp)) {
        out.verb = Verb::Help;
        return true;
    }
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        if (!parseArgument(arguments, i, out, error)) {
            return false;
        }
    }
    if (out.fileName.empty() && !isInformation(out.verb)) {
        error = arguments.front() + " needs a file";
        return false;
    }
    if (out.assess.isSiteGiven && out.assess.sensors.size() != 1) {
        error = "--site needs one --sensor, which stands there";
        return false;
    }
    return true;
}

const char *CommandLine::helpText()
{
    return R"(vyx-asterix: ASTERIX data blocks to text and back

  vyx-asterix decode [--uap CAT=EDITION]... [--expand] FILE
        One line of JSON a record on standard output:
        {"cat":48,"block":3,"offset":31,"length":17,"time":1700000000.125,"items":{...}}
        block numbers the data blocks from 1; offset is the record's place in the file, in a capture its place in
        the datagram; time, in captures only, is that of reception in seconds since 1970 UTC.
        --expand writes reserved expansion fields ("RE") whose contents are known as objects; encode takes both.
  vyx-asterix encode [--uap CAT=EDITION]... FILE.ndjson [-o OUT.ast]
        Such lines back to data blocks, on standard output or in OUT.ast; lines of one block make one data block.
  vyx-asterix stat [--uap CAT=EDITION]... FILE
        Blocks, records, octets and rate by category and SAC/SIC.
  vyx-asterix doctor [--json] FILE
        What a recording of any kind holds, in words: kind of data and encapsulation, sources, the edition of each
        category with what speaks for it, and what is wrong: several formats mixed, blocks of another edition, damage,
        octets that a recorder appended. Each line begins with "fine", "note" or "wrong"; "play" is how the terminal
        plays it. Looks at the first 16 MiB of messages. --json: one object with "wrong", "remarks" (of "level",
        "topic", "sentence", "evidence", "source", "category") and "sources" with the counts behind them.
  vyx-asterix assess [--sensor SAC/SIC]... [--site LAT,LON[,METRES]] [--json] [--report OUT.html|OUT.pdf] FILE
        How good the radars of a recording are (CAT001, CAT002, CAT034, CAT048): rotation, delays, probability of
        detection, false plots, and, against ADS-B (CAT021) and system tracks (CAT062) of the same recording, bias and
        gain of range, bias of azimuth, and time offset, with 95 % confidence. --sensor chooses radars, --site says
        where the chosen one stands if it does not say so itself (I034/120). The report has charts beside the tables.
        Ctrl-C ends the reading; what was read until then is told.
  vyx-asterix --help | --version

FILE holds data blocks back to back, or is a network capture, which its first octets tell; "-" is standard input for
decode and encode. --uap names the edition of a category's document where it is not the standard one; it may be
repeated. decode and stat choose the edition of CAT021 by its contents where --uap names none, and say on standard error
which they took; name it to encode such lines again.

A malformed block gives one line on standard error and is not decoded beyond the fault; of a datagram the rest is
passed over, in a file of blocks the next block is found by the length field. Categories without a table are passed
over and named at the end, as are octets that a recorder put after the last whole block of a datagram.

Exit status: 0 done, 1 malformed input or a file that cannot be read or written, of doctor anything wrong, 2 wrong
arguments.
)";
}
