#include "settings/password_window.h"

#include "app/settings_lock.h"
#include "widgets/dialog_layout.h"
#include "widgets/field_form.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int ShortestPassword = 4; // characters
constexpr int PasswordColumns = 60; // of the window

} // namespace

PasswordWindow::PasswordWindow(bool hasPassword, QWidget *parent) : QDialog(parent), m_form(new FieldForm(this))
{
    setObjectName(QStringLiteral("PasswordWindow"));
    setWindowTitle(tr("Lock Settings"));
    auto *words =
        new QLabel(tr("Without the password nobody changes settings, sensors, maps or layouts here. The scope "
                      "is worked with as before, and what is switched on it holds until the program ends."));
    words->setWordWrap(true);
    m_password =
        addField(tr("&New password:"), QStringLiteral("password"), tr("At least %1 characters.").arg(ShortestPassword));
    m_again = addField(tr("&Again:"), QStringLiteral("passwordAgain"), tr("The same once more, against slips."));
    auto *contents = new QWidget;
    auto *column = new QVBoxLayout(contents);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(words);
    column->addWidget(m_form);
    QDialogButtonBox *buttons = layOutDialog(this, contents, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    if (hasPassword) {
        QPushButton *removal = buttons->addButton(tr("&Remove Password"), QDialogButtonBox::DestructiveRole);
        removal->setObjectName(QStringLiteral("removePassword"));
        removal->setAutoDefault(false);
        connect(removal, &QPushButton::clicked, this, &PasswordWindow::remove);
    }
    m_password->setFocus();
    setMinimumWidth(fontMetrics().averageCharWidth() * PasswordColumns);
    growToContents(this);
}

QLineEdit *PasswordWindow::addField(const QString &label, const QString &objectName, const QString &toolTip)
{
    auto *field = new QLineEdit;
    field->setObjectName(objectName);
    field->setEchoMode(QLineEdit::Password);
    field->setToolTip(toolTip);
    m_form->addField(label, field);
    return field;
}

void PasswordWindow::accept()
{
    const bool longEnough = m_password->text().size() >= ShortestPassword;
    const bool same = m_password->text() == m_again->text();
    m_form->check(m_password, longEnough ? QString() : tr("At least %1 characters.").arg(ShortestPassword));
    m_form->check(m_again, same ? QString() : tr("The two are not the same."));
    if (QWidget *refused = m_form->firstWithNote()) {
        refused->setFocus();
        return;
    }
    Q_EMIT passwordChosen(SettingsLock::stored(m_password->text()));
    QDialog::accept();
}

void PasswordWindow::remove()
{
    Q_EMIT passwordChosen(QString());
    QDialog::accept();
}
