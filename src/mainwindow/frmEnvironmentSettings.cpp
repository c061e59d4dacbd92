#include "mainwindow/frmEnvironmentSettings.h"

#include "platform/controls/OptionGroup.h"
#include "platform/desk/UnknownError.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmEnvironmentSettings.h"

#include <QScopedValueRollback>

frmEnvironmentSettings::frmEnvironmentSettings() : ui(std::make_unique<Ui::frmEnvironmentSettings>())
{
    ui->setupUi(this);
    QPalette shownOnly = ui->txtStoreFile->palette();
    shownOnly.setColor(QPalette::Base, Qt::transparent);
    ui->txtStoreFile->setPalette(shownOnly);
    ui->updForecastPeriods->SetBuddy(ui->txtForecastPeriods);
    connect(ui->updForecastPeriods, &UpDown::Stepped, this, &frmEnvironmentSettings::updForecastPeriods_Change);
    optPayFrequency = std::make_unique<OptionGroup>(
        QList{ui->optPayFrequency0, ui->optPayFrequency1, ui->optPayFrequency2, ui->optPayFrequency3},
        [this](int index) { optPayFrequency_Click(index); });
    connect(ui->txtStoreFile, &QLineEdit::textChanged, ui->txtStoreFile, &QLineEdit::setToolTip);
    connect(ui->cmdExit, &QPushButton::clicked, this, &frmEnvironmentSettings::cmdExit_Click);
    EnterRing({ui->txtForecastPeriods, ui->txtPaycheckAmount, ui->txtSalesTax, ui->txtAverageNetPercentage});
}

frmEnvironmentSettings::~frmEnvironmentSettings() = default;

void frmEnvironmentSettings::Load()
{
    ui->updForecastPeriods->SetMaximum(MostForecastPeriods);
    const QScopedValueRollback filling(loading, true);
    const EnvironmentEntry shown = ShownEnvironment();
    ui->txtForecastPeriods->setText(shown.ForecastPeriods);
    ui->txtPaycheckAmount->setText(shown.PaycheckAmount);
    optPayFrequency->Select(OptionOfPayFrequency(State.PayFrequency));
    ui->txtSalesTax->setText(shown.SalesTax);
    ui->txtStoreFile->setText(State.CurrentStoreFile);
    ui->txtAverageNetPercentage->setText(shown.AverageNetPercentage);
}

void frmEnvironmentSettings::Activate()
{
    FocusOn(ui->txtForecastPeriods);
}

void frmEnvironmentSettings::updForecastPeriods_Change(int step)
{
    FocusOn(ui->txtForecastPeriods);
    ui->txtForecastPeriods->setText(
        SteppedForecastPeriods(ui->txtForecastPeriods->text(), step, ui->updForecastPeriods->Maximum()));
    ui->txtForecastPeriods->selectAll();
}

/// Takes effect at once, whatever the fields hold, and leaves the pay dates of the other frequencies alone.
void frmEnvironmentSettings::optPayFrequency_Click(int index)
{
    if (loading)
        return;
    const PayFrequencyOption &chosen = PayFrequencyOptions()[index];
    State.PayFrequency = chosen.Frequency;
    const QString wages = QStringLiteral("frmCalculateWages");
    if (TheWindows.Knows(wages))
        TheWindows.Touch(wages).setWindowTitle(chosen.WagesCaption);
    if (!chosen.DatesWindow.isEmpty() && !State.InitializingVariables)
        TheWindows.ShowModal(chosen.DatesWindow);
}

EnvironmentEntry frmEnvironmentSettings::Entry() const
{
    return {.ForecastPeriods = ui->txtForecastPeriods->text(),
            .PaycheckAmount = ui->txtPaycheckAmount->text(),
            .SalesTax = ui->txtSalesTax->text(),
            .AverageNetPercentage = ui->txtAverageNetPercentage->text()};
}

bool frmEnvironmentSettings::ValidateEnvironmentSettings()
{
    const auto refusal = ValidateEnvironmentEntry(Entry());
    if (!refusal)
        return true;
    TheWindows.Show(objectName()); // its close box can be pressed while another window is active
    ShowMessage(refusal->Text, QStringLiteral("Environment Settings"), Icon::Warning);
    FocusOn(findChild<QWidget *>(refusal->Focus));
    return false;
}

bool frmEnvironmentSettings::TakeSettings()
{
    if (!ValidateEnvironmentSettings())
        return false;
    ui->txtForecastPeriods->setText(BoundedForecastPeriods(ui->txtForecastPeriods->text()));
    TakeEnvironmentEntry(Entry());
    return true;
}

void frmEnvironmentSettings::cmdExit_Click()
{
    bool leave = false;
    TrapUnknownError(QStringLiteral("Environment Settings"), [&] { leave = TakeSettings(); });
    if (leave)
        TheWindows.Unload(objectName());
}

bool frmEnvironmentSettings::QueryUnload(CloseMode mode)
{
    if (mode != CloseMode::CloseBox)
        return true; // the button has taken the settings already
    // Only a refused entry cancels: after an error the closing goes on. Its title is another window's, a habit of this
    // window that is kept.
    bool leave = true;
    TrapUnknownError(QStringLiteral("Creditors"), [&] { leave = TakeSettings(); });
    return leave;
}
