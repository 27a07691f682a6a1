#include "display/track_look.h"

#include <QFontDatabase>

#include <algorithm>

namespace {

constexpr int DefaultLabelPoints = 12;
// Far enough up and to the right that a label of two or three lines leaves symbol and vector free.
constexpr QPoint DefaultLabelOffset(26, 44);

QFont defaultLabelFont()
{
    // The second family stands in where the first is not installed.
    QFont font;
    font.setFamilies({QStringLiteral("Cascadia Code"), QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
    font.setStyleHint(QFont::Monospace);
    font.setPointSize(DefaultLabelPoints);
    return font;
}

QColor withOpacity(QColor color, int percent)
{
    color.setAlphaF(float(std::clamp(percent, 0, 100)) / 100.0f);
    return color;
}

} // namespace

TrackColors::TrackColors(const Config &config)
    : symbol(config.trackSymbolColor), casing(config.trackSymbolCasingColor), leader(config.trackLeaderColor),
      coasting(config.trackCoastingColor), caution(config.trackCautionColor), label(config.trackLabelColor),
      labelDetail(config.trackLabelDetailColor), labelSelected(config.trackLabelSelectedColor),
      labelAlert(config.trackLabelAlertColor), labelAlertText(config.trackLabelAlertTextColor),
      labelBackground(withOpacity(config.trackLabelBackgroundColor, config.trackLabelBackgroundOpacity))
{
}

TrackLook::TrackLook() : labelFont(defaultLabelFont()), labelOffset(DefaultLabelOffset) { }
