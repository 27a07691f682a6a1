#include "json_text.h"

#include <charconv>

namespace korvane::asterix {
namespace {

constexpr int MaxDepth = 32;

constexpr bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

} // namespace

bool JsonText::fail()
{
    m_failed = true;
    return false;
}

char JsonText::peek()
{
    while (m_at < m_text.size() && isBlank(m_text[m_at])) {
        ++m_at;
    }
    return m_at < m_text.size() ? m_text[m_at] : '\0';
}

bool JsonText::expect(char character)
{
    if (m_failed || peek() != character || m_at == m_text.size()) {
        return fail();
    }
    ++m_at;
    return true;
}

bool JsonText::nextMember(char closing, bool &isFirst)
{
    if (m_failed) {
        return false;
    }
    if (peek() == closing) {
        ++m_at;
        return false;
    }
    if (!isFirst && !expect(',')) {
        return false;
    }
    isFirst = false;
    return true;
}

bool JsonText::readString(std::string &out)
{
    out.clear();
    if (!expect('"')) {
        return false;
    }
    while (m_at < m_text.size()) {
        const char character = m_text[m_at++];
        if (character == '"') {
            return true;
        }
        if (character == '\\') {
            if (!readEscape(out)) {
                return fail();
            }
        } else if (static_cast<unsigned char>(character) < 0x20) {
            return fail();
        } else {
            out.push_back(character);
        }
    }
    return fail();
}

bool JsonText::readEscape(std::string &out)
{
    constexpr std::string_view Names = "\"\\/bfnrt";
    constexpr std::string_view Values = "\"\\/\b\f\n\r\t";
    if (m_at == m_text.size()) {
        return false;
    }
    const char name = m_text[m_at++];
    if (const std::size_t found = Names.find(name); found != std::string_view::npos) {
        out.push_back(Values[found]);
        return true;
    }
    if (name != 'u' || m_text.size() - m_at < 4) {
        return false;
    }
    unsigned code = 0;
    const char *const first = m_text.data() + m_at;
    m_at += 4;
    if (std::from_chars(first, first + 4, code, 16).ptr != first + 4 || code > 0xFF) {
        return false;
    }
    out.push_back(static_cast<char>(code));
    return true;
}

bool JsonText::readKey(std::string &out)
{
    return readString(out) && expect(':');
}

bool JsonText::readNumber(double &out)
{
    peek();
    const char *const first = m_text.data() + m_at;
    const auto [end, error] = std::from_chars(first, m_text.data() + m_text.size(), out);
    if (m_failed || error != std::errc{}) {
        return fail();
    }
    m_at += static_cast<std::size_t>(end - first);
    return true;
}

bool JsonText::skipValue(int depth)
{
    if (depth > MaxDepth) {
        return fail();
    }
    std::string text;
    const char opening = peek();
    if (opening == '"') {
        return readString(text);
    }
    if (opening == '{' || opening == '[') {
        ++m_at;
        const char closing = opening == '{' ? '}' : ']';
        bool isFirst = true;
        while (nextMember(closing, isFirst)) {
            if (opening == '{' && !readKey(text)) {
                return false;
            }
            if (!skipValue(depth + 1)) {
                return false;
            }
        }
        return !m_failed;
    }
    for (const std::string_view word : {"true", "false", "null"}) {
        if (m_text.substr(m_at).starts_with(word)) {
            m_at += word.size();
            return true;
        }
    }
    double number = 0;
    return readNumber(number);
}

} // namespace korvane::asterix
