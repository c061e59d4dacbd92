// The tutor's pages and the tips as a fresh household gets them.
#pragma once

#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

inline const QString InstructionFile = QStringLiteral(PROJECT_FOLDER "/household/help/Instruction.txt");
inline const QString TipFile = QStringLiteral(PROJECT_FOLDER "/household/TIPOFDAY.TXT");
constexpr int LeastTips = 60;

/// The lines of a file; none where it cannot be read.
inline QStringList LinesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QTextStream text(&file);
    QStringList lines;
    for (QString line; text.readLineInto(&line);)
        lines += line;
    return lines;
}

/// A page's lines, each a paragraph or a step. Pages count from 1.
inline QStringList LinesOfPage(int page)
{
    QStringList lines;
    int marks = 0;
    for (const QString &line : LinesOf(InstructionFile))
        if (line.startsWith(u';'))
            ++marks;
        else if (marks == page)
            lines += line;
    return lines;
}

inline QStringList FirstGroups(const QString &text, const QString &pattern)
{
    QStringList found;
    for (const QRegularExpressionMatch &match : QRegularExpression(pattern).globalMatch(text))
        found += match.captured(1);
    return found;
}

/// What stands in double quotes: captions.
inline QStringList QuotedCaptions(const QString &text)
{
    return FirstGroups(text, QStringLiteral("\"([^\"]*)\""));
}

/// What stands in single quotes: other texts that the program shows. An apostrophe in a word is none.
inline QStringList QuotedTexts(const QString &text)
{
    return FirstGroups(text, QStringLiteral("(?<!\\w)'([^']+)'(?!\\w)"));
}
