#pragma once

#include "asterix/asterix.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvane::asterix {

// One value of a record and the bits that it was read from.
struct FieldPlace {
    std::string path; // "090/FL"; elements of a repetition are numbered from 1: "250[2]/MBDATA"
    std::string_view title; // of its item, as published
    std::string value; // as in the JSON of the record, without quotes
    std::string_view unit; // "NM", "°"; empty where it has none
    std::uint32_t firstBit = 0; // from the most significant bit of the record's first octet, which is the FSPEC's
    std::uint32_t bits = 0;

    // "090"
    std::string_view item() const { return std::string_view(path).substr(0, path.find_first_of("/[")); }
};

// Every sub-field of a record in the order of its UAP, those of known reserved expansion fields included; spare bits
// left out. Empty for a record that is not valid. Titles and units live for as long as the program.
std::vector<FieldPlace> fieldPlaces(const _ast_datarecord_t &record);

// The category of the table that decoded the record; 0 for one that is not valid.
int categoryOf(const _ast_datarecord_t &record);

// The Mode 3/A code as its binary value, and the sender's track number: of target reports of any category; empty where
// the record does not have it.
std::optional<std::uint16_t> mode3aOf(const _ast_datarecord_t &record);
std::optional<std::uint32_t> trackNumberOf(const _ast_datarecord_t &record);

// Decodes octets that were one record before, with the UAP that it had then; octets may follow it. False where they are
// no such record: it is then not valid.
bool decodeRecord(_ast_datarecord_t *record, const unsigned char *data, std::size_t length, const Uap *uap);

} // namespace korvane::asterix
