#include "settings/settings_reference.h"

#include "app/app_paths.h"
#include "app/config.h"
#include "settings/config_page.h"
#include "settings/config_window.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

namespace {

// In a cell of a table.
QString cell(QString text)
{
    text.replace(u'\n', u' ').replace(u'|', u'/').replace(u'<', QLatin1String("&lt;"));
    return text.trimmed();
}

// As the field shows it.
QString defaultOf(const Setting &setting, const QWidget &field)
{
    QString text;
    if (const auto *box = qobject_cast<const QCheckBox *>(&field)) {
        text = box->isChecked() ? SettingsReference::tr("on") : SettingsReference::tr("off");
    } else if (const auto *choice = qobject_cast<const QComboBox *>(&field)) {
        text = choice->currentText();
    } else if (const auto *number = qobject_cast<const QAbstractSpinBox *>(&field)) {
        text = number->text();
    } else {
        const QVariantMap values = setting.values(Config());
        text = values.isEmpty() ? QString() : values.first().toString();
    }
    return cell(text.replace(AppPaths::appDataDir(), QLatin1String("…")));
}

QString pageReference(const ConfigPage &page)
{
    QString rows;
    for (const Setting *setting : page.settings()) {
        const auto *field = page.findChild<QWidget *>(setting->key());
        const QString name = field ? cell(page.form()->title(field)) : QString();
        if (!name.isEmpty()) {
            rows += QStringLiteral("| %1 | %2 | %3 | `%4` |\n")
                        .arg(name, defaultOf(*setting, *field), cell(field->toolTip()), setting->key());
        }
    }
    return rows.isEmpty() ? QString()
                          : QStringLiteral("\n## %1\n\n| %2 | %3 | %4 | %5 |\n|---|---|---|---|\n%6")
                                .arg(page.title(), SettingsReference::tr("Setting"), SettingsReference::tr("By itself"),
                                    SettingsReference::tr("What it does"), SettingsReference::tr("Key"), rows);
}

} // namespace

QString SettingsReference::page()
{
    QString text = QStringLiteral("# %1\n\n%2\n")
                       .arg(tr("All Settings"),
                           tr("The fields of the settings window, page by page. \"Key\" is the name under which the "
                              "settings file has a "
                              "setting. A sensor that is chosen there brings settings of its own."));
    const ConfigWindow window(Config(), nullptr);
    for (const ConfigPage *page : window.pages()) {
        text += pageReference(*page);
    }
    return text;
}
