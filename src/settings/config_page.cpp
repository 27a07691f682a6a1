#include "settings/config_page.h"

#include "widgets/color_button.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

ConfigPage::ConfigPage(const QString &title, QWidget *parent)
    : QWidget(parent), m_title(title),
      m_lock(new QLabel(tr("Locked while the input runs. Stop the input to change it."), this)),
      m_form(new FieldForm(this))
{
    m_lock->setObjectName(QStringLiteral("lock"));
    m_lock->setWordWrap(true);
    m_lock->hide();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_lock);
    layout->addWidget(m_form, 1);
}

void ConfigPage::load(const Config &config)
{
    for (const Binding &binding : std::as_const(m_bindings)) {
        binding.show(config);
    }
}

void ConfigPage::loadLook(const Config &config)
{
    for (const Binding &binding : std::as_const(m_bindings)) {
        if (binding.setting->themed()) {
            binding.show(config);
        }
    }
}

void ConfigPage::store(Config *config) const
{
    for (const Binding &binding : m_bindings) {
        binding.store(config);
    }
}

void ConfigPage::setInputRunning(bool running)
{
    const bool ofTheRun = std::any_of(m_settings.begin(), m_settings.end(),
        [](const Setting *setting) { return bool(setting->groups() & RunGroups); });
    m_lock->setVisible(running && ofTheRun);
    m_form->setEnabled(!(running && ofTheRun));
}

void ConfigPage::addBinding(QWidget *field, const Setting &setting, std::function<void(const Config &)> show,
    std::function<void(Config *)> store)
{
    field->setObjectName(setting.key());
    m_settings.append(&setting);
    m_bindings.append({&setting, std::move(show), std::move(store)});
}

void ConfigPage::bind(QCheckBox *field, bool Config::*member)
{
    bind<bool>(
        field, member, [field](bool on) { field->setChecked(on); },
        [field] { return std::optional(field->isChecked()); });
}

void ConfigPage::bind(ColorButton *field, QColor Config::*member)
{
    bind<QColor>(
        field, member, [field](const QColor &color) { field->setColor(color); },
        [field] { return std::optional(field->color()); });
}

void ConfigPage::bind(QLineEdit *field, QString Config::*member)
{
    bind<QString>(
        field, member, [field](const QString &text) { field->setText(text); },
        [field] { return std::optional(field->text().trimmed()); });
}

void ConfigPage::bind(QDoubleSpinBox *field, double Config::*member)
{
    const Setting &setting = Setting::of(member);
    field->setRange(setting.minimum(), setting.maximum());
    field->setSuffix(setting.unitSuffix());
    bind<double>(
        field, member, [field](double value) { field->setValue(value); },
        [field] { return std::optional(field->value()); });
}

QCheckBox *ConfigPage::addSwitch(const QString &text, bool Config::*member, const QString &toolTip)
{
    auto *field = new QCheckBox(text);
    field->setToolTip(toolTip);
    m_form->addField(field);
    bind(field, member);
    return field;
}

ColorButton *ConfigPage::addColor(const QString &label, const QString &chooserTitle, QColor Config::*member)
{
    auto *field = new ColorButton(chooserTitle);
    m_form->addField(label, field);
    bind(field, member);
    return field;
}

QDoubleSpinBox *ConfigPage::addNumber(
    const QString &label, double Config::*member, int decimals, double step, const QString &toolTip)
{
    auto *field = new QDoubleSpinBox;
    field->setDecimals(decimals);
    field->setSingleStep(step);
    field->setToolTip(toolTip);
    m_form->addField(label, field);
    bind(field, member);
    return field;
}

void ConfigPage::addSettings(SettingGroup group)
{
    for (const Setting &setting : Setting::all()) {
        if (setting.groups() & group) {
            m_settings.append(&setting);
        }
    }
}

QSpinBox *ConfigPage::addSpinBox(const QString &label, const QString &toolTip)
{
    auto *field = new QSpinBox;
    field->setToolTip(toolTip);
    m_form->addField(label, field);
    return field;
}

QComboBox *ConfigPage::addComboBox(const QString &label, const QString &toolTip)
{
    auto *field = new QComboBox;
    field->setToolTip(toolTip);
    m_form->addField(label, field);
    return field;
}

void ConfigPage::giveRange(QSpinBox *field, const Setting &setting)
{
    field->setRange(static_cast<int>(setting.minimum()), static_cast<int>(setting.maximum()));
    field->setSuffix(setting.unitSuffix());
}
