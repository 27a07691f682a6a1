#include "settings/video_config_page.h"

#include "widgets/field_form.h"

VideoConfigPage::VideoConfigPage(QWidget *parent) : ConfigPage(tr("Radar Video"), parent)
{
    const QString opacityTip = tr("0 is transparent, 255 hides what lies under the echo.");
    form()->addHeading(tr("Echoes"));
    addSwitch(tr("Show radar &video"), &Config::mapVideoVisible,
        tr("Draws the echoes as the radar's receiver has them (CAT240)."));
    addNumber(tr("&Afterglow:"), &Config::mapVideoValidity, tr("How long an echo takes to fade away."));
    addNumber(tr("&Threshold (0-255):"), &Config::mapVideoThreshold, tr("Amplitudes up to this are not shown."));
    form()->addHeading(tr("Weak echoes"));
    addColor(tr("&Colour:"), tr("Colour of Weak Echoes"), &Config::mapVideoLowColor,
        tr("Colour of echoes just above the threshold; stronger ones go over to the other colour."));
    addNumber(tr("&Opacity (0-255):"), &Config::mapVideoLowOpacity, opacityTip);
    form()->addHeading(tr("Strong echoes"));
    addColor(tr("Co&lour:"), tr("Colour of Strong Echoes"), &Config::mapVideoHighColor,
        tr("Colour of echoes of full amplitude."));
    addNumber(tr("O&pacity (0-255):"), &Config::mapVideoHighOpacity, opacityTip);
    form()->addStretch();
}
