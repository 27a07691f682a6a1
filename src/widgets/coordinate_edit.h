#pragma once

#include "geo/geo_coordinate.h"

#include <QLineEdit>

// A line edit for an ATC coordinate. Lower-case hemisphere letters may be typed and are made upper case.
class CoordinateEdit final : public QLineEdit {
    Q_OBJECT

public:
    // Format: GeoCoordinate::NormalPrecision or HighPrecision.
    explicit CoordinateEdit(GeoCoordinate::ATCStringFormat format, QWidget *parent = nullptr);
    // Takes every notation that coordinateFromText() reads, and shows HighPrecision. Unreadable text stands out.
    explicit CoordinateEdit(QWidget *parent = nullptr);

    // The coordinate last set while its text stands unchanged, so that passing through the field costs no precision;
    // else what the text says, invalid when the text is incomplete or out of range.
    GeoCoordinate coordinate() const;
    void setCoordinate(const GeoCoordinate &coordinate);

private:
    void showReadable();

    bool m_anyNotation = false;
    GeoCoordinate::ATCStringFormat m_format;
    GeoCoordinate m_set;
    QString m_setText;
};
