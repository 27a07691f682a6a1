#pragma once

#include "settings/config_page.h"

#include <QList>

class ColorButton;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QSpinBox;

// Settings of the weather layer.
class WeatherConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit WeatherConfigPage(QWidget *parent = nullptr);

    void load(const Config &config) override;
    bool validate() override { return true; } // nothing can be entered wrongly
    void store(Config *config) const override;

private:
    void addPictureRows();
    void addColorRows();
    void takeScheme(int index);

    QCheckBox *m_visible = nullptr;
    QSpinBox *m_opacity = nullptr;
    QSpinBox *m_validity = nullptr;
    QCheckBox *m_autoVectorWidth = nullptr;
    QDoubleSpinBox *m_vectorWidth = nullptr;
    QCheckBox *m_ignoreEmpty = nullptr;
    QComboBox *m_scheme = nullptr;
    QList<ColorButton *> m_colors; // one a level
};
