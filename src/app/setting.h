#pragma once

#include "app/config.h"
#include "app/setting_group.h"

#include <QString>

#include <span>

class QSettings;

// One setting: its key in the file, its group, unit and range, and the member of a record that it fills. The table of
// them is the only place that lists the settings; a setting's default is the initialiser of its member.
class Setting {
public:
    enum class Unit { None, Seconds, NauticalMiles, Metres, Feet, Degrees, Pixels, Percent };

    // What reads and writes one member of a record.
    struct Access {
        void (*save)(QSettings &file, const QString &key, const Config &config);
        void (*load)(const QSettings &file, const QString &key, Config &config);
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
    // What stands behind a number, with a blank in front where the unit takes one: " NM".
    QString unitSuffix() const;

    void save(QSettings &file, const Config &config) const { m_access.save(file, key(), config); }
    // A key that the file lacks changes nothing.
    void load(const QSettings &file, Config &config) const { m_access.load(file, key(), config); }
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
};
