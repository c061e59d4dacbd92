#include "income/frmCalculateWages.h"

#include "foundation/PayFrequency.h"
#include "foundation/WindowNames.h"
#include "income/Wages.h"
#include "platform/controls/Fields.h"
#include "platform/desk/UnknownError.h"
#include "platform/values/Format.h"
#include "platform/values/Locale.h"
#include "platform/values/Numbers.h"
#include "platform/windows/KeyPress.h"
#include "platform/windows/WindowRegister.h"

#include <QScopeGuard>
#include <QShowEvent>

using namespace Qt::Literals::StringLiterals;

namespace {
using Design = Ui::frmCalculateWages;

// A refused entry goes by another name than everything else that this window says.
const QString RefusalTitle = u"Wage Calculator"_s;
const QString Title = u"Calculate Wages"_s;

constexpr EntryRule<Design> Rules[] = {
    {&Design::txtHourlyPayRate, Numeric, "Please enter a numerical dollar amount in the Hourly Pay Rate field"},
};

struct WageBox {
    QLineEdit *Design::*Field;
    QString WageBoxes::*Text;
};
constexpr WageBox WrittenBoxes[] = {
    {&Design::txtRegularRate, &WageBoxes::RegularRate},
    {&Design::txtRegularHours, &WageBoxes::RegularHours},
    {&Design::txtTotalRegularPay, &WageBoxes::TotalRegularPay},
    {&Design::txtOvertimeRate, &WageBoxes::OvertimeRate},
    {&Design::txtOvertimeHours, &WageBoxes::OvertimeHours},
    {&Design::txtTotalOvertimePay, &WageBoxes::TotalOvertimePay},
    {&Design::txtGrossPay, &WageBoxes::GrossPay},
    {&Design::txtNetPay, &WageBoxes::NetPay},
    {&Design::txtMonthlyGross, &WageBoxes::MonthlyGross},
    {&Design::txtYearlyGross, &WageBoxes::YearlyGross},
    {&Design::txtPaycheckAmount, &WageBoxes::PaycheckAmount},
};

const QString WholeHours = u"A weekly paycheck counts whole hours; 40.4 are 40"_s;

/// What a field says of itself, with a sentence more where it holds.
QString Described(const QString &description, bool weekly)
{
    return weekly ? description + u". "_s + WholeHours : description;
}

/// A digit, a sign or the decimal point.
bool BeginsANumber(const QString &typed)
{
    return typed.size() == 1 && (u"0123456789+-\u2212"_s.contains(typed) || typed == UserSigns().Point);
}
} // namespace

frmCalculateWages::frmCalculateWages()
    : Window({.Title = RefusalTitle, .TheButtons = Buttons::OkHelp, .HelpContext = 30}),
      m_regularHoursDescription(ui.txtRegularHours->accessibleDescription()),
      m_hoursWorkedDescription(ui.txtTotalHoursWorked->accessibleDescription())
{
    ShowOnly(ui.txtAverageNetPercentage);
    for (const WageBox &box : WrittenBoxes)
        ShowOnly(ui.*box.Field);
    StartAt(ui.txtHourlyPayRate);
    OnEnter(ui.txtHourlyPayRate, [this] {
        FocusOn(ui.txtTotalHoursWorked);
        SelectWhole(ui.txtTotalHoursWorked);
    });
    OnEnter(ui.txtTotalHoursWorked, [] { ShowHours(); });
    OnLostFocus(ui.txtTotalHoursWorked, [this] { txtTotalHoursWorked_LostFocus(); });
    ui.txtTotalHoursWorked->installEventFilter(this);
    OnClick(ui.cmdCalculate, [this] { TrapUnknownError(Title, [this] { cmdCalculate_Click(); }); });
    OnClick(ui.cmdExit, [this] { cmdExit_Click(); });
}

/// The hours are never typed here: their own window writes them.
bool frmCalculateWages::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui.txtTotalHoursWorked) {
        if (event->type() == QEvent::MouseButtonDblClick &&
            static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
            TheWindows.ShowModal(WindowName::frmTotalHours);
            return true;
        }
        if (event->type() == QEvent::KeyPress && IsKeyPress(*static_cast<QKeyEvent *>(event))) {
            if (const auto &key = *static_cast<QKeyEvent *>(event); !key.isAutoRepeat())
                ShowHours(key.text());
            return true;
        }
    }
    return Window::eventFilter(watched, event);
}

/// A number that is begun here goes on there, in the first week: its box is selected when its window becomes active, so
/// that the first sign replaces what it held. The window system may bring a fast second one here, too; it is appended.
void frmCalculateWages::ShowHours(const QString &typed)
{
    TheWindows.Show(WindowName::frmTotalHours);
    if (BeginsANumber(typed))
        TheWindows.ControlOf<QLineEdit>(WindowName::frmTotalHours, u"txtWeek1"_s).insert(typed);
}

void frmCalculateWages::Load()
{
    RememberedPaycheckAmount = State.PaycheckAmount;
    Income.TotalHoursWorked = 0;
    ui.txtHourlyPayRate->setText(FormatCurrency(Currency::Zero));
}

/// The settings may have loaded the window unseen, for its title, and have changed the paycheck since.
void frmCalculateWages::showEvent(QShowEvent *event)
{
    Window::showEvent(event);
    if (!event->spontaneous())
        RememberedPaycheckAmount = State.PaycheckAmount;
}

void frmCalculateWages::Activate()
{
    ui.txtAverageNetPercentage->setText(PerCent(State.AverageNetPercentage));
    ui.txtTotalHoursWorked->setText(Format(Income.TotalHoursWorked, NumberFormat::Fixed));
    ui.txtPaycheckAmount->setText(FormatCurrency(State.PaycheckAmount));
    const bool weekly = State.PayFrequency == Weekly;
    ui.txtRegularHours->setToolTip(Described(m_regularHoursDescription, weekly));
    ui.txtRegularHours->setAccessibleDescription(Described(m_regularHoursDescription, weekly));
    ui.txtTotalHoursWorked->setAccessibleDescription(Described(m_hoursWorkedDescription, weekly));
    Window::Activate();
    if (const int option = OptionOfPayFrequency(State.PayFrequency); option >= 0)
        setWindowTitle(PayFrequencyOptions()[option].WagesCaption);
}

void frmCalculateWages::txtTotalHoursWorked_LostFocus()
{
    if (State.PayFrequency == Weekly)
        ui.txtTotalHoursWorked->setText(TakeWeeklyHours(ui.txtTotalHoursWorked->text()));
}

void frmCalculateWages::cmdCalculate_Click()
{
    if (!Accepts(Rules))
        return;
    ui.txtHourlyPayRate->setText(Format(ui.txtHourlyPayRate->text(), NumberFormat::Currency));
    WageBoxes boxes;
    boxes.HourlyPayRate = ui.txtHourlyPayRate->text();
    boxes.TotalHoursWorked = ui.txtTotalHoursWorked->text();
    // What is computed up to an error is shown; the boxes after it stay as they are.
    const auto show = qScopeGuard([&] {
        for (const WageBox &box : WrittenBoxes)
            if (const QString &text = boxes.*box.Text; !text.isNull())
                (ui.*box.Field)->setText(text);
    });
    if (State.PayFrequency == Weekly)
        CalculateWeeklyWages(boxes);
    else
        CalculatePeriodWages(boxes);
}

/// The only way out that asks: a window closed by its frame keeps the new paycheck.
void frmCalculateWages::cmdExit_Click()
{
    if (State.PaycheckAmount != RememberedPaycheckAmount) {
        const QString question =
            u"Do you wish to save %1 as the new Paycheck Amount?"_s.arg(ui.txtPaycheckAmount->text());
        if (ShowMessage(question, Title, Icon::Question, Buttons::YesNo) != Answer::Yes)
            State.PaycheckAmount = RememberedPaycheckAmount;
    }
    Close();
}

void frmCalculateWages::Unload()
{
    Income.TotalHoursWorked = ToSingle(NumericPrefix(ui.txtTotalHoursWorked->text()));
}
