// The fields of a window that other windows fill or read. Asking for one loads its window unseen where it is not
// loaded.
#pragma once

#include "foundation/Tutor.h"
#include "foundation/WindowNames.h"
#include "platform/windows/WindowRegister.h"

#include <QLabel>
#include <QLineEdit>
#include <QTimer>

namespace WindowField {
/// The day above the question for the pay period.
inline QLabel &Today()
{
    return TheWindows.ControlOf<QLabel>(WindowName::frmSetCurrentPayPeriod, QStringLiteral("lblDate"));
}
inline QLineEdit &CurrentPayPeriod()
{
    return TheWindows.ControlOf<QLineEdit>(WindowName::frmSetCurrentPayPeriod, QStringLiteral("txtCurrentPayPeriod"));
}
/// The name of the open store list in the settings.
inline QLineEdit &StoreFile()
{
    return TheWindows.ControlOf<QLineEdit>(WindowName::frmEnvironmentSettings, QStringLiteral("txtStoreFile"));
}
/// The sales tax there, in per cent.
inline QLineEdit &SalesTax()
{
    return TheWindows.ControlOf<QLineEdit>(WindowName::frmEnvironmentSettings, QStringLiteral("txtSalesTax"));
}
/// The timer that leafs through the tutor's pages. Null before the main window is loaded: touching that one would start
/// the program behind the user's back.
inline QTimer *TutorTimer()
{
    const Form *main = TheWindows.Loaded(WindowName::frmMain);
    return main ? main->findChild<QTimer *>(QStringLiteral("tmrAutoTutor")) : nullptr;
}
/// Whether a click on the teacher has frozen the tutor's page. One that is not loaded is not frozen.
inline bool TutorIsFrozen()
{
    const Form *tutor = TheWindows.Loaded(WindowName::frmTallymereTutor);
    return tutor && tutor->property(TutorFrozenProperty).toInt() == 1;
}
} // namespace WindowField
