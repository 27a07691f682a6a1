#pragma once

#include "app/config.h"

#include <QNetworkInterface>
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
        LanInterface Config::*interface;
    };

    // The page is the parent. The second of two inputs gets mnemonics of its own.
    UdpInputFields(const Members &members, bool second, ConfigPage *page);

    // Offers these; the chosen one stays chosen, though it has gone.
    void setInterfaces(const QList<QNetworkInterface> &interfaces);

    bool validate();
    // Notes under the port that another input listens there already.
    bool validateAgainst(const UdpInputFields &other);
    // Whether there is anything to listen to, without a note.
    bool isComplete() const { return faultOfGroup().isEmpty(); }

    void setVisible(bool visible);
    void setEnabled(bool enabled);

Q_SIGNALS:
    // A field holds something else.
    void edited();

private:
    void addRows(bool second);
    void bindTo(ConfigPage *page, const Members &members);
    void connectFields();
    void addAbsent(const QString &name);
    void showInterface(const LanInterface &interface);
    void updateEnabled();
    QString faultOfGroup() const;
    QHostAddress group() const; // null unless the text is a multicast group

    FieldForm *m_form;
    bool m_enabled = true;
    QCheckBox *m_multicast = nullptr;
    QLineEdit *m_group = nullptr;
    QComboBox *m_interface = nullptr; // items hold names
    QSpinBox *m_port = nullptr;
};
