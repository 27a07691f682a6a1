#pragma once

#include "asterix/asterix.h"
#include "tracking/track.h"

#include <QDateTime>

#include <optional>

// How the items that several kinds of report have in common change a track. An item that is absent either leaves the
// track's value as it was or makes it invalid: each function says which.
namespace reports {

// East-north axes to degrees clockwise from north, between -90 and 270.
double bearingOf(double x, double y);

// Absent: left as it was.
void setModeA(Track &track, const _ast_item_mode3a_t &item);
void setModeA(Track &track, unsigned int code, bool garbled, bool smoothed);
void setCallsign(Track &track, const char *text);

// What the source itself says of an emergency. Absent: one that was reported lasts 20 s more.
void setEmergency(Track &track, std::optional<Track::Emergency> emergency, const QDateTime &now);
// Of the priority status of ADS-B: 1 and 6 an emergency, 4 no communications, 5 unlawful interference. What calls for
// priority alone, medical flights and low fuel, is none.
Track::Emergency emergencyOf(unsigned int priorityStatus);
// Whether the flight status of a Mode S transponder tells of the special pulse.
bool isSpi(unsigned int flightStatus);

// Absent: invalid. Knots and degrees clockwise from north.
void setVelocity(Track &track, const _ast_item_velocity_t &item);
void setVelocity(Track &track, bool valid, double groundSpeed, double heading);
// Metres per second, east and north; the heading is made 0 to 360.
void setVelocityFromComponents(Track &track, bool valid, double vx, double vy);

// Feet. Absent: invalid.
void setLevel(Track &track, std::optional<int> level);

// A value that the source sends now and then stays valid for the life span in milliseconds after it was last sent.
// Altitude in feet, rate in feet per minute.
void setSelectedAltitude(Track &track, std::optional<int> altitude, const QDateTime &now, qint64 lifeSpan);
// Sets the vertical trend as well: a new rate of up to 200 feet per minute, itself included, is level flight; without a
// valid rate the trend is unknown.
void setVerticalRate(Track &track, std::optional<double> rate, const QDateTime &now, qint64 lifeSpan);

// From the first Mode S register 4,0: the altitude set in the autopilot before that of the flight management system.
std::optional<int> selectedAltitude(const _ast_item_registers_t &item);
// From the first Mode S register 6,0: the barometric rate before the inertial one, either only up to 6000 feet per
// minute.
std::optional<double> verticalRate(const _ast_item_registers_t &item);

} // namespace reports
