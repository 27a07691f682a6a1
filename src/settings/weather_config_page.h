#pragma once

#include "settings/config_page.h"

#include <QList>

// Settings of the weather layer.
class WeatherConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit WeatherConfigPage(QWidget *parent = nullptr);

private:
    void addPictureRows();
    void addColorRows();
    void addLevelRows();
    void takeScheme(int index);

    QComboBox *m_scheme = nullptr;
    QList<ColorButton *> m_colors; // one a level
};
