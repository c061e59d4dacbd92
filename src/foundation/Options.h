// The three options of the program, kept by the desktop as decimal text. A missing one counts as 1, on.
#pragma once

#include "platform/desk/Desk.h"
#include "platform/values/Numbers.h"
#include "platform/values/RuntimeError.h"

inline const QString ShowWelcome = QStringLiteral("Show Welcome At Startup");
inline const QString ShowTips = QStringLiteral("Show Tips at Startup");
inline const QString ShowTutor = QStringLiteral("Show Tallymere Tutor");

/// The option as a number: 1 on, 0 off. Text that no number can be made of counts as missing.
inline double OptionValue(const QString &option)
{
    double value = 1;
    IgnoreErrors([&] { value = ToDouble(TheDesk.GetSetting(option, QStringLiteral("1"))); });
    return value;
}

inline void SaveOption(const QString &option, bool on)
{
    TheDesk.SaveSetting(option, on ? QStringLiteral("1") : QStringLiteral("0"));
}
