#pragma once

#include "widgets/geometry_dialog.h"

class QDoubleSpinBox;

// Asks for the view's rotation.
class RotationWindow final : public GeometryDialog {
    Q_OBJECT

public:
    explicit RotationWindow(QWidget *parent = nullptr);

    // Degrees, any value; shown within -180 to 180.
    void setRotation(double degrees);
    void accept() override;

Q_SIGNALS:
    // The absolute rotation to set, in degrees, -180 to 180.
    void rotationEntered(double degrees);

private:
    QDoubleSpinBox *m_rotation = nullptr;
};
