#include "settings/password_field.h"

#include "settings/password_window.h"
#include "widgets/window_opening.h"

PasswordField::PasswordField(QWidget *parent) : QPushButton(parent)
{
    setAutoDefault(false);
    setText(tr("Set..."));
    connect(this, &QPushButton::clicked, this, &PasswordField::choose);
}

void PasswordField::setStored(const QString &stored)
{
    const bool other = stored != m_stored;
    m_stored = stored;
    setText(stored.isEmpty() ? tr("Set...") : tr("Change..."));
    if (other) {
        Q_EMIT storedChanged();
    }
}

void PasswordField::choose()
{
    auto *window = new PasswordWindow(!m_stored.isEmpty(), this);
    connect(window, &PasswordWindow::passwordChosen, this, &PasswordField::setStored);
    openOver(window);
}
