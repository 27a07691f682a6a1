#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace korvane::astfile {

// Puts the fragments of IP datagrams together again, in whatever order they were captured. Datagrams that stay
// incomplete are forgotten after 30 s of capture time, or when too many are open.
class FragmentAssembler {
public:
    struct Key {
        std::array<unsigned char, 16> source = {};
        std::array<unsigned char, 16> destination = {};
        std::uint32_t identification = 0;
        std::uint8_t protocol = 0;

        bool operator==(const Key &) const = default;
    };

    struct Fragment {
        std::size_t offset = 0; // of data in the datagram, octets
        std::span<const unsigned char> data;
        bool last = false;
    };

    // The whole datagram's octets when this fragment completes it, else empty; valid until the next call.
    std::span<const unsigned char> add(const Key &key, const Fragment &fragment, qint64 timeMs);

    void clear() { m_assemblies.clear(); }

private:
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
    };

    struct Assembly {
        Key key;
        qint64 startMs = 0;
        QByteArray octets;
        std::vector<Range> received; // neither touching nor overlapping
        std::size_t total = 0; // 0 until the last fragment came
    };

    Assembly &assemblyFor(const Key &key, qint64 timeMs);
    void dropStale(qint64 timeMs);
    static void store(Assembly &assembly, const Fragment &fragment);
    static bool complete(const Assembly &assembly);

    std::vector<Assembly> m_assemblies; // oldest first
    QByteArray m_whole;
};

} // namespace korvane::astfile
