#pragma once

#include "asterix/asterix.h"
#include "asterix/profile.h"
#include "layout.h"
#include "octets.h"

#include <span>
#include <string>

// What smart decoding made of a block of a known edition of CAT021.
enum class EditionChoice {
    Named, // this edition
    ReadsTheSame, // another one, in which the octets have the same values
    Wrong,
};

namespace edition_choice {

inline bool isZero(const QJsonValue &value)
{
    if (!value.isObject()) {
        return value.isDouble() && value.toDouble() == 0;
    }
    const QJsonObject object = value.toObject();
    return std::all_of(object.begin(), object.end(), [](const QJsonValue &each) { return isZero(each); });
}

// I021/295 has one sub-item that edition 2.1 names after the intermediate state and later ones do not.
inline QString newerName(const QString &name)
{
    return name == "ISA" ? QString("SAL") : name;
}

// Every value of expected is in actual; what actual has beyond is a field that expected had no name for, and zero.
inline bool readsTheSame(const QJsonValue &expected, const QJsonValue &actual)
{
    if (!expected.isObject() || !actual.isObject()) {
        return expected == actual;
    }
    const QJsonObject wanted = expected.toObject();
    QJsonObject read = actual.toObject();
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        const QString name = read.contains(it.key()) ? it.key() : newerName(it.key());
        if (!readsTheSame(it.value(), read.take(name))) {
            return false;
        }
    }
    return isZero(read);
}

} // namespace edition_choice

// memory: the block object that decodes it; a new one knows no source.
inline EditionChoice choiceFor(
    std::span<const unsigned char> octets, const std::string &edition, _ast_datablock_t &memory)
{
    korvane::asterix::Profile profile;
    profile.select(21, edition);
    _ast_datablock_t expected;
    ast_datablock_decode(&expected, octets.data(), octets.size(), profile.uap());
    ast_datablock_smart_decode(&memory, octets.data(), octets.size());
    if (!memory.valid || memory.records.size() != expected.records.size()) {
        return EditionChoice::Wrong;
    }
    if (memory.records[0].uap->layout->edition().edition == edition) {
        return EditionChoice::Named;
    }
    for (std::size_t i = 0; i < expected.records.size(); ++i) {
        if (!edition_choice::readsTheSame(itemsOf(expected.records[i]), itemsOf(memory.records[i]))) {
            return EditionChoice::Wrong;
        }
    }
    return EditionChoice::ReadsTheSame;
}
