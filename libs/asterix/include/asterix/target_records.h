#pragma once

// The typed records of finished tracks: surface movement (CAT010), multilateration (CAT020), system tracks (CAT062).

#include "asterix/items.h"

struct _ast_datarecord_010_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t type; // 1 target report, 2 start of update cycle, 3 periodic status, 4 event status
    } i000;
    struct {
        bool present;
        std::uint8_t typ; // 0 SSR and 1 Mode S multilateration, 2 ADS-B, 3 primary, 4 magnetic loop, 5 HF, 7 other
        bool dcr; // differential correction
        std::uint8_t chn; // chain: 0 or 1
        bool gbs; // ground bit
        bool crt; // corrupted replies
        bool sim; // this and what follows: further extents; false or zero where they are not sent
        bool tst;
        bool rab; // field monitor
        std::uint8_t lop; // loop: 0 undetermined, 1 start, 2 finish
        std::uint8_t tot; // target: 0 undetermined, 1 aircraft, 2 ground vehicle, 3 helicopter
        bool spi;
    } i020;
    _ast_item_time_t i140;
    _ast_item_wgs84_t i041;
    struct {
        bool present;
        double rho; // metres, not nautical miles
        double theta; // degrees clockwise from north
    } i040;
    _ast_item_cartesian_t i042;
    _ast_item_velocity_t i200;
    _ast_item_cartesian_velocity_t i202;
    _ast_item_track_number_t i161;
    struct {
        bool present;
        bool cnf; // true: tentative
        bool tre; // track end
        std::uint8_t cst; // extrapolation: 0 none, 1 refresh period, 2 masked area, 3 unpredictable
        bool mah; // horizontal manoeuvre
        bool tcc; // tracked in the reference plane
        bool sth; // smoothed position
        std::uint8_t tom; // movement: 0 unknown, 1 taking off, 2 landing, 3 other; second extent, zero if not sent
        std::uint8_t dou; // doubt: 0 none, ...
        std::uint8_t mrs; // merge or split: 0 undetermined, ...
        bool gho; // ghost; third extent, false where it is not sent
    } i170;
    _ast_item_mode3a_t i060;
    _ast_item_address_t i220;
    struct {
        bool present;
        std::uint8_t sti; // source: 0 downlinked, 1 call sign and 2 registration not downlinked
        char text[9]; // as in _ast_item_callsign_t
    } i245;
    _ast_item_registers_t i250;
    struct {
        bool present;
        std::uint8_t fleet; // 1 ATC maintenance, 2 airport maintenance, 3 fire, ... 16 follow me
    } i300;
    _ast_item_flight_level_t i090;
    _ast_item_height_t i091;
    struct {
        bool present;
        double length; // metres
        double orientation; // degrees clockwise from north, LSB 360/128; second extent, zero if not sent
        double width; // metres; third extent, zero if not sent
    } i270;
    struct {
        bool present;
        std::uint8_t nogo; // 0 operational, 1 degraded, 2 not to be used
        bool ovl; // overload
        bool tsv; // true: time source invalid
        bool div; // diversity degraded
        bool ttf; // test target failure
    } i550;
    _ast_item_vehicle_message_t i310;
    struct {
        bool present;
        double x; // standard deviations in metres
        double y;
        double xy; // covariance component, metres
    } i500;
    struct {
        bool present;
        std::uint8_t amplitude; // of the primary plot; 0 is the least that the radar detects
    } i131;
    _ast_item_cartesian_acceleration_t i210;
};

struct _ast_datarecord_020_t {
    bool valid;
    _ast_sacsic_t i010;
    struct {
        bool present;
        std::uint8_t technology; // SSR MS HF VDL4 UAT DME OT as sent, SSR at bit 6; the first two: 0 means "used"
        bool rab; // field monitor; this and what follows: second extent, false where it is not sent
        bool spi;
        std::uint8_t chn; // chain: 0 or 1
        bool gbs; // ground bit
        bool crt; // corrupted replies
        bool sim;
        bool tst;
    } i020;
    _ast_item_time_t i140;
    _ast_item_wgs84_t i041;
    _ast_item_cartesian_t i042;
    _ast_item_track_number_t i161;
    struct {
        bool present;
        bool cnf; // true: tentative
        bool tre; // track end
        bool cst; // coasting
        std::uint8_t cdm; // vertical trend as sent: 0 maintaining, 1 climbing, 2 descending, 3 invalid
        bool mah; // horizontal manoeuvre
        bool sth; // smoothed position
        bool gho; // ghost; second extent, false where it is not sent
    } i170;
    _ast_item_mode3a_t i070;
    _ast_item_cartesian_velocity_t i202;
    struct {
        bool present;
        bool v; // true: not validated
        bool g; // true: garbled
        double flightLevel; // whole flight levels (100 ft), LSB 1/4: not quarters as in the other categories
    } i090;
    _ast_item_address_t i220;
    struct {
        bool present;
        std::uint8_t sti; // source: 0 not downlinked, 1 registration and 2 call sign downlinked
        char text[9]; // as in _ast_item_callsign_t
    } i245;
    _ast_item_height_t i110; // measured, above the local plane
    _ast_item_height_t i105; // geometric, above WGS-84
    _ast_item_cartesian_acceleration_t i210;
    struct {
        bool present;
        std::uint8_t fleet; // as in CAT010
    } i300;
    _ast_item_vehicle_message_t i310;
    _ast_item_registers_t i250;
    struct {
        bool present;
        std::uint8_t com;
        std::uint8_t stat; // flight status: 0 no alert, airborne; 1 no alert, on ground; ...
    } i230;
    struct {
        bool present;
        const unsigned char *octets; // BDS 3,0: seven octets in the received ones
    } i260;
};

// How long ago a system track was last updated by one kind of sensor.
struct _ast_update_age_t {
    bool present;
    double seconds;
};

struct _ast_datarecord_062_t {
    bool valid;
    _ast_sacsic_t i010;
    _ast_item_time_t i070;
    struct {
        bool present;
        double latitude; // degrees
        double longitude; // degrees: longitudeCount * resolution
        std::int32_t latitudeCount; // as sent
        std::int32_t longitudeCount; // as sent
        double resolution; // degrees per count: 180 / 2^25
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
        bool flightStatusPresent; // COM
        std::uint8_t flightStatus; // STAT, as in I048/230
        bool priorityStatusPresent; // SAB
        std::uint8_t
            priorityStatus; // STAT: 0 no emergency, 1 general, 4 no communications, 5 unlawful interference, ...
    } i380;
    struct {
        bool callsignPresent; // CS, the flight plan's
        char callsign[9]; // seven characters as sent, trailing blanks removed, zero-terminated
    } i390;
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
        bool me; // military emergency, third extent; false where it is not sent
        bool agesPresent; // the fourth extent is sent; where it is not, the five that follow are false
        bool cst; // coasting
        bool psrOld; // PSR, SSR, MDS, ADS: the last report of the kind is older than the system's threshold
        bool ssrOld;
        bool modeSOld;
        bool adsbOld;
        std::uint8_t ems; // emergency, as i380.priorityStatus; fifth extent, zero where it is not sent
    } i080;
    struct {
        bool present;
        _ast_update_age_t psr;
        _ast_update_age_t ssr;
        _ast_update_age_t modeS; // MDS
        _ast_update_age_t es; // ADS-B by 1090 MHz, VDL mode 4 and UAT
        _ast_update_age_t vdl;
        _ast_update_age_t uat;
        _ast_update_age_t mlat; // MLT
    } i290;
    struct {
        bool typePresent; // TYP
        std::uint8_t type; // of the last measured report, as I048/020 TYP
    } i340;
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

void ast_datarecord_010_disassemble(_ast_datarecord_010_t *out, const _ast_datarecord_t &record);
void ast_datarecord_020_disassemble(_ast_datarecord_020_t *out, const _ast_datarecord_t &record);
void ast_datarecord_062_disassemble(_ast_datarecord_062_t *out, const _ast_datarecord_t &record);
