#pragma once

#include "settings/config_page.h"

class ColorButton;
class QSpinBox;

// Colours of symbols and labels.
class TrackConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit TrackConfigPage(QWidget *parent = nullptr);

    void load(const Config &config) override;
    bool validate() override { return true; } // nothing can be entered wrongly
    void store(Config *config) const override;

private:
    ColorButton *m_symbol = nullptr;
    ColorButton *m_label = nullptr;
    ColorButton *m_labelSelected = nullptr;
    ColorButton *m_labelAlert = nullptr;
    ColorButton *m_labelBackground = nullptr;
    QSpinBox *m_opacity = nullptr;
};
