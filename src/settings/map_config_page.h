#pragma once

#include "settings/config_page.h"

class ColorButton;
class FileEdit;
class QCheckBox;
class QDoubleSpinBox;
class QSpinBox;

// Settings of the map layers: static maps, the sensor and the range rings.
class MapConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit MapConfigPage(QWidget *parent = nullptr);

    void load(const Config &config) override;
    bool validate() override;
    void store(Config *config) const override;

private:
    void addStaticMapRows();
    void addSensorRows();
    void addRangeRingRows();

    QCheckBox *m_staticVisible = nullptr;
    FileEdit *m_index = nullptr;
    FileEdit *m_styleSheet = nullptr;
    QSpinBox *m_symbolSize = nullptr;
    QCheckBox *m_sensorVisible = nullptr;
    ColorButton *m_sensorColor = nullptr;
    QCheckBox *m_coverageVisible = nullptr;
    QCheckBox *m_northMarkerVisible = nullptr;
    ColorButton *m_northMarkerColor = nullptr;
    QCheckBox *m_antennaLineVisible = nullptr;
    ColorButton *m_antennaLineColor = nullptr;
    QCheckBox *m_ringsVisible = nullptr;
    ColorButton *m_ringColor = nullptr;
    QSpinBox *m_ringNumber = nullptr;
    QDoubleSpinBox *m_ringDistance = nullptr;
};
