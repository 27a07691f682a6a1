#pragma once

#include "input_probe/device_watch.h"
#include "input_probe/input_probe.h"
#include "settings/config_page.h"

#include <QList>
#include <QPointer>
#include <QTimer>

class EngineHost;
class FileEdit;
class ProbeView;
class InputProposal;
class SensorManager;
class UdpInputFields;

#include <optional>

// Where surveillance data comes from: two UDP sockets, a serial line or a recording file. Only the fields of the chosen
// kind are shown and checked. While the page is seen it tells what arrives on the input that they describe, before
// anything is applied; while the program's input runs, what that one brings.
class InputConfigPage final : public ConfigPage {
    Q_OBJECT

public:
    enum class Offer { Everything, LiveInputs };

    // A recording in the settings is shown as UDP where only live inputs are offered. The sensors, which may be null,
    // must outlive the page.
    explicit InputConfigPage(const SensorManager *sensors, QWidget *parent = nullptr, Offer offer = Offer::Everything);
    ~InputConfigPage() override;

    // Of the program's input.
    void setEngine(EngineHost *engine);

    void load(const Config &config) override;
    bool validate() override;
    QWidget *reveal(QWidget *field) override;
    void setInputRunning(bool running) override;

    // Offers to take over what was found.
    void offerUse();
    // The settings of processor and sensor that suit what was found; nothing where nothing was made out.
    std::optional<InputProposal> proposal() const;
    // Of what arrives.
    const ProbeResult &found() const { return m_probe.result(); }
    // Listens no more, until the page is shown the next time.
    void stopListening();

Q_SIGNALS:
    // What was found is to be taken over.
    void useWanted(const InputProposal &proposal);
    void foundChanged();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void addUdpRows();
    void addSerialRows();
    void addFileRows();
    void connectProbe();
    void showChosen();
    Config::InputComm chosen() const;
    bool validateUdp();
    bool validateSerial();
    bool validateFile();
    void takeDevices(const DeviceWatch::Devices &devices);
    void showDevice(const QString &device);
    void noteMissingDevice();
    bool isComplete() const;
    void listenSoon();
    void listen();
    void showFound();

    const Offer m_offer;
    const SensorManager *m_sensors;
    QPointer<EngineHost> m_engine;
    bool m_isUseOffered = false;
    Config m_loaded; // what the fields do not hold
    QComboBox *m_comm = nullptr;
    UdpInputFields *m_udp1 = nullptr;
    QCheckBox *m_enable2 = nullptr;
    UdpInputFields *m_udp2 = nullptr;
    QComboBox *m_serialDevice = nullptr;
    QComboBox *m_baudRate = nullptr;
    FileEdit *m_file = nullptr;
    QCheckBox *m_autoRewind = nullptr;
    QList<QWidget *> m_serialFields;
    QStringList m_serialPorts; // that are there

    DeviceWatch m_devices;
    InputProbe m_probe;
    ProbeView *m_probeView = nullptr;
    QTimer m_listenTimer; // until typing pauses
};
