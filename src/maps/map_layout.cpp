#include "maps/map_layout.h"

#include <QDebug>
#include <QSettings>

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr double DefaultScale = 0.00302231; // pixels per metre

const auto DefaultName = QStringLiteral("default");
const auto LayoutsKey = QStringLiteral("layouts");
const auto CurrentKey = QStringLiteral("defaultLayout");
const auto NameKey = QStringLiteral("name");
const auto TransformKey = QStringLiteral("transform");

QString toText(const QTransform &transform)
{
    return QStringLiteral("%1,%2,%3,%4,%5,%6")
        .arg(transform.m11())
        .arg(transform.m12())
        .arg(transform.m21())
        .arg(transform.m22())
        .arg(transform.dx())
        .arg(transform.dy());
}

// Settings read an unquoted text with commas, as somebody may have typed it, as a list.
std::optional<QTransform> toTransform(const QVariant &value)
{
    const QStringList parts = value.toStringList().join(u',').split(u',');
    std::array<double, 6> numbers{};
    if (parts.size() != static_cast<qsizetype>(numbers.size())) {
        return std::nullopt;
    }
    std::transform(parts.begin(), parts.end(), numbers.begin(), [](const QString &part) { return part.toDouble(); });
    const auto [m11, m12, m21, m22, dx, dy] = numbers;
    return QTransform(m11, m12, 0.0, m21, m22, 0.0, dx, dy, 1.0);
}

} // namespace

MapLayout::MapLayout(QObject *parent) : QObject(parent), m_currentName(DefaultName) { }

void MapLayout::load(const QString &fileName)
{
    m_layouts.clear();
    QSettings settings(fileName, QSettings::IniFormat);
    const QString saved = settings.value(CurrentKey, DefaultName).toString();
    const QMap<QString, QString> positions = loadArray(settings);
    if (positions.isEmpty() && m_layouts.isEmpty()) {
        loadGroup(settings);
    }
    setCurrentLayout(positions.value(saved, saved));
}

// The names by their position. Entries that are not there are not asked for, however many the array claims.
QMap<QString, QString> MapLayout::loadArray(QSettings &settings)
{
    QMap<QString, QString> positions;
    settings.beginGroup(LayoutsKey);
    const int present = static_cast<int>(settings.childGroups().size());
    settings.endGroup();
    const int size = std::min(settings.beginReadArray(LayoutsKey), present);
    for (int i = 0; i < size; ++i) {
        settings.setArrayIndex(i);
        const QString name = settings.value(NameKey).toString();
        const auto transform = toTransform(settings.value(TransformKey));
        if (name == DefaultName || name.isEmpty() || !transform) {
            continue;
        }
        m_layouts.insert(name, *transform);
        positions.insert(QString::number(i + 1), name);
    }
    settings.endArray();
    return positions;
}

// Older files: one key per layout.
void MapLayout::loadGroup(QSettings &settings)
{
    settings.beginGroup(LayoutsKey);
    const QStringList names = settings.childKeys();
    for (const QString &name : names) {
        if (const auto transform = toTransform(settings.value(name))) {
            addLayout(name, *transform, false);
        }
    }
    settings.endGroup();
}

bool MapLayout::save(const QString &fileName) const
{
    QSettings settings(fileName, QSettings::IniFormat);
    settings.remove(LayoutsKey);
    QString current = DefaultName;
    settings.beginWriteArray(LayoutsKey, static_cast<int>(m_layouts.size()));
    int index = 0;
    for (auto it = m_layouts.cbegin(); it != m_layouts.cend(); ++it, ++index) {
        settings.setArrayIndex(index);
        settings.setValue(NameKey, it.key());
        settings.setValue(TransformKey, toText(it.value()));
        if (it.key() == m_currentName) {
            current = QString::number(index + 1);
        }
    }
    settings.endArray();
    settings.setValue(CurrentKey, current);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

void MapLayout::addLayout(const QString &name, const QTransform &transform, bool makeCurrent)
{
    if (name.isEmpty() || name == DefaultName) {
        return;
    }
    m_layouts.insert(name, transform);
    if (makeCurrent) {
        setCurrentLayout(name);
    }
}

void MapLayout::removeLayout(const QString &name)
{
    m_layouts.remove(name);
}

void MapLayout::saveCurrentView(const QString &name, bool makeCurrent)
{
    QTransform transform;
    Q_EMIT saveViewport(transform);
    addLayout(name, transform, makeCurrent);
}

void MapLayout::setCurrentLayout(const QString &name)
{
    m_currentName = m_layouts.contains(name) ? name : DefaultName;
    Q_EMIT currentLayoutChanged(currentLayout());
}

void MapLayout::setDefaultLayout(double x, double y)
{
    m_default = QTransform(DefaultScale, 0.0, 0.0, DefaultScale, -DefaultScale * x, DefaultScale * y);
}

void MapLayout::dump(const QString &heading) const
{
    qDebug() << heading << "current:" << m_currentName;
    qDebug() << DefaultName << toText(m_default);
    for (auto it = m_layouts.cbegin(); it != m_layouts.cend(); ++it) {
        qDebug() << it.key() << toText(it.value());
    }
}
