#include "engine/stream_tap.h"

#include "asterix/asterix.h"
#include "sirm/alenia_sir_m_radar_message.h"

#include <QMutexLocker>

#include <algorithm>
#include <utility>

namespace {

// A batch that is handed over because it is time, not because it is full, tells little of the next one.
std::size_t usualRoom(std::size_t before, std::size_t taken)
{
    return std::max(taken, before - before / 4);
}

} // namespace

StreamTap::Taken StreamTap::takeAll()
{
    Taken taken;
    const QMutexLocker lock(&m_mutex);
    taken.batches.swap(m_waiting);
    taken.missed = std::exchange(m_missed, 0);
    return taken;
}

// The one that is being filled, with room for so many octets more; larger ones get a batch of their own.
StreamBatch &StreamTap::batchFor(std::size_t octets)
{
    if (m_batch) {
        const std::size_t entries = m_batch->messages.size() + m_batch->records.size();
        if (m_batch->octets.size() + octets > BatchOctets || entries >= BatchEntries) {
            flush();
        }
    }
    if (!m_batch) {
        m_batch = std::make_shared<StreamBatch>();
        m_batch->octets.reserve(m_usualOctets);
        if (m_content == Content::Messages) {
            m_batch->messages.reserve(m_usualEntries);
        } else {
            m_batch->records.reserve(m_usualEntries);
        }
    }
    return *m_batch;
}

quint32 StreamTap::store(StreamBatch &batch, const unsigned char *octets, std::size_t size)
{
    const std::size_t offset = batch.octets.size();
    batch.octets.insert(batch.octets.end(), octets, octets + size);
    return static_cast<quint32>(offset);
}

void StreamTap::addMessage(std::span<const unsigned char> message)
{
    if (m_content != Content::Messages) {
        return;
    }
    StreamBatch &batch = batchFor(message.size());
    batch.messages.push_back(
        {m_clock->nowMs(), store(batch, message.data(), message.size()), static_cast<quint32>(message.size())});
}

void StreamTap::take(const TakenReport &report)
{
    if (m_content != Content::Records) {
        return;
    }
    StreamBatch &batch = batchFor(report.size);
    StreamBatch::Record &record = batch.records.emplace_back();
    record.timeMs = m_clock->nowMs();
    record.size = report.size;
    record.offset = store(batch, report.octets, record.size);
    record.fault = report.fault;
    record.faultOffset = report.faultOffset;
    record.address = report.fate.address.value_or(StreamBatch::NoAddress);
    record.trackNumber = report.fate.trackNumber;
    record.sensorTrackNumber = report.fate.sensorTrackNumber;
    record.form = report.form;
    record.category = report.category;
    record.outcome = report.fate.outcome;
    if (report.record) {
        const _ast_sacsic_t source = ast_datarecord_get_sacsic(*report.record);
        record.uap = report.record->uap;
        record.identified = source.present;
        record.sac = source.sac;
        record.sic = source.sic;
    } else if (report.sirM) {
        record.identified = true;
        record.sic = static_cast<quint8>(report.sirM->radarId());
    }
}

void StreamTap::flush()
{
    if (!m_batch) {
        return;
    }
    m_usualEntries = usualRoom(m_usualEntries, m_batch->messages.size() + m_batch->records.size());
    m_usualOctets = usualRoom(m_usualOctets, m_batch->octets.size());
    std::shared_ptr<const StreamBatch> oldest; // freed after the lock
    const QMutexLocker lock(&m_mutex);
    m_waiting.push_back(std::move(m_batch));
    m_batch.reset();
    if (m_waiting.size() > MostWaiting) {
        oldest = std::move(m_waiting.front());
        m_waiting.erase(m_waiting.begin());
        m_missed += oldest->messages.size() + oldest->records.size();
    }
}
