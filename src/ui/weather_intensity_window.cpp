#include "ui/weather_intensity_window.h"

#include "radar_painting/geo_weather_map.h"
#include "widgets/dialog_layout.h"
#include "widgets/figure_font.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

namespace {

constexpr QSize swatchSize(36, 16);

QIcon swatch(const QColor &color, const QWidget &widget)
{
    QPixmap pixmap(swatchSize * widget.devicePixelRatioF());
    pixmap.setDevicePixelRatio(widget.devicePixelRatioF());
    QPainter painter(&pixmap);
    painter.fillRect(QRect(QPoint(0, 0), swatchSize), color);
    painter.setPen(widget.palette().color(QPalette::WindowText));
    painter.drawRect(QRectF(0.5, 0.5, swatchSize.width() - 1.0, swatchSize.height() - 1.0));
    painter.end();
    // The same while disabled: the colour is what it tells.
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Disabled);
    return icon;
}

} // namespace

WeatherIntensityWindow::WeatherIntensityWindow(GeoWeatherMap *weather, QWidget *parent)
    : GeometryDialog(QStringLiteral("WeatherIntensityWindow"), parent), m_weather(weather)
{
    setWindowTitle(tr("Weather Intensity"));
    auto *levels = new QWidget(this);
    auto *grid = new QGridLayout(levels);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(24);
    grid->setColumnStretch(0, 1);
    // The strongest on top, as on the scale beside a weather picture.
    for (int level = GeoWeatherMap::LevelCount - 1; level >= 0; --level) {
        addLevel(level);
        grid->addWidget(m_levels.first().box, GeoWeatherMap::LevelCount - level, 0);
        grid->addWidget(m_levels.first().count, GeoWeatherMap::LevelCount - level, 1);
    }
    auto *buttons = layOutDialog(this, levels, QDialogButtonBox::Close);
    const auto addButton = [this, buttons](const QString &text, bool visible) {
        auto *button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        connect(button, &QPushButton::clicked, this, [this, visible] { setAll(visible); });
    };
    addButton(tr("&All"), true);
    addButton(tr("&None"), false);
    connect(m_weather, &GeoWeatherMap::pictureChanged, this, &WeatherIntensityWindow::refresh);
    refresh();
}

void WeatherIntensityWindow::addLevel(int level)
{
    auto *box = new QCheckBox(tr("Level &%1").arg(level), this);
    box->setObjectName(QStringLiteral("level%1").arg(level));
    box->setIconSize(swatchSize);
    connect(box, &QCheckBox::toggled, m_weather, [this, level](bool on) { m_weather->setLevelVisible(level, on); });
    auto *count = new QLabel(this);
    count->setObjectName(QStringLiteral("count%1").arg(level));
    count->setFont(figureFont());
    count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    count->setMinimumWidth(count->fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    count->setToolTip(tr("Vectors of this level in the picture"));
    m_levels.prepend({box, count});
}

void WeatherIntensityWindow::refresh()
{
    for (int level = 0; level < m_levels.size(); ++level) {
        const QColor color = m_weather->levelColor(level);
        QCheckBox *box = m_levels[level].box;
        box->setIcon(color.isValid() ? swatch(color, *this) : QIcon());
        box->setEnabled(color.isValid());
        box->setToolTip(color.isValid() ? QString() : tr("The colour scheme has no colour for this level."));
        box->setChecked(m_weather->levelVisible(level));
        m_levels[level].count->setText(QString::number(m_weather->vectorCount(level)));
    }
}

void WeatherIntensityWindow::setAll(bool visible)
{
    for (const Level &level : m_levels) {
        level.box->setChecked(visible);
    }
}
