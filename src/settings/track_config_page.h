#pragma once

#include "settings/config_page.h"

// Settings of the tracks' colours.
class TrackConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit TrackConfigPage(QWidget *parent = nullptr);
};
