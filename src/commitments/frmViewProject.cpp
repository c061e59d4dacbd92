#include "commitments/frmViewProject.h"

#include "commitments/Projects.h"
#include "foundation/StatementGrid.h"
#include "platform/windows/Caption.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int StartRows = 2; // the heading and one row; every installment brings its own
constexpr int DateTwips = 1750;
constexpr int AmountTwips = 1447;

/// The window may outlive its project: then it goes on showing what it showed.
bool ProjectIsThere()
{
    return Projects.SelectedProject >= 1 && Projects.SelectedProject <= State.NumberOfProjects;
}
} // namespace

frmViewProject::frmViewProject()
{
    ui.grdViewProject->SetColumns({{u"Pay Period"_s, DateTwips},
                                   {u"Installment"_s, AmountTwips, Qt::AlignRight},
                                   {u"Accumulated"_s, AmountTwips, Qt::AlignRight}},
                                  StartRows);
    OnGotFocus(ui.grdViewProject, [this] { FillGrid(); });
}

void frmViewProject::Activate()
{
    if (ProjectIsThere())
        setWindowTitle(Caption(State.ProjectNames(Projects.SelectedProject)));
}

void frmViewProject::FillGrid()
{
    if (!ProjectIsThere())
        return;
    // Rows of an earlier filling stay below the new ones, and each filling prints again: coming back to the window is a
    // filling, too.
    ShowRows(*ui.grdViewProject, ProjectStatement(Projects.SelectedProject));
    ui.grdViewProject->SetCurrentRow(0);
    if (State.PrintProjectView)
        PrintProject(Projects.SelectedProject);
}
