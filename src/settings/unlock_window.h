#pragma once

#include <QDialog>
#include <QTimer>

class FieldForm;
class QLineEdit;
class QPushButton;
class SettingsLock;

// Asks for the password that settings are locked with. Accepted once it is right.
class UnlockWindow final : public QDialog {
    Q_OBJECT

public:
    // The lock must outlive the window.
    explicit UnlockWindow(SettingsLock *lock, QWidget *parent = nullptr);

    void accept() override;

private:
    void showWait();

    SettingsLock *m_lock;
    FieldForm *m_form;
    QLineEdit *m_password;
    QPushButton *m_open;
    QTimer m_waitTimer;
};
