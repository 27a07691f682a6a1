#include "processors/alert_processor.h"

#include "asterix/asterix.h"
#include "tracking/alert_manager.h"
#include "tracking/track.h"
#include "tracking/track_manager.h"

#include <QDebug>

#include <vector>

namespace {

enum MessageType : std::uint8_t { Alive = 1, Msaw = 4, Apw = 5, Stca = 7, EndOfConflict = 17 };

// The function whose messages have this type; None for those that the display has no indicator for.
Alert::Type functionOf(std::uint8_t messageType)
{
    switch (messageType) {
    case Msaw:
        return Alert::MSAW;
    case Apw:
        return Alert::APW;
    case Stca:
        return Alert::STCA;
    default:
        return Alert::None;
    }
}

// Fills in name and code.
QString withMessageType(const QString &text, std::uint8_t messageType)
{
    return text.arg(QString::fromLatin1(ast_snet_message_type_get_id(messageType)))
        .arg(messageType, 3, 10, QLatin1Char('0'));
}

// One of the tracks of an alert: where a message has it and where the alert keeps it.
struct Side {
    const char *missing; // what is said of a message without its number
    const char *changed; // and of an alert whose number changes
    _ast_item_track_number_t _ast_datarecord_004_t::*receivedNumber;
    _ast_item_alert_aircraft_t _ast_datarecord_004_t::*receivedAircraft;
    unsigned int (Alert::*otherTrackNumber)() const;
    void (Alert::*setOtherTrackNumber)(unsigned int);
    void (Alert::*setModeACode)(unsigned int);
    void (Alert::*setModeACodeValid)(bool);
    QSharedPointer<Track> (Alert::*track)() const;
    void (Alert::*setTrack)(const QSharedPointer<Track> &);
};

constexpr Side side1(const char *missing, const char *changed)
{
    return {missing, changed, &_ast_datarecord_004_t::i030, &_ast_datarecord_004_t::i170,
        &Alert::track1OtherTrackNumber, &Alert::setTrack1OtherTrackNumber, &Alert::setTrack1ModeACode,
        &Alert::setTrack1ModeACodeValid, &Alert::track1, &Alert::setTrack1};
}

constexpr Side side2(const char *missing, const char *changed)
{
    return {missing, changed, &_ast_datarecord_004_t::i035, &_ast_datarecord_004_t::i171,
        &Alert::track2OtherTrackNumber, &Alert::setTrack2OtherTrackNumber, &Alert::setTrack2ModeACode,
        &Alert::setTrack2ModeACodeValid, &Alert::track2, &Alert::setTrack2};
}

std::vector<Side> sidesOf(Alert::Type type)
{
    if (type == Alert::STCA) {
        return {side1("Invalid track 1 number.", "Track 1 number changed"),
            side2("Invalid track 2 number.", "Track 2 number changed")};
    }
    return {side1("Invalid track number.", "Track number changed")};
}

// The track linked before is not told: it keeps the alert in its own list.
void changeNumber(Alert &alert, const Side &side, unsigned int number, const QString &sender)
{
    const unsigned int previous = (alert.*side.otherTrackNumber)();
    if (previous == number) {
        return;
    }
    qDebug().noquote() << sender << side.changed << previous << "=>" << number;
    (alert.*side.setOtherTrackNumber)(number);
    (alert.*side.setTrack)({});
}

void linkTrack(const QSharedPointer<Alert> &alert, const Side &side, TrackManager &tracks)
{
    if (((*alert).*side.track)()) {
        return;
    }
    // The finder may return a track that the source has renumbered since.
    const unsigned int number = ((*alert).*side.otherTrackNumber)();
    const auto track = tracks.findTrackByOtherTrackNum(number);
    if (!track || track->otherTrackNumber() != number) {
        return;
    }
    ((*alert).*side.setTrack)(track);
    track->addAlert(alert);
}

void takeModeACode(Alert &alert, const Side &side, const _ast_datarecord_004_t &record)
{
    const auto &aircraft = record.*side.receivedAircraft;
    if (!aircraft.present || !aircraft.mode3APresent) {
        return;
    }
    (alert.*side.setModeACode)(aircraft.mode3A);
    (alert.*side.setModeACodeValid)(true);
}

} // namespace

AlertProcessor::AlertProcessor(
    const QSharedPointer<AlertManager> &alertManager, const QSharedPointer<TrackManager> &trackManager, QObject *parent)
    : QObject(parent), m_alertManager(alertManager), m_trackManager(trackManager)
{
}

void AlertProcessor::procMessage(const _ast_datablock_t &block)
{
    if (!block.valid || block.category != 4) {
        return;
    }
    m_alertManager->noteHeard();
    for (const _ast_datarecord_t &generic : block.records) {
        _ast_datarecord_004_t record;
        ast_datarecord_004_disassemble(&record, generic);
        const ReportOutcome outcome = procCat004Message(record);
        if (m_ledger) {
            m_ledger->takeRecord(block.category, generic, outcome);
        }
    }
}

ReportOutcome AlertProcessor::procCat004Message(const _ast_datarecord_004_t &record)
{
    if (!record.valid) {
        return ReportOutcome::Malformed;
    }
    if (!record.i000.present) {
        return ReportOutcome::Incomplete;
    }
    switch (record.i000.type) {
    case Alive:
        return procCat004AliveMessage(record);
    case Msaw:
        return procCat004MsawMessage(record);
    case Apw:
        return procCat004ApwMessage(record);
    case Stca:
        return procCat004StcaMessage(record);
    case EndOfConflict:
        return procCat004EocMessage(record);
    default:
        Q_EMIT message(
            LogLevel::Debug, withMessageType(tr("Unsupported CAT004 message type: %1 (%2)"), record.i000.type));
        return ReportOutcome::NoReader;
    }
}

ReportOutcome AlertProcessor::procCat004AliveMessage(const _ast_datarecord_004_t &record)
{
    if (!record.i060.present) {
        qDebug("CAT004 ALIVE message: Invalid staus.");
        return ReportOutcome::Incomplete;
    }
    for (int i = 0; i < record.i060.count; ++i) {
        const _ast_snet_status_t &status = record.i060.entries[i];
        const Alert::Type function = functionOf(status.type);
        if (function != Alert::None) {
            setAlertStatus(function, status.on);
        } else if (status.on) {
            Q_EMIT message(LogLevel::Debug, withMessageType(tr("Unsupported CAT004 status: %1 (%2)"), status.type));
        }
    }
    return ReportOutcome::Alert;
}

ReportOutcome AlertProcessor::procCat004MsawMessage(const _ast_datarecord_004_t &record)
{
    return updateAlert(record, Alert::MSAW) ? ReportOutcome::Alert : ReportOutcome::NoIdentity;
}

ReportOutcome AlertProcessor::procCat004ApwMessage(const _ast_datarecord_004_t &record)
{
    const auto alert = updateAlert(record, Alert::APW);
    if (!alert) {
        return ReportOutcome::NoIdentity;
    }
    if (record.i100.present && record.i100.areaNamePresent) {
        alert->setObjectName(QString::fromLatin1(record.i100.areaName));
    }
    return ReportOutcome::Alert;
}

ReportOutcome AlertProcessor::procCat004StcaMessage(const _ast_datarecord_004_t &record)
{
    return updateAlert(record, Alert::STCA) ? ReportOutcome::Alert : ReportOutcome::NoIdentity;
}

ReportOutcome AlertProcessor::procCat004EocMessage(const _ast_datarecord_004_t &record)
{
    if (!record.i040.present) {
        qDebug("CAT004 EOC message: Invalid alert id.");
        return ReportOutcome::NoIdentity;
    }
    const auto alert = m_alertManager->findAlertById(record.i040.id);
    if (!alert) {
        return ReportOutcome::Incomplete;
    }
    alert->setState(Alert::End, m_alertManager->now());
    return ReportOutcome::Alert;
}

QSharedPointer<Alert> AlertProcessor::updateAlert(const _ast_datarecord_004_t &record, Alert::Type type)
{
    const QString sender = QStringLiteral("CAT004 %1 message:").arg(Alert::typeString(type));
    const std::vector<Side> sides = sidesOf(type);
    if (!record.i040.present) {
        qDebug().noquote() << sender << "Invalid alert id.";
        return {};
    }
    for (const Side &side : sides) {
        if (!(record.*side.receivedNumber).present) {
            qDebug().noquote() << sender << side.missing;
            return {};
        }
    }
    const auto alert = m_alertManager->createAlert(record.i040.id);
    // Only an MSAW is refreshed. Any other alert starts anew with each message: its times move and its links stay.
    const bool refreshed = alert->active() && alert->type() == Alert::MSAW;
    if (!refreshed) {
        alert->reset();
        alert->setType(type);
    }
    alert->setState(Alert::Active, m_alertManager->now());
    for (const Side &side : sides) {
        const unsigned int number = (record.*side.receivedNumber).trackNumber;
        if (refreshed) {
            changeNumber(*alert, side, number, sender);
        } else {
            ((*alert).*side.setOtherTrackNumber)(number);
        }
    }
    for (const Side &side : sides) {
        linkTrack(alert, side, *m_trackManager);
    }
    for (const Side &side : sides) {
        takeModeACode(*alert, side, record);
    }
    return alert;
}

void AlertProcessor::setAlertStatus(Alert::Type type, bool on)
{
    if (m_alertStatus.contains(type) && m_alertStatus.value(type) == on) {
        return;
    }
    m_alertStatus[type] = on;
    Q_EMIT alertStatusChanged(type, on);
}

void AlertProcessor::resetAlertStatus()
{
    const QList<Alert::Type> running = m_alertStatus.keys(true);
    for (const Alert::Type type : running) {
        setAlertStatus(type, false);
    }
    m_alertStatus.clear();
}
