#include "settings/unlock_window.h"

#include "app/settings_lock.h"
#include "widgets/dialog_layout.h"
#include "widgets/field_form.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <chrono>

using namespace std::chrono_literals;

UnlockWindow::UnlockWindow(SettingsLock *lock, QWidget *parent)
    : QDialog(parent), m_lock(lock), m_form(new FieldForm(this)), m_password(new QLineEdit)
{
    setObjectName(QStringLiteral("UnlockWindow"));
    setWindowTitle(tr("Unlock Settings"));
    auto *words = new QLabel(tr("The settings of this position are locked."));
    words->setWordWrap(true);
    m_password->setObjectName(QStringLiteral("password"));
    m_password->setEchoMode(QLineEdit::Password);
    m_password->setToolTip(tr("Opens the settings until they are locked again or the program ends."));
    m_form->addField(tr("&Password:"), m_password);
    auto *contents = new QWidget;
    auto *column = new QVBoxLayout(contents);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(words);
    column->addWidget(m_form);
    m_open =
        layOutDialog(this, contents, QDialogButtonBox::Ok | QDialogButtonBox::Cancel)->button(QDialogButtonBox::Ok);
    m_waitTimer.setInterval(200ms);
    connect(&m_waitTimer, &QTimer::timeout, this, &UnlockWindow::showWait);
    m_password->setFocus();
    setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    growToContents(this);
    if (m_lock->wait() > 0ms) {
        showWait();
    }
}

void UnlockWindow::accept()
{
    if (m_lock->wait() > 0ms) {
        return;
    }
    if (m_lock->unlock(m_password->text())) {
        QDialog::accept();
        return;
    }
    m_password->selectAll();
    m_password->setFocus();
    showWait();
}

void UnlockWindow::showWait()
{
    const auto seconds = static_cast<int>(std::chrono::ceil<std::chrono::seconds>(m_lock->wait()).count());
    m_form->check(m_password,
        seconds > 0 ? tr("This is not the password. Try again in %n s.", nullptr, seconds)
                    : tr("This is not the password."));
    m_open->setEnabled(seconds == 0);
    seconds > 0 ? m_waitTimer.start() : m_waitTimer.stop();
}
