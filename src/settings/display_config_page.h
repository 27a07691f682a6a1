#pragma once

#include "settings/config_page.h"

class ColorButton;
class CoordinateEdit;
class QCheckBox;
class QComboBox;

// Settings of the plan view and of the window around it.
class DisplayConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit DisplayConfigPage(QWidget *parent = nullptr);

    void load(const Config &config) override;
    bool validate() override;
    void store(Config *config) const override;

private:
    QString timeZoneProblem() const;

    CoordinateEdit *m_center = nullptr;
    ColorButton *m_background = nullptr;
    QComboBox *m_timeZone = nullptr;
    QComboBox *m_style = nullptr;
    QCheckBox *m_toolbarText = nullptr;
};
