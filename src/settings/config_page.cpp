#include "settings/config_page.h"

#include "widgets/color_button.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int MarkWidth = 3; // pixels, as the next two
constexpr int MarkGap = 3;
constexpr int HitRadius = 3;
constexpr int HitAlpha = 60; // of 255, so that text stands out from it in every theme
constexpr int MostChoices = 30; // of a longer list a search would find too much

QStringList choices(const QWidget *field)
{
    QStringList texts;
    const auto *box = qobject_cast<const QComboBox *>(field);
    for (int i = 0; box && box->count() <= MostChoices && i < box->count(); ++i) {
        texts.append(box->itemText(i));
    }
    return texts;
}

// In the middle of a word other words are found that nobody means, but there are scripts that do not part words.
bool beginsWord(const QString &text, const QString &word)
{
    for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
        if (at == 0 || !text.at(at - 1).isLetterOrNumber() || text.at(at).script() == QChar::Script_Han) {
            return true;
        }
    }
    return false;
}

} // namespace

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

void ConfigPage::showSettings(const Config &config, const Which &which)
{
    for (const Binding &binding : std::as_const(m_bindings)) {
        if (which(*binding.setting)) {
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
    m_inputRunning = running;
    const bool locked = hasLockedRows();
    m_lock->setVisible(locked);
    for (QWidget *field : m_form->fields()) {
        m_form->setRowLocked(field, locked && !isOfUnlockedSetting(field));
    }
}

bool ConfigPage::hasLockedRows() const
{
    return std::any_of(
        m_settings.begin(), m_settings.end(), [this](const Setting *setting) { return locks(*setting); });
}

// What is no setting itself fills in those of its page.
bool ConfigPage::isOfUnlockedSetting(const QWidget *field) const
{
    return std::any_of(m_settings.begin(), m_settings.end(),
        [this, field](const Setting *setting) { return setting->key() == field->objectName() && !locks(*setting); });
}

void ConfigPage::finish()
{
    for (const Binding &binding : std::as_const(m_bindings)) {
        if (auto *field = m_form->findChild<QWidget *>(binding.setting->key())) {
            addRangeToToolTip(field, *binding.setting);
        }
    }
    for (QWidget *field : m_form->fields()) {
        m_form->setToolTip(field, field->toolTip()); // some got theirs after their row
        tellOfEdits(field);
    }
}

void ConfigPage::addRangeToToolTip(QWidget *field, const Setting &setting)
{
    if (setting.maximum() > setting.minimum() && qobject_cast<QAbstractSpinBox *>(field)) {
        const QString standard = setting.values(Config()).first().toString();
        field->setToolTip(
            tr("%1\n%2 to %3, default %4.")
                .arg(field->toolTip(), QString::number(setting.minimum()),
                    QString::number(setting.maximum()) + setting.unitSuffix(), standard + setting.unitSuffix()));
    }
}

// Whatever the operator edits is the user property of some widget in the row.
void ConfigPage::tellOfEdits(QWidget *field)
{
    const QMetaMethod told = staticMetaObject.method(staticMetaObject.indexOfSignal("edited()"));
    QList<QWidget *> parts = field->findChildren<QWidget *>();
    parts.append(field);
    for (QWidget *part : std::as_const(parts)) {
        const QMetaProperty value = part->metaObject()->userProperty();
        if (value.hasNotifySignal()) {
            connect(part, value.notifySignal(), this, told);
        }
    }
}

bool ConfigPage::says(const QWidget *field, const QStringList &words) const
{
    const QStringList names{m_title, m_form->heading(field), context(field), m_form->title(field), field->objectName()};
    const QString named = (names + choices(field)).join(u'\n').toLower();
    const QString explained = field->toolTip().section(u'\n', 0, 0).toLower();
    return std::all_of(words.begin(), words.end(),
        [&](const QString &word) { return named.contains(word) || beginsWord(explained, word); });
}

QWidget *ConfigPage::reveal(QWidget *field)
{
    return field->isVisibleTo(m_form) || !m_chooser ? field : m_chooser;
}

void ConfigPage::markChanged(const QSet<QString> &keys)
{
    m_changed = keys;
    for (QWidget *field : m_form->fields()) {
        field->setAccessibleDescription(
            keys.contains(field->objectName()) ? tr("Changed. %1").arg(field->toolTip()) : QString());
    }
    update();
}

void ConfigPage::markFound(const QList<QWidget *> &fields, const QWidget *current)
{
    m_found = fields;
    m_current = current;
    update();
}

void ConfigPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor strong = palette().color(QPalette::Highlight);
    QColor light = strong;
    light.setAlpha(HitAlpha);
    for (const QWidget *field : m_form->fields()) {
        const QRect row = m_form->rowRect(field).translated(m_form->pos());
        if (row.isEmpty()) {
            continue;
        }
        if (m_found.contains(field) || field == m_current) {
            painter.setPen(field == m_current ? QPen(strong, 2.0) : QPen(Qt::NoPen));
            painter.setBrush(light);
            painter.drawRoundedRect(row.adjusted(-1, -1, 1, 1), HitRadius, HitRadius);
        }
        if (m_changed.contains(field->objectName())) {
            painter.fillRect(row.left() - MarkGap - MarkWidth, row.top(), MarkWidth, row.height(), strong);
        }
    }
}

void ConfigPage::contextMenuEvent(QContextMenuEvent *event)
{
    QWidget *field = m_form->fieldAt(m_form->mapFrom(this, event->pos()));
    if (field && !m_form->isRowLocked(field)) {
        Q_EMIT menuRequested(field, event->globalPos());
    } else {
        event->ignore();
    }
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

ColorButton *ConfigPage::addColor(
    const QString &label, const QString &chooserTitle, QColor Config::*member, const QString &toolTip)
{
    auto *field = new ColorButton(chooserTitle);
    field->setToolTip(toolTip);
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
