// The real message boxes, dialogs, printer, clock, options and calculator, for main.
#pragma once

#include <QString>

/// Fills TheDesk. printedFolder: where documents go as PDF on a machine without a printer.
void InstallRealDesk(const QString &printedFolder);
