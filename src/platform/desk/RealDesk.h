// The real message boxes, dialogs, printer, clock, options and calculator, for main.
#pragma once

#include <QString>
#include <functional>

/// Fills TheDesk. programTitle: what the user knows the program by. printedFolder: where documents go as PDF on a
/// machine without a printer. helpFile: tells the program's own help file.
void InstallRealDesk(const QString &programTitle, const QString &printedFolder,
                     const std::function<QString()> &helpFile = {});

struct FileQuestion;

/// Where a file dialog opens: the folder as the platform spells it, with the offered name if there is one.
QString DialogStart(const FileQuestion &question);
