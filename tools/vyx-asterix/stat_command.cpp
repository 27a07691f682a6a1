#include "vyx-asterix/stat_command.h"

#include "vyx-asterix/block_reader.h"

#include <cstdio>
#include <map>
#include <optional>
#include <tuple>

namespace {

constexpr double DaySeconds = 86400;

struct Source {
    std::uint64_t blocks = 0;
    std::uint64_t records = 0;
    std::uint64_t octets = 0;
    std::optional<double> firstTime; // seconds
    double lastTime = 0;
};

template <typename Typed>
std::optional<double> present(const Typed &item)
{
    return item.present ? std::optional<double>(item.seconds) : std::nullopt;
}

// The time of day that a record carries.
std::optional<double> timeOfDay(std::uint32_t category, const _ast_datarecord_t &record)
{
    if (category == 2) {
        _ast_datarecord_002_t typed;
        ast_datarecord_002_disassemble(&typed, record);
        return present(typed.i030);
    }
    if (category == 34) {
        _ast_datarecord_034_t typed;
        ast_datarecord_034_disassemble(&typed, record);
        return present(typed.i030);
    }
    if (category == 48) {
        _ast_datarecord_048_t typed;
        ast_datarecord_048_disassemble(&typed, record);
        return present(typed.i140);
    }
    if (category == 62) {
        _ast_datarecord_062_t typed;
        ast_datarecord_062_disassemble(&typed, record);
        return present(typed.i070);
    }
    return std::nullopt;
}

class Statistics {
public:
    void add(const BlockReader::Block &block)
    {
        Source *last = nullptr;
        for (const _ast_datarecord_t &record : block.decoded.records) {
            const _ast_sacsic_t sacsic = ast_datarecord_get_sacsic(record);
            const int code = sacsic.present ? sacsic.sac << 8 | sacsic.sic : -1;
            Source &source = m_sources[{block.decoded.category, code}];
            source.blocks += &source != last ? 1 : 0;
            last = &source;
            ++source.records;
            source.octets += record.length;
            if (block.message.hasTime) {
                addTime(source, static_cast<double>(block.message.timeMilliseconds) / 1000);
            } else if (const auto time = timeOfDay(block.decoded.category, record)) {
                addTime(source, unwrapped(source, *time));
            }
        }
    }

    std::string text() const
    {
        std::string text = "category  SAC/SIC  blocks    records      octets  records/s\n";
        for (const auto &[key, source] : m_sources) {
            const auto &[category, code] = key;
            const std::string name = code < 0 ? "-" : std::to_string(code >> 8) + '/' + std::to_string(code & 255);
            char line[128];
            std::snprintf(line, sizeof line, "CAT%03u    %7s %7llu %10llu %11llu %10s\n", category, name.c_str(),
                static_cast<unsigned long long>(source.blocks), static_cast<unsigned long long>(source.records),
                static_cast<unsigned long long>(source.octets), rate(source).c_str());
            text += line;
        }
        return text;
    }

private:
    static void addTime(Source &source, double time)
    {
        if (!source.firstTime) {
            source.firstTime = time;
        }
        source.lastTime = time;
    }

    // The time of day starts anew at midnight; records that are out of order by less than half a day do not.
    static double unwrapped(const Source &source, double time)
    {
        while (source.firstTime && time < source.lastTime - DaySeconds / 2) {
            time += DaySeconds;
        }
        return time;
    }

    static std::string rate(const Source &source)
    {
        const double span = source.firstTime ? source.lastTime - *source.firstTime : 0;
        if (span <= 0) {
            return "-";
        }
        char text[32];
        std::snprintf(text, sizeof text, "%.1f", static_cast<double>(source.records) / span);
        return text;
    }

    std::map<std::pair<std::uint32_t, int>, Source> m_sources; // by category and SAC << 8 | SIC, -1 for none
};

} // namespace

int runStat(const CommandLine &command, const TextSink &out, const LineSink &err)
{
    Statistics statistics;
    BlockReader reader(
        command, [&](const BlockReader::Block &block) { statistics.add(block); }, err);
    std::string error;
    const auto read = [&](const InputMessage &message) {
        reader.read(message);
        return true;
    };
    const bool isRead = readInputFile(command.fileName, read, error);
    if (!isRead) {
        err(error);
    }
    reader.reportAtEnd();
    const bool isWritten = out(statistics.text());
    return isRead && isWritten && reader.faults() == 0 ? 0 : 1;
}
