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
    for (const auto &[name, value] : {std::pair{"decode", Verb::Decode}, {"encode", Verb::Encode}, {"stat", Verb::Stat},
             {"doctor", Verb::Doctor}, {"--help", Verb::Help}, {"-h", Verb::Help}, {"--version", Verb::Version}}) {
        if (text == name) {
            verb = value;
            return true;
        }
    }
    return false;
}

bool isHelp(const std::string &argument)
{
    return argument == "--help" || argument == "-h";
}

bool isInformation(CommandLine::Verb verb)
{
    return verb == CommandLine::Verb::Help || verb == CommandLine::Verb::Version;
}

// The argument at index, and the value that follows it where it takes one.
bool parseArgument(const std::vector<std::string> &arguments, std::size_t &index, CommandLine &out, std::string &error)
{
    const std::string &argument = arguments[index];
    const bool takesValue = argument == "--uap" || argument == "-o";
    if (takesValue && index + 1 == arguments.size()) {
        error = argument + " needs a value";
        return false;
    }
    if (argument == "--uap" && out.verb != CommandLine::Verb::Doctor) {
        return parseEdition(arguments[++index], out, error);
    }
    if (argument == "-o" && out.verb == CommandLine::Verb::Encode) {
        out.outputName = arguments[++index];
    } else if (argument == "--expand" && out.verb == CommandLine::Verb::Decode) {
        out.isExpanding = true;
    } else if (argument == "--json" && out.verb == CommandLine::Verb::Doctor) {
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
        error = arguments.empty() ? "decode, encode, stat or doctor? Try --help"
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
