#include "asterix/json_encoder.h"

#include "json_text.h"

#include <charconv>
#include <vector>

namespace korvane::asterix {
namespace {

// Deeper than any item is nested.
constexpr int MaxValueDepth = 8;

bool octetsOfHex(std::string_view text, std::vector<unsigned char> &octets)
{
    octets.clear();
    if (text.size() % 2 != 0) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); i += 2) {
        unsigned octet = 0;
        const char *const first = text.data() + i;
        if (std::from_chars(first, first + 2, octet, 16).ptr != first + 2) {
            return false;
        }
        octets.push_back(static_cast<unsigned char>(octet));
    }
    return true;
}

// The members of one line that matter.
struct Line {
    int category = -1;
    std::uint64_t block = 0;
    std::size_t items = 0; // position of the object; 0: none
};

bool readLine(JsonText &json, Line &line)
{
    std::string key;
    bool isFirst = true;
    if (!json.expect('{')) {
        return false;
    }
    while (json.nextMember('}', isFirst)) {
        double number = 0;
        if (!json.readKey(key)) {
            return false;
        }
        if (key == "items") {
            json.peek();
            line.items = json.position();
            json.skipValue();
        } else if (key == "cat" || key == "block") {
            if (!json.readNumber(number) || !(number >= 0 && number < 1e15)) {
                return json.fail();
            }
            if (key == "block") {
                line.block = static_cast<std::uint64_t>(number);
            } else if (number < 256) {
                line.category = static_cast<int>(number);
            }
        } else {
            json.skipValue();
        }
    }
    return !json.failed() && json.peek() == '\0';
}

// Sets the values of an "items" object, path by path.
class ItemReader {
public:
    ItemReader(JsonText &json, BlockEncoder &encoder) : m_json(json), m_encoder(encoder) { }

    bool readItems() { return readObject({}, 0); }
    const std::string &faultyPath() const { return m_fault; }

private:
    bool refuse(const std::string &path)
    {
        if (m_fault.empty()) {
            m_fault = path.empty() ? "items" : path;
        }
        return false;
    }

    bool readObject(const std::string &path, int depth)
    {
        std::string key;
        bool isFirst = true;
        if (depth > MaxValueDepth || !m_json.expect('{')) {
            return refuse(path);
        }
        while (m_json.nextMember('}', isFirst)) {
            if (!m_json.readKey(key) || !readValue(path.empty() ? key : path + '/' + key, depth)) {
                return refuse(path + '/' + key);
            }
        }
        return !m_json.failed() || refuse(path);
    }

    bool readArray(const std::string &path, int depth)
    {
        bool isFirst = true;
        if (!m_json.expect('[')) {
            return refuse(path);
        }
        while (m_json.nextMember(']', isFirst)) {
            if (m_json.peek() == '{' && !m_encoder.addRepetition(path)) {
                return refuse(path);
            }
            if (m_json.peek() == '{' ? !readObject(path, depth + 1) : !readValue(path, depth + 1)) {
                return refuse(path);
            }
        }
        return !m_json.failed() || refuse(path);
    }

    bool readValue(const std::string &path, int depth)
    {
        switch (m_json.peek()) {
        case '{':
            // What has no members is sent all the same; inside a repetition it has its place anyway.
            m_encoder.setPresent(path);
            return (m_encoder.find(path).valid() || refuse(path)) && readObject(path, depth + 1);
        case '[':
            return depth <= MaxValueDepth && (m_encoder.setPresent(path) || refuse(path)) && readArray(path, depth);
        case '"':
            return (m_json.readString(m_text) && setText(path)) || refuse(path);
        default: {
            double number = 0;
            return (m_json.readNumber(number) && m_encoder.set(path, number)) || refuse(path);
        }
        }
    }

    // Text fields first; explicit items and wide raw fields have hexadecimal text.
    bool setText(const std::string &path)
    {
        if (m_encoder.setText(path, m_text)) {
            return true;
        }
        if (octetsOfHex(m_text, m_octets) && m_encoder.setExplicit(path, m_octets)) {
            return true;
        }
        std::uint64_t bits = 0;
        const char *const end = m_text.data() + m_text.size();
        return !m_text.empty() && m_text.size() <= 16 && std::from_chars(m_text.data(), end, bits, 16).ptr == end
            && m_encoder.setRaw(path, bits);
    }

    JsonText &m_json;
    BlockEncoder &m_encoder;
    std::string m_text;
    std::vector<unsigned char> m_octets;
    std::string m_fault;
};

} // namespace

JsonEncoder::JsonEncoder(Sink sink) : m_sink(std::move(sink)) { }

bool JsonEncoder::select(int category, const std::string &edition)
{
    if (!BlockEncoder(category, edition.c_str()).valid()) {
        return false;
    }
    finish();
    m_editions[category] = edition;
    m_encoders.erase(category);
    return true;
}

BlockEncoder *JsonEncoder::encoderFor(int category)
{
    const auto known = m_encoders.find(category);
    if (known != m_encoders.end()) {
        return &known->second;
    }
    const auto edition = m_editions.find(category);
    BlockEncoder encoder(category, edition == m_editions.end() ? nullptr : edition->second.c_str());
    return encoder.valid() ? &m_encoders.emplace(category, std::move(encoder)).first->second : nullptr;
}

bool JsonEncoder::addLine(std::string_view text)
{
    JsonText json(text);
    Line line;
    m_lastError.clear();
    if (!readLine(json, line) || line.items == 0 || line.category < 0) {
        m_lastError = "not an object with \"cat\", \"block\" and \"items\"";
    }
    BlockEncoder *encoder = m_lastError.empty() ? encoderFor(line.category) : nullptr;
    if (m_lastError.empty() && !encoder) {
        m_lastError = "no table for category " + std::to_string(line.category);
    }
    if (!encoder) {
        return false;
    }
    if (encoder != m_current || line.block != m_block) {
        finish();
    }
    if (!m_current) {
        encoder->beginBlock();
    }
    m_current = encoder;
    m_block = line.block;
    json.rewind(line.items);
    encoder->beginRecord();
    ItemReader reader(json, *encoder);
    if (!reader.readItems()) {
        m_lastError = "no such field, or its value does not fit: " + reader.faultyPath();
    } else if (!encoder->endRecord()) {
        m_lastError = "item of another UAP, an explicit item longer than 255 octets or a block longer than 65535";
    }
    return m_lastError.empty();
}

void JsonEncoder::finish()
{
    if (m_current && m_current->recordCount() > 0) {
        m_sink(m_current->block());
    }
    m_current = nullptr;
}

} // namespace korvane::asterix
