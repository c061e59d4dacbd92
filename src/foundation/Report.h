// How a statement stands on the printed page, below the program's title.
#pragma once

#include "foundation/Statement.h"

/// Where a page puts the cells of a row; columns count from 1.
struct PageColumns {
    std::vector<int> Texts;      ///< where each text starts; the rules start where the first does
    std::vector<int> AmountEnds; ///< each amount ends just before its column
    int RuleLength;
};
inline const PageColumns AmountPage{{15}, {65}, 50};
inline const PageColumns TablePage{{5, 38, 62}, {47, 75}, 70};

/// Opens a document of that name: applies the print settings and prints the title.
void BeginReport(const QString &documentName);

/// Prints a heading below the title, in the middle of the page, and an empty line.
void PrintHeading(const QString &heading);

/// Applies the print settings and prints the title, the statement's heading and opening if it has them, and its rows.
/// The document stays open.
void PrintStatement(const Statement &statement, const PageColumns &columns);
