// The font that reports are printed in, as the user chooses it.
#pragma once

#include "platform/desk/PrintJob.h"

#include <optional>

class QWidget;

/// Shows the font dialog above a window; nothing: cancelled. It lists the fonts that a printer can draw, and opens on
/// the toolkit's own one, black, whatever documents are printed in.
std::optional<PrintFont> AskPrinterFont(QWidget *above);
