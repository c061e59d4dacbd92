#include "commitments/frmCreditors.h"

#include "commitments/Creditors.h"
#include "platform/controls/ListBox.h"
#include "ui_frmCreditors.h"

frmCreditors::frmCreditors() : ListPanel(CreditorList), ui(std::make_unique<Ui::frmCreditors>())
{
    ui->setupUi(this);
    TakeControls({.List = ui->lstCreditors,
                  .Read = ui->cmdListCreditors,
                  .Add = ui->cmdAddCreditor,
                  .Delete = ui->cmdDeleteCreditor,
                  .Quit = ui->cmdQuit,
                  .Commit = ui->cmdAddChangeCreditor,
                  .Amount = ui->txtCreditorAmount,
                  .Fields = {ui->txtCreditorDueDate, ui->txtCreditorAmount, ui->txtCreditor}});
}

frmCreditors::~frmCreditors() = default;
