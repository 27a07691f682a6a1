#pragma once

#include "app/config.h"

#include <QObject>

class ConfigPage;
class FieldForm;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

// The rows of one UDP input on a page.
class UdpInputFields final : public QObject {
    Q_OBJECT

public:
    struct Members {
        quint16 Config::*port;
        bool Config::*multicast;
        QHostAddress Config::*group;
        QNetworkInterface Config::*interface;
    };

    // The page is the parent. The second of two inputs gets mnemonics of its own.
    UdpInputFields(const Members &members, bool second, ConfigPage *page);

    bool validate();
    // Notes under the port that another input listens there already.
    bool validateAgainst(const UdpInputFields &other);

    void setVisible(bool visible);
    void setEnabled(bool enabled);

private:
    void addRows(bool second);
    void bindTo(ConfigPage *page, const Members &members);
    void fillInterfaces();
    void showInterface(const QNetworkInterface &interface);
    void updateEnabled();
    QHostAddress group() const; // null unless the text is a multicast group

    FieldForm *m_form;
    bool m_enabled = true;
    QCheckBox *m_multicast = nullptr;
    QLineEdit *m_group = nullptr;
    QComboBox *m_interface = nullptr;
    QSpinBox *m_port = nullptr;
};
