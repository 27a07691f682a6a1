#include "tracking/smr_tracker.h"

#include "tracking/report_items.h"

SmrTracker::SmrTracker(const QSharedPointer<SmrSensorInfo> &sensor, const QSharedPointer<TrackManager> &trackManager,
    Projector *projector, QObject *parent)
    : Tracker(trackManager, projector, parent), m_sensor(sensor)
{
}

void SmrTracker::procAsterixMessage(const _ast_datablock_t &block)
{
    if (!block.valid || block.category != 10) {
        return;
    }
    reports::forEachRecord<_ast_datarecord_010_t>(
        block, ast_datarecord_010_disassemble, [this](const auto &record) { procCat010Message(record); });
}

void SmrTracker::procCat010Message(const _ast_datarecord_010_t &record)
{
    if (!record.i161.present) {
        debug([] { return tr("SMR Tracker: CAT010 message has no valid track number (I010/161), ignore."); });
        return;
    }
    if (!record.i040.present) {
        return;
    }
    const auto track = findOrCreate(record.i161.trackNumber);
    if (!track) {
        return;
    }
    track->setType(Track::Smr);
    track->setGround(true);
    track->setSpi(record.i020.spi);
    track->setState(record.i170.present && record.i170.cnf ? Track::Tentative : Track::Confirmed);
    place(*track, m_sensor->location(), record.i040.rho, record.i040.theta);
    reports::setVelocity(*track, record.i200);
    track->recordHistory(trackManager().now());
}
