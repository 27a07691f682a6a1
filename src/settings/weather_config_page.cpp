#include "settings/weather_config_page.h"

#include "app/weather_color_scheme.h"
#include "widgets/color_button.h"
#include "widgets/field_form.h"

WeatherConfigPage::WeatherConfigPage(QWidget *parent) : ConfigPage(tr("Weather"), parent)
{
    addPictureRows();
    addColorRows();
    form()->addStretch();
}

void WeatherConfigPage::addPictureRows()
{
    form()->addHeading(tr("Picture"));
    addSwitch(tr("Show &weather"), &Config::mapWeatherVisible, tr("Draws the radar's weather pictures (CAT008)."));
    addSwitch(tr("&Keep the last picture when an empty one comes"), &Config::mapWeatherIgnoreEmptyPicture,
        tr("For radars that send empty pictures between full ones."));
    addNumber(tr("Remove a picture a&fter:"), &Config::mapWeatherValidity,
        tr("How long a picture is shown when no other one follows."));
    addSwitch(tr("&Make vectors as wide as they are apart"), &Config::mapWeatherAutoVectorWidth,
        tr("Leaves no gaps between the vectors of a picture, whatever their number."));
    addNumber(tr("&Vector width:"), &Config::mapWeatherVectorWidth, 3, 0.05,
        tr("Also used when a picture has too few vectors to tell."));
}

void WeatherConfigPage::addColorRows()
{
    form()->addHeading(tr("Colours"));
    addNumber(tr("&Opacity (0-255):"), &Config::mapWeatherOpacity,
        tr("0 is transparent, 255 hides what lies under the weather."));
    m_scheme = new QComboBox;
    m_scheme->addItem(tr("Choose a scheme ..."));
    for (const WeatherColorScheme &scheme : WeatherColorScheme::predefinedSchemes()) {
        m_scheme->addItem(scheme.name());
    }
    connect(m_scheme, &QComboBox::currentIndexChanged, this, &WeatherConfigPage::takeScheme);
    m_scheme->setToolTip(tr("Fills in the colours of all levels; each of them can be changed afterwards."));
    form()->addField(tr("&Scheme:"), m_scheme);
    addLevelRows();
}

void WeatherConfigPage::addLevelRows()
{
    for (int level = 0; level < WeatherColorScheme::Levels; ++level) {
        m_colors.append(new ColorButton(tr("Weather Colour")));
        m_colors.last()->setToolTip(tr("Colour of weather of this intensity, 0 being the lightest."));
        form()->addField(tr("Level &%1:").arg(level), m_colors.last());
    }
    bind<QList<QColor>>(
        m_scheme, &Config::mapWeatherColor,
        [this](const QList<QColor> &colors) {
            for (int level = 0; level < m_colors.size(); ++level) {
                m_colors[level]->setColor(colors.value(level));
            }
        },
        [this] {
            QList<QColor> colors;
            for (const ColorButton *button : std::as_const(m_colors)) {
                colors.append(button->color());
            }
            return std::optional(colors);
        });
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
