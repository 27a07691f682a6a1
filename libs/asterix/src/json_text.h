#pragma once

// Reads JSON text front to back, without building a tree. One instance reads one text.

#include <cstdint>
#include <string>
#include <string_view>

namespace korvane::asterix {

class JsonText {
public:
    explicit JsonText(std::string_view text) : m_text(text) { }

    // The next character that is no blank; zero at the end.
    char peek();
    // Passes over that character; false, and fails, where another one follows.
    bool expect(char character);
    // Within an object or array after its opening bracket: true while another member follows, its comma passed over;
    // false at the closing bracket, which is passed over, and on failure.
    bool nextMember(char closing, bool &isFirst);

    // A string; where it is wanted as octets, characters above 255 fail.
    bool readString(std::string &out);
    // A string and the colon after it.
    bool readKey(std::string &out);
    bool readNumber(double &out);
    // Any value, nested up to a depth that nothing sensible needs.
    bool skipValue(int depth = 0);

    bool failed() const { return m_failed; }
    bool fail();
    std::size_t position() const { return m_at; }
    // Reads again from an earlier position.
    void rewind(std::size_t position) { m_at = position; }

private:
    bool readEscape(std::string &out);

    std::string_view m_text;
    std::size_t m_at = 0;
    bool m_failed = false;
};

} // namespace korvane::asterix
