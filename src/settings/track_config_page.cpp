#include "settings/track_config_page.h"

#include "widgets/field_form.h"

TrackConfigPage::TrackConfigPage(QWidget *parent) : ConfigPage(tr("Track Colours"), parent)
{
    form()->addHeading(tr("Symbols"));
    addColor(tr("&Symbols, vectors and leader lines:"), tr("Symbol Colour"), &Config::trackSymbolColor);
    form()->addHeading(tr("Labels"));
    addColor(tr("&Text:"), tr("Label Colour"), &Config::trackLabelColor);
    addColor(tr("Text of the s&elected track:"), tr("Colour of the Selected Label"), &Config::trackLabelSelectedColor);
    addColor(tr("&Alert:"), tr("Alert Colour"), &Config::trackLabelAlertColor);
    addColor(tr("&Background:"), tr("Label Background Colour"), &Config::trackLabelBackgroundColor);
    addNumber(tr("Background &opacity:"), &Config::trackLabelBackgroundOpacity,
        tr("0 % is transparent, 100 % hides what lies under the label."));
    form()->addStretch();
}
