#include "final_format_writer.h"

#include <QCoreApplication>
#include <QtEndian>

#include <array>

namespace korvane::astfile {

namespace {

constexpr qsizetype HeaderSize = 8;
constexpr qsizetype FooterSize = 4;
constexpr qsizetype MaxFrame = 0xffff;

struct Text {
    Q_DECLARE_TR_FUNCTIONS(FinalFormatWriter)
};

} // namespace

bool FinalFormatWriter::open(const QString &fileName)
{
    m_firstDay = -1;
    return openFile(fileName);
}

bool FinalFormatWriter::write(const QDateTime &timeStamp, const Endpoint &, const Endpoint &, const QByteArray &payload)
{
    if (!writable()) {
        return false;
    }
    const qsizetype length = HeaderSize + payload.size() + FooterSize;
    if (length > MaxFrame) {
        return fail(Text::tr("A message of %1 octets does not fit into a frame.").arg(payload.size()));
    }
    if (!timeStamp.isValid()) {
        return fail(Text::tr("The time stamp cannot be stored."));
    }
    const QDateTime utc = timeStamp.toUTC();
    const qint64 day = utc.date().toJulianDay();
    m_firstDay = m_firstDay < 0 ? day : m_firstDay;
    const int hundredths = utc.time().msecsSinceStartOfDay() / 10;
    std::array<char, HeaderSize> header = {};
    qToBigEndian(static_cast<quint16>(length), header.data());
    qToBigEndian(static_cast<quint32>(hundredths), header.data() + 4);
    header[4] = static_cast<char>(day - m_firstDay); // the time has 24 bits
    QByteArray frame(header.data(), HeaderSize);
    frame += payload;
    frame += QByteArray(FooterSize, '\xa5');
    return append(frame);
}

} // namespace korvane::astfile
