#include "profiles/profile_window.h"

#include "app/app_paths.h"
#include "widgets/dialog_layout.h"
#include "widgets/field_form.h"

#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>

namespace {
constexpr int NameLength = 32; // characters shown
}

ProfileWindow::ProfileWindow(QWidget *parent)
    : GeometryDialog(QStringLiteral("ProfileWindow"), parent), m_form(new FieldForm(this)), m_name(new QComboBox)
{
    setObjectName(QStringLiteral("profileWindow"));
    setWindowTitle(tr("New Window With Profile"));
    m_name->setObjectName(QStringLiteral("profileName"));
    m_name->setAccessibleName(tr("Profile"));
    m_name->setEditable(true);
    m_name->setInsertPolicy(QComboBox::NoInsert);
    m_name->setMinimumContentsLength(NameLength);
    QStringList others = AppPaths::profiles();
    others.removeAll(AppPaths::profile());
    m_name->addItems(others);
    m_name->setCurrentIndex(-1);
    m_name->lineEdit()->setPlaceholderText(tr("For example approach"));
    m_name->setToolTip(tr("A profile has its own settings, layouts and windows. Choose one, or name a new one."));
    m_form->addField(tr("&Profile:"), m_name);
    m_form->addStretch();
    auto *buttons = layOutDialog(this, m_form, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Open &Window"));
    m_name->setFocus();
}

QString ProfileWindow::problem(const QString &name) const
{
    if (!AppPaths::isProfileName(name)) {
        return tr("A name has letters A to Z, digits and the signs - _ . only.");
    }
    if (name == AppPaths::profile()) {
        return tr("This window has that profile.");
    }
    return {};
}

void ProfileWindow::accept()
{
    const QString name = m_name->currentText().trimmed();
    if (!m_form->check(m_name, problem(name))) {
        return;
    }
    Q_EMIT profileChosen(name);
    QDialog::accept();
}

bool ProfileWindow::startProgram(const QString &profile)
{
    // Where the screen is follows from the environment, unless the toolkit was told on the command line.
    return QProcess::startDetached(AppPaths::exeFile(),
        {QStringLiteral("--profile"), profile, QStringLiteral("-platform"), QGuiApplication::platformName()});
}
