#include "settings/config_page.h"

#include "widgets/field_form.h"

#include <QVBoxLayout>

ConfigPage::ConfigPage(const QString &title, QWidget *parent)
    : QWidget(parent), m_title(title), m_form(new FieldForm(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_form);
}
