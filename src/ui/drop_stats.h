#pragma once

#include <QMetaType>

// Pictures that were replaced before the window took them, since the program started.
struct DropStats {
    quint64 snapshots = 0;
    quint64 videoBatches = 0;
    quint64 weatherPictures = 0;

    bool operator==(const DropStats &other) const = default;
};

Q_DECLARE_METATYPE(DropStats)
