#pragma once

#include "settings/config_page.h"

#include <QList>

class FileEdit;
class UdpInputFields;

// Where surveillance data comes from: two UDP sockets, a serial line or a recording file. Only the fields of the chosen
// kind are shown and checked.
class InputConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    explicit InputConfigPage(QWidget *parent = nullptr);

    void load(const Config &config) override;
    bool validate() override;

private:
    void addUdpRows();
    void addSerialRows();
    void addFileRows();
    void showChosen();
    Config::InputComm chosen() const;
    bool validateUdp();
    bool validateSerial();
    bool validateFile();

    QComboBox *m_comm = nullptr;
    UdpInputFields *m_udp1 = nullptr;
    QCheckBox *m_enable2 = nullptr;
    UdpInputFields *m_udp2 = nullptr;
    QComboBox *m_serialDevice = nullptr;
    QComboBox *m_baudRate = nullptr;
    FileEdit *m_file = nullptr;
    QCheckBox *m_autoRewind = nullptr;
    QList<QWidget *> m_serialFields;
};
