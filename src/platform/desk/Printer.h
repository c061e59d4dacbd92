// The printed page as lines of text with columns. Fonts are set before printing; EndDoc sends the document off.
#pragma once

#include "platform/desk/PrintJob.h"

/// Only this class knows columns. They count from 1.
class Printer
{
public:
    PrintFont Font;
    QString DocumentName; ///< of the document under way; the next one starts without a name

    /// Moves to column n; below 1 counts as 1. A line that is already past it goes on in that column of the next line.
    Printer &Tab(int column);
    /// Puts text at the current column.
    Printer &Print(const QString &text);
    /// Ends the line.
    Printer &NewLine();

    /// One line of text in the middle of a page of 80 columns, at Tab((80 - length) / 2), halves to even.
    void CentredLine(const QString &text);
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
