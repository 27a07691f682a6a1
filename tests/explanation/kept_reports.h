#pragma once

#include "asterix/asterix.h"
#include "asterix/encoder.h"
#include "explanation/report_view.h"

#include <functional>

using korvane::asterix::BlockEncoder;

// A report of one record, kept at that time.
inline KeptReport keptRecord(int category, qint64 timeMs, const std::function<void(BlockEncoder &)> &fill)
{
    BlockEncoder encoder(category);
    encoder.beginBlock();
    encoder.beginRecord();
    fill(encoder);
    encoder.endRecord();
    const auto octets = encoder.block();
    _ast_datablock_t block;
    ast_datablock_smart_decode(&block, octets.data(), octets.size());
    if (block.records.size() != 1) {
        return {};
    }
    const _ast_datarecord_t &record = block.records[0];
    return {TakenReport::Form::Asterix, timeMs, record.uap,
        QByteArray(reinterpret_cast<const char *>(record.data), record.length)};
}

inline KeptReport keptFrame(qint64 timeMs, const char *hex)
{
    return {TakenReport::Form::ModeS, timeMs, nullptr, QByteArray::fromHex(hex)};
}
