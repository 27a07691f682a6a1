#pragma once

#include <QPushButton>
#include <QString>

// A button that shows whether settings have a password, and opens the window that sets it. Its value is what the
// settings hold of the password.
class PasswordField final : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QString stored READ stored WRITE setStored NOTIFY storedChanged USER true)

public:
    explicit PasswordField(QWidget *parent = nullptr);

    QString stored() const { return m_stored; }
    void setStored(const QString &stored);

Q_SIGNALS:
    void storedChanged();

private:
    void choose();

    QString m_stored;
};
