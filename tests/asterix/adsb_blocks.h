#pragma once

#include "asterix/encoder.h"

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

// Blocks of CAT021 as ground stations send them: one source, aircraft within its range, the items that its equipment
// has. Every block is of another station.
class AdsbBlocks {
    using BlockEncoder = korvane::asterix::BlockEncoder;

public:
    AdsbBlocks(const char *edition, std::uint32_t seed)
        : m_encoder(21, edition), m_isOld(std::string_view(edition).starts_with("0.")), m_random(seed)
    {
    }

    // Everything below about one block of so many records.
    const BlockEncoder &makeBlock(int records)
    {
        m_sac = below(256);
        m_sic = below(256);
        m_latitude = between(-70, 70);
        m_longitude = between(-179, 179);
        m_time = between(0, 86300);
        for (bool &has : m_has) {
            has = chance(0.5);
        }
        m_encoder.beginBlock();
        for (int i = 0; i < records; ++i) {
            m_encoder.beginRecord();
            m_time += between(0, 0.05);
            setIdentity();
            setPosition();
            setMotion();
            if (m_isOld) {
                setOldItems();
            } else {
                setNewItems();
            }
            m_encoder.endRecord();
        }
        return m_encoder;
    }

private:
    // What a station's equipment and settings give.
    enum Equipment {
        HighResolution,
        ReceptionTimes,
        Geometric,
        TrueAirspeed,
        Intentions,
        Quality,
        Ages,
        Receiver,
        Numbers,
        EquipmentCount
    };

    bool chance(double probability) { return std::bernoulli_distribution(probability)(m_random); }
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    double between(double least, double most) { return std::uniform_real_distribution<double>(least, most)(m_random); }

    void set(std::string_view path, double value) { m_encoder.set(path, value); }

    void setIdentity()
    {
        set("010/SAC", m_sac);
        set("010/SIC", m_sic);
        set("040/ATP", chance(0.95) ? 0 : 2);
        set("040/ARC", chance(0.9) ? 0 : 1);
        m_isOnGround = chance(0.1);
        set("080", 1 + below(0xFFFFFE));
        if (chance(0.9)) {
            std::string name;
            for (int size = 3 + below(6); size > 0; --size) {
                name += "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"[below(36)];
            }
            m_encoder.setText("170", name);
        }
        if (chance(0.8)) {
            set("020", below(24));
        }
        if (chance(0.9)) {
            m_encoder.setText(m_isOld ? "" : "070/MODE3A", octalCode());
        }
    }

    std::string octalCode()
    {
        std::string code;
        while (code.size() < 4) {
            code += static_cast<char>('0' + below(8));
        }
        return code;
    }

    void setPosition()
    {
        if (chance(0.05)) {
            return;
        }
        const double latitude = m_latitude + between(-3, 3);
        const double longitude = m_longitude + between(-0.9, 0.9);
        set("130/LAT", latitude);
        set("130/LON", longitude);
        if (m_has[HighResolution] && !m_isOld) {
            set("131/LAT", latitude);
            set("131/LON", longitude);
        }
    }

    void setMotion()
    {
        const double level = m_isOnGround ? 0 : between(0, 450);
        if (!m_isOnGround) {
            set("145", level);
        }
        if (m_has[Geometric]) {
            set("140", level * 100 + between(0, 500));
        }
        const bool climbs = chance(0.3);
        const double speed = m_isOnGround ? between(0, 0.01) : between(0.02, 0.16);
        set("160/GS", speed);
        set("160/TA", between(0, 359.9));
        const char *const rate = m_has[Geometric] ? "157" : "155";
        const std::string field = m_isOld ? rate : std::string(rate) + (m_has[Geometric] ? "/GVR" : "/BVR");
        if (!m_isOnGround) {
            set(field, climbs ? between(-2500, 2500) : 0);
        }
        if (m_has[TrueAirspeed] && chance(0.3)) {
            set(m_isOld ? "151" : "151/TAS", between(120, 500));
            set("152", between(0, 359.9));
        }
        if (m_has[Intentions] && chance(0.6)) {
            set("146/SAS", 1);
            set("146/ALT", 1000 * below(40));
        }
    }

    // Items that editions 0.23 and 0.26 have, in their own way.
    void setOldItems()
    {
        set("030", m_time);
        set("040/GBS", m_isOnGround);
        set("090/AC", below(4));
        set("090/PA", below(8));
        set("210/MDS", 1);
        if (m_has[Quality]) {
            set("095", below(5));
        }
        if (m_has[Numbers]) {
            set("200", chance(0.02) ? 1 : 0);
        }
        m_encoder.setText("070/MODE3A", octalCode()); // not in edition 0.23
    }

    // Items that came with edition 2.1, or changed.
    void setNewItems()
    {
        set(m_has[ReceptionTimes] ? "073" : "071", m_time);
        if (m_has[ReceptionTimes]) {
            set("075", m_time + 0.1);
        }
        set("077", m_time + 0.3);
        if (m_isOnGround) {
            set("040/GBS", 1);
        }
        set("090/NUCRNACV", below(4));
        set("090/NUCPNIC", below(10));
        if (m_has[Quality]) {
            set("090/NACP", below(11));
            set("090/GVA", below(3));
        }
        set("210/VN", below(3));
        set("210/LTT", 2);
        set("200/SS", chance(0.02) ? 1 : 0);
        if (m_has[Numbers]) {
            set("161/TRNUM", below(4096));
        }
        if (m_has[Receiver]) {
            set("015", 1);
            set("132", -90 + below(60));
            set("400", below(32));
        }
        if (m_isOnGround) {
            set("271/POA", chance(0.5));
        }
        if (m_isOnGround && m_has[Quality]) {
            set("271/LW", 1 + below(15));
        }
        if (m_has[Ages]) {
            set("295/TRD", between(0, 5));
            set("295/GV", between(0, 5));
            set("295/FL", between(0, 5));
        }
    }

    BlockEncoder m_encoder;
    bool m_isOld;
    std::mt19937_64 m_random;
    int m_sac = 0;
    int m_sic = 0;
    double m_latitude = 0;
    double m_longitude = 0;
    double m_time = 0;
    bool m_isOnGround = false;
    bool m_has[EquipmentCount] = {};
};
