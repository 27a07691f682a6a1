#pragma once

#include "raw_view/raw_record.h"

#include <QString>

#include <vector>

// Records for other programs, by the ending of the file's name:
//     .ndjson  one line of JSON a record, as the recording tools write it; those that cannot be decoded are left out
//     .pcap    a network capture, each record of ASTERIX as a data block in a datagram of its own, a malformed block as
//              it came; frames of Mode S as raw frames; to 127.0.0.1
//     other    one line of text a record: time, format, source, octets in hexadecimal digits
// Replaces the file, all of it or not at all in the case of texts. Why it failed; empty when it did not. Any thread.
QString exportRecords(const std::vector<RawRecord> &records, const QString &fileName);
