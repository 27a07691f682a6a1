#include "input_probe/probe_text.h"

#include "input_probe/probe_result.h"
#include "recognition/input_proposal.h"
#include "sensors/sensor_info.h"

#include <QCoreApplication>
#include <QNetworkInterface>

#include <algorithm>

namespace {

constexpr qint64 PatienceMs = 5000; // even slow radars send sector messages more often
constexpr qint64 LongSilenceMs = 15000; // longer than an antenna turns
constexpr int MostSourcesNamed = 3;
constexpr qsizetype MostAddressesNamed = 3;
constexpr qsizetype ShownOctets = 8;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(ProbeText)
};

QString list(const QStringList &parts)
{
    return parts.size() < 2
        ? parts.join(QString())
        : Text::tr("%1 and %2").arg(parts.mid(0, parts.size() - 1).join(QStringLiteral(", ")), parts.last());
}

QString rateNumber(double rate)
{
    return QString::number(rate, 'f', rate > 0.0 && rate < 9.95 ? 1 : 0);
}

double perSecond(const StreamFindings &findings, qint64 count)
{
    const qint64 spanMs = findings.first.msecsTo(findings.last);
    return static_cast<double>(count) * 1000.0 / static_cast<double>(std::max<qint64>(spanMs, 1000));
}

QString octetRate(double octets)
{
    return octets < 1000.0 ? Text::tr("%1 octets/s").arg(octets, 0, 'f', 0)
        : octets < 1e6     ? Text::tr("%1 kB/s").arg(octets / 1e3, 0, 'f', 1)
                           : Text::tr("%1 MB/s").arg(octets / 1e6, 0, 'f', 1);
}

QString messageRate(const ProbeResult &result)
{
    const QString rate = rateNumber(result.messageRate);
    return result.comm == Config::InputComm::Udp ? Text::tr("%1 datagrams/s").arg(rate)
                                                 : Text::tr("%1 messages/s").arg(rate);
}

// ---- sources of ASTERIX ----------------------------------------------------------------------------------------

struct TargetCounts {
    qint64 reports = 0;
    qint64 trackNumbers = 0;
    qint64 addresses = 0;
    qint64 positions = 0;
    bool plots = true; // none but radars' reports, without track numbers
};

TargetCounts targetsOf(const SourceFindings &source)
{
    TargetCounts counts;
    for (const CategoryFindings &category : source.categories) {
        if (category.reportsTargets()) {
            const SensorType type = category.sensorType();
            counts.reports += category.records;
            counts.trackNumbers += category.trackNumbers;
            counts.addresses += category.addresses;
            counts.positions += category.polarPositions + category.cartesianPositions + category.wgs84Positions;
            counts.plots = counts.plots && category.trackNumbers == 0 && (type == RadarSensor || type == SmrSensor);
        }
    }
    return counts;
}

QString categoriesOf(const SourceFindings &source)
{
    QStringList names;
    for (const CategoryFindings &category : source.categories) {
        names += categoryName(category.category);
    }
    return list(names);
}

QString identityText(qint64 trackNumbers, qint64 addresses)
{
    if (trackNumbers > 0) {
        return Text::tr("with track numbers");
    }
    return addresses > 0 ? Text::tr("with aircraft addresses, no track numbers") : Text::tr("no track numbers");
}

QStringList targetParts(const StreamFindings &findings, const SourceFindings &source)
{
    const TargetCounts targets = targetsOf(source);
    if (targets.reports == 0) {
        qint64 records = 0;
        for (const CategoryFindings &category : source.categories) {
            records += category.records;
        }
        return {Text::tr("%1 messages a second").arg(rateNumber(perSecond(findings, records))),
            Text::tr("no reports of targets")};
    }
    const QString rate = rateNumber(perSecond(findings, targets.reports));
    QStringList parts = {
        targets.plots ? Text::tr("%1 plots a second").arg(rate) : Text::tr("%1 reports a second").arg(rate)};
    if (targets.positions == 0) {
        parts += Text::tr("no positions");
    }
    parts += identityText(targets.trackNumbers, targets.addresses);
    return parts;
}

QString sourceText(const StreamFindings &findings, const SourceFindings &source)
{
    QStringList parts = {Text::tr("%1 from %2").arg(categoriesOf(source), source.name())};
    parts += targetParts(findings, source);
    return parts.join(QStringLiteral(", "));
}

QString asterixText(const StreamFindings &findings)
{
    if (findings.sources.size() == 1) {
        return sourceText(findings, findings.sources.first());
    }
    QList<SourceFindings> sources = findings.sources;
    std::stable_sort(sources.begin(), sources.end(),
        [](const SourceFindings &a, const SourceFindings &b) { return targetsOf(a).reports > targetsOf(b).reports; });
    QStringList parts;
    for (const SourceFindings &source : sources.mid(0, MostSourcesNamed)) {
        parts += sourceText(findings, source);
    }
    if (sources.size() > MostSourcesNamed) {
        parts += Text::tr("%1 more").arg(sources.size() - MostSourcesNamed);
    }
    return Text::tr("%1 sources: %2").arg(sources.size()).arg(parts.join(QStringLiteral("; ")));
}

// ---- the sentence ----------------------------------------------------------------------------------------------

QString modeSText(const StreamFindings &findings)
{
    const ModeSFindings &modeS = findings.modeS;
    QStringList parts = {formatText(findings.format()),
        Text::tr("%1 frames a second").arg(rateNumber(perSecond(findings, modeS.frames))),
        Text::tr("%1 aircraft with extended squitters").arg(modeS.aircraft)};
    if (modeS.area.positions == 0) {
        parts += Text::tr("no positions");
    }
    return parts.join(QStringLiteral(", "));
}

QString sirMText(const StreamFindings &findings)
{
    const SirMFindings &sirM = findings.sirM;
    return QStringList{Text::tr("%1 radar %2").arg(formatText(findings.format())).arg(sirM.radarId),
        Text::tr("%1 plots a second").arg(rateNumber(perSecond(findings, sirM.plots))),
        Text::tr("%1 track reports a second").arg(rateNumber(perSecond(findings, sirM.tracks)))}
        .join(QStringLiteral(", "));
}

QString contentsText(const StreamFindings &findings)
{
    switch (*findings.kind) {
    case Config::ProcessorType::ModeS:
        return modeSText(findings);
    case Config::ProcessorType::AleniaSirM:
        return sirMText(findings);
    case Config::ProcessorType::Asterix:
        break;
    }
    const bool wrapped = findings.asterixFormat != Config::AsterixFormat::Raw;
    return wrapped ? Text::tr("%1, in %2").arg(asterixText(findings), Config::asterixFormatName(findings.asterixFormat))
                   : asterixText(findings);
}

QString unknownText(const ProbeResult &result)
{
    if (result.findings.messages == 0) {
        return Text::tr("Data arrive on %1.").arg(result.endpoint);
    }
    const QString octets = QString::fromLatin1(result.findings.beginning.left(ShownOctets).toHex(' ')).toUpper();
    return Text::tr("Data arrive on %1, but they are no ASTERIX, Mode S or SIR-M data; they begin with %2.")
        .arg(result.endpoint, octets);
}

QString silenceText(const ProbeResult &result)
{
    return result.listenedMs < PatienceMs
        ? Text::tr("Listening on %1. Nothing has arrived yet.").arg(result.endpoint)
        : Text::tr("Nothing arrives on %1, for %2 s now.").arg(result.endpoint).arg(result.silentMs / 1000);
}

// ---- advice ----------------------------------------------------------------------------------------------------

QString interfaceFault(const LanInterface &chosen)
{
    if (!chosen.isChosen()) {
        return {};
    }
    const QString name = chosen.humanReadableName();
    const QNetworkInterface now = chosen.now();
    if (!now.isValid()) {
        return Text::tr("The interface %1 is not there.").arg(name);
    }
    if (!now.flags().testFlag(QNetworkInterface::IsUp)) {
        return Text::tr("The interface %1 is switched off.").arg(name);
    }
    return now.flags().testFlag(QNetworkInterface::IsRunning)
        ? QString()
        : Text::tr("The interface %1 has no link: check its cable.").arg(name);
}

QString ownAddresses()
{
    QStringList addresses;
    for (const QHostAddress &address : QNetworkInterface::allAddresses()) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol && !address.isLoopback()) {
            addresses += address.toString();
        }
    }
    return addresses.mid(0, MostAddressesNamed).join(QStringLiteral(", "));
}

QStringList multicastAdvice(const Config &config)
{
    const QString group = config.inputUdpMcastAddress1.toString();
    QStringList lines = {interfaceFault(config.inputUdpMcastLanInterface1),
        Text::tr("Is the sender running, and does it send to the group %1 and port %2?")
            .arg(group)
            .arg(config.inputUdpPort1)};
    lines += config.inputUdpMcastLanInterface1.isChosen()
        ? Text::tr("Is the sender on the network of the interface %1?")
              .arg(config.inputUdpMcastLanInterface1.humanReadableName())
        : Text::tr(
            "Choose the interface that the sender's network is plugged into; the system has chosen one by itself.");
    lines += Text::tr("Does the firewall of this machine let UDP port %1 in?").arg(config.inputUdpPort1);
    lines += Text::tr("Do the switches on the way pass the group on (IGMP)?");
    return lines;
}

QStringList unicastAdvice(const Config &config)
{
    const QString own = ownAddresses();
    const QString machine = own.isEmpty() ? Text::tr("this machine") : Text::tr("this machine, %1,").arg(own);
    return {
        Text::tr("Is the sender running, and does it send to %1 and port %2?").arg(machine).arg(config.inputUdpPort1),
        Text::tr("Is it multicast? Then tick Multicast and enter the group."),
        Text::tr("Does the firewall of this machine let UDP port %1 in?").arg(config.inputUdpPort1),
        Text::tr("Is the network cable plugged in?")};
}

QStringList silenceAdvice(const ProbeResult &result, const Config &config)
{
    switch (result.comm) {
    case Config::InputComm::Serial:
        return {Text::tr("Is the line plugged in at both ends, and is the sender running?"),
            Text::tr("Is %1 the right device?").arg(config.inputSerialDevice),
            Text::tr("Does the line need a crossed cable (null modem)?")};
    case Config::InputComm::File:
        return {};
    case Config::InputComm::Udp:
        break;
    }
    return config.inputUdpMulticast1 ? multicastAdvice(config) : unicastAdvice(config);
}

QStringList unknownAdvice(const ProbeResult &result)
{
    if (result.comm == Config::InputComm::Serial) {
        return {Text::tr("Check baud rate, data bits and parity: with wrong ones the octets arrive garbled.")};
    }
    return {
        Text::tr("Does something else send to this port?"), Text::tr("Are the data encrypted, or in another format?")};
}

// ---- rows ------------------------------------------------------------------------------------------------------

QString positionsText(const CategoryFindings &category)
{
    QStringList kinds;
    for (const auto &[count, name] : {std::pair{category.polarPositions, QT_TRANSLATE_NOOP("ProbeText", "polar")},
             std::pair{category.cartesianPositions, QT_TRANSLATE_NOOP("ProbeText", "Cartesian")},
             std::pair{category.wgs84Positions, QT_TRANSLATE_NOOP("ProbeText", "WGS-84")}}) {
        if (count > 0) {
            kinds += Text::tr(name);
        }
    }
    return kinds.isEmpty() ? Text::tr("no positions") : Text::tr("%1 positions").arg(list(kinds));
}

QString contentsOf(const SourceFindings &source, const CategoryFindings &category)
{
    if (!category.hasTable) {
        return Text::tr("no table for this category");
    }
    if (category.records == 0) {
        return Text::tr("cannot be decoded");
    }
    if (category.reportsTargets()) {
        return QStringList{positionsText(category), identityText(category.trackNumbers, category.addresses)}.join(
            QStringLiteral(", "));
    }
    return category.sensorType() == RadarSensor && source.rotationPeriod > 0.0
        ? Text::tr("turning once in %1 s").arg(source.rotationPeriod, 0, 'f', 1)
        : QString();
}

ProbeText::Row wholeStream(const StreamFindings &findings)
{
    const bool isModeS = findings.kind == Config::ProcessorType::ModeS;
    ProbeText::Row row;
    row.source = isModeS ? Text::tr("Receiver") : Text::tr("Radar %1").arg(findings.sirM.radarId);
    row.category = formatText(findings.format());
    const qint64 count = isModeS ? findings.modeS.frames : findings.sirM.plots + findings.sirM.tracks;
    row.rate = Text::tr("%1 /s").arg(rateNumber(perSecond(findings, count)));
    row.contents = isModeS
        ? Text::tr("%1 aircraft, %2 positions").arg(findings.modeS.aircraft).arg(findings.modeS.area.positions)
        : Text::tr("%1 plots, %2 tracks").arg(findings.sirM.plots).arg(findings.sirM.tracks);
    return row;
}

} // namespace

QString ProbeText::sentence(const ProbeResult &result)
{
    switch (result.state) {
    case ProbeResult::State::Idle:
        return {};
    case ProbeResult::State::Opening:
        return Text::tr("Opening %1 ...").arg(result.endpoint);
    case ProbeResult::State::Refused:
        return result.fault;
    case ProbeResult::State::Listening:
        break;
    }
    if (result.paused) {
        return Text::tr("The input is paused.");
    }
    if (!result.hasArrived()) {
        return silenceText(result);
    }
    if (!result.isRecognised()) {
        return unknownText(result);
    }
    const QString contents = contentsText(result.findings);
    return result.silentMs < LongSilenceMs
        ? Text::tr("%1.").arg(contents)
        : Text::tr("Nothing for %1 s now; before that: %2.").arg(result.silentMs / 1000).arg(contents);
}

QString ProbeText::figures(const ProbeResult &result)
{
    if (result.state != ProbeResult::State::Listening || result.messages == 0) {
        return {};
    }
    QStringList parts = {messageRate(result), octetRate(result.octetRate)};
    if (result.isRecognised()) {
        parts += formatText(result.findings.format());
    }
    return parts.join(QStringLiteral(", "));
}

QStringList ProbeText::advice(const ProbeResult &result, const Config &config)
{
    if (result.state != ProbeResult::State::Listening || result.paused || result.listenedMs < PatienceMs) {
        return {};
    }
    QStringList lines;
    if (!result.hasArrived()) {
        lines = silenceAdvice(result, config);
    } else if (!result.isRecognised() && result.findings.messages > 0) {
        lines = unknownAdvice(result);
    }
    lines.removeAll(QString());
    return lines;
}

QList<ProbeText::Row> ProbeText::rows(const ProbeResult &result)
{
    const StreamFindings &findings = result.findings;
    if (!findings.kind) {
        return {};
    }
    if (findings.kind != Config::ProcessorType::Asterix) {
        return {wholeStream(findings)};
    }
    QList<Row> rows;
    for (const SourceFindings &source : findings.sources) {
        for (const CategoryFindings &category : source.categories) {
            const qint64 count = category.records > 0 ? category.records : category.blocks;
            rows.append({source.name(), categoryName(category.category), category.edition,
                Text::tr("%1 /s").arg(rateNumber(perSecond(findings, count))), contentsOf(source, category)});
        }
    }
    return rows;
}

QString ProbeText::proposal(const InputProposal &proposal)
{
    Config config;
    proposal.applyTo(&config);
    const SensorInfo &sensor = *proposal.sensor();
    const QString shown = proposal.isFromSensorFile()
        ? Text::tr("To be shown with the %1, as the sensor \"%2\" of the sensor file.")
        : Text::tr("To be shown with the %1, as %2.");
    QStringList sentences = {shown.arg(Config::processorName(config.processorType), sensor.name())};
    sentences += sensor.location().isValid() ? Text::tr("Location: %1.").arg(sensor.location().toATCString())
                                             : Text::tr("Where it stands is not told by the data: enter its location.");
    if (proposal.rotationPeriodMissing()) {
        sentences += Text::tr("The time of one turn is not found out yet: listen for some turns more, or enter it.");
    }
    if (!proposal.shortfallText().isEmpty()) {
        sentences += proposal.shortfallText();
    }
    return sentences.join(u' ');
}
