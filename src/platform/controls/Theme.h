// The few colours of our own: the accent, and colours that stay readable on a light and on a dark desktop. All else
// is the palette of the desktop.
#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

/// How far apart two colours are in lightness, 1 (the same) to 21 (black on white), as the web's accessibility
/// guidelines count it.
double Contrast(const QColor &one, const QColor &other);

/// Whether the palette writes light text on a dark window.
bool IsDark(const QPalette &palette);

/// The calm green of icons and title panels, at least 3 to 1 against the palette's window.
QColor AccentColour(const QPalette &palette);

/// White or black, whichever is easier to read on `background`.
QColor TextOn(const QColor &background);

/// `pure` itself if it has the contrast on that background; else the nearest lighter or darker colour of its hue that
/// has. Where none has, the end of the scale that comes closest.
QColor ReadableOn(const QColor &pure, const QColor &background, double contrast = 4.5);

/// The colours of the sixteen-colour palette that grids use: 9 light blue for credits, 12 light red for deficits, both
/// readable on `background`. 0 and every other index is `text`.
QColor QBColor(int index, const QColor &background, const QColor &text);

/// Gives the panel the rounded accent background and the text colour that goes with it; labels in it inherit that,
/// buttons and lists keep their own colours. Follows the desktop's colours.
/// For the title panels of splash, welcome, guide and main window only.
void StyleTitlePanel(QWidget *panel);
