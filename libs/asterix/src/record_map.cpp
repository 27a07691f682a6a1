#include "asterix/record_map.h"

#include "bits.h"
#include "element_text.h"
#include "record_fields.h"
#include "walker.h"

namespace korvane::asterix {
namespace {

// The walk of the JSON writer, with places instead of punctuation.
class RecordMapper {
public:
    RecordMapper(const _ast_datarecord_t &record, std::vector<FieldPlace> &places)
        : m_record(record), m_end(record.data + record.length), m_places(places)
    {
    }

    void map()
    {
        for (int slot = 0; slot < m_record.uap->count; ++slot) {
            const unsigned offset = m_record.itemOffsets[slot];
            const Node *item = m_record.uap->steps[static_cast<std::size_t>(slot)].node;
            if (offset > 0 && item) {
                m_title = item->title;
                mapItem(*item, m_record.data + offset, item->name);
            }
        }
    }

private:
    // An item or a sub-item of a compound, from its first octet.
    void mapItem(const Node &node, const unsigned char *at, const std::string &path)
    {
        switch (node.kind) {
        case Kind::Extended:
            return mapExtended(node, at, path);
        case Kind::Compound:
            return mapCompound(node, at, path);
        case Kind::Repetitive:
            return mapRepetitions(node, at + 1, at[0], path);
        case Kind::RepetitiveFx:
            return mapRepetitions(node, at, repetitionsFx(node, at), path);
        case Kind::Explicit:
            if (!node.children.empty() && hasKnownContents(node, at)) {
                return mapCompound(node, at, path);
            }
            return addOctets(at + 1, at[0] - std::size_t{1}, path);
        default:
            return mapFixed(node, at, path);
        }
    }

    // Elements, groups and cases: what has its bits at a known place after base.
    void mapFixed(const Node &node, const unsigned char *base, const std::string &path)
    {
        if (node.kind == Kind::Group) {
            for (const Node &child : node.children) {
                mapMember(child, base, path);
            }
        } else if (node.kind == Kind::Case) {
            const Node *alternative = chosenAlternative(node, m_record, base);
            if (alternative) {
                mapFixed(*alternative, base, path);
            } else {
                addElement(node, base, path);
            }
        } else if (node.kind != Kind::Spare) {
            addElement(node, base, path);
        }
    }

    void mapMember(const Node &child, const unsigned char *base, const std::string &path)
    {
        if (child.kind != Kind::Spare) {
            mapFixed(child, base, path + '/' + child.name);
        }
    }

    void mapExtended(const Node &node, const unsigned char *at, const std::string &path)
    {
        for (const Node &child : node.children) {
            if (child.kind != Kind::ExtentEnd) {
                mapMember(child, at, path);
            } else if (!(at[child.bitOffset / 8] & 1)) {
                return;
            }
        }
    }

    void mapCompound(const Node &node, const unsigned char *at, const std::string &path)
    {
        Fault none;
        const Presence presence(node, at);
        const unsigned char *next = presence.contents();
        for (std::size_t i = 0; i < presence.positions(); ++i) {
            if (presence.has(i)) {
                const Node &child = node.children[i];
                mapItem(child, next, path + '/' + child.name);
                next += itemLength(child, next, m_end, none);
            }
        }
    }

    unsigned repetitionsFx(const Node &node, const unsigned char *at) const
    {
        unsigned count = 1;
        while (at[count * node.elementOctets - 1] & 1) {
            ++count;
        }
        return count;
    }

    void mapRepetitions(const Node &node, const unsigned char *at, unsigned count, const std::string &path)
    {
        for (unsigned number = 1; number <= count; ++number, at += node.elementOctets) {
            mapFixed(node.children[0], at, path + '[' + std::to_string(number) + ']');
        }
    }

    void addElement(const Node &node, const unsigned char *base, const std::string &path)
    {
        if (node.bits > 64) {
            return addOctets(base + node.bitOffset / 8, node.bits / 8, path);
        }
        std::string text(node.jsonSize + KeyRoom, '\0');
        const std::uint64_t bits = bitsAt(base, node.bitOffset, node.bits);
        char *const end =
            isElement(node.kind) ? writeElement(text.data(), node, bits) : writeRaw(text.data(), node, bits);
        text.resize(static_cast<std::size_t>(end - text.data()));
        if (text.size() >= 2 && text.front() == '"') {
            text = text.substr(1, text.size() - 2);
        }
        const auto octets = static_cast<std::size_t>(base - m_record.data);
        add(path, std::move(text), node.unit, octets * 8 + node.bitOffset, node.bits);
    }

    void addOctets(const unsigned char *at, std::size_t count, const std::string &path)
    {
        std::string text(2 * count, '\0');
        writeHexOctets(text.data(), at, count);
        add(path, std::move(text), "", static_cast<std::size_t>(at - m_record.data) * 8, count * 8);
    }

    void add(const std::string &path, std::string value, const char *unit, std::size_t firstBit, std::size_t bits)
    {
        m_places.push_back({path, m_title, std::move(value), unit, static_cast<std::uint32_t>(firstBit),
            static_cast<std::uint32_t>(bits)});
    }

    const _ast_datarecord_t &m_record;
    const unsigned char *m_end;
    std::vector<FieldPlace> &m_places;
    std::string_view m_title;
};

} // namespace

std::vector<FieldPlace> fieldPlaces(const _ast_datarecord_t &record)
{
    std::vector<FieldPlace> places;
    if (record.valid) {
        RecordMapper(record, places).map();
    }
    return places;
}

int categoryOf(const _ast_datarecord_t &record)
{
    return record.valid ? record.uap->layout->edition().category : 0;
}

bool decodeRecord(_ast_datarecord_t *record, const unsigned char *data, std::size_t length, const Uap *uap)
{
    if (!uap || !decodeRecord(*record, data, length, *uap)) {
        *record = {};
        return false;
    }
    return true;
}

} // namespace korvane::asterix
