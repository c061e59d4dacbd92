#include "platform/desk/UnknownError.h"

#include "platform/desk/Desk.h"
#include "platform/values/RuntimeError.h"

using namespace Qt::Literals::StringLiterals;

void ShowUnknownError(const QString &title)
{
    ShowMessage(u"An unknown error occured. This may be due to an invalid entry. If you need help press F1 for "
                "assistance on this page. On the main menu click on Help->Search for Help On... or Help->How Do I? "
                "or click on any of the help icons on the bottom right of the main window."_s,
                title, Icon::Warning);
}

void TrapUnknownError(const QString &title, const std::function<void()> &steps)
{
    ResumeNext(steps, [&](const RuntimeError &) { ShowUnknownError(title); });
}
