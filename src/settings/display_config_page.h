#pragma once

#include "app/theme.h"
#include "settings/config_page.h"

class CoordinateEdit;

// The theme, and settings of the plan view and of the window around it.
class DisplayConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit DisplayConfigPage(QWidget *parent = nullptr);

    bool validate() override;

Q_SIGNALS:
    // By the operator, who expects its values in all fields.
    void themeChosen(const Theme &theme);
    // By the operator, who has chosen another language than the program speaks.
    void restartWanted();

private:
    void addThemeRow();
    void addPlanViewRows();
    void addWindowRows();
    void addLanguageRow();
    void addLogFileRows();
    void addLockRow();
    QString timeZoneProblem() const;

    CoordinateEdit *m_center = nullptr;
    QComboBox *m_timeZone = nullptr;
    QString m_spokenLanguage; // in this run
};
