#include "settings/track_config_page.h"

#include "app/config.h"
#include "widgets/color_button.h"
#include "widgets/field_form.h"

#include <QSpinBox>

TrackConfigPage::TrackConfigPage(QWidget *parent)
    : ConfigPage(tr("Track Colours"), parent), m_symbol(new ColorButton(tr("Symbol Colour"))),
      m_label(new ColorButton(tr("Label Colour"))),
      m_labelSelected(new ColorButton(tr("Colour of the Selected Label"))),
      m_labelAlert(new ColorButton(tr("Alert Colour"))),
      m_labelBackground(new ColorButton(tr("Label Background Colour"))), m_opacity(new QSpinBox)
{
    m_opacity->setObjectName(QStringLiteral("labelOpacity"));
    m_opacity->setRange(0, 255);
    m_opacity->setToolTip(tr("0 is transparent, 255 hides what lies under the label"));
    form()->addHeading(tr("Symbols"));
    form()->addField(tr("&Symbols, vectors and leader lines:"), m_symbol);
    form()->addHeading(tr("Labels"));
    form()->addField(tr("&Text:"), m_label);
    form()->addField(tr("Text of the s&elected track:"), m_labelSelected);
    form()->addField(tr("&Alert:"), m_labelAlert);
    form()->addField(tr("&Background:"), m_labelBackground);
    form()->addField(tr("Background &opacity (0 to 255):"), m_opacity);
    form()->addStretch();
}

void TrackConfigPage::load(const Config &config)
{
    m_symbol->setColor(config.trackSymbolColor);
    m_label->setColor(config.trackLabelColor);
    m_labelSelected->setColor(config.trackLabelSelectedColor);
    m_labelAlert->setColor(config.trackLabelAlertColor);
    m_labelBackground->setColor(config.trackLabelBackgroundColor);
    m_opacity->setValue(config.trackLabelBackgroundOpacity);
}

void TrackConfigPage::store(Config *config) const
{
    config->trackSymbolColor = m_symbol->color();
    config->trackLabelColor = m_label->color();
    config->trackLabelSelectedColor = m_labelSelected->color();
    config->trackLabelAlertColor = m_labelAlert->color();
    config->trackLabelBackgroundColor = m_labelBackground->color();
    config->trackLabelBackgroundOpacity = m_opacity->value();
}
