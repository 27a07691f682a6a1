#include "app/theme.h"

#include "app/setting.h"

#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

struct WindowPart {
    const char *name;
    QPalette::ColorRole role;
};

// A palette's other roles follow from "button" and "window".
constexpr std::array WindowParts{
    WindowPart{"window", QPalette::Window},
    WindowPart{"windowText", QPalette::WindowText},
    WindowPart{"base", QPalette::Base},
    WindowPart{"alternateBase", QPalette::AlternateBase},
    WindowPart{"text", QPalette::Text},
    WindowPart{"placeholderText", QPalette::PlaceholderText},
    WindowPart{"button", QPalette::Button},
    WindowPart{"buttonText", QPalette::ButtonText},
    WindowPart{"highlight", QPalette::Highlight},
    WindowPart{"highlightedText", QPalette::HighlightedText},
    WindowPart{"link", QPalette::Link},
    WindowPart{"linkVisited", QPalette::LinkVisited},
    WindowPart{"toolTipBase", QPalette::ToolTipBase},
    WindowPart{"toolTipText", QPalette::ToolTipText},
};
const QString DisabledText = QStringLiteral("disabledText");

// By key. The theme's name stands beside its settings.
QVariantMap themedValues(const Config &config)
{
    QVariantMap values;
    for (const Setting &setting : Setting::all()) {
        if (setting.themed()) {
            values.insert(setting.values(config));
        }
    }
    values.remove(Setting::of(&Config::displayTheme).key());
    return values;
}

QMap<QString, const Setting *> themedSettings()
{
    QMap<QString, const Setting *> settings;
    const Config defaults;
    for (const Setting &setting : Setting::all()) {
        if (setting.themed()) {
            for (const QString &key : setting.values(defaults).keys()) {
                settings.insert(key, &setting);
            }
        }
    }
    settings.remove(Setting::of(&Config::displayTheme).key());
    return settings;
}

QColor colorOf(const QJsonValue &value)
{
    return QColor::isValidColor(value.toString()) ? QColor(value.toString()) : QColor();
}

QJsonValue jsonOf(const QVariant &value)
{
    if (value.typeId() != QMetaType::QColor) {
        return QJsonValue::fromVariant(value);
    }
    const auto color = value.value<QColor>();
    return color.alpha() == 255 ? color.name() : color.name(QColor::HexArgb);
}

// Null when it cannot be a value of the setting, whose default tells the type.
QVariant valueOf(const QJsonValue &value, const Setting &setting, const QVariant &standard)
{
    switch (standard.typeId()) {
    case QMetaType::QColor:
        return colorOf(value).isValid() ? QVariant(colorOf(value)) : QVariant();
    case QMetaType::Bool:
        return value.isBool() ? value.toVariant() : QVariant();
    case QMetaType::QString:
        return value.isString() ? value.toVariant() : QVariant();
    default:
        break;
    }
    const double number = value.toDouble(NAN);
    const bool whole = standard.typeId() == QMetaType::Double || number == std::floor(number);
    const bool inRange = number >= setting.minimum() && number <= setting.maximum();
    return whole && inRange ? QVariant(number) : QVariant();
}

} // namespace

const QString Theme::Classic = QStringLiteral("Classic");

QString Theme::shownName(const QString &name)
{
    static constexpr const char *Own[] = {QT_TRANSLATE_NOOP("Theme", "Classic"), QT_TRANSLATE_NOOP("Theme", "Night"),
        QT_TRANSLATE_NOOP("Theme", "Dusk"), QT_TRANSLATE_NOOP("Theme", "Day")};
    const auto own = std::find(std::begin(Own), std::end(Own), name);
    return own == std::end(Own) ? name : tr(*own);
}

Theme::Theme(const QString &name, const Config &config, const QJsonObject &trackFormat, const Theme &windows)
    : m_name(name), m_values(themedValues(config)), m_trackFormat(trackFormat), m_windows(windows.m_windows)
{
}

std::optional<Theme> Theme::fromJson(const QByteArray &json, QStringList *problems)
{
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(json, &error).object();
    Theme theme;
    theme.m_name = object[QStringLiteral("name")].toString().trimmed();
    if (error.error != QJsonParseError::NoError) {
        problems->append(tr("%1 at octet %2").arg(error.errorString()).arg(error.offset));
        return {};
    }
    if (theme.m_name.isEmpty()) {
        problems->append(tr("it has no name"));
        return {};
    }
    theme.readSettings(object[QStringLiteral("settings")].toObject(), problems);
    theme.m_trackFormat = object[QStringLiteral("tracks")].toObject();
    theme.readWindows(object[QStringLiteral("windows")].toObject(), problems);
    return theme;
}

void Theme::readSettings(const QJsonObject &object, QStringList *problems)
{
    const QVariantMap standard = themedValues(Config());
    const QMap<QString, const Setting *> settings = themedSettings();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const Setting *setting = settings.value(entry.key());
        if (!setting) {
            problems->append(tr("\"%1\" is no setting of a theme").arg(entry.key()));
            continue;
        }
        const QVariant value = valueOf(entry.value(), *setting, standard[entry.key()]);
        if (value.isNull()) {
            problems->append(tr("\"%1\" cannot be %2").arg(entry.key(), entry.value().toVariant().toString()));
        } else {
            m_values.insert(entry.key(), value);
        }
    }
}

void Theme::readWindows(const QJsonObject &object, QStringList *problems)
{
    const QStringList parts = windowParts();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const QColor color = colorOf(entry.value());
        if (!parts.contains(entry.key()) || !color.isValid()) {
            problems->append(tr("\"%1\" is no colour of a part of a window").arg(entry.key()));
        } else {
            m_windows.insert(entry.key(), color);
        }
    }
    // With some colours of the desktop among them, text could fall on its own colour.
    if (!m_windows.isEmpty() && m_windows.size() < parts.size()) {
        problems->append(tr("of the windows' colours some are missing, so they are left out"));
        m_windows.clear();
    }
}

QByteArray Theme::toJson() const
{
    QJsonObject settings;
    for (auto value = m_values.begin(); value != m_values.end(); ++value) {
        settings.insert(value.key(), jsonOf(value.value()));
    }
    QJsonObject windows;
    for (auto color = m_windows.begin(); color != m_windows.end(); ++color) {
        windows.insert(color.key(), jsonOf(color.value()));
    }
    const QJsonObject object{{QStringLiteral("name"), m_name}, {QStringLiteral("settings"), settings},
        {QStringLiteral("tracks"), m_trackFormat}, {QStringLiteral("windows"), windows}};
    return QJsonDocument(object).toJson();
}

void Theme::applyTo(Config &config) const
{
    Config look;
    for (const Setting &setting : Setting::all()) {
        if (setting.themed()) {
            setting.setValues(m_values, look);
            setting.copy(look, config);
        }
    }
    config.displayTheme = m_name;
}

std::optional<QPalette> Theme::palette() const
{
    if (m_windows.isEmpty()) {
        return {};
    }
    QPalette palette(m_windows[QStringLiteral("button")], m_windows[QStringLiteral("window")]);
    for (const WindowPart &part : WindowParts) {
        palette.setColor(part.role, m_windows[QLatin1String(part.name)]);
    }
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, m_windows[DisabledText]);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, m_windows[QStringLiteral("button")]);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, m_windows[DisabledText]);
    return palette;
}

QStringList Theme::windowParts()
{
    QStringList parts{DisabledText};
    for (const WindowPart &part : WindowParts) {
        parts.append(QLatin1String(part.name));
    }
    return parts;
}
