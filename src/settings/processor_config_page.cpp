#include "settings/processor_config_page.h"

#include "app/config.h"
#include "widgets/combo_items.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QComboBox>

namespace {

QComboBox *makeTypeBox()
{
    using Type = Config::ProcessorType;
    auto *box = new QComboBox;
    for (const Type type : {Type::Asterix, Type::ModeS, Type::AleniaSirM}) {
        box->addItem(Config::processorName(type), static_cast<int>(type));
        if (type != Type::Asterix) {
            disableItem(box, box->count() - 1, ProcessorConfigPage::tr("These messages are not decoded yet."));
        }
    }
    return box;
}

QComboBox *makeFormatBox()
{
    using Format = Config::AsterixFormat;
    auto *box = new QComboBox;
    for (const Format format : {Format::Raw, Format::Hdlc, Format::ManagAir}) {
        box->addItem(Config::asterixFormatName(format), static_cast<int>(format));
    }
    return box;
}

// The profiles in the order of their selector in the settings.
QComboBox *makeUapBox()
{
    struct Profile {
        QString name;
        bool decoded;
    };
    const QList<Profile> profiles{{ProcessorConfigPage::tr("Automatic"), true},
        {ProcessorConfigPage::tr("Standard"), true}, {ProcessorConfigPage::tr("CAT001 plots"), true},
        {QStringLiteral("ASR10SS"), false}, {QStringLiteral("CAT021 0.23"), false},
        {QStringLiteral("CAT021 0.26"), false}, {QStringLiteral("CAT021 2.1"), false},
        {QStringLiteral("CAT021 2.7"), false}, {QStringLiteral("THALES"), false}};
    auto *box = new QComboBox;
    for (const Profile &profile : profiles) {
        box->addItem(profile.name, box->count());
        if (!profile.decoded) {
            disableItem(box, box->count() - 1, ProcessorConfigPage::tr("This profile is not decoded yet."));
        }
    }
    return box;
}

} // namespace

ProcessorConfigPage::ProcessorConfigPage(QWidget *parent)
    : ConfigPage(tr("Processor"), parent), m_type(makeTypeBox()), m_format(makeFormatBox()), m_uap(makeUapBox()),
      m_verifySacSic(new QCheckBox(tr("&Drop messages with another SAC/SIC than the sensor's"))),
      m_ignoreWgs84(new QCheckBox(tr("Ignore &WGS-84 positions"))),
      m_ignoreCartesian(new QCheckBox(tr("Ignore &Cartesian positions")))
{
    m_type->setObjectName(QStringLiteral("processorType"));
    m_format->setObjectName(QStringLiteral("asterixFormat"));
    m_uap->setObjectName(QStringLiteral("asterixUap"));
    m_verifySacSic->setObjectName(QStringLiteral("asterixVerifySacSic"));
    for (QCheckBox *box : {m_ignoreWgs84, m_ignoreCartesian}) {
        box->setEnabled(false);
        box->setToolTip(tr("For multilateration and system tracks, which are not received yet."));
    }
    form()->addField(tr("&Processor:"), m_type);
    form()->addHeading(tr("ASTERIX"));
    form()->addField(tr("&Format:"), m_format);
    form()->addField(tr("U&ser application profile:"), m_uap);
    form()->addField(m_verifySacSic);
    form()->addField(m_ignoreWgs84);
    form()->addField(m_ignoreCartesian);
    form()->addStretch();
}

void ProcessorConfigPage::load(const Config &config)
{
    selectValue(m_type, static_cast<int>(config.processorType));
    selectValue(m_format, static_cast<int>(config.processorAsterixFormat));
    selectValue(m_uap, config.processorAsterixUap);
    m_verifySacSic->setChecked(config.processorAsterixVerifySacSic);
    m_ignoreWgs84->setChecked(config.processorAsterixIgnoreWgs84Coordinates);
    m_ignoreCartesian->setChecked(config.processorAsterixIgnoreCartesianCoordinates);
}

void ProcessorConfigPage::store(Config *config) const
{
    config->processorType = static_cast<Config::ProcessorType>(m_type->currentData().toInt());
    config->processorAsterixFormat = static_cast<Config::AsterixFormat>(m_format->currentData().toInt());
    config->processorAsterixUap = m_uap->currentData().toInt();
    config->processorAsterixVerifySacSic = m_verifySacSic->isChecked();
    config->processorAsterixIgnoreWgs84Coordinates = m_ignoreWgs84->isChecked();
    config->processorAsterixIgnoreCartesianCoordinates = m_ignoreCartesian->isChecked();
}
