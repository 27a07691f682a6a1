#include "app/crash_log_writer.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

struct Date {
    int year;
    unsigned int month;
    unsigned int day;
};

// Days since 1970-01-01 in the proleptic Gregorian calendar, counted in years that begin on the first of March, so that
// the leap day is a year's last.
Date dateOf(std::int64_t days)
{
    constexpr std::int64_t DaysToEpoch = 719468; // from 0000-03-01
    constexpr std::int64_t DaysPerEra = 146097; // 400 years
    const auto shifted = days + DaysToEpoch;
    const auto era = shifted / DaysPerEra;
    const auto dayOfEra = shifted % DaysPerEra;
    const auto yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const auto dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const auto marchMonth = (5 * dayOfYear + 2) / 153;
    const auto month = static_cast<unsigned int>(marchMonth < 10 ? marchMonth + 3 : marchMonth - 9);
    return {static_cast<int>(era * 400 + yearOfEra + (month <= 2 ? 1 : 0)), month,
        static_cast<unsigned int>(dayOfYear - (153 * marchMonth + 2) / 5 + 1)};
}

} // namespace

CrashLogWriter::CrashLogWriter(const char *path)
    : m_file(open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR))
{
}

CrashLogWriter::~CrashLogWriter()
{
    flush();
    if (isOpen()) {
        close(m_file);
    }
}

CrashLogWriter &CrashLogWriter::text(const char *text)
{
    for (; *text; ++text) {
        put(*text);
    }
    return *this;
}

CrashLogWriter &CrashLogWriter::hex(std::uintptr_t value)
{
    int shift = 0;
    while (shift + 4 < static_cast<int>(8 * sizeof value) && value >> (shift + 4)) {
        shift += 4;
    }
    for (; shift >= 0; shift -= 4) {
        put("0123456789abcdef"[value >> shift & 0xF]);
    }
    return *this;
}

CrashLogWriter &CrashLogWriter::decimal(unsigned int value, int width)
{
    std::array<char, 12> digits{};
    std::size_t count = 0;
    do {
        digits[count++] = static_cast<char>('0' + value % 10);
        value /= 10;
    } while (value);
    for (int padding = width - static_cast<int>(count); padding > 0; --padding) {
        put('0');
    }
    while (count) {
        put(digits[--count]);
    }
    return *this;
}

CrashLogWriter &CrashLogWriter::dateTime(std::int64_t seconds)
{
    constexpr std::int64_t SecondsPerDay = 86400;
    const auto date = dateOf(seconds / SecondsPerDay);
    const auto time = static_cast<unsigned int>(seconds % SecondsPerDay);
    decimal(static_cast<unsigned int>(date.year), 4).text("-").decimal(date.month, 2).text("-").decimal(date.day, 2);
    return text(" ").decimal(time / 3600, 2).text(":").decimal(time / 60 % 60, 2).text(":").decimal(time % 60, 2);
}

void CrashLogWriter::flush()
{
    std::size_t written = 0;
    while (isOpen() && written < m_used) {
        const auto count = write(m_file, m_buffer.data() + written, m_used - written);
        if (count > 0) {
            written += static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            break;
        }
    }
    m_used = 0;
}

void CrashLogWriter::put(char character)
{
    if (m_used == m_buffer.size()) {
        flush();
    }
    m_buffer[m_used++] = character;
}
