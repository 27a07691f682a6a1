#pragma once

#include "app/setting.h"
#include "widgets/combo_items.h"

#include <QComboBox>
#include <QList>
#include <QSet>
#include <QSpinBox>
#include <QWidget>

#include <functional>
#include <optional>
#include <utility>

class ColorButton;
class FieldForm;
class QCheckBox;
class QLabel;
class QLineEdit;

// One page of the settings window. A page binds fields to settings, and touches no other setting of a record. A bound
// field is named after its setting's key, takes range and unit from the table of settings, and has a label and a tool
// tip of one sentence; from these come search, marks and defaults.
class ConfigPage : public QWidget {
    Q_OBJECT

public:
    ConfigPage(const QString &title, QWidget *parent = nullptr);

    const QString &title() const { return m_title; }
    FieldForm *form() const { return m_form; }

    // The settings that the page edits.
    const QList<const Setting *> &settings() const { return m_settings; }

    // After the last row has been added: from now on the page tells of edits.
    void finish();

    virtual void load(const Config &config);
    // Only these settings; what has been typed into the fields of others stays.
    using Which = std::function<bool(const Setting &setting)>;
    virtual void showSettings(const Config &config, const Which &which);
    // Notes beside the fields what is wrong; true when nothing is.
    virtual bool validate() { return true; }
    // Only after a successful validate().
    virtual void store(Config *config) const;

    // Locks the rows of what an input is opened with, and says why.
    virtual void setInputRunning(bool running);
    bool hasLockedRows() const;
    // Whether the setting cannot be changed just now.
    bool locks(const Setting &setting) const { return m_inputRunning && setting.groups().testAnyFlags(RunGroups); }

    // Whether a search for these words, in lower case, finds the row: each of them stands in it, over it, among what
    // can be chosen there or in the key, or begins a word of the explanation.
    bool says(const QWidget *field, const QStringList &words) const;
    // Brings the row into sight by choosing what it belongs to. Where that would change a setting, the field that hides
    // it by its choice is returned, else the field itself.
    virtual QWidget *reveal(QWidget *field);
    // Of the settings with these keys the operator has changed the values.
    void markChanged(const QSet<QString> &keys);
    // A search has found these rows, and shows one of them just now.
    void markFound(const QList<QWidget *> &fields, const QWidget *current);

    // Show puts the setting's value into the field; entered is what stands there, nothing for what cannot be taken.
    template <typename T>
    void bind(QWidget *field, T Config::*member, std::function<void(const T &)> show,
        std::function<std::optional<T>()> entered)
    {
        addBinding(
            field, Setting::of(member), [member, show](const Config &config) { show(config.*member); },
            [member, entered](Config *config) {
                if (const std::optional<T> value = entered()) {
                    config->*member = *value;
                }
            });
    }
    void bind(QCheckBox *field, bool Config::*member);
    void bind(ColorButton *field, QColor Config::*member);
    void bind(QLineEdit *field, QString Config::*member);
    void bind(QDoubleSpinBox *field, double Config::*member);
    template <typename T>
    void bind(QSpinBox *field, T Config::*member)
    {
        giveRange(field, Setting::of(member));
        bind<T>(
            field, member, [field](const T &value) { field->setValue(static_cast<int>(value)); },
            [field] { return std::optional(static_cast<T>(field->value())); });
    }
    // The items hold the values as numbers.
    template <typename T>
    void bind(QComboBox *field, T Config::*member)
    {
        bind<T>(
            field, member, [field](const T &value) { selectValue(field, static_cast<int>(value)); },
            [field] { return std::optional(static_cast<T>(field->currentData().toInt())); });
    }

Q_SIGNALS:
    void edited();
    void menuRequested(QWidget *field, const QPoint &globalPosition);

protected:
    void paintEvent(QPaintEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

    bool inputRunning() const { return m_inputRunning; }

    // What a row belongs to that its own texts do not say.
    virtual QString context(const QWidget *) const { return {}; }
    // The field whose choice shows and hides others.
    void setChooser(QWidget *field) { m_chooser = field; }

    template <typename T>
    using Choices = QList<std::pair<QString, T>>;

    // Rows of a label and a new field for the setting.
    QCheckBox *addSwitch(const QString &text, bool Config::*member, const QString &toolTip = {});
    ColorButton *addColor(
        const QString &label, const QString &chooserTitle, QColor Config::*member, const QString &toolTip = {});
    QDoubleSpinBox *addNumber(
        const QString &label, double Config::*member, int decimals, double step, const QString &toolTip = {});
    template <typename T>
    QSpinBox *addNumber(const QString &label, T Config::*member, const QString &toolTip = {})
    {
        QSpinBox *field = addSpinBox(label, toolTip);
        bind(field, member);
        return field;
    }
    template <typename T>
    QComboBox *addChoice(
        const QString &label, T Config::*member, const Choices<T> &choices, const QString &toolTip = {})
    {
        QComboBox *field = addComboBox(label, toolTip);
        for (const auto &[text, value] : choices) {
            field->addItem(text, static_cast<int>(value));
        }
        bind(field, member);
        return field;
    }
    // For settings whose fields are not bound one by one.
    void addSettings(SettingGroup group);

private:
    struct Binding {
        const Setting *setting;
        std::function<void(const Config &)> show;
        std::function<void(Config *)> store;
    };

    void addBinding(QWidget *field, const Setting &setting, std::function<void(const Config &)> show,
        std::function<void(Config *)> store);
    QSpinBox *addSpinBox(const QString &label, const QString &toolTip);
    QComboBox *addComboBox(const QString &label, const QString &toolTip);
    static void giveRange(QSpinBox *field, const Setting &setting);
    void addRangeToToolTip(QWidget *field, const Setting &setting);
    void tellOfEdits(QWidget *field);
    bool isOfUnlockedSetting(const QWidget *field) const;

    QString m_title;
    QLabel *m_lock = nullptr;
    FieldForm *m_form = nullptr;
    QList<const Setting *> m_settings;
    QList<Binding> m_bindings;
    QWidget *m_chooser = nullptr;
    bool m_inputRunning = false;
    QSet<QString> m_changed; // keys
    QList<QWidget *> m_found;
    const QWidget *m_current = nullptr; // of those found
};
