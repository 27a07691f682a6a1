#pragma once

#include "widgets/geometry_dialog.h"

#include <QSharedPointer>

class SensorForm;
class SensorInfo;
class SensorManager;

// Edits one sensor record of any type. The record handed in is never changed: a new one is made on acceptance.
class SensorEditWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // A null sensor starts an empty radar record. Sensors: for the names in use and the makers to complete from.
    SensorEditWindow(const QSharedPointer<SensorInfo> &sensor, const SensorManager *sensors, QWidget *parent = nullptr);

    // The new record after acceptance, else null.
    QSharedPointer<SensorInfo> sensor() const { return m_accepted; }
    // The name that the record had before, free to be kept; empty for a new record.
    void setOriginalName(const QString &name) { m_originalName = name; }

    SensorForm *form() const { return m_form; }
    // Stays open, with notes beside the fields, when something is wrong.
    void accept() override;

private:
    const SensorManager *m_sensors;
    QString m_originalName;
    QSharedPointer<SensorInfo> m_accepted;
    SensorForm *m_form = nullptr;
};
