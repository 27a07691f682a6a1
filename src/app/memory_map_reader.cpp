#include "app/memory_map_reader.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

MemoryMapReader::MemoryMapReader() : m_file(open("/proc/self/maps", O_RDONLY | O_CLOEXEC)) { }

MemoryMapReader::~MemoryMapReader()
{
    if (m_file >= 0) {
        close(m_file);
    }
}

// "55d0c2a00000-55d0c2a20000 r-xp 00001000 08:01 1234    /usr/bin/name"
bool MemoryMapReader::next(MemoryRegion *region)
{
    region->begin = takeHex('-');
    region->end = takeHex(' ');
    region->readable = take() == 'r';
    take(); // writable
    region->executable = take() == 'x';
    take(); // shared or private
    take();
    for (int field = 0; field < 3; ++field) { // offset, device, inode
        skipField();
    }
    std::size_t length = 0;
    for (char character = takeAfterBlanks(); character && character != '\n'; character = take()) {
        if (length + 1 < region->name.size()) {
            region->name[length++] = character;
        }
    }
    region->name[length] = '\0';
    return region->end != 0;
}

char MemoryMapReader::take()
{
    if (m_at == m_filled) {
        ssize_t count = 0;
        do {
            count = m_file >= 0 ? read(m_file, m_buffer.data(), m_buffer.size()) : 0;
        } while (count < 0 && errno == EINTR);
        m_at = 0;
        m_filled = count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return m_at < m_filled ? m_buffer[m_at++] : '\0';
}

std::uintptr_t MemoryMapReader::takeHex(char terminator)
{
    std::uintptr_t value = 0;
    for (char digit = take(); digit && digit != terminator; digit = take()) {
        value = value << 4 | static_cast<std::uintptr_t>(digit <= '9' ? digit - '0' : digit - 'a' + 10);
    }
    return value;
}

void MemoryMapReader::skipField()
{
    for (char character = take(); character && character != ' ' && character != '\n'; character = take()) { }
}

char MemoryMapReader::takeAfterBlanks()
{
    char character = take();
    while (character == ' ') {
        character = take();
    }
    return character;
}
