#include "settings/video_config_page.h"

#include "app/config.h"
#include "widgets/color_button.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QSpinBox>

VideoConfigPage::VideoConfigPage(QWidget *parent) : ConfigPage(tr("Radar Video"), parent)
{
    m_visible = new QCheckBox(tr("Show radar &video"));
    m_visible->setObjectName(QStringLiteral("videoVisible"));
    m_validity = new QSpinBox;
    m_validity->setObjectName(QStringLiteral("videoValidity"));
    m_validity->setRange(1, 3600);
    m_validity->setSuffix(tr(" s"));
    m_threshold = makeLevelBox(QStringLiteral("videoThreshold"));
    m_threshold->setToolTip(tr("Amplitudes up to this are not shown."));
    m_lowColor = new ColorButton(tr("Colour of Weak Echoes"));
    m_lowOpacity = makeLevelBox(QStringLiteral("videoLowOpacity"));
    m_highColor = new ColorButton(tr("Colour of Strong Echoes"));
    m_highOpacity = makeLevelBox(QStringLiteral("videoHighOpacity"));
    form()->addHeading(tr("Echoes"));
    form()->addField(m_visible);
    form()->addField(tr("&Afterglow:"), m_validity);
    form()->addField(tr("&Threshold (0-255):"), m_threshold);
    form()->addHeading(tr("Weak echoes"));
    form()->addField(tr("&Colour:"), m_lowColor);
    form()->addField(tr("&Opacity (0-255):"), m_lowOpacity);
    form()->addHeading(tr("Strong echoes"));
    form()->addField(tr("Co&lour:"), m_highColor);
    form()->addField(tr("O&pacity (0-255):"), m_highOpacity);
    form()->addStretch();
}

QSpinBox *VideoConfigPage::makeLevelBox(const QString &name)
{
    auto *box = new QSpinBox;
    box->setObjectName(name);
    box->setRange(0, 255);
    return box;
}

void VideoConfigPage::load(const Config &config)
{
    m_visible->setChecked(config.mapVideoVisible);
    m_validity->setValue(config.mapVideoValidity);
    m_threshold->setValue(config.mapVideoThreshold);
    m_lowColor->setColor(config.mapVideoLowColor);
    m_lowOpacity->setValue(config.mapVideoLowOpacity);
    m_highColor->setColor(config.mapVideoHighColor);
    m_highOpacity->setValue(config.mapVideoHighOpacity);
}

void VideoConfigPage::store(Config *config) const
{
    config->mapVideoVisible = m_visible->isChecked();
    config->mapVideoValidity = m_validity->value();
    config->mapVideoThreshold = m_threshold->value();
    config->mapVideoLowColor = m_lowColor->color();
    config->mapVideoLowOpacity = m_lowOpacity->value();
    config->mapVideoHighColor = m_highColor->color();
    config->mapVideoHighOpacity = m_highOpacity->value();
}
