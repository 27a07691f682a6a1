#include "maps/coordinate_runs.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::string_view StartTag = "<coordinate>";
constexpr std::string_view EndTag = "</coordinate>";
constexpr std::string_view Target = "vyx-coordinate-run";
constexpr qsizetype ShortestRun = 2; // one costs the reader as much as the instruction

bool isCoordinateCharacter(char character)
{
    return (character >= '0' && character <= '9') || character == '.' || character == 'N' || character == 'S'
        || character == 'E' || character == 'W';
}

bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

// The text of the element at the begin of the document, which loses the element and the blanks behind it. False when
// there is something else, or a text that only an XML reader can read.
bool takeElement(std::string_view &document, std::string_view &text)
{
    if (!document.starts_with(StartTag)) {
        return false;
    }
    const std::string_view behind = document.substr(StartTag.size());
    const auto textEnd = std::find_if_not(behind.begin(), behind.end(), isCoordinateCharacter);
    const auto length = static_cast<std::size_t>(textEnd - behind.begin());
    if (!behind.substr(length).starts_with(EndTag)) {
        return false;
    }
    text = behind.substr(0, length);
    const std::string_view rest = behind.substr(length + EndTag.size());
    document =
        rest.substr(static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), isBlank) - rest.begin()));
    return true;
}

std::string_view view(const QByteArray &octets, qsizetype from = 0)
{
    return std::string_view(octets.constData(), static_cast<std::size_t>(octets.size()))
        .substr(static_cast<std::size_t>(from));
}

} // namespace

CoordinateRuns::CoordinateRuns(const QByteArray &document) : m_document(document)
{
    // In a section of plain characters the elements are text; a document with a target like ours is not from us.
    if (document.contains("<![CDATA[") || document.contains(Target.data())) {
        m_short = document;
    } else {
        shorten();
    }
}

void CoordinateRuns::shorten()
{
    qsizetype copied = 0;
    const QByteArrayView startTag(StartTag.data(), static_cast<qsizetype>(StartTag.size()));
    for (qsizetype at = m_document.indexOf(startTag); at >= 0; at = m_document.indexOf(startTag, at)) {
        const qsizetype begin = at;
        if (!takeRun(at)) {
            continue;
        }
        m_short.append(m_document.constData() + copied, begin - copied);
        m_short.append("<?").append(Target.data()).append(' ');
        m_short.append(QByteArray::number(m_runs.size() - 1)).append("?>");
        std::copy_if(m_document.cbegin() + begin, m_document.cbegin() + at, std::back_inserter(m_short),
            [](char character) { return character == '\n' || character == '\r'; });
        copied = at;
    }
    m_short.append(m_document.constData() + copied, m_document.size() - copied);
}

// Moves behind the elements at the place, or the first of too few.
bool CoordinateRuns::takeRun(qsizetype &at)
{
    const qsizetype begin = at;
    std::string_view rest = view(m_document, at);
    std::string_view text;
    qsizetype count = 0;
    while (takeElement(rest, text)) {
        ++count;
    }
    at = std::max(
        m_document.size() - static_cast<qsizetype>(rest.size()), begin + static_cast<qsizetype>(StartTag.size()));
    if (count < ShortestRun) {
        return false;
    }
    m_runs.append({begin, count});
    return true;
}

bool CoordinateRuns::isRun(QStringView instructionTarget)
{
    return instructionTarget == QLatin1String(Target.data(), static_cast<qsizetype>(Target.size()));
}

void CoordinateRuns::append(QStringView instructionData, QList<GeoCoordinate> &points) const
{
    bool good = false;
    const int index = instructionData.toInt(&good);
    if (!good || index < 0 || index >= m_runs.size()) {
        return;
    }
    const Run &run = m_runs.at(index);
    points.reserve(points.size() + run.count);
    std::string_view rest = view(m_document, run.begin);
    std::string_view text;
    for (qsizetype i = 0; i < run.count && takeElement(rest, text); ++i) {
        points.append(GeoCoordinate::fromATCString(QLatin1String(text.data(), static_cast<qsizetype>(text.size()))));
    }
}
