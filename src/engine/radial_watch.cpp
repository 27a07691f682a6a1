#include "engine/radial_watch.h"

#include "asterix/asterix.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

double wrappedAzimuth(double degrees)
{
    const double rest = std::fmod(degrees, 360.0);
    return rest < 0.0 ? rest + 360.0 : rest;
}

// An antenna that turns the other way sends the edges the other way round.
bool covers(const _ast_item_video_header_t &header, const RadialQuestion &question)
{
    double start = header.startAzimuth;
    double width = wrappedAzimuth(header.endAzimuth - start);
    if (width > 180.0) {
        start = header.endAzimuth;
        width = 360.0 - width;
    }
    const double reach = width < 2.0 * question.reach ? question.reach : 0.0;
    return wrappedAzimuth(question.azimuth - start + reach) <= width + 2.0 * reach;
}

} // namespace

QList<KeptReport> RadialWatch::ask(const RadialQuestion &question)
{
    m_secondsUnasked = 0;
    if (m_question != question) {
        m_question = question;
        m_records.clear();
    }
    return m_records;
}

void RadialWatch::look(const TakenReport &report, qint64 timeMs)
{
    _ast_datarecord_240_t record;
    ast_datarecord_240_disassemble(&record, *report.record);
    const _ast_item_video_header_t &header = record.i040.present ? record.i040 : record.i041;
    const bool isHis = record.i010.sac == m_question->sac && record.i010.sic == m_question->sic;
    if (!isHis || !header.present || !covers(header, *m_question)) {
        return;
    }
    const QByteArray octets(reinterpret_cast<const char *>(report.octets), static_cast<qsizetype>(report.size));
    m_records.prepend({report.form, timeMs, report.record->uap, octets});
    m_records.resize(std::min<qsizetype>(m_records.size(), MaximumRecords));
}

void RadialWatch::endSecond()
{
    if (m_question && ++m_secondsUnasked > PatienceSeconds) {
        m_question.reset();
        m_records.clear();
    }
}
