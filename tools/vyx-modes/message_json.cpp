#include "vyx-modes/message_json.h"

#include <charconv>
#include <cstdio>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>

namespace {

using namespace korvane::modes;

template <typename... Arguments>
std::string formatted(const char *format, Arguments... arguments)
{
    char text[64];
    std::snprintf(text, sizeof text, format, arguments...);
    return text;
}

// One object on one line.
class LineWriter {
public:
    explicit LineWriter(std::string &out) : m_out(out) { m_out += '{'; }
    ~LineWriter() { m_out += "}\n"; }
    LineWriter(const LineWriter &) = delete;
    LineWriter &operator=(const LineWriter &) = delete;

    void text(std::string_view key, std::string_view value)
    {
        begin(key);
        m_out.append("\"").append(value).append("\"");
    }

    template <typename Value>
    void number(std::string_view key, Value value)
    {
        begin(key);
        char digits[32];
        if constexpr (std::is_integral_v<Value>) {
            m_out.append(digits, std::to_chars(digits, digits + sizeof digits, static_cast<long long>(value)).ptr);
        } else {
            m_out.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
        }
    }

    template <typename Value>
    void number(std::string_view key, const std::optional<Value> &value)
    {
        if (value) {
            number(key, *value);
        }
    }

    void flag(std::string_view key, bool value)
    {
        begin(key);
        m_out += value ? "true" : "false";
    }

    void degrees(std::string_view key, double value)
    {
        begin(key);
        m_out += formatted("%.6f", value);
    }

private:
    void begin(std::string_view key)
    {
        if (!m_isFirst) {
            m_out += ',';
        }
        m_isFirst = false;
        m_out.append("\"").append(key).append("\":");
    }

    std::string &m_out;
    bool m_isFirst = true;
};

std::optional<long> whole(const std::optional<double> &value)
{
    return value ? std::optional<long>(static_cast<long>(*value)) : std::nullopt;
}

std::string octal(std::uint16_t squawk)
{
    return formatted("%04o", squawk);
}

// The names of what is switched on, separated by commas.
std::string modesOf(const TargetState &content)
{
    std::string names;
    for (const auto &[isOn, name] : {std::pair{content.isAutopilotOn, "autopilot"}, {content.isVnavOn, "vnav"},
             {content.isAltitudeHoldOn, "altitude_hold"}, {content.isApproachOn, "approach"},
             {content.isLnavOn, "lnav"}}) {
        if (isOn) {
            names.append(names.empty() ? "" : ",").append(name);
        }
    }
    return names;
}

// The contents of squitters and registers, each with its own values.
struct ContentWriter {
    LineWriter &line;

    void operator()(std::monostate) const { }

    void operator()(const Identification &content) const
    {
        line.text("callsign", content.callsign);
        line.number("category", content.category);
        line.text("category_set", std::string_view(&content.categorySet, 1));
    }

    void operator()(const SurfacePosition &content) const
    {
        line.number("cpr_format", content.position.isOdd ? 1 : 0);
        line.number("groundspeed", content.groundSpeed);
        line.number("track", content.track);
    }

    void operator()(const AirbornePosition &content) const
    {
        line.number(content.isGnssHeight ? "gnss_height" : "altitude", content.altitude);
        if (content.position) {
            line.number("cpr_format", content.position->isOdd ? 1 : 0);
        }
    }

    void operator()(const AirborneVelocity &content) const
    {
        line.number("groundspeed", whole(content.groundSpeed));
        line.number("track", content.track);
        line.number(content.isTrueAirspeed ? "true_airspeed" : "indicated_airspeed", whole(content.airspeed));
        line.number("heading", content.heading);
        line.number("vertical_rate", content.verticalRate);
        if (content.verticalRate) {
            line.text("vertical_rate_source", content.isBarometricRate ? "baro" : "gnss");
        }
        line.number("gnss_above_baro", content.gnssAboveBarometric);
    }

    void operator()(const EmergencyStatus &content) const
    {
        line.number("emergency", content.emergency);
        line.text("squawk", octal(content.squawk));
    }

    void operator()(const ResolutionAdvisory &content) const
    {
        line.text("resolution_advisory", formatted("%04X", content.advisory));
        line.number("ra_complement", content.complement);
        line.flag("ra_terminated", content.isTerminated);
        line.flag("multiple_threats", content.hasMultipleThreats);
        if (content.threatType == 1) {
            line.text("threat", formatted("%06X", content.threatAddress));
        }
    }

    void operator()(const TargetState &content) const
    {
        line.number(
            content.isFmsAltitude ? "selected_altitude_fms" : "selected_altitude_mcp", content.selectedAltitude);
        line.number("baro_pressure_setting", content.barometricSetting);
        line.number("selected_heading", content.selectedHeading);
        if (content.hasModes) {
            line.text("modes", modesOf(content));
        }
        line.number("nac_p", content.nacP);
        line.number("sil", content.sil);
    }

    void operator()(const OperationalStatus &content) const
    {
        line.flag("surface", content.isSurface);
        line.number("version", content.version);
        line.number("nac_p", content.nacP);
        line.number("sil", content.sil);
    }

    void operator()(const CoarsePosition &content) const
    {
        line.number("altitude", content.altitude);
        line.number("cpr_format", content.position.isOdd ? 1 : 0);
        line.number("groundspeed", whole(content.groundSpeed));
        line.number("track", content.track);
    }

    void operator()(const DataLinkCapability &content) const { line.number("subnetwork_version", content.version); }

    void operator()(const UsageCapability &content) const
    {
        line.text("capabilities", formatted("%06X", content.registers));
    }

    void operator()(const AircraftIdentification &content) const { line.text("callsign", content.callsign); }

    void operator()(const VerticalIntention &content) const
    {
        line.number("selected_altitude_mcp", content.mcpAltitude);
        line.number("selected_altitude_fms", content.fmsAltitude);
        line.number("baro_pressure_setting", content.barometricSetting);
        line.number("mcp_modes", content.mcpModes);
        line.number("altitude_source", content.altitudeSource);
    }

    void operator()(const MeteorologicalHazard &content) const
    {
        line.number("turbulence", content.turbulence);
        line.number("wind_shear", content.windShear);
        line.number("microburst", content.microburst);
        line.number("icing", content.icing);
        line.number("wake_vortex", content.wakeVortex);
        line.number("temperature", content.temperature);
        line.number("pressure", content.pressure);
        line.number("radio_height", content.radioHeight);
    }

    void operator()(const TrackAndTurn &content) const
    {
        line.number("roll", content.roll);
        line.number("true_track", content.trueTrack);
        line.number("groundspeed", content.groundSpeed);
        line.number("track_rate", content.trackRate);
        line.number("true_airspeed", content.trueAirspeed);
    }

    void operator()(const HeadingAndSpeed &content) const
    {
        line.number("magnetic_heading", content.magneticHeading);
        line.number("indicated_airspeed", content.indicatedAirspeed);
        line.number("mach", content.mach);
        line.number("baro_vertical_rate", content.barometricRate);
        line.number("inertial_vertical_rate", content.inertialRate);
    }

    template <typename Content>
    void operator()(const std::optional<Content> &content) const
    {
        if (content) {
            (*this)(*content);
        }
    }
};

void writeRegister(const ContentWriter &writer, std::uint8_t code, std::uint64_t mb)
{
    switch (code) {
    case 0x10:
        return writer(decodeBds10(mb));
    case 0x17:
        return writer(decodeBds17(mb));
    case 0x20:
        return writer(decodeBds20(mb));
    case 0x30:
        return writer(decodeBds30(mb));
    case 0x40:
        return writer(decodeBds40(mb));
    case 0x45:
        return writer(decodeBds45(mb));
    case 0x50:
        return writer(decodeBds50(mb));
    case 0x60:
        return writer(decodeBds60(mb));
    default:
        return;
    }
}

void writeRegisters(LineWriter &line, const ModeSMessage &message)
{
    const RegisterCandidates candidates = message.registers();
    std::string names;
    for (std::size_t i = 0; i < candidates.count; ++i) {
        names += formatted(i ? ",BDS%02X" : "BDS%02X", candidates.registers[i]);
    }
    if (!names.empty()) {
        line.text("bds", names);
    }
    writeRegister({line}, candidates.only(), message.messageField());
}

void writeFrame(LineWriter &line, const ModeSFrame &frame)
{
    std::string digits;
    for (std::size_t i = 0; i < frame.length; ++i) {
        digits += formatted("%02X", frame.octets[i]);
    }
    line.text("frame", digits);
    if (frame.ticks != ModeSFrame::NoTicks) {
        line.number("time", static_cast<double>(frame.ticks / ModeSFrame::TicksPerMillisecond) / 1000);
    }
}

bool isPositionReport(const SquitterContent &content)
{
    const auto *const airborne = std::get_if<AirbornePosition>(&content);
    return (airborne && airborne->position) || std::holds_alternative<SurfacePosition>(content)
        || std::holds_alternative<CoarsePosition>(content);
}

} // namespace

void appendMessageJson(std::string &out, const ModeSMessage &message, const ADSBTarget *target)
{
    {
        LineWriter line(out);
        writeFrame(line, message.frame());
        line.number("df", message.downlinkFormat());
        line.text("icao", formatted("%06X", message.icaoAddr()));
        if (message.addressKind() == ModeSMessage::AddressKind::Other) {
            line.flag("anonymous", true);
        }
        if (message.correctedBit()) {
            line.number("corrected_bit", message.correctedBit());
        }
        if (message.typeCode() >= 0) {
            line.number("typecode", message.typeCode());
        }
        line.number("altitude", message.altitude());
        if (message.squawk()) {
            line.text("squawk", octal(*message.squawk()));
        }
        std::visit(ContentWriter{line}, message.content());
        ContentWriter{line}(message.coordination());
        writeRegisters(line, message);
        const bool isPlaced = target && target->positionValid() && target->positionTime() == message.timeStamp();
        if (isPlaced && isPositionReport(message.content())) {
            line.degrees("latitude", target->latitude());
            line.degrees("longitude", target->longitude());
        }
    }
}
