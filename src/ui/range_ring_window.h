#pragma once

#include "geo/geo_coordinate.h"
#include "widgets/geometry_dialog.h"

class CoordinateEdit;
class FieldForm;
class QDoubleSpinBox;
class QSpinBox;

// Asks for centre, number and distance of the range rings. Stays open, so that a controller can try values.
class RangeRingWindow final : public GeometryDialog {
    Q_OBJECT

public:
    explicit RangeRingWindow(QWidget *parent = nullptr);

    // Number 1 to 50, distance in nautical miles.
    void setRings(const GeoCoordinate &center, int number, double distance);
    // False, with a note beside the field, when the centre is no coordinate.
    bool apply();
    void accept() override;

Q_SIGNALS:
    // Number 1 to 50, distance between rings in nautical miles.
    void ringsEntered(const GeoCoordinate &center, int number, double distance);

private:
    FieldForm *m_form = nullptr;
    CoordinateEdit *m_center = nullptr;
    QSpinBox *m_number = nullptr;
    QDoubleSpinBox *m_distance = nullptr;
};
