#include "platform/desk/Printer.h"

#include "platform/desk/Desk.h"
#include "platform/values/Numbers.h"

#include <utility>

Printer &Printer::Tab(int column)
{
    const auto blanks = qMax(column, 1) - 1;
    if (m_line.size() > blanks)
        NewLine();
    m_line.append(QString(blanks - m_line.size(), QLatin1Char(' ')));
    return *this;
}

Printer &Printer::Print(const QString &text)
{
    if (!m_started) {
        m_started = true;
        m_startFont = Font;
    }
    m_line += text;
    return *this;
}

Printer &Printer::NewLine()
{
    Print({});
    while (m_line.endsWith(QLatin1Char(' ')))
        m_line.chop(1);
    m_lines += m_line;
    m_line.clear();
    return *this;
}

void Printer::CentredLine(const QString &text)
{
    Tab(RoundToEven((80 - double(text.size())) / 2)).Print(text).NewLine();
}

void Printer::RuleLine(int column, int length)
{
    Tab(column).Print(QString(length, QLatin1Char('_'))).NewLine();
}

void Printer::EndDoc()
{
    if (!m_line.trimmed().isEmpty())
        NewLine();
    m_line.clear(); // a column that was only moved to is no line
    if (!m_started)
        return;
    const PrintJob job{m_startFont, m_lines, std::exchange(DocumentName, {})};
    m_lines.clear();
    m_started = false;
    TheDesk.PrintDocument(job);
}
