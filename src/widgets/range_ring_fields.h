#pragma once

class QDoubleSpinBox;
class QSpinBox;

// The fields of windows that ask for range rings, with the ranges of the settings; they are the caller's.
QSpinBox *makeRingNumberBox();
// Nautical miles.
QDoubleSpinBox *makeRingDistanceBox();
