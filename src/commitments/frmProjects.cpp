#include "commitments/frmProjects.h"

#include "budget/SavingsForecast.h"
#include "commitments/Projects.h"
#include "foundation/WindowNames.h"
#include "platform/controls/ListBox.h"
#include "platform/values/Numbers.h"
#include "platform/windows/KeyPress.h"
#include "platform/windows/WindowRegister.h"

using namespace Qt::Literals::StringLiterals;

frmProjects::frmProjects() : ListWindow(ProjectList)
{
    TakeControls({.List = ui.lstProjects,
                  .Read = ui.cmdListProjects,
                  .Add = ui.cmdAddProject,
                  .Delete = ui.cmdDeleteProject,
                  .Quit = ui.cmdQuit,
                  .Commit = ui.cmdNew,
                  .Fields = {ui.txtProject, ui.txtProjectAmount, ui.txtProjectCompletionDate}});
    for (QLineEdit *field : {ui.txtProject, ui.txtProjectAmount, ui.txtProjectCompletionDate})
        connect(field, &QLineEdit::textChanged, this, &frmProjects::UpdateNewButton);
    connect(ui.lstProjects, &ListBox::DoubleClick, this, &frmProjects::ViewProject);
    // The ring ends at the date, where Enter is a key like any other.
    OnEnter(ui.txtProjectCompletionDate, [this] { PickCompletionDate(); });
    ui.txtProjectCompletionDate->installEventFilter(this);
    connect(&TheCompletionDateOutlet, &CompletionDateOutlet::Picked, this, &frmProjects::TakePickedDate);
}

bool frmProjects::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui.txtProjectCompletionDate && ui.txtProjectCompletionDate->isEnabled()) {
        if (event->type() == QEvent::MouseMove)
            TellHowToPick();
        if (event->type() == QEvent::MouseButtonDblClick) {
            PickCompletionDate();
            return true;
        }
        if (event->type() == QEvent::KeyPress && IsKeyPress(*static_cast<QKeyEvent *>(event))) {
            const bool held = static_cast<QKeyEvent *>(event)->isAutoRepeat();
            if (!held) // by the user who has come here with the key still down
                PickCompletionDate();
            return true;
        }
    }
    return ListPanel::eventFilter(watched, event);
}

void frmProjects::UpdateNewButton()
{
    if (!AddingProject)
        return;
    ui.cmdNew->setEnabled(!ui.txtProject->text().isEmpty() && !ui.txtProjectAmount->text().isEmpty() &&
                          !ui.txtProjectCompletionDate->text().isEmpty());
}

/// The date is never typed: the forecast writes it when the user has picked one of its rows.
void frmProjects::PickCompletionDate()
{
    State.ProjectDateFromForecast = true;
    TheWindows.Show(WindowName::frmSavingsForecast);
}

void frmProjects::TakePickedDate(const QString &date)
{
    ui.txtProjectCompletionDate->setText(date);
    // For the window's return, if the entry is complete: in the date the next key would open the forecast again.
    FocusOn(ui.cmdNew);
}

void frmProjects::AddClicked()
{
    EmptyFields();
    EnableFields(true);
    FocusOn(ui.txtProject);
    AddingProject = true;
    UpdateNewButton(); // the fields were emptied while nothing was added
}

void frmProjects::TellHowToPick()
{
    if (!ui.txtProject->text().isEmpty() && !ui.txtProjectAmount->text().isEmpty())
        ui.txtProjectCompletionDate->setToolTip(u"Double-click to select valid date"_s);
}

void frmProjects::EntrySaved()
{
    AddingProject = false;
    ui.cmdNew->setEnabled(false);
}

/// Shows a project; it can be viewed and deleted then, and never edited.
void frmProjects::RowClicked()
{
    AddingProject = false;
    ui.cmdNew->setEnabled(false); // or a second project of the row's name could be planned
    Projects.SelectedProject = ToInteger(SelectedRecord());
    SetFields(ProjectList.PanelOf(Projects.SelectedProject));
    ui.cmdDeleteProject->setEnabled(true);
    EnableFields(true);
    FocusOn(ui.txtProject);
}

void frmProjects::ViewProject()
{
    TheDesk.Beep();
    const QString question = u"Do you wish to print project %1?"_s.arg(State.ProjectNames(Projects.SelectedProject));
    State.PrintProjectView = ShowMessage(question, ProjectList.Title, Icon::Question, Buttons::YesNo) == Answer::Yes;
    TheWindows.Show(WindowName::frmViewProject);
}
