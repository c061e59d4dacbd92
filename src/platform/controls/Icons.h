// The icons drawn for this program: one family of line drawings in the text colour and one accent.
#pragma once

#include <QIcon>
#include <QString>

/// The icon of that name (the file's name in icons/ without its ending); a null icon if there is none.
/// It is drawn when it is first painted, at the size and scale asked for and in the application's colours of that
/// moment, so making one costs next to nothing and a change of the desktop's colours needs no care.
QIcon ThemedIcon(const QString &name);
