// A document on its way to the printer.
#pragma once

#include <QString>
#include <QStringList>

struct PrintFont {
    QString Name;
    float Size = 0;
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Strikethru = false;
    qint32 Color = 0; ///< 0x00BBGGRR
    bool operator==(const PrintFont &) const = default;
};

/// A finished document: its lines, trailing blanks cut off, the font that was set last before its first line, and the
/// name that was set last before its end.
struct PrintJob {
    PrintFont Font;
    QStringList Lines;
    QString Name = {}; ///< "Savings Forecast"; the printer's queue and the file of a PDF are called by it
};
