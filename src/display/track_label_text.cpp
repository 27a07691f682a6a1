#include "display/track_label_text.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace tracklabel {

void appendNumber(QString &line, int number, int width)
{
    std::array<char, 16> digits;
    const int length = std::snprintf(digits.data(), digits.size(), "%0*d", width, number);
    line += QLatin1String(digits.data(), length);
}

int hundreds(int value)
{
    return static_cast<int>(std::lround(value / 100.0));
}

int shownLevel(int feet)
{
    return feet / 100;
}

int shownSpeed(double knots)
{
    return static_cast<int>(std::lround(knots));
}

int shownHeading(double degrees)
{
    return static_cast<int>(std::lround(degrees));
}

void appendTrend(QString &line, Track::VerticalTrend trend)
{
    if (trend == Track::TrendClimbing) {
        line += ClimbingMark;
    } else if (trend == Track::TrendDescending) {
        line += DescendingMark;
    }
}

void appendRate(QString &line, int feetPerMinute)
{
    const int rate = hundreds(feetPerMinute);
    if (rate == 0) {
        line += QLatin1String(" 00");
    } else if (rate > 0) {
        line += QLatin1Char('+');
        appendNumber(line, rate, 2);
    } else {
        appendNumber(line, rate, 3);
    }
}

} // namespace tracklabel
