// What the program is called.
#pragma once

#include <QString>

/// Its short name: desktop file, pictures and processes go by it in small letters.
inline const QString ProgramName = QStringLiteral("Tallymere");
/// The program's title as options store, default error report and messages of its own use it.
inline const QString AppTitle = QStringLiteral("Corvelle's Tallymere 1.0");
/// Where its help file lies in the program's folder.
inline const QString HelpFileName = QStringLiteral("\\help\\budget help.hlp");
/// The first line of every printed report.
inline const QString ReportTitle = QStringLiteral("The Corvelle's Tallymere 1.0");
