#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class Config;
class InputProposal;
struct ProbeResult;

// What a probe found, in words.
namespace ProbeText {

// One plain sentence: "CAT048 from 25/11, 40 plots a second, no track numbers."
QString sentence(const ProbeResult &result);
// "12 datagrams/s, 4.1 kB/s, ASTERIX in HDLC Frame"; empty while nothing arrives.
QString figures(const ProbeResult &result);

// What is worth looking at while nothing arrives, or nothing that can be decoded: a question or a sentence each, the
// likeliest first. Empty where it is too early to say, or nothing is amiss. The settings are those of the input.
QStringList advice(const ProbeResult &result, const Config &config);

// What one source sends in one category.
struct Row {
    QString source; // "25/11"
    QString category; // "CAT048"
    QString edition; // "1.31"; may be empty
    QString rate; // "40 /s"
    QString contents; // "polar positions, no track numbers"
};
QList<Row> rows(const ProbeResult &result);

// With which settings of processor and sensor it would be shown, and what they lack.
QString proposal(const InputProposal &proposal);

} // namespace ProbeText
