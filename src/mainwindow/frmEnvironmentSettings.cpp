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
                      [this](qint16 frequency) { optPayFrequency_Click(frequency); }),
      m_fields{{{ui.txtForecastPeriods, &EnvironmentEntry::ForecastPeriods},
                {ui.txtPaycheckAmount, &EnvironmentEntry::PaycheckAmount},
                {ui.txtSalesTax, &EnvironmentEntry::SalesTax},
                {ui.txtAverageNetPercentage, &EnvironmentEntry::AverageNetPercentage}}}
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
    ShowSettings();
    optPayFrequency.Select(State.PayFrequency);
    DescribePayDays();
    ui.txtStoreFile->setText(State.CurrentStoreFile);
}

void frmEnvironmentSettings::Activate()
{
    ShowSettings();
    DescribePayDays();
    Window::Activate();
}

/// Fields that the user has not edited follow their settings, which other windows may have changed.
void frmEnvironmentSettings::ShowSettings()
{
    const EnvironmentEntry settings = ShownEnvironment();
    for (ShownField &field : m_fields) {
        if (!loading && field.IsEdited())
            continue;
        field.Shown = settings.*field.Text;
        field.Field->setText(field.Shown);
    }
}

/// The days that two of the frequencies pay on are asked for and shown nowhere else.
void frmEnvironmentSettings::DescribePayDays()
{
    const auto describe = [](QWidget *control, const QString &text) {
        control->setToolTip(text);
        control->setAccessibleDescription(text);
    };
    describe(ui.optPayFrequency2, SemimonthlyPayDays());
    describe(ui.optPayFrequency3, MonthlyPayDay());
    describe(ui.fraPayFrequency, optPayFrequency.Selected() ? QString() : u"No pay frequency is chosen yet"_s);
}

void frmEnvironmentSettings::updForecastPeriods_Change(int step)
{
    FocusOn(ui.txtForecastPeriods);
    ui.txtForecastPeriods->setText(
        SteppedForecastPeriods(ui.txtForecastPeriods->text(), step, ui.updForecastPeriods->Maximum()));
    ui.txtForecastPeriods->setModified(true); // a step is the user's
    ui.txtForecastPeriods->selectAll();
}

/// Takes effect at once, whatever the fields hold, and leaves the pay dates of the other frequencies alone.
void frmEnvironmentSettings::optPayFrequency_Click(qint16 frequency)
{
    if (loading)
        return;
    const PayFrequencyOption &chosen = PayFrequencyOptions()[OptionOfPayFrequency(frequency)];
    State.PayFrequency = frequency;
    TheWindows.Touch(WindowName::frmCalculateWages).setWindowTitle(chosen.WagesCaption);
    if (!chosen.DatesWindow.isEmpty() && !State.InitializingVariables)
        TheWindows.ShowModal(chosen.DatesWindow);
    DescribePayDays();
}

bool frmEnvironmentSettings::TakeSettings()
{
    if (!Accepts(Rules))
        return false;
    const bool edited = ui.txtForecastPeriods->isModified();
    ui.txtForecastPeriods->setText(BoundedForecastPeriods(ui.txtForecastPeriods->text()));
    ui.txtForecastPeriods->setModified(edited);
    EnvironmentEntry entry;
    for (const ShownField &field : m_fields)
        if (field.IsEdited())
            entry.*field.Text = field.Field->text();
    TakeEnvironmentEntry(entry);
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
