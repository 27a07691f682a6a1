#pragma once

#include "settings/config_page.h"

// Settings of the radar video layer.
class VideoConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit VideoConfigPage(QWidget *parent = nullptr);
};
