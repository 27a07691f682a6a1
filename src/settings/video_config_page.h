#pragma once

#include "settings/config_page.h"

class ColorButton;
class QCheckBox;
class QSpinBox;

// Settings of the radar video layer.
class VideoConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit VideoConfigPage(QWidget *parent = nullptr);

    void load(const Config &config) override;
    bool validate() override { return true; } // nothing can be entered wrongly
    void store(Config *config) const override;

private:
    static QSpinBox *makeLevelBox(const QString &name);

    QCheckBox *m_visible = nullptr;
    QSpinBox *m_validity = nullptr;
    QSpinBox *m_threshold = nullptr;
    ColorButton *m_lowColor = nullptr;
    QSpinBox *m_lowOpacity = nullptr;
    ColorButton *m_highColor = nullptr;
    QSpinBox *m_highOpacity = nullptr;
};
