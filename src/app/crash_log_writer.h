#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// Appends text to a file with nothing but async-signal-safe calls.
class CrashLogWriter {
public:
    explicit CrashLogWriter(const char *path);
    ~CrashLogWriter();
    CrashLogWriter(const CrashLogWriter &) = delete;
    CrashLogWriter &operator=(const CrashLogWriter &) = delete;

    bool isOpen() const { return m_file >= 0; }

    CrashLogWriter &text(const char *text);
    // Lower case, without prefix or leading zeros.
    CrashLogWriter &hex(std::uintptr_t value);
    // Padded with zeros to the width.
    CrashLogWriter &decimal(unsigned int value, int width = 1);
    // "yyyy-MM-dd hh:mm:ss" of seconds since 1970-01-01.
    CrashLogWriter &dateTime(std::int64_t seconds);

    void flush();

private:
    void put(char character);

    std::array<char, 4096> m_buffer;
    std::size_t m_used = 0;
    int m_file;
};
