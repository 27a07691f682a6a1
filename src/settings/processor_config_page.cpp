#include "settings/processor_config_page.h"

#include "app/uap_profile.h"
#include "widgets/field_form.h"

#include <QCheckBox>

ProcessorConfigPage::ProcessorConfigPage(QWidget *parent) : ConfigPage(tr("Processor"), parent)
{
    using Type = Config::ProcessorType;
    Choices<Type> types;
    for (const Type type : {Type::Asterix, Type::ModeS, Type::AleniaSirM}) {
        types.append({Config::processorName(type), type});
    }
    m_type = addChoice(tr("&Processor:"), &Config::processorType, types,
        tr("What the messages of the input are: it must fit what the sensor sends."));
    setChooser(m_type);
    addAsterixRows();
    addModeSRows();
    addSirMRows();
    form()->addStretch();
    connect(m_type, &QComboBox::currentIndexChanged, this, &ProcessorConfigPage::showChosen);
    showChosen();
}

void ProcessorConfigPage::addAsterixRows()
{
    using Format = Config::AsterixFormat;
    Choices<Format> formats;
    for (const Format format : {Format::Raw, Format::Hdlc, Format::ManagAir}) {
        formats.append({Config::asterixFormatName(format), format});
    }
    Choices<int> profiles;
    for (const UapProfile &profile : uapProfiles()) {
        profiles.append({profile.name(), static_cast<int>(profiles.size())});
    }
    m_asterixFields = {
        addChoice(tr("&Format:"), &Config::processorAsterixFormat, formats,
            tr("What the data blocks are wrapped in on the line.")),
        addChoice(tr("U&ser application profile:"), &Config::processorAsterixUap, profiles,
            tr("The edition of the category that the sensor encodes. Automatic finds it out block by block.")),
        addSwitch(tr("&Drop messages with another SAC/SIC than the sensor's"), &Config::processorAsterixVerifySacSic,
            tr("Keeps the reports of other sensors on the same line off the picture.")),
        addSwitch(tr("Ignore &WGS-84 positions"), &Config::processorAsterixIgnoreWgs84Coordinates,
            tr("For MLAT and SDPS sensors: places tracks by their Cartesian position.")),
        addSwitch(tr("Ignore &Cartesian positions"), &Config::processorAsterixIgnoreCartesianCoordinates,
            tr("For MLAT and SDPS sensors: places tracks by their WGS-84 position.")),
        addSwitch(tr("Correct the &longitude wrap"), &Config::processorAsterixCorrectLongitudeWrap,
            tr("For SDPS sensors that let longitudes overflow: brings them back to -180° to 180°.")),
    };
}

void ProcessorConfigPage::addModeSRows()
{
    using Encapsulation = korvane::modes::ModeSEncapsulation;
    Choices<Encapsulation::Format> encapsulations;
    for (const auto format : {Encapsulation::Raw, Encapsulation::Avr, Encapsulation::Beast, Encapsulation::RawRssi}) {
        encapsulations.append({QString::fromStdString(Encapsulation::name(format)), format});
    }
    m_modeSFields = {addChoice(tr("&Encapsulation:"), &Config::processorModeSEncapsulation, encapsulations,
                         tr("How the receiver hands out the frames.")),
        addSwitch(tr("&Ignore the receiver's time stamps"), &Config::processorModeSIgnoreTimeStamp,
            tr("Dates a frame when it arrives. Right unless the receiver's clock is better than the line.")),
        addNumber(tr("Forget a silent &target after:"), &Config::processorModeSNoUpdatedTargetDeletionTime,
            tr("How long the decoder keeps what it knows of an aircraft that is no longer heard."))};
    m_baroCheck = addSwitch(tr("Check &barometric altitudes for jumps"), &Config::processorModeSBaroAltituteChecking,
        tr("Drops altitudes that an aircraft cannot have reached since the last one."));
    auto *time = addNumber(tr("Compare &with altitudes up to:"), &Config::processorModeSBaroAltituteCheckingTime,
        tr("The age up to which the last altitude is compared; an older one is replaced whatever comes."));
    auto *change = addNumber(tr("Largest &change:"), &Config::processorModeSBaroAltituteMaxChange,
        tr("An altitude that differs by more from the last one is dropped."));
    m_modeSFields += {m_baroCheck, time, change};
    for (QSpinBox *box : {time, change}) {
        form()->setRowEnabled(box, false);
        connect(m_baroCheck, &QCheckBox::toggled, box, [this, box](bool on) { form()->setRowEnabled(box, on); });
    }
}

void ProcessorConfigPage::addSirMRows()
{
    using Format = Config::AleniaSirMFormat;
    Choices<Format> formats;
    for (const Format format : {Format::Raw, Format::Hdlc, Format::ManagAir}) {
        formats.append({Config::aleniaSirMFormatName(format), format});
    }
    m_sirMFields = {addChoice(tr("F&ormat:"), &Config::processorAleniaSirMFormat, formats,
        tr("What the radar's messages are wrapped in on the line."))};
}

void ProcessorConfigPage::showChosen()
{
    const auto chosen = static_cast<Config::ProcessorType>(m_type->currentData().toInt());
    const auto show = [this, chosen](const QList<QWidget *> &fields, Config::ProcessorType type) {
        for (QWidget *field : fields) {
            form()->setRowVisible(field, chosen == type);
        }
    };
    show(m_asterixFields, Config::ProcessorType::Asterix);
    show(m_modeSFields, Config::ProcessorType::ModeS);
    show(m_sirMFields, Config::ProcessorType::AleniaSirM);
}
