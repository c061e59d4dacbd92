#include "commitments/frmRegulars.h"

#include "commitments/Regulars.h"
#include "foundation/BudgetFiles.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmRegulars.h"

frmRegulars::frmRegulars() : ui(std::make_unique<Ui::frmRegulars>())
{
    ui->setupUi(this);
    TakeControls({.Title = QStringLiteral("Regulars"),
                  .HelpContext = RegularsHelp,
                  .List = ui->lstRegulars,
                  .Delete = ui->cmdDeleteRegularItem,
                  .Commit = ui->cmdAddChangeRegularItem,
                  .Fields = {ui->txtRegularAmount, ui->txtRegularItem}});
    connect(ui->cmdListRegularItems, &QPushButton::clicked, this, &frmRegulars::cmdListRegularItems_Click);
    connect(ui->cmdAddRegularItem, &QPushButton::clicked, this, &frmRegulars::cmdAddRegularItem_Click);
    connect(ui->lstRegulars, &ListBox::Click, this, &frmRegulars::lstRegulars_Click);
    connect(ui->cmdAddChangeRegularItem, &QPushButton::clicked, this, &frmRegulars::cmdAddChangeRegularItem_Click);
    connect(ui->cmdDeleteRegularItem, &QPushButton::clicked, this, &frmRegulars::cmdDeleteRegularItem_Click);
    connect(ui->cmdQuit, &QPushButton::clicked, this, &frmRegulars::cmdQuit_Click);
    EnterRing({ui->txtRegularAmount, ui->txtRegularItem});
}

frmRegulars::~frmRegulars() = default;

void frmRegulars::FillRegularList()
{
    ui->lstRegulars->Clear();
    for (int i = 1; i <= State.NumberOfRegulars; ++i)
        ui->lstRegulars->AddItem(State.Regulars(i).RegularItem);
}

void frmRegulars::SaveAndReload()
{
    SaveRegulars();
    InputRegulars();
    FillRegularList();
}

void frmRegulars::cmdListRegularItems_Click()
{
    InputRegulars();
    FillRegularList();
    ui->cmdAddRegularItem->setEnabled(true);
}

void frmRegulars::cmdAddRegularItem_Click()
{
    EmptyFields();
    OpenPanel(NewCaption, ui->txtRegularAmount);
}

void frmRegulars::lstRegulars_Click()
{
    const RegularRecord &regular = State.Regulars(SelectedRecord());
    SetFields({FormatCurrency(regular.RegularAmount), regular.RegularItem});
    ui->cmdDeleteRegularItem->setEnabled(true);
    OpenPanel(ChangeCaption, ui->txtRegularAmount);
}

void frmRegulars::CommitEntry()
{
    if (Refused(ValidateRegularEntry({ui->txtRegularAmount->text(), ui->txtRegularItem->text()})))
        return;
    const RegularRecord regular{ui->txtRegularItem->text(), ToCurrency(ui->txtRegularAmount->text())};
    ui->txtRegularAmount->setText(FormatCurrency(regular.RegularAmount));

    if (ui->cmdAddChangeRegularItem->text() == NewCaption) {
        AddRegular(regular);
        SaveAndReload();
        // A new item is committed once; the next one needs the add button again. The creditors' window differs.
        ui->cmdAddChangeRegularItem->setEnabled(false);
    } else if (ui->cmdAddChangeRegularItem->text() == ChangeCaption) {
        ChangeRegular(SelectedRecord(), regular);
        SaveAndReload();
    }
}

void frmRegulars::cmdAddChangeRegularItem_Click()
{
    Trap([this] { CommitEntry(); });
}

void frmRegulars::cmdDeleteRegularItem_Click()
{
    Trap([this] {
        DeleteRegular(SelectedRecord());
        SaveAndReload();
        ClosePanel();
    });
}

void frmRegulars::cmdQuit_Click()
{
    ui->cmdAddRegularItem->setEnabled(false);
    ui->cmdDeleteRegularItem->setEnabled(false);
    TheWindows.Unload(objectName());
}
