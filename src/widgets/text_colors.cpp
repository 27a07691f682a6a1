#include "widgets/text_colors.h"

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

} // namespace

QColor quietTextColor(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xAF, 0xB6, 0xBC) : QColor(0x68, 0x68, 0x68);
}

QColor warningTextColor(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xE6, 0xB0, 0x40) : QColor(0x8A, 0x5A, 0x00);
}

QColor alarmTextColor(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xFF, 0x9A, 0x98) : QColor(0xB0, 0x00, 0x20);
}
