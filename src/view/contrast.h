#pragma once

#include <QColor>

// How much brighter the brighter of two opaque colours is, 1 to 21; from 4.5 up text is comfortable to read. (Web
// Content Accessibility Guidelines 2.1, contrast ratio.)
double contrastRatio(const QColor &one, const QColor &other);

// Black or white, whichever makes the better ground for text of this colour.
QColor groundFor(const QColor &textColor);
