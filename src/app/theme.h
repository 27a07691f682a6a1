#pragma once

#include "app/config.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QMap>
#include <QPalette>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

// How the terminal looks, under one name: values of the settings that a theme may hold (Setting::themed), how tracks
// are formatted, and the colours of the windows. A plain value. Its file is JSON: "name"; "settings" with the keys and
// values of the settings file, colours as "#RRGGBB" or "#AARRGGBB"; "tracks" with the label font and the symbol size;
// "windows" with a colour for each part of a window that windowParts() names.
class Theme {
    Q_DECLARE_TR_FUNCTIONS(Theme)

public:
    // The look that settings have by themselves.
    static const QString Classic;
    // A theme's name as the operator reads it: those of the program's own are translated.
    static QString shownName(const QString &name);

    Theme() = default;
    // The look that these settings have now, with a track format, and windows as another theme has them.
    Theme(const QString &name, const Config &config, const QJsonObject &trackFormat, const Theme &windows);

    // What a theme cannot have, or not with that value, is left out and told in problems, a line each. Nothing for
    // what is no theme at all; then the line says why.
    static std::optional<Theme> fromJson(const QByteArray &json, QStringList *problems);
    QByteArray toJson() const;

    const QString &name() const { return m_name; }
    // Every setting that themes may hold takes the theme's value, or its default where the theme has none; others stay.
    void applyTo(Config &config) const;
    // As in TrackDisplayFormat::look(); may lack any of it.
    const QJsonObject &trackFormat() const { return m_trackFormat; }
    // Nothing: the windows have the colours of the desktop.
    std::optional<QPalette> palette() const;
    static QStringList windowParts();

private:
    void readSettings(const QJsonObject &object, QStringList *problems);
    void readWindows(const QJsonObject &object, QStringList *problems);

    QString m_name = Classic;
    QVariantMap m_values; // by key
    QJsonObject m_trackFormat;
    QMap<QString, QColor> m_windows; // by part
};
