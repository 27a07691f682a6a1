#pragma once

#include "settings/config_page.h"

class CoordinateEdit;

// Settings of the plan view and of the window around it.
class DisplayConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit DisplayConfigPage(QWidget *parent = nullptr);

    bool validate() override;

private:
    void addPlanViewRows();
    void addWindowRows();
    QString timeZoneProblem() const;

    CoordinateEdit *m_center = nullptr;
    QComboBox *m_timeZone = nullptr;
};
