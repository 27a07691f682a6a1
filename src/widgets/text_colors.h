#pragma once

#include <QColor>
#include <QPalette>

// Colours of text beside the palette's own, each at least 4.5 to 1 against its base.
// For what matters less than the rest.
QColor quietTextColor(const QPalette &palette);
QColor warningTextColor(const QPalette &palette);
QColor alarmTextColor(const QPalette &palette);
