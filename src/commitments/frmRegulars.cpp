#include "commitments/frmRegulars.h"

#include "commitments/Regulars.h"
#include "platform/controls/ListBox.h"

frmRegulars::frmRegulars() : ListWindow(RegularList)
{
    TakeControls({.List = ui.lstRegulars,
                  .Read = ui.cmdListRegularItems,
                  .Add = ui.cmdAddRegularItem,
                  .Delete = ui.cmdDeleteRegularItem,
                  .Quit = ui.cmdQuit,
                  .Commit = ui.cmdAddChangeRegularItem,
                  .Fields = {ui.txtRegularAmount, ui.txtRegularItem}});
}

void frmRegulars::EntrySaved()
{
    // A new item is committed once; the next one needs the add button again. The creditors' button stays enabled, so
    // that a row of like creditors can be added by editing and pressing it again.
    if (ui.cmdAddChangeRegularItem->text() == NewCaption)
        ui.cmdAddChangeRegularItem->setEnabled(false);
}
