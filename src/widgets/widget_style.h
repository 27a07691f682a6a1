#pragma once

class QString;
class Theme;

// Gives the application the widget style of that name, spelled as the toolkit does; with one that it does not have,
// that of the default setting or else the one that it began with.
void applyWidgetStyle(const QString &name);

// Gives all windows the colours of the theme, or those of the desktop where it has none.
void applyWindowColors(const Theme &theme);
