#pragma once

#include "settings/config_page.h"

#include <QList>

class QCheckBox;
class QComboBox;
class QLineEdit;
class UdpInputFields;

// Where surveillance data comes from: two UDP sockets, a serial line or a recording file. Only the fields of the chosen
// kind are shown and checked.
class InputConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit InputConfigPage(QWidget *parent = nullptr);

    void load(const Config &config) override;
    bool validate() override;
    void store(Config *config) const override;

private:
    void addSerialRows();
    void addFileRows();
    void showChosen();
    void browse();
    bool validateUdp();
    bool validateSerial();
    bool validateFile();
    void storeSerial(Config *config) const;

    QComboBox *m_comm = nullptr;
    UdpInputFields *m_udp1 = nullptr;
    QCheckBox *m_enable2 = nullptr;
    UdpInputFields *m_udp2 = nullptr;
    QComboBox *m_serialDevice = nullptr;
    QComboBox *m_baudRate = nullptr;
    QComboBox *m_dataBits = nullptr;
    QComboBox *m_parity = nullptr;
    QComboBox *m_stopBits = nullptr;
    QWidget *m_fileRow = nullptr;
    QLineEdit *m_fileName = nullptr;
    QCheckBox *m_autoRewind = nullptr;
    QList<QWidget *> m_serialFields;
};
