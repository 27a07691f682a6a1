#pragma once

#include <QHostAddress>
#include <QList>
#include <QNetworkInterface>
#include <QObject>

class FieldForm;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

// One UDP input as fields and as a value.
struct UdpInput {
    bool multicast = true;
    QNetworkInterface interface; // invalid: the system chooses
    QHostAddress group;
    quint16 port = 0;
};

// The rows of one UDP input in a form.
class UdpInputFields final : public QObject {
    Q_OBJECT

public:
    // The form is the parent. The number goes into the object names of the fields.
    UdpInputFields(int number, FieldForm *form);

    void load(const UdpInput &input);
    // A group that is no multicast group is left as it is in the input handed in.
    void store(UdpInput *input) const;
    bool validate();
    // Notes under the port that another input listens there already.
    bool validateAgainst(const UdpInputFields &other);

    void setVisible(bool visible);
    void setEnabled(bool enabled);

private:
    void fillInterfaces();
    void updateEnabled();
    QHostAddress group() const; // null unless the text is a multicast group

    FieldForm *m_form;
    bool m_enabled = true;
    QCheckBox *m_multicast = nullptr;
    QLineEdit *m_group = nullptr;
    QComboBox *m_interface = nullptr;
    QSpinBox *m_port = nullptr;
};
