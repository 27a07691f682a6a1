#pragma once

#include "app/log_level.h"
#include "tracking/alert.h"
#include "tracking/report_ledger.h"

#include <QMap>
#include <QObject>
#include <QSharedPointer>

class AlertManager;
class TrackManager;
struct _ast_datablock_t;
struct _ast_datarecord_004_t;

// Safety-net messages (CAT004) to alerts on tracks, and which safety nets the server reports as running. Belongs to the
// thread of its two managers.
class AlertProcessor final : public QObject {
    Q_OBJECT

public:
    AlertProcessor(const QSharedPointer<AlertManager> &alertManager, const QSharedPointer<TrackManager> &trackManager,
        QObject *parent = nullptr);

    // Blocks that are not whole or of another category are passed over.
    void procMessage(const _ast_datablock_t &block);
    ReportOutcome procCat004Message(const _ast_datarecord_004_t &record);

    // Who is told what became of every record of a valid block; null, as at first: nobody. It must outlive the
    // processor.
    void setLedger(ReportLedger *ledger) { m_ledger = ledger; }

    // False also for a function that the server has not reported.
    bool alertStatus(Alert::Type type) const { return m_alertStatus.value(type); }
    void setAlertStatus(Alert::Type type, bool on);
    // Forgets what the server reported, as "off" for all that was on.
    void resetAlertStatus();

Q_SIGNALS:
    // The first report of a function, and every change after it.
    void alertStatusChanged(Alert::Type type, bool on);
    void message(LogLevel level, const QString &text);

private:
    ReportOutcome procCat004AliveMessage(const _ast_datarecord_004_t &record);
    ReportOutcome procCat004MsawMessage(const _ast_datarecord_004_t &record);
    ReportOutcome procCat004ApwMessage(const _ast_datarecord_004_t &record);
    ReportOutcome procCat004StcaMessage(const _ast_datarecord_004_t &record);
    ReportOutcome procCat004EocMessage(const _ast_datarecord_004_t &record);

    // Null when the message lacks its alert or a track number, which is reported.
    QSharedPointer<Alert> updateAlert(const _ast_datarecord_004_t &record, Alert::Type type);

    QSharedPointer<AlertManager> m_alertManager;
    QSharedPointer<TrackManager> m_trackManager;
    QMap<Alert::Type, bool> m_alertStatus;
    ReportLedger *m_ledger = nullptr;
};
