#include "settings/display_config_page.h"

#include "app/config.h"
#include "widgets/color_button.h"
#include "widgets/coordinate_edit.h"
#include "widgets/field_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QStyleFactory>
#include <QTimeZone>

namespace {

// Stands for the system's own zone in the settings.
const QString localZone = QStringLiteral("LCL");

QComboBox *makeTimeZoneBox()
{
    auto *box = new QComboBox;
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->completer()->setFilterMode(Qt::MatchContains);
    box->completer()->setCompletionMode(QCompleter::PopupCompletion);
    box->addItem(localZone);
    const QList<QByteArray> zones = QTimeZone::availableTimeZoneIds();
    for (const QByteArray &zone : zones) {
        box->addItem(QString::fromLatin1(zone));
    }
    box->setToolTip(DisplayConfigPage::tr("Time zone of the clock; %1 is the one of this computer").arg(localZone));
    return box;
}

} // namespace

DisplayConfigPage::DisplayConfigPage(QWidget *parent)
    : ConfigPage(tr("Display"), parent), m_center(new CoordinateEdit(GeoCoordinate::NormalPrecision)),
      m_background(new ColorButton(tr("Background Colour"))), m_timeZone(makeTimeZoneBox()), m_style(new QComboBox),
      m_toolbarText(new QCheckBox(tr("Te&xt beside the icons of the tool bars")))
{
    m_center->setObjectName(QStringLiteral("displayCenter"));
    m_timeZone->setObjectName(QStringLiteral("displayTimeZone"));
    m_style->setObjectName(QStringLiteral("displayStyle"));
    m_style->addItems(QStyleFactory::keys());
    form()->addHeading(tr("Plan view"));
    form()->addField(tr("&Centre:"), m_center);
    form()->addField(tr("&Background:"), m_background);
    form()->addHeading(tr("Window"));
    form()->addField(tr("&Time zone:"), m_timeZone);
    form()->addField(tr("St&yle:"), m_style);
    form()->addField(m_toolbarText);
    form()->addStretch();
}

void DisplayConfigPage::load(const Config &config)
{
    m_center->setCoordinate(config.displayCenterCoordinate);
    m_background->setColor(config.mapBackgroundColor);
    m_timeZone->setCurrentText(config.displayLocalTimeZoneName);
    if (m_style->findText(config.displayStyle, Qt::MatchFixedString) < 0) {
        m_style->addItem(config.displayStyle); // of another system; stays chosen until somebody chooses otherwise
    }
    m_style->setCurrentIndex(m_style->findText(config.displayStyle, Qt::MatchFixedString));
    m_toolbarText->setChecked(config.displayToolbarText);
}

QString DisplayConfigPage::timeZoneProblem() const
{
    const QString zone = m_timeZone->currentText().trimmed();
    if (zone.isEmpty()) {
        return tr("Choose a time zone.");
    }
    // Not every name of a zone is listed as available: "Etc/UTC" is an alias.
    if (zone == localZone || QTimeZone(zone.toLatin1()).isValid()) {
        return {};
    }
    return tr("There is no time zone \"%1\".").arg(zone);
}

bool DisplayConfigPage::validate()
{
    const bool centred = m_center->coordinate().isValid();
    const bool centreGood = form()->check(m_center, centred ? QString() : tr("INVALID COORDINATE"));
    return form()->check(m_timeZone, timeZoneProblem()) && centreGood;
}

void DisplayConfigPage::store(Config *config) const
{
    config->displayCenterCoordinate = m_center->coordinate();
    config->mapBackgroundColor = m_background->color();
    config->displayLocalTimeZoneName = m_timeZone->currentText().trimmed();
    // Style names are compared without regard to case: another spelling is no change.
    if (config->displayStyle.compare(m_style->currentText(), Qt::CaseInsensitive) != 0) {
        config->displayStyle = m_style->currentText();
    }
    config->displayToolbarText = m_toolbarText->isChecked();
}
