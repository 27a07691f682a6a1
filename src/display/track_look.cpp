#include "display/track_look.h"

#include "display/cover_mask.h"
#include "display/track_label_marks.h"
#include "view/contrast.h"
#include "view/label_face.h"

#include <QFontDatabase>

#include <algorithm>

namespace {

constexpr int DefaultLabelPoints = 12;
// Far enough up and to the right that a label of two or three lines leaves symbol and vector free.
constexpr QPoint DefaultLabelOffset(26, 44);

QFont defaultLabelFont()
{
    loadLabelFace();
    // The second family has the characters that the first lacks.
    QFont font;
    font.setFamilies({QStringLiteral("Cascadia Code"), QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
    font.setStyleHint(QFont::Monospace);
    font.setPointSize(DefaultLabelPoints);
    return font;
}

QColor withOpacity(QColor color, int percent)
{
    color.setAlphaF(static_cast<float>(std::clamp(percent, 0, 100)) / 100.0f);
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

TrackLook::TrackLook() : labelOffset(DefaultLabelOffset)
{
    setLabelFont(defaultLabelFont());
}

void TrackLook::setLabelFont(const QFont &font)
{
    labelFont = font;
    // Glyphs on whole pixels are sharper at this size, and cheaper to paint than at fractions of one.
    labelFont.setHintingPreference(QFont::PreferFullHinting);
    identityFont = labelFont;
    identityFont.setBold(true);
    drawnMarks = tracklabel::marksToDraw(labelFont);
}

QColor TrackLook::alertGround() const
{
    if (!isCompact()) {
        return groundFor(colors.labelAlert);
    }
    QColor ground = colors.labelBackground;
    ground.setAlpha(255);
    return ground;
}

int TrackLook::coveringLabels() const
{
    constexpr double Unseen = 0.03; // of what lies below
    constexpr int Most = CoverMask::MostLayers;
    const double through = backgroundVisible ? 1.0 - static_cast<double>(colors.labelBackground.alphaF()) : 1.0;
    int labels = 1;
    for (double left = through; left > Unseen && labels <= Most; left *= through) {
        ++labels;
    }
    return labels <= Most ? labels : 0;
}

QRect TrackLook::padded(const QRect &label) const
{
    const int padding = shownPadding();
    return isCompact() ? label.adjusted(-padding, 0, padding, 0) : label.adjusted(-padding, -padding, padding, 0);
}
