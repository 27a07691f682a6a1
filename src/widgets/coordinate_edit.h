#pragma once

#include "geo/geo_coordinate.h"

#include <QLineEdit>

// A line edit for a coordinate in any notation that readCoordinate() knows. What was entered is shown as an ATC
// coordinate when the field is left, with hundredths of a second where it has some.
class CoordinateEdit final : public QLineEdit {
    Q_OBJECT

public:
    // Shows the format, NormalPrecision or HighPrecision, and keeps to what the validator of that format accepts: below
    // 90 degrees of latitude and 180 of longitude.
    explicit CoordinateEdit(GeoCoordinate::ATCStringFormat format, QWidget *parent = nullptr);
    // Shows HighPrecision and takes the poles and the 180th meridian too. Unreadable text stands out.
    explicit CoordinateEdit(QWidget *parent = nullptr);

    // The coordinate last set or read while its text stands unchanged, so that passing through the field costs no
    // precision; else what the text says, invalid when there is a problem.
    GeoCoordinate coordinate() const;
    void setCoordinate(const GeoCoordinate &coordinate);
    // Why the text is not accepted, with an example; empty when it is.
    QString problem() const;

private:
    void hold(const GeoCoordinate &coordinate, GeoCoordinate::ATCStringFormat format);
    void showAsAtcText();
    void showReadable();

    GeoCoordinate::ATCStringFormat m_format;
    GeoCoordinate m_set;
    QString m_setText;
};
