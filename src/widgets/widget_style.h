#pragma once

#include <QString>

class Theme;

// Gives the application the widget style of that name, spelled as the toolkit does; with one that it does not have,
// that of the default setting or else the one that it began with. Where the keyboard is can be seen in each of them.
void applyWidgetStyle(const QString &name);

// Of the style in force, as applyWidgetStyle() takes it.
QString widgetStyleName();

// Makes the text of all windows that much larger than the system has it, 100 to 200 percent.
void applyFontScale(int percent);

// Gives all windows the colours of the theme, or those of the desktop where it has none.
void applyWindowColors(const Theme &theme);
