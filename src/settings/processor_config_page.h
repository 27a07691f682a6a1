#pragma once

#include "settings/config_page.h"

class QCheckBox;
class QComboBox;

// How received messages are decoded.
class ProcessorConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit ProcessorConfigPage(QWidget *parent = nullptr);

    void load(const Config &config) override;
    bool validate() override { return true; } // nothing can be entered wrongly
    void store(Config *config) const override;

private:
    QComboBox *m_type = nullptr;
    QComboBox *m_format = nullptr;
    QComboBox *m_uap = nullptr;
    QCheckBox *m_verifySacSic = nullptr;
    QCheckBox *m_ignoreWgs84 = nullptr;
    QCheckBox *m_ignoreCartesian = nullptr;
};
