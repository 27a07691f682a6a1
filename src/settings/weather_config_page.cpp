#include "settings/weather_config_page.h"

#include "app/config.h"
#include "app/weather_color_scheme.h"
#include "widgets/color_button.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>

#include <algorithm>

WeatherConfigPage::WeatherConfigPage(QWidget *parent) : ConfigPage(tr("Weather"), parent)
{
    addPictureRows();
    addColorRows();
    form()->addStretch();
}

void WeatherConfigPage::addPictureRows()
{
    m_visible = new QCheckBox(tr("Show &weather"));
    m_visible->setObjectName(QStringLiteral("weatherVisible"));
    m_ignoreEmpty = new QCheckBox(tr("&Keep the last picture when an empty one comes"));
    m_validity = new QSpinBox;
    m_validity->setObjectName(QStringLiteral("weatherValidity"));
    m_validity->setRange(1, 86400);
    m_validity->setSuffix(tr(" s"));
    m_autoVectorWidth = new QCheckBox(tr("&Make vectors as wide as they are apart"));
    m_vectorWidth = new QDoubleSpinBox;
    m_vectorWidth->setRange(0.01, 45.0);
    m_vectorWidth->setDecimals(3);
    m_vectorWidth->setSingleStep(0.05);
    m_vectorWidth->setSuffix(tr("°"));
    m_vectorWidth->setToolTip(tr("Also used when a picture has too few vectors to tell."));
    form()->addHeading(tr("Picture"));
    form()->addField(m_visible);
    form()->addField(m_ignoreEmpty);
    form()->addField(tr("Remove a picture a&fter:"), m_validity);
    form()->addField(m_autoVectorWidth);
    form()->addField(tr("&Vector width:"), m_vectorWidth);
}

void WeatherConfigPage::addColorRows()
{
    m_opacity = new QSpinBox;
    m_opacity->setObjectName(QStringLiteral("weatherOpacity"));
    m_opacity->setRange(0, 255);
    m_scheme = new QComboBox;
    m_scheme->setObjectName(QStringLiteral("weatherScheme"));
    m_scheme->addItem(tr("Choose a scheme ..."));
    for (const WeatherColorScheme &scheme : WeatherColorScheme::predefinedSchemes()) {
        m_scheme->addItem(scheme.name());
    }
    connect(m_scheme, &QComboBox::currentIndexChanged, this, &WeatherConfigPage::takeScheme);
    form()->addHeading(tr("Colours"));
    form()->addField(tr("&Opacity (0-255):"), m_opacity);
    form()->addField(tr("&Scheme:"), m_scheme);
    for (int level = 0; level < WeatherColorScheme::Levels; ++level) {
        m_colors.append(new ColorButton(tr("Weather Colour")));
        form()->addField(tr("Level &%1:").arg(level), m_colors.last());
    }
}

void WeatherConfigPage::takeScheme(int index)
{
    if (index < 1) {
        return;
    }
    const QList<QColor> colors = WeatherColorScheme::predefinedSchemes().at(index - 1).colors();
    for (int level = 0; level < m_colors.size(); ++level) {
        m_colors[level]->setColor(colors.value(level));
    }
}

void WeatherConfigPage::load(const Config &config)
{
    m_visible->setChecked(config.mapWeatherVisible);
    m_opacity->setValue(config.mapWeatherOpacity);
    m_validity->setValue(config.mapWeatherValidity);
    m_autoVectorWidth->setChecked(config.mapWeatherAutoVectorWidth);
    m_vectorWidth->setValue(config.mapWeatherVectorWidth);
    m_ignoreEmpty->setChecked(config.mapWeatherIgnoreEmptyPicture);
    for (int level = 0; level < m_colors.size(); ++level) {
        m_colors[level]->setColor(config.mapWeatherColor.value(level));
    }
}

void WeatherConfigPage::store(Config *config) const
{
    config->mapWeatherVisible = m_visible->isChecked();
    config->mapWeatherOpacity = m_opacity->value();
    config->mapWeatherValidity = m_validity->value();
    config->mapWeatherAutoVectorWidth = m_autoVectorWidth->isChecked();
    config->mapWeatherVectorWidth = m_vectorWidth->value();
    config->mapWeatherIgnoreEmptyPicture = m_ignoreEmpty->isChecked();
    for (int level = 0; level < std::min(m_colors.size(), config->mapWeatherColor.size()); ++level) {
        config->mapWeatherColor[level] = m_colors[level]->color();
    }
}
