#include "commitments/frmCreditors.h"

#include "commitments/Creditors.h"
#include "foundation/BudgetFiles.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmCreditors.h"

frmCreditors::frmCreditors() : ui(std::make_unique<Ui::frmCreditors>())
{
    ui->setupUi(this);
    TakeControls({.Title = QStringLiteral("Creditors"),
                  .HelpContext = CreditorsHelp,
                  .List = ui->lstCreditors,
                  .Delete = ui->cmdDeleteCreditor,
                  .Commit = ui->cmdAddChangeCreditor,
                  .Fields = {ui->txtCreditorDueDate, ui->txtCreditorAmount, ui->txtCreditor}});
    connect(ui->cmdListCreditors, &QPushButton::clicked, this, &frmCreditors::cmdListCreditors_Click);
    connect(ui->cmdAddCreditor, &QPushButton::clicked, this, &frmCreditors::cmdAddCreditor_Click);
    connect(ui->lstCreditors, &ListBox::Click, this, &frmCreditors::lstCreditors_Click);
    connect(ui->cmdAddChangeCreditor, &QPushButton::clicked, this, &frmCreditors::cmdAddChangeCreditor_Click);
    connect(ui->cmdDeleteCreditor, &QPushButton::clicked, this, &frmCreditors::cmdDeleteCreditor_Click);
    connect(ui->cmdQuit, &QPushButton::clicked, this, &frmCreditors::cmdQuit_Click);
    EnterRing({ui->txtCreditorDueDate, ui->txtCreditorAmount, ui->txtCreditor});
}

frmCreditors::~frmCreditors() = default;

void frmCreditors::FillCreditorList()
{
    ui->lstCreditors->Clear();
    for (int i = 1; i <= State.NumberOfCreditors; ++i)
        ui->lstCreditors->AddItem(State.Creditors(i).CreditorName);
}

void frmCreditors::SaveAndReload()
{
    SaveCreditors();
    InputCreditors();
    FillCreditorList();
}

void frmCreditors::cmdListCreditors_Click()
{
    InputCreditors();
    FillCreditorList();
    ui->cmdAddCreditor->setEnabled(true);
}

void frmCreditors::cmdAddCreditor_Click()
{
    EmptyFields();
    OpenPanel(NewCaption, ui->txtCreditorDueDate);
}

void frmCreditors::lstCreditors_Click()
{
    const CreditorRecord &creditor = State.Creditors(SelectedRecord());
    SetFields({PlainText(creditor.CreditorDueDate), FormatCurrency(creditor.CreditorAmount), creditor.CreditorName});
    ui->cmdDeleteCreditor->setEnabled(true);
    OpenPanel(ChangeCaption, ui->txtCreditorDueDate);
}

void frmCreditors::CommitEntry()
{
    if (Refused(ValidateCreditorEntry(
            {ui->txtCreditorDueDate->text(), ui->txtCreditorAmount->text(), ui->txtCreditor->text()})))
        return;
    const auto showDueDate = [this](qint16 day) {
        ui->txtCreditorDueDate->setText(Format(day, NumberFormat::GeneralNumber));
    };
    CreditorRecord creditor;
    creditor.CreditorDueDate = ToInteger(ui->txtCreditorDueDate->text());
    showDueDate(creditor.CreditorDueDate);
    creditor.CreditorAmount = ToCurrency(ui->txtCreditorAmount->text());
    ui->txtCreditorAmount->setText(FormatCurrency(creditor.CreditorAmount));
    creditor.CreditorName = ui->txtCreditor->text();

    if (ui->cmdAddChangeCreditor->text() == NewCaption)
        AddCreditor(creditor);
    else if (ui->cmdAddChangeCreditor->text() == ChangeCaption)
        ChangeCreditor(SelectedRecord(), creditor);
    else
        return;
    showDueDate(creditor.CreditorDueDate); // both guard the day by themselves
    SortCreditors();
    SaveAndReload();
    // The button stays enabled, so that a row of like creditors can be added by editing and pressing it again.
}

void frmCreditors::cmdAddChangeCreditor_Click()
{
    Trap([this] { CommitEntry(); });
}

void frmCreditors::cmdDeleteCreditor_Click()
{
    Trap([this] {
        DeleteCreditor(SelectedRecord());
        SaveAndReload();
        ClosePanel();
    });
}

void frmCreditors::cmdQuit_Click()
{
    ui->cmdAddCreditor->setEnabled(false);
    ui->cmdDeleteCreditor->setEnabled(false);
    TheWindows.Unload(objectName());
}
