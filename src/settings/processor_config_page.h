#pragma once

#include "settings/config_page.h"

// How received messages are decoded. Only the fields of the chosen processor are shown.
class ProcessorConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit ProcessorConfigPage(QWidget *parent = nullptr);

private:
    void addAsterixRows();
    void addModeSRows();
    void addSirMRows();
    void showChosen();

    QComboBox *m_type = nullptr;
    QCheckBox *m_baroCheck = nullptr;
    QList<QWidget *> m_asterixFields;
    QList<QWidget *> m_modeSFields;
    QList<QWidget *> m_sirMFields;
};
