// The font that reports are printed in, as the user chooses it.
#pragma once

#include "platform/desk/PrintJob.h"

#include <optional>

class QWidget;

/// "Courier, 8 points, bold, black". A colour that the dialog does not list has no name.
QString NameOf(const PrintFont &font);

/// Shows the font dialog above a window; nothing: cancelled. It lists the fonts that a printer can draw, and opens on
/// the toolkit's own one, black, whatever documents are printed in.
std::optional<PrintFont> AskPrinterFont(QWidget *above);
