#include "map_windows/layout_save_window.h"

#include "widgets/dialog_layout.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QCompleter>
#include <QLineEdit>
#include <QMessageBox>

LayoutSaveWindow::LayoutSaveWindow(const QStringList &names, QWidget *parent)
    : GeometryDialog(QStringLiteral("LayoutSaveWindow"), parent), m_names(names),
      m_replaceQuestion([this](const QString &name) { return askToReplace(name); }), m_form(new FieldForm(this)),
      m_name(new QLineEdit), m_makeCurrent(new QCheckBox(tr("Make it the &current layout")))
{
    setWindowTitle(tr("Save Layout"));
    m_name->setObjectName(QStringLiteral("layoutName"));
    m_name->setCompleter(new QCompleter(names, m_name));
    m_makeCurrent->setObjectName(QStringLiteral("makeCurrent"));
    m_makeCurrent->setChecked(true);
    m_makeCurrent->setToolTip(tr("The current layout is shown again when the program is started."));
    m_form->addField(tr("&Name:"), m_name);
    m_form->addField(m_makeCurrent);
    connect(m_name, &QLineEdit::textChanged, this, [this] { m_form->clearNotes(); });
    layOutDialog(this, m_form, QDialogButtonBox::Save | QDialogButtonBox::Cancel);
}

void LayoutSaveWindow::setName(const QString &name)
{
    m_name->setText(name);
    m_name->selectAll();
    m_name->setFocus();
}

void LayoutSaveWindow::setReplaceQuestion(std::function<bool(const QString &name)> question)
{
    m_replaceQuestion = std::move(question);
}

QString LayoutSaveWindow::problem(const QString &name) const
{
    if (name.isEmpty()) {
        return tr("The layout needs a name.");
    }
    return name == QLatin1String("default") ? tr("The name \"default\" belongs to the built-in layout.") : QString();
}

bool LayoutSaveWindow::askToReplace(const QString &name)
{
    return QMessageBox::question(this, windowTitle(), tr("Replace the layout \"%1\"?").arg(name)) == QMessageBox::Yes;
}

void LayoutSaveWindow::accept()
{
    const QString name = m_name->text().trimmed();
    if (!m_form->check(m_name, problem(name)) || (m_names.contains(name) && !m_replaceQuestion(name))) {
        m_name->setFocus();
        return;
    }
    Q_EMIT layoutNamed(name, m_makeCurrent->isChecked());
    QDialog::accept();
}
