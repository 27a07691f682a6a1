#include "app/uap_profile.h"

#include <QCoreApplication>

#include <array>

namespace {

constexpr std::array Profiles{
    UapProfile{"auto", [] { return QCoreApplication::translate("UapProfile", "Automatic"); }},
    UapProfile{"standard", [] { return QCoreApplication::translate("UapProfile", "Standard"); }},
    UapProfile{"cat001-plot", [] { return QCoreApplication::translate("UapProfile", "CAT001 plots"); }},
    UapProfile{"asr10ss", [] { return QStringLiteral("ASR10SS"); }},
    UapProfile{"cat021-0.23", [] { return QStringLiteral("CAT021 0.23"); }},
    UapProfile{"cat021-0.26", [] { return QStringLiteral("CAT021 0.26"); }},
    UapProfile{"cat021-2.1", [] { return QStringLiteral("CAT021 2.1"); }},
    UapProfile{"cat021-2.7", [] { return QStringLiteral("CAT021 2.7"); }},
    UapProfile{"thales", [] { return QStringLiteral("THALES"); }},
};

} // namespace

std::span<const UapProfile> uapProfiles()
{
    return Profiles;
}
