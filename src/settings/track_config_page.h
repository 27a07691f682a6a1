#pragma once

#include "settings/config_page.h"

// Settings of how tracks look, apart from what View > Track Format keeps.
class TrackConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit TrackConfigPage(QWidget *parent = nullptr);

private:
    void addSymbolRows();
    void addLabelRows();
};
