#pragma once

#include "asterix/encoder.h"

#include <QByteArray>
#include <QStringList>

// Appends a Mode S register with its two values, "-" for one that is not available: bds40=mcp/fms in 16 ft,
// bds60=barometric/inertial in 32 ft/min.
inline bool addRegister(korvane::asterix::BlockEncoder &encoder, int category, bool is60, const QString &values)
{
    const int width = is60 ? 10 : 12;
    const int statusBits[]{is60 ? 35 : 1, is60 ? 46 : 14}; // numbered from 1 as in the register's layout
    quint64 bits = 0;
    for (int i = 0; i < 2; ++i) {
        bool available = false;
        const auto value = quint64(values.section('/', i, i).toInt(&available)) & ((1u << width) - 1);
        if (available) {
            bits |= (quint64(1) << width | value) << (56 - statusBits[i] - width);
        }
    }
    return encoder.addRepetition("250") && encoder.setRaw(category == 20 ? "250/BDSDATA" : "250/MBDATA", bits)
        && encoder.set("250/BDS1", is60 ? 6 : 4);
}

// One data block of one record from its fields, "161/TRN=7 070/MODE3A=07421 240=VYX12": integers as in C, other
// numbers, else text. The source is SAC 25, SIC 0.
inline QByteArray encodedReport(int category, const QString &report)
{
    korvane::asterix::BlockEncoder encoder(category, nullptr, category == 1 ? "track" : nullptr);
    encoder.beginBlock();
    encoder.beginRecord();
    bool complete = encoder.set("010/SAC", 25);
    for (const auto &field : report.split(' ', Qt::SkipEmptyParts)) {
        const auto path = field.section('=', 0, 0).toStdString();
        const auto text = field.section('=', 1);
        bool isInteger = false, isNumber = false;
        const double integer = text.toUInt(&isInteger, 0), number = text.toDouble(&isNumber);
        if (path.starts_with("bds")) {
            complete = addRegister(encoder, category, path == "bds60", text) && complete;
        } else if (isInteger || isNumber) {
            complete = encoder.set(path, isInteger ? integer : number) && complete;
        } else {
            complete = encoder.setText(path, text.toStdString()) && complete;
        }
    }
    if (!complete || !encoder.endRecord()) {
        qFatal("a report of the test cannot be encoded");
    }
    const auto block = encoder.block();
    return QByteArray(reinterpret_cast<const char *>(block.data()), static_cast<qsizetype>(block.size()));
}
