#include "maps/map_xml_text.h"

#include <algorithm>

namespace {

bool fits(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= 0x20 && code < 0xFFFE && !character.isSurrogate()) || code == '\t' || code == '\n';
}

bool isPair(const QString &text, qsizetype at)
{
    return at + 1 < text.size() && text.at(at).isHighSurrogate() && text.at(at + 1).isLowSurrogate();
}

} // namespace

QString xmlText(const QString &text)
{
    if (std::all_of(text.cbegin(), text.cend(), fits)) {
        return text;
    }
    QString kept;
    kept.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (fits(text.at(at))) {
            kept.append(text.at(at));
        } else if (isPair(text, at)) {
            kept.append(QStringView(text).mid(at++, 2));
        }
    }
    return kept;
}
