#include "asterix/json_writer.h"

#include "bits.h"
#include "element_text.h"
#include "record_fields.h"
#include "walker.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace korvane::asterix {
namespace {

// Everything of a line but its items.
constexpr std::size_t LineRoom = 256;

char *writeKey(char *out, const Node &node)
{
    std::memcpy(out, node.key.data(), KeyRoom);
    if (node.keySize > KeyRoom) [[unlikely]] {
        std::memcpy(out, node.key.data(), node.keySize);
    }
    return out + node.keySize;
}

// Ends a list of members or values: its last comma becomes the bracket.
char *closeList(char *out, char bracket)
{
    if (out[-1] == ',') {
        --out;
    }
    *out++ = bracket;
    return out;
}

class RecordWriter {
public:
    RecordWriter(TextBuffer &buffer, const _ast_datarecord_t &record, Expansion expansion)
        : m_buffer(buffer), m_record(record), m_end(record.data + record.length),
          m_expand(expansion == Expansion::AsObject)
    {
    }

    void write(const RecordPlace &place)
    {
        m_out = m_buffer.reserve(LineRoom);
        writeHead(place);
        for (int slot = 0; slot < m_record.uap->count; ++slot) {
            const unsigned offset = m_record.itemOffsets[slot];
            const Node *item = m_record.uap->steps[static_cast<std::size_t>(slot)].node;
            if (offset == 0 || !item) {
                continue;
            }
            ensure(item->jsonSize);
            m_out = writeKey(m_out, *item);
            writeItem(*item, m_record.data + offset);
            *m_out++ = ',';
        }
        m_out = closeList(m_out, '}');
        m_out = writeLiteral(m_out, "}\n");
        m_buffer.commit(m_out);
    }

private:
    // Room for that many characters, and for a key's surplus and the line's end after them.
    void ensure(std::size_t room)
    {
        m_buffer.commit(m_out);
        m_out = m_buffer.reserve(room + LineRoom);
    }

    void writeHead(const RecordPlace &place)
    {
        m_out = writeUnsigned(
            writeLiteral(m_out, "{\"cat\":"), static_cast<unsigned>(m_record.uap->layout->edition().category));
        m_out = writeUnsigned(writeLiteral(m_out, ",\"block\":"), place.block);
        m_out = writeUnsigned(writeLiteral(m_out, ",\"offset\":"), place.offset);
        m_out = writeUnsigned(writeLiteral(m_out, ",\"length\":"), m_record.length);
        if (place.hasTime) {
            writeTime(place.timeMilliseconds);
        }
        m_out = writeLiteral(m_out, ",\"items\":{");
    }

    void writeTime(std::int64_t milliseconds)
    {
        m_out = writeUnsigned(writeLiteral(m_out, ",\"time\":"), static_cast<std::uint64_t>(milliseconds / 1000));
        const auto fraction = static_cast<unsigned>(milliseconds % 1000);
        *m_out++ = '.';
        for (const unsigned digit : {fraction / 100, fraction / 10 % 10, fraction % 10}) {
            *m_out++ = static_cast<char>('0' + digit);
        }
    }

    // An item or a sub-item of a compound, from its first octet.
    void writeItem(const Node &node, const unsigned char *at)
    {
        switch (node.kind) {
        case Kind::Extended:
            writeExtended(node, at);
            break;
        case Kind::Compound:
            writeCompound(node, at);
            break;
        case Kind::Repetitive:
            writeRepetitions(node, at + 1, at[0]);
            break;
        case Kind::RepetitiveFx:
            writeRepetitionsFx(node, at);
            break;
        case Kind::Explicit:
            if (m_expand && !node.children.empty() && hasKnownContents(node, at)) {
                writeCompound(node, at);
            } else {
                writeExplicit(at);
            }
            break;
        case Kind::Group:
            if (node.octets <= 8) {
                writeShortGroup(node, beOctets(at, node.octets), at);
            } else {
                writeFixed(node, at);
            }
            break;
        default:
            writeFixed(node, at);
        }
    }

    // A group whose bits fit one word: fields are cut out of it.
    void writeShortGroup(const Node &node, std::uint64_t word, const unsigned char *base)
    {
        *m_out++ = '{';
        unsigned left = node.bits;
        for (const Node &child : node.children) {
            left -= child.bits;
            if (child.kind == Kind::Spare) {
                continue;
            }
            m_out = writeKey(m_out, child);
            if (isElement(child.kind)) {
                m_out = writeElement(m_out, child, word >> left & (~std::uint64_t{0} >> (64 - child.bits)));
            } else {
                writeFixed(child, base);
            }
            *m_out++ = ',';
        }
        m_out = closeList(m_out, '}');
    }

    // Elements, groups and cases: what has its bits at a known place after base.
    void writeFixed(const Node &node, const unsigned char *base)
    {
        if (node.kind == Kind::Group) {
            *m_out++ = '{';
            for (const Node &child : node.children) {
                writeMember(child, base);
            }
            m_out = closeList(m_out, '}');
        } else if (node.kind == Kind::Case) {
            const Node *alternative = chosenAlternative(node, m_record, base);
            if (alternative) {
                writeFixed(*alternative, base);
            } else {
                m_out = writeRaw(m_out, node, bitsAt(base, node.bitOffset, node.bits));
            }
        } else if (node.bits <= 64) {
            m_out = writeElement(m_out, node, bitsAt(base, node.bitOffset, node.bits));
        } else {
            *m_out++ = '"';
            m_out = writeHexOctets(m_out, base + node.bitOffset / 8, node.bits / 8);
            *m_out++ = '"';
        }
    }

    void writeMember(const Node &child, const unsigned char *base)
    {
        if (child.kind == Kind::Spare) {
            return;
        }
        m_out = writeKey(m_out, child);
        writeFixed(child, base);
        *m_out++ = ',';
    }

    void writeExtended(const Node &node, const unsigned char *at)
    {
        *m_out++ = '{';
        for (const Node &child : node.children) {
            if (child.kind != Kind::ExtentEnd) {
                writeMember(child, at);
            } else if (!(at[child.bitOffset / 8] & 1)) {
                break;
            }
        }
        m_out = closeList(m_out, '}');
    }

    void writeCompound(const Node &node, const unsigned char *at)
    {
        Fault none;
        const Presence presence(node, at);
        const unsigned char *next = presence.contents();
        *m_out++ = '{';
        for (std::size_t i = 0; i < presence.positions(); ++i) {
            if (!presence.has(i)) {
                continue;
            }
            const Node &child = node.children[i];
            ensure(node.jsonSize);
            m_out = writeKey(m_out, child);
            writeItem(child, next);
            *m_out++ = ',';
            next += itemLength(child, next, m_end, none);
        }
        m_out = closeList(m_out, '}');
    }

    void writeRepetitions(const Node &node, const unsigned char *at, unsigned count)
    {
        const Node &element = node.children[0];
        *m_out++ = '[';
        for (; count > 0; --count, at += node.elementOctets) {
            ensure(element.jsonSize);
            writeFixed(element, at);
            *m_out++ = ',';
        }
        m_out = closeList(m_out, ']');
    }

    void writeRepetitionsFx(const Node &node, const unsigned char *at)
    {
        const Node &element = node.children[0];
        *m_out++ = '[';
        do {
            ensure(element.jsonSize);
            writeFixed(element, at);
            *m_out++ = ',';
            at += node.elementOctets;
        } while (at[-1] & 1);
        m_out = closeList(m_out, ']');
    }

    void writeExplicit(const unsigned char *at)
    {
        const std::size_t contents = at[0] - std::size_t{1};
        ensure(2 * contents);
        *m_out++ = '"';
        m_out = writeHexOctets(m_out, at + 1, contents);
        *m_out++ = '"';
    }

    TextBuffer &m_buffer;
    const _ast_datarecord_t &m_record;
    const unsigned char *m_end;
    bool m_expand;
    char *m_out = nullptr;
};

} // namespace

char *TextBuffer::reserve(std::size_t room)
{
    if (m_size + room > m_capacity) {
        const std::size_t capacity = std::max(m_capacity * 2, m_size + room);
        std::unique_ptr<char[]> data(new char[capacity]);
        if (m_size > 0) {
            std::memcpy(data.get(), m_data.get(), m_size);
        }
        m_data = std::move(data);
        m_capacity = capacity;
    }
    return m_data.get() + m_size;
}

void appendRecordJson(TextBuffer &out, const _ast_datarecord_t &record, const RecordPlace &place, Expansion expansion)
{
    RecordWriter(out, record, expansion).write(place);
}

} // namespace korvane::asterix
