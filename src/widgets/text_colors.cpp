#include "widgets/text_colors.h"

namespace {

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

} // namespace

QColor quietTextColor(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xAC, 0xB2, 0xB8) : QColor(0x68, 0x68, 0x68);
}

QColor warningTextColor(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xE0, 0xA8, 0x30) : QColor(0x8A, 0x5A, 0x00);
}

QColor alarmTextColor(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xFF, 0x80, 0x80) : QColor(0xB0, 0x00, 0x20);
}
