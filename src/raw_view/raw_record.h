#pragma once

#include "engine/stream_tap.h"
#include "raw_view/raw_page.h"
#include "tracking/kept_report.h"

#include <QString>

#include <memory>

// One record of the stream as it came. Cheap to copy; keeps the page alive that its octets stand in.
struct RawRecord {
    StreamBatch::Record facts; // its place is that in the page
    std::shared_ptr<const RawPage> page;
    quint64 number = 0; // from 1, without a gap

    std::span<const unsigned char> octets() const { return page->octets(facts.offset, facts.size); }

    // With its octets, to be taken apart.
    KeptReport kept() const;
};

// Short texts of a record; all of them are worked out anew, from its octets where they are needed.

// "CAT048", "Mode S", "SIR-M".
QString formText(const RawRecord &record);
// "25/11"; empty where none is told.
QString sourceText(const RawRecord &record);
// Call sign, Mode 3/A code, address and track number, as far as it carries them: "DLH4AB 4521 3C6444 #121".
QString identityText(const RawRecord &record);
// What became of it, or why it cannot be decoded.
QString outcomeText(const RawRecord &record);
// The items that it carries, "010 140 020 040", or a name of what it is.
QString contentsText(const RawRecord &record);
// All that can be searched for: the texts above and every value with its name.
QString fullText(const RawRecord &record);
