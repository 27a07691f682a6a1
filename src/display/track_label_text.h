#pragma once

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

// "+05", "-13" or " 00": hundreds of feet a minute.
void appendRate(QString &line, int feetPerMinute);

} // namespace tracklabel
