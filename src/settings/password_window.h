#pragma once

#include <QDialog>
#include <QString>

class FieldForm;
class QLineEdit;

// Sets, changes or removes the password that settings are locked with. Changes nothing itself.
class PasswordWindow final : public QDialog {
    Q_OBJECT

public:
    // Whether there is one that can be removed.
    explicit PasswordWindow(bool hasPassword, QWidget *parent = nullptr);

    void accept() override;

Q_SIGNALS:
    // What the settings are to hold of it, as SettingsLock::stored(); empty: no password any more.
    void passwordChosen(const QString &stored);

private:
    QLineEdit *addField(const QString &label, const QString &objectName, const QString &toolTip);
    void remove();

    FieldForm *m_form;
    QLineEdit *m_password = nullptr;
    QLineEdit *m_again = nullptr;
};
