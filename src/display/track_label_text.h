#pragma once

#include "tracking/track.h"

#include <QChar>
#include <QString>

// Pieces of the text of track labels.
namespace tracklabel {

constexpr QChar CoastingMark(0x2798); // ➘
constexpr QChar ClimbingMark(0x2191); // ↑
constexpr QChar DescendingMark(0x2193); // ↓
constexpr QChar DegreeSign(0x00B0); // °

// Appends the number with zeros in front up to the width; a sign counts. Labels are written at each new snapshot: this
// takes a fifth of what QString::arg does.
void appendNumber(QString &line, int number, int width);

// Whole hundreds, halves away from zero.
int hundreds(int value);

// Figures as labels and lists show them, so that the two never disagree: flight level, knots, degrees.
int shownLevel(int feet);
int shownSpeed(double knots);
int shownHeading(double degrees);
// An arrow where it climbs or descends.
void appendTrend(QString &line, Track::VerticalTrend trend);

// "+05", "-13" or " 00": hundreds of feet a minute.
void appendRate(QString &line, int feetPerMinute);

} // namespace tracklabel
