// The printed page as lines of text with columns. Fonts are set before printing; EndDoc sends the document off.
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

/// A finished document: its lines, trailing blanks cut off, and the font that was set last before its first line.
struct PrintJob {
    PrintFont Font;
    QStringList Lines;
};

/// Only this class knows columns. They count from 1.
class Printer
{
public:
    PrintFont Font;

    /// Moves to column n; below 1 counts as 1. A line that is already past it goes on in that column of the next line.
    Printer &Tab(int column);
    /// Puts text at the current column.
    Printer &Print(const QString &text);
    /// Ends the line.
    Printer &NewLine();

    /// One line of text in the middle of a page of 80 columns, at Tab((80 - length) / 2), halves to even.
    void CentredLine(const QString &text);
    /// Label at column `left`, amount ending just before column `right`: Tab(right - length).
    void AmountLine(const QString &label, const QString &amount, int left = 15, int right = 65);
    /// `length` times "_" at `column`.
    void RuleLine(int column = 15, int length = 50);

    /// Sends the document off through TheDesk; with nothing printed it does nothing.
    void EndDoc();

    /// What was printed since the last EndDoc.
    const QStringList &PendingLines() const { return m_lines; }
    void Reset() { *this = {}; }

private:
    QStringList m_lines;
    QString m_line;
    PrintFont m_startFont;
    bool m_started = false;
};
inline Printer ThePrinter;
