#include "mainwindow/frmEnvironmentSettings.h"

#include "foundation/PayFrequency.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Fields.h"
#include "platform/desk/UnknownError.h"
#include "platform/windows/WindowRegister.h"

#include <QScopedValueRollback>

using namespace Qt::Literals::StringLiterals;

namespace {
using Design = Ui::frmEnvironmentSettings;
constexpr EntryRule<Design> Rules[] = {
    {&Design::txtForecastPeriods, Numeric, "Forecast Periods does not contain a valid numeric amount"},
    {&Design::txtPaycheckAmount, Numeric, "Paycheck Amount does not contain a valid currency amount"},
    {&Design::txtSalesTax, Numeric, "Sales Tax does not contain a valid numeric amount"},
    // It names a due date although the percentage is meant: the wording that users know, kept.
    {&Design::txtAverageNetPercentage, Numeric, "Due Date does not contain a valid numeric amount"},
};
} // namespace

frmEnvironmentSettings::frmEnvironmentSettings()
    : Window({.Title = u"Environment Settings"_s, .TheIcon = Icon::Warning}),
      optPayFrequency({{ui.optPayFrequency0, Weekly},
                       {ui.optPayFrequency1, Biweekly},
                       {ui.optPayFrequency2, Semimonthly},
                       {ui.optPayFrequency3, Monthly}},
                      [this](qint16 frequency) { optPayFrequency_Click(frequency); })
{
    ShowOnly(ui.txtStoreFile);
    ui.updForecastPeriods->SetBuddy(ui.txtForecastPeriods);
    connect(ui.updForecastPeriods, &UpDown::Stepped, this, [this](int step) { updForecastPeriods_Change(step); });
    connect(ui.txtStoreFile, &QLineEdit::textChanged, ui.txtStoreFile, &QLineEdit::setToolTip);
    OnClickTrapped(ui.cmdExit, [this] { cmdExit_Click(); });
    EnterRing({ui.txtForecastPeriods, ui.txtPaycheckAmount, ui.txtSalesTax, ui.txtAverageNetPercentage});
    StartAt(ui.txtForecastPeriods);
}

void frmEnvironmentSettings::Load()
{
    ui.updForecastPeriods->SetMaximum(MostForecastPeriods);
    const QScopedValueRollback filling(loading, true);
    const EnvironmentEntry shown = ShownEnvironment();
    ui.txtForecastPeriods->setText(shown.ForecastPeriods);
    ui.txtPaycheckAmount->setText(shown.PaycheckAmount);
    optPayFrequency.Select(State.PayFrequency);
    ui.txtSalesTax->setText(shown.SalesTax);
    ui.txtStoreFile->setText(State.CurrentStoreFile);
    ui.txtAverageNetPercentage->setText(shown.AverageNetPercentage);
}

void frmEnvironmentSettings::updForecastPeriods_Change(int step)
{
    FocusOn(ui.txtForecastPeriods);
    ui.txtForecastPeriods->setText(
        SteppedForecastPeriods(ui.txtForecastPeriods->text(), step, ui.updForecastPeriods->Maximum()));
    ui.txtForecastPeriods->selectAll();
}

/// Takes effect at once, whatever the fields hold, and leaves the pay dates of the other frequencies alone.
void frmEnvironmentSettings::optPayFrequency_Click(qint16 frequency)
{
    if (loading)
        return;
    const PayFrequencyOption &chosen = PayFrequencyOptions()[OptionOfPayFrequency(frequency)];
    State.PayFrequency = frequency;
    if (TheWindows.Knows(WindowName::frmCalculateWages))
        TheWindows.Touch(WindowName::frmCalculateWages).setWindowTitle(chosen.WagesCaption);
    if (!chosen.DatesWindow.isEmpty() && !State.InitializingVariables)
        TheWindows.ShowModal(chosen.DatesWindow);
}

EnvironmentEntry frmEnvironmentSettings::Entry() const
{
    return {.ForecastPeriods = ui.txtForecastPeriods->text(),
            .PaycheckAmount = ui.txtPaycheckAmount->text(),
            .SalesTax = ui.txtSalesTax->text(),
            .AverageNetPercentage = ui.txtAverageNetPercentage->text()};
}

bool frmEnvironmentSettings::TakeSettings()
{
    if (!Accepts(Rules))
        return false;
    ui.txtForecastPeriods->setText(BoundedForecastPeriods(ui.txtForecastPeriods->text()));
    TakeEnvironmentEntry(Entry());
    return true;
}

void frmEnvironmentSettings::cmdExit_Click()
{
    if (TakeSettings())
        Close();
}

bool frmEnvironmentSettings::QueryUnload(CloseMode mode)
{
    if (mode != CloseMode::CloseBox)
        return true; // the button has taken the settings already
    // Only a refused entry cancels: after an error the closing goes on. Its title is another window's, a habit of this
    // window that is kept.
    bool leave = true;
    TrapUnknownError(u"Creditors"_s, [&] { leave = TakeSettings(); });
    return leave;
}
