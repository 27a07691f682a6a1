#pragma once

#include "settings/config_page.h"

class FileEdit;

// Settings of the map layers: static maps, the sensor and the range rings.
class MapConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit MapConfigPage(QWidget *parent = nullptr);

    bool validate() override;

private:
    void addStaticMapRows();
    void addSensorRows();
    void addRangeRingRows();
    void addOrientationRows();
    void addPlotRows();
    FileEdit *addFile(const QString &label, const QString &title, const QString &filter, QString Config::*member,
        const QString &toolTip);

    FileEdit *m_index = nullptr;
    FileEdit *m_styleSheet = nullptr;
};
