#include "commitments/frmCreditors.h"

#include "commitments/Creditors.h"
#include "platform/controls/ListBox.h"

frmCreditors::frmCreditors() : ListWindow(CreditorList)
{
    TakeControls({.List = ui.lstCreditors,
                  .Read = ui.cmdListCreditors,
                  .Add = ui.cmdAddCreditor,
                  .Delete = ui.cmdDeleteCreditor,
                  .Quit = ui.cmdQuit,
                  .Commit = ui.cmdAddChangeCreditor,
                  .Fields = {ui.txtCreditorDueDate, ui.txtCreditorAmount, ui.txtCreditor}});
}
