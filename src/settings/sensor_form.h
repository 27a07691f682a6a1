#pragma once

#include "sensors/sensor_type.h"

#include <QMap>
#include <QObject>
#include <QSharedPointer>
#include <QStringList>

#include <memory>
#include <vector>

class CoordinateEdit;
class FieldForm;
class QComboBox;
class QLineEdit;
class QSpinBox;
class QWidget;
class SensorInfo;
class SensorTypeFields;

// The rows that describe one sensor, of any type, put into a form. The fields of every type keep what was entered while
// another type is chosen.
class SensorForm final : public QObject {
    Q_OBJECT

public:
    enum class Use {
        Configured, // the sensor of the settings: may be none, whole-second coordinate
        Record, // a record of the sensor file: descriptive data and hundredths of seconds, every type
    };

    // The form is the parent.
    SensorForm(Use use, FieldForm *form);
    ~SensorForm() override;

    // Null: no sensor.
    void setSensor(const SensorInfo *sensor);
    // Fills the fields that only the sensor's type has, whichever type is chosen.
    void setTypeFields(const SensorInfo &sensor);
    void setNamesInUse(const QStringList &names) { m_namesInUse = names; }
    // Offers the makers, and of the maker entered the models, for completion.
    void setManufacturerModels(const QMap<QString, QStringList> &models);

    SensorType type() const;
    // The field that the type is chosen with.
    QWidget *chooser() const;
    // Notes beside the fields what is wrong; true when nothing is.
    bool validate();
    // A new record of what is entered; null for no sensor. Only after a successful validate().
    QSharedPointer<SensorInfo> makeSensor() const;

private:
    void addRows();
    void addDetailRows();
    void add(const QString &label, QWidget *field, const QString &objectName, const QString &toolTip);
    QComboBox *makeTypeBox();
    void showTypeFields();
    void completeModels();

    Use m_use;
    FieldForm *m_form;
    QStringList m_namesInUse;
    QMap<QString, QStringList> m_manufacturerModels;
    std::vector<std::unique_ptr<SensorTypeFields>> m_typeFields;
    std::vector<QWidget *> m_baseFields; // hidden while no sensor is chosen
    QComboBox *m_type = nullptr;
    QLineEdit *m_name = nullptr;
    QSpinBox *m_sac = nullptr;
    QSpinBox *m_sic = nullptr;
    CoordinateEdit *m_location = nullptr;
    // Of a record only
    QLineEdit *m_description = nullptr;
    QLineEdit *m_manufacturer = nullptr;
    QLineEdit *m_model = nullptr;
    QSpinBox *m_commissionYear = nullptr;
};
