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
    addColor(tr("&Symbols and vectors:"), tr("Symbol Colour"), &Config::trackSymbolColor,
        tr("Colour of tracks that are updated as they should be."));
    addColor(tr("Casing ro&und symbols:"), tr("Casing Colour"), &Config::trackSymbolCasingColor,
        tr("Colour of the edge that sets symbols off from whatever lies under them."));
    addColor(tr("&Coasting tracks:"), tr("Colour of Coasting Tracks"), &Config::trackCoastingColor,
        tr("Colour of tracks without a report for too long."));
    addColor(tr("&Emergencies and cautions:"), tr("Caution Colour"), &Config::trackCautionColor,
        tr("Colour of emergencies and of what needs a look but is no alert."));
}

void TrackConfigPage::addLabelRows()
{
    form()->addHeading(tr("Labels"));
    addChoice(tr("La&yout:"), &Config::trackLabelLayout,
        {{tr("Standard"), Config::TrackLabelLayout::Standard}, {tr("Compact"), Config::TrackLabelLayout::Compact}},
        tr("Compact leaves away what is not known and needs two lines at most."));
    addSwitch(tr("Arrange labels auto&matically"), &Config::trackLabelAutoPlace,
        tr("Labels keep clear of each other and of symbols. One that you have dragged stays where you put it."));
    addColor(tr("&Text:"), tr("Label Colour"), &Config::trackLabelColor,
        tr("Colour of a label's first line, which says who it is."));
    addColor(tr("&Details beside the identity:"), tr("Colour of Details"), &Config::trackLabelDetailColor,
        tr("Colour of level, speed and all else in a label."));
    addColor(tr("Text of the se&lected track:"), tr("Colour of the Selected Label"), &Config::trackLabelSelectedColor,
        tr("Colour of the label and the symbol of the track that is selected."));
    addColor(tr("&Alert:"), tr("Alert Colour"), &Config::trackLabelAlertColor,
        tr("Colour of tracks with an alert and of the ground behind the alert's name."));
    addColor(tr("Text on the ale&rt colour:"), tr("Colour of Text on the Alert Colour"),
        &Config::trackLabelAlertTextColor, tr("Colour of the alert's name in a label."));
    addColor(tr("Lea&der lines:"), tr("Leader Colour"), &Config::trackLeaderColor,
        tr("Colour of the lines from symbols to their labels."));
    addColor(tr("&Background:"), tr("Label Background Colour"), &Config::trackLabelBackgroundColor,
        tr("Colour of the ground behind the text of a label."));
    addNumber(tr("Background &opacity:"), &Config::trackLabelBackgroundOpacity,
        tr("0 % is transparent, 100 % hides what lies under the label."));
}
