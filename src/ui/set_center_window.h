#pragma once

#include "geo/geo_coordinate.h"
#include "widgets/geometry_dialog.h"

class CoordinateEdit;
class FieldForm;
class QComboBox;

// Asks for the coordinate to put at the centre of the view, and remembers the last ones.
class SetCenterWindow final : public GeometryDialog {
    Q_OBJECT

public:
    explicit SetCenterWindow(QWidget *parent = nullptr);

    void setCenter(const GeoCoordinate &center);
    // Stays open with a note when the text is no coordinate.
    void accept() override;

Q_SIGNALS:
    void centerEntered(const GeoCoordinate &center);

private:
    void remember(const QString &text);

    FieldForm *m_form = nullptr;
    CoordinateEdit *m_center = nullptr;
    QComboBox *m_recent = nullptr;
};
