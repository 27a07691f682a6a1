#pragma once

#include "app/config.h"

#include <QVariant>

#include <type_traits>

// How the value of a setting stands in the file. Whole numbers, switches, colours and plain texts are stored as they
// are; enumerations without texts as their number.
template <typename T>
struct SettingCodec {
    static QVariant encoded(const T &value)
    {
        if constexpr (std::is_enum_v<T>) {
            return static_cast<int>(value);
        } else {
            return QVariant::fromValue(value);
        }
    }

    static T decoded(const QVariant &stored)
    {
        if constexpr (std::is_enum_v<T>) {
            return static_cast<T>(stored.toInt());
        } else {
            return stored.value<T>();
        }
    }
};

template <typename T>
struct ShortNumberCodec {
    static QVariant encoded(T value) { return static_cast<uint>(value); }
    static T decoded(const QVariant &stored) { return static_cast<T>(stored.toUInt()); }
};
template <>
struct SettingCodec<quint8> : ShortNumberCodec<quint8> {
};
template <>
struct SettingCodec<quint16> : ShortNumberCodec<quint16> {
};

// For values with a text each.
template <typename T, auto ToText, auto FromText>
struct TextCodec {
    static QVariant encoded(const T &value) { return ToText(value); }
    static T decoded(const QVariant &stored) { return FromText(stored.toString()); }
};
template <>
struct SettingCodec<SensorType> : TextCodec<SensorType, sensorTypeToString, sensorTypeFromString> {
};
template <>
struct SettingCodec<TileService> : TextCodec<TileService, tileServiceIdentifier, tileServiceFromIdentifier> {
};
template <>
struct SettingCodec<BingTileImagery> : TextCodec<BingTileImagery, bingTileImageryToString, bingTileImageryFromString> {
};
template <>
struct SettingCodec<GoogleTileLayer> : TextCodec<GoogleTileLayer, googleTileLayerToCode, googleTileLayerFromCode> {
};
template <>
struct SettingCodec<TiandituTileLayer>
    : TextCodec<TiandituTileLayer, tiandituTileLayerToCode, tiandituTileLayerFromCode> {
};
template <>
struct SettingCodec<FaaTileChart> : TextCodec<FaaTileChart, faaTileChartToString, faaTileChartFromString> {
};

template <>
struct SettingCodec<korvane::modes::ModeSEncapsulation::Format> {
    using Encapsulation = korvane::modes::ModeSEncapsulation;
    static QVariant encoded(Encapsulation::Format value)
    {
        return QString::fromStdString(Encapsulation::identifier(value));
    }
    static Encapsulation::Format decoded(const QVariant &stored)
    {
        return Encapsulation::fromIdentifier(stored.toString().toStdString());
    }
};

template <>
struct SettingCodec<LanInterface> {
    static QVariant encoded(const LanInterface &value) { return value.name(); }
    static LanInterface decoded(const QVariant &stored) { return LanInterface(stored.toString()); }
};

template <>
struct SettingCodec<QHostAddress> {
    static QVariant encoded(const QHostAddress &value) { return value.toString(); }
    static QHostAddress decoded(const QVariant &stored) { return QHostAddress(stored.toString()); }
};

template <>
struct SettingCodec<QFileInfo> {
    static QVariant encoded(const QFileInfo &value) { return value.filePath(); }
    static QFileInfo decoded(const QVariant &stored) { return QFileInfo(stored.toString()); }
};

// The view centre is kept to the second, as it is typed; a sensor's site to the hundredth, as it is surveyed.
template <GeoCoordinate::ATCStringFormat Format>
struct CoordinateCodec {
    static QVariant encoded(const GeoCoordinate &value) { return value.toATCString(Format); }
    static GeoCoordinate decoded(const QVariant &stored) { return GeoCoordinate::fromATCString(stored.toString()); }
};

// Transparency has keys of its own; the colour's alpha never counts.
struct OpaqueColorCodec {
    static QVariant encoded(const QColor &value) { return value; }
    static QColor decoded(const QVariant &stored)
    {
        auto color = stored.value<QColor>();
        color.setAlpha(255);
        return color;
    }
};
