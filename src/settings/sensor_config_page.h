#pragma once

#include "settings/config_page.h"

class SensorForm;
class SensorManager;

// The one sensor of the input: chosen from the sensor file or typed in.
class SensorConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    // The manager may be null: nothing to choose from.
    explicit SensorConfigPage(SensorManager *sensors, QWidget *parent = nullptr);

    void load(const Config &config) override;
    void showSettings(const Config &config, const Which &which) override;
    bool validate() override;
    void store(Config *config) const override;

private:
    void fillChoice();
    void choose(int index);

    SensorManager *m_sensors;
    QComboBox *m_choice = nullptr;
    SensorForm *m_sensorForm = nullptr;
};
