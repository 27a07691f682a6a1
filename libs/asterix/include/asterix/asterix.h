#pragma once

// The ASTERIX library: data blocks to records, records to engineering units.
//
// No function of this library throws, prints, aborts or reads past the octets that it is given. Decoded blocks and
// records point into the caller's octets: they are valid as long as those are, and until the block is decoded into
// again. Every function may be called on any thread; two threads must not decode into the same block at once.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace korvane::asterix {

struct Uap;

// Items of one record, as field reference numbers: no category of the published documents has more.
inline constexpr int MaxFieldReferenceNumbers = 70;

// Why a block was not decoded whole.
enum class Error : std::uint8_t {
    None,
    BlockHeaderTruncated, // fewer than three octets
    BlockLengthZero, // the length field is zero
    BlockLengthTooShort, // the length field is 1 or 2
    BlockTruncated, // the length field runs past the octets at hand
    UnknownCategory, // no table for the category (or its edition) is built in
    FspecTruncated, // the FSPEC runs past the block
    SpareFspecBit, // an FSPEC bit is set that the UAP gives to no item
    ItemTruncated, // an item runs past the block
    RepetitionTruncated, // a repetition count runs past the block
    ExplicitLengthZero, // an explicit length of zero
    ExplicitLengthTruncated, // an explicit length runs past the block
    SparePresenceBit, // a compound item's presence bit is set that belongs to no sub-field
    RandomFieldSequence, // a random field sequence names a field that does not exist
};

// One line in English for log and standard error; never null.
const char *errorText(Error error);

} // namespace korvane::asterix

// A generic data record: where each of its items stands. Small enough to be copied, points into the decoded octets.
struct _ast_datarecord_t {
    bool valid = false; // all of its items lie within the block
    std::uint16_t length = 0; // octets, FSPEC included
    const unsigned char *data = nullptr; // its first FSPEC octet
    const korvane::asterix::Uap *uap = nullptr; // names and order of its items
    // Octets from data to each item, by field reference number minus 1; 0 where the item is absent.
    std::uint16_t itemOffsets[korvane::asterix::MaxFieldReferenceNumbers] = {};
};

// One decoded data block. Reuse it from block to block: its records keep their memory.
struct _ast_datablock_t {
    std::uint32_t category = 0;
    bool valid = false; // every record decoded, none left over
    std::uint32_t size = 0; // octets that the block takes in the message, header included; 0: length field is zero
    std::vector<_ast_datarecord_t> records; // complete records; those before the fault where valid is false
    korvane::asterix::Error error = korvane::asterix::Error::None;
    std::uint32_t errorOffset = 0; // octets from the block's first octet to the fault
};

// A user application profile: which edition's table decodes each category. Opaque.
struct _ast_uap_t;
extern const _ast_uap_t *const AST_UAP_STANDARD;
extern const _ast_uap_t *const AST_UAP_CAT001_PLOT;
extern const _ast_uap_t *const AST_UAP_ASR10SS;
extern const _ast_uap_t *const AST_UAP_CAT021_VER023;
extern const _ast_uap_t *const AST_UAP_CAT021_VER026;
extern const _ast_uap_t *const AST_UAP_CAT021_VER21;
extern const _ast_uap_t *const AST_UAP_CAT021_VER27;
extern const _ast_uap_t *const AST_UAP_THALES;

// Library log: level 0 debug, 1 information, 2 warning, 3 critical, 4 panic; text in UTF-8, valid during the call.
using _ast_log_handler_t = void (*)(int level, const char *text);

void ast_library_init();
const char *ast_library_version();
// Null switches the log off. The handler is called on the decoding thread.
void ast_log_handler_reg(_ast_log_handler_t handler);

// Decodes the one data block at data. False when there is no whole block there (header or body cut short, length field
// of 1 or 2): block->error says why. True otherwise: block->size is how far to advance (0 when the length field is
// zero), block->valid whether all records decoded. A category without a table gives true, valid false, no records.
bool ast_datablock_decode(
    _ast_datablock_t *block, const unsigned char *data, std::size_t length, const _ast_uap_t *uap);
// The same, choosing the profile by the block's own contents: CAT001 plot or track by each record's TYP.
bool ast_datablock_smart_decode(_ast_datablock_t *block, const unsigned char *data, std::size_t length);

// "CAT048" and so on into buffer, cut to size and zero-terminated. Returns buffer.
char *ast_category_to_str(char *buffer, std::size_t size, std::uint32_t category);

struct _ast_sacsic_t {
    bool present = false;
    std::uint8_t sac = 0;
    std::uint8_t sic = 0;
};
_ast_sacsic_t ast_datarecord_get_sacsic(const _ast_datarecord_t &record);

// ---- typed records ---------------------------------------------------------------------------------------------
// Each begins with "valid" and holds, for every item that applications read, a presence flag and the item's values in
// engineering units: distances in nautical miles, angles in degrees, times in seconds since midnight UTC, speeds in
// knots, flight levels in quarter flight levels (25 ft), Mode 3/A codes as their binary value.

struct _ast_item_time_t {
    bool present;
    double seconds; // 0 to 86400, LSB 1/128 s
};

struct _ast_item_polar_t {
    bool present;
    double rho; // nautical miles, slant range
    double theta; // degrees clockwise from north
};

struct _ast_item_mode3a_t {
    bool present;
    bool v; // true: not validated
    bool g; // true: garbled
    bool l; // true: smoothed or not extracted in the last scan
    std::uint16_t code; // binary, 0 to 4095
};

struct _ast_item_flight_level_t {
    bool present;
    bool v; // true: not validated
    bool g; // true: garbled
    std::int32_t level; // quarter flight levels
};

struct _ast_item_velocity_t {
    bool present;
    double groundSpeed; // knots
    double heading; // degrees clockwise from north
};

struct _ast_item_callsign_t {
    bool present;
    char text[9]; // eight characters as sent, trailing blanks removed, zero-terminated
};

// Mode S registers: count times seven octets of register and one octet of BDS code, in the received octets.
struct _ast_item_registers_t {
    bool present;
    std::uint8_t count;
    const unsigned char *octets; // count * 8 octets
};

struct _ast_datarecord_001_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t typ; // 0 plot, 1 track (first bit)
        std::uint8_t ssrpsr; // detection: 1 primary, 2 secondary, 3 both
        bool sim;
        bool spi;
        bool rab;
    } i020;
    struct {
        bool present;
        std::uint16_t trackNumber;
    } i161;
    _ast_item_polar_t i040;
    struct {
        bool present;
        double x; // nautical miles, east
        double y; // nautical miles, north
    } i042;
    _ast_item_velocity_t i200;
    _ast_item_mode3a_t i070;
    _ast_item_flight_level_t i090; // in quarter flight levels, as in CAT048
    struct {
        bool present;
        double seconds; // truncated time of day, 0 to 512
    } i141;
    struct {
        bool present;
        bool con; // true: tentative
        bool rad;
        bool man;
        bool tre; // track end
    } i170;
};

struct _ast_datarecord_002_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t type; // 1 north marker, 2 sector crossing, 3 south marker
    } i000;
    struct {
        bool present;
        double azimuth; // degrees
    } i020;
    _ast_item_time_t i030;
    struct {
        bool present;
        double period; // seconds
    } i041;
};

struct _ast_datarecord_034_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t type; // 1 north marker, 2 sector crossing, 3 geographical filtering, 4 jamming strobe
    } i000;
    _ast_item_time_t i030;
    struct {
        bool present;
        double azimuth; // degrees
    } i020;
    struct {
        bool present;
        double period; // seconds
    } i041;
    struct {
        bool present;
        std::int32_t height; // metres above WGS-84
        double latitude; // degrees
        double longitude; // degrees
    } i120;
};

struct _ast_datarecord_048_t {
    bool valid;
    _ast_sacsic_t i010;
    _ast_item_time_t i140;
    struct {
        bool present;
        std::uint8_t typ; // 0 none, 1 PSR, 2 SSR, 3 both, 4 Mode S all-call, 5 roll-call, 6 and 7 the same with PSR
        bool sim;
        bool rdp;
        bool spi;
        bool rab;
    } i020;
    _ast_item_polar_t i040;
    _ast_item_mode3a_t i070;
    _ast_item_flight_level_t i090;
    struct {
        bool present;
        std::uint32_t address; // 24 bits
    } i220;
    _ast_item_callsign_t i240;
    _ast_item_registers_t i250;
    struct {
        bool present;
        std::uint16_t trackNumber;
    } i161;
    struct {
        bool present;
        std::int32_t x; // raw count, east
        std::int32_t y; // raw count, north
        double resolution; // nautical miles per count
    } i042;
    _ast_item_velocity_t i200;
    struct {
        bool present;
        bool cnf; // true: tentative
        std::uint8_t rad;
        bool dou;
        bool mah;
        std::uint8_t cdm;
        bool tre; // track end
    } i170;
    struct {
        bool present;
        std::uint8_t com;
        std::uint8_t stat; // flight status: 0 no alert, airborne; 1 no alert, on ground; ...
    } i230;
};

struct _ast_datarecord_062_t {
    bool valid;
    _ast_sacsic_t i010;
    _ast_item_time_t i070;
    struct {
        bool present;
        double latitude; // degrees
        double longitude; // degrees
    } i105;
    struct {
        bool present;
        double x; // metres, east
        double y; // metres, north
    } i100;
    struct {
        bool present;
        double vx; // metres per second, east
        double vy; // metres per second, north
    } i185;
    _ast_item_mode3a_t i060; // l: code changed
    _ast_item_callsign_t i245; // target identification
    struct {
        bool present; // item I062/380 is there
        bool addressPresent;
        std::uint32_t address;
        bool callsignPresent;
        char callsign[9];
        bool magneticHeadingPresent;
        double magneticHeading; // degrees
        bool selectedAltitudePresent; // SAL
        std::int32_t selectedAltitude; // feet
        bool finalSelectedAltitudePresent; // FSS
        std::int32_t finalSelectedAltitude; // feet
        bool verticalRatePresent; // BVR, barometric vertical rate
        double verticalRate; // feet per minute
        bool groundSpeedPresent; // GSP
        double groundSpeed; // knots
        bool trackAnglePresent; // TAN
        double trackAngle; // degrees
    } i380;
    struct {
        bool present;
        std::uint16_t trackNumber;
    } i040;
    struct {
        bool present;
        bool mon; // monosensor track
        bool spi;
        bool mrh;
        std::uint8_t src;
        bool cnf; // true: tentative
        bool sim; // second extent; false where it is not sent
        bool tse; // track service end
        bool tsb; // track service begin
        bool cst; // coasting, fourth extent; false where it is not sent
    } i080;
    struct {
        bool present;
        std::uint8_t trans;
        std::uint8_t longitudinal;
        std::uint8_t vertical; // 0 level, 1 climbing, 2 descending, 3 undetermined
        bool adf;
    } i200;
    struct {
        bool present;
        double level; // quarter flight levels
    } i136;
    struct {
        bool present;
        double altitude; // feet
    } i130;
    struct {
        bool present;
        bool qnhApplied;
        double level; // quarter flight levels
    } i135;
    struct {
        bool present;
        double rate; // feet per minute
    } i220;
};

void ast_datarecord_001_disassemble(_ast_datarecord_001_t *out, const _ast_datarecord_t &record);
void ast_datarecord_002_disassemble(_ast_datarecord_002_t *out, const _ast_datarecord_t &record);
void ast_datarecord_034_disassemble(_ast_datarecord_034_t *out, const _ast_datarecord_t &record);
void ast_datarecord_048_disassemble(_ast_datarecord_048_t *out, const _ast_datarecord_t &record);
void ast_datarecord_062_disassemble(_ast_datarecord_062_t *out, const _ast_datarecord_t &record);

// ---- Mode S registers ------------------------------------------------------------------------------------------

struct _ast_bds_40_t {
    bool success; // at least one status bit is set and the reserved bits are zero
    bool mcpAltitudeStatus;
    std::int32_t mcpAltitude; // MCP/FCU selected altitude, feet
    bool fmsAltitudeStatus;
    std::int32_t fmsAltitude; // feet
    bool baroPressureStatus;
    double baroPressure; // millibars
};

struct _ast_bds_60_t {
    bool success; // at least one status bit is set
    bool magneticHeadingStatus;
    double magneticHeading; // degrees
    bool indicatedAirspeedStatus;
    double indicatedAirspeed; // knots
    bool machStatus;
    double mach;
    bool baroRateStatus;
    double baroRate; // barometric altitude rate, feet per minute
    bool inertialRateStatus;
    double inertialRate; // inertial vertical velocity, feet per minute
};

// mb: the seven octets of the register (56 bits). Layouts after ICAO Doc 9871.
_ast_bds_40_t ast_bds_40_decode(const unsigned char *mb);
_ast_bds_60_t ast_bds_60_decode(const unsigned char *mb);
