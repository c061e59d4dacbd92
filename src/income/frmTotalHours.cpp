#include "income/frmTotalHours.h"

#include "platform/controls/Fields.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {
const QString Title = u"Total Hours Worked"_s;
constexpr int Help = 18;
} // namespace

frmTotalHours::frmTotalHours()
    : Window({.Title = Title, .HelpContext = Help}), m_weeks{{{ui.lblWeek1, ui.txtWeek1},
                                                              {ui.lblWeek2, ui.txtWeek2},
                                                              {ui.lblWeek3, ui.txtWeek3},
                                                              {ui.lblWeek4, ui.txtWeek4},
                                                              {ui.lblWeek5, ui.txtWeek5}}}
{
    StartAt(ui.txtWeek1);
    OnClickTrapped(ui.cmdOK, [this] { cmdOK_Click(); });
}

void frmTotalHours::Activate()
{
    const int inUse = WeeksOf(State.PayFrequency);
    for (int week = 0; week < MostWeeks; ++week) {
        const auto [label, field] = m_weeks[std::size_t(week)];
        if (inUse > 0) { // an unknown frequency leaves the weeks as designed
            label->setEnabled(week < inUse);
            field->setEnabled(week < inUse);
        }
        field->setText(ShownHours(week, field->isEnabled()));
    }
    Window::Activate();
}

/// Each bad box has its message, disabled ones included; the last one keeps the focus. The focus is there before the
/// message, or nobody would know which box it is about.
bool frmTotalHours::ValidateTotalHours()
{
    bool valid = true;
    const auto refuse = [&](const QString &text, Buttons buttons, int helpContext, QLineEdit *field) {
        FocusOn(field);
        if (field->isEnabled())
            SelectWhole(field); // also where it has the focus already
        ShowMessage(text, Title, Icon::Stop, buttons, helpContext);
        valid = false;
    };
    for (const auto &[label, field] : m_weeks)
        if (!IsNumeric(field->text()))
            refuse(u"One or more fields do not contain a valid number"_s, Buttons::OkHelp, Help, field);
        else if (IsMoreThanAWeek(field->text()))
            refuse(u"It is not possible to have more than 168 hours in a week"_s, Buttons::Ok, 0, field);
    return valid;
}

void frmTotalHours::cmdOK_Click()
{
    if (!ValidateTotalHours())
        return;
    WeekTexts texts;
    for (std::size_t week = 0; week < texts.size(); ++week)
        texts[week] = m_weeks[week].Field->text();
    TakeHours(texts);
    Close();
}
