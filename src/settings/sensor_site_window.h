#pragma once

#include "geo/geo_coordinate.h"

#include <QDialog>

class CoordinateEdit;
class FieldForm;
class QDoubleSpinBox;
class QLineEdit;

// Asks where a sensor stands whose recording reports positions relative to it.
class SensorSiteWindow final : public QDialog {
    Q_OBJECT

public:
    // Asks for the time of one turn of the antenna too where that is missing.
    SensorSiteWindow(const QString &sensorName, bool periodMissing, QWidget *parent = nullptr);

    void suggestSite(const GeoCoordinate &site);
    GeoCoordinate site() const;
    QString name() const;
    double rotationPeriod() const; // seconds

    // Stays open with a note when the text is no coordinate.
    void accept() override;

private:
    FieldForm *m_form;
    CoordinateEdit *m_site;
    QLineEdit *m_name;
    QDoubleSpinBox *m_period;
};
