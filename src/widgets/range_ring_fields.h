#pragma once

class QDoubleSpinBox;
class QSpinBox;

// The fields of every window that asks for range rings; they are the caller's.
// A number of 1 to 50.
QSpinBox *makeRingNumberBox();
// A distance of 0.1 to 1000 nautical miles.
QDoubleSpinBox *makeRingDistanceBox();
