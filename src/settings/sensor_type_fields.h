#pragma once

#include "sensors/sensor_type.h"

#include <QString>

#include <memory>
#include <vector>

class FieldForm;
class QWidget;
class SensorInfo;

// The fields that one type of sensor has beyond those of every sensor, as rows of a form.
class SensorTypeFields {
public:
    virtual ~SensorTypeFields() = default;

    virtual SensorType type() const = 0;
    // The sensor must be of this type.
    virtual void load(const SensorInfo &sensor) = 0;
    virtual void store(SensorInfo *sensor) const = 0;
    // Notes what is wrong; true when nothing is.
    virtual bool check() { return true; }

    void setVisible(bool visible);

    // One object a type, their rows added to the form. With details, fields are offered that only sensor records have.
    static std::vector<std::unique_ptr<SensorTypeFields>> makeAll(FieldForm *form, bool details);

protected:
    explicit SensorTypeFields(FieldForm *form) : m_form(form) { }
    FieldForm *form() const { return m_form; }
    void addRow(const QString &label, QWidget *field, const QString &objectName, const QString &toolTip);
    void addRow(QWidget *field, const QString &objectName, const QString &toolTip);

private:
    FieldForm *m_form;
    std::vector<QWidget *> m_fields; // the form's children
};
