#include "settings/track_config_page.h"

#include "widgets/field_form.h"

TrackConfigPage::TrackConfigPage(QWidget *parent) : ConfigPage(tr("Tracks"), parent)
{
    addSymbolRows();
    addLabelRows();
    form()->addStretch();
}

void TrackConfigPage::addSymbolRows()
{
    form()->addHeading(tr("Symbols"));
    addColor(tr("&Symbols and vectors:"), tr("Symbol Colour"), &Config::trackSymbolColor);
    addColor(tr("Casing ro&und symbols:"), tr("Casing Colour"), &Config::trackSymbolCasingColor);
    addColor(tr("&Coasting tracks:"), tr("Colour of Coasting Tracks"), &Config::trackCoastingColor);
    addColor(tr("&Emergencies and cautions:"), tr("Caution Colour"), &Config::trackCautionColor);
}

void TrackConfigPage::addLabelRows()
{
    form()->addHeading(tr("Labels"));
    addChoice(tr("La&yout:"), &Config::trackLabelLayout,
        {{tr("Standard"), Config::TrackLabelLayout::Standard}, {tr("Compact"), Config::TrackLabelLayout::Compact}},
        tr("Compact leaves away what is not known and needs two lines at most."));
    addSwitch(tr("Arrange labels auto&matically"), &Config::trackLabelAutoPlace,
        tr("Labels keep clear of each other and of symbols. One that you have dragged stays where you put it."));
    addColor(tr("&Text:"), tr("Label Colour"), &Config::trackLabelColor);
    addColor(tr("&Details beside the identity:"), tr("Colour of Details"), &Config::trackLabelDetailColor);
    addColor(tr("Text of the se&lected track:"), tr("Colour of the Selected Label"), &Config::trackLabelSelectedColor);
    addColor(tr("&Alert:"), tr("Alert Colour"), &Config::trackLabelAlertColor);
    addColor(
        tr("Text on the ale&rt colour:"), tr("Colour of Text on the Alert Colour"), &Config::trackLabelAlertTextColor);
    addColor(tr("Lea&der lines:"), tr("Leader Colour"), &Config::trackLeaderColor);
    addColor(tr("&Background:"), tr("Label Background Colour"), &Config::trackLabelBackgroundColor);
    addNumber(tr("Background &opacity:"), &Config::trackLabelBackgroundOpacity,
        tr("0 % is transparent, 100 % hides what lies under the label."));
}
