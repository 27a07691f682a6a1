#pragma once

#include "traffic/radar_model.h"

#include <QByteArray>

#include <vector>

// Puts what a radar says into datagrams of one format.
class SectorWriter {
public:
    virtual ~SectorWriter() = default;

    // Valid until the next call.
    virtual const std::vector<QByteArray> &datagrams(const SectorReport &report) = 0;
};
