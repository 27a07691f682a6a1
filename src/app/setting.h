#pragma once

#include "app/config.h"
#include "app/setting_group.h"

#include <QString>
#include <QVariantMap>

#include <span>

class QSettings;

// One setting: its key in the file, its group, unit and range, and the member of a record that it fills. The table of
// them is the only place that lists the settings; a setting's default is the initialiser of its member.
class Setting {
public:
    enum class Unit { None, Seconds, NauticalMiles, Metres, Feet, Degrees, Pixels, Percent, Mebibytes };

    // What reads and writes one member of a record.
    struct Access {
        void (*save)(QVariantMap &values, const QString &key, const Config &config);
        void (*load)(const QVariantMap &values, const QString &key, Config &config);
        bool (*same)(const Config &a, const Config &b);
        void (*copy)(const Config &from, Config &to);
        const void *(*address)(const Config &config);
    };

    constexpr Setting(const char *key, SettingGroups groups, const Access &access)
        : m_key(key), m_groups(groups), m_access(access)
    {
    }
    // The values that an operator may enter; those of a file are taken as they are.
    constexpr Setting within(double minimum, double maximum, Unit unit = Unit::None) const
    {
        Setting setting = *this;
        setting.m_minimum = minimum;
        setting.m_maximum = maximum;
        setting.m_unit = unit;
        return setting;
    }
    // One of those that a theme holds: how things look, and nothing that an operator switches on and off as he works.
    constexpr Setting ofThemes() const
    {
        Setting setting = *this;
        setting.m_themed = true;
        return setting;
    }

    // All settings, in the order of the file.
    static std::span<const Setting> all();
    // The setting that fills the member.
    template <typename T>
    static const Setting &of(T Config::*member)
    {
        return at(&(probe().*member));
    }

    QString key() const { return QString::fromLatin1(m_key); }
    SettingGroups groups() const { return m_groups; }
    // Both zero for a setting that is no number.
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    bool themed() const { return m_themed; }
    // What stands behind a number, with a blank in front where the unit takes one: " NM".
    QString unitSuffix() const;

    // As in a settings file, by key: one, or one each for the entries of a list.
    QVariantMap values(const Config &config) const;
    // A key that is absent changes nothing.
    void setValues(const QVariantMap &values, Config &config) const { m_access.load(values, key(), config); }
    void save(QSettings &file, const Config &config) const;
    void load(const QSettings &file, Config &config) const;
    bool same(const Config &a, const Config &b) const { return m_access.same(a, b); }
    void copy(const Config &from, Config &to) const { m_access.copy(from, to); }

private:
    static const Config &probe();
    static const Setting &at(const void *addressInProbe);

    const char *m_key;
    SettingGroups m_groups;
    Access m_access;
    double m_minimum = 0.0;
    double m_maximum = 0.0;
    Unit m_unit = Unit::None;
    bool m_themed = false;
};
