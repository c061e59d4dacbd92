#include "platform/desk/Desk.h"

Answer ShowMessage(const QString &text, const QString &title, Icon icon, Buttons buttons, int helpContext)
{
    return TheDesk.ShowMessage({text, title, icon, buttons, helpContext});
}
