#include "commitments/frmViewProject.h"

#include "commitments/Projects.h"
#include "foundation/StatementGrid.h"
#include "ui_frmViewProject.h"

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

frmViewProject::frmViewProject() : ui(std::make_unique<Ui::frmViewProject>())
{
    ui->setupUi(this);
    ui->grdViewProject->SetShape(StartRows, 3);
    SetColumnWidths(); // before it is shown: the window opens wide enough
    OnGotFocus(ui->grdViewProject, [this] { grdViewProject_GotFocus(); });
}

frmViewProject::~frmViewProject() = default;

void frmViewProject::SetColumnWidths()
{
    ui->grdViewProject->SetColumnWidth(0, DateTwips);
    ui->grdViewProject->SetColumnWidth(1, AmountTwips);
    ui->grdViewProject->SetColumnWidth(2, AmountTwips);
}

void frmViewProject::Activate()
{
    Grid &grid = *ui->grdViewProject;
    SetColumnWidths();
    for (int column : {0, 1, 2})
        grid.SetBold(0, column, true);
    grid.SetRightAligned(1, true);
    grid.SetRightAligned(2, true);
    grid.SetText(0, 0, QStringLiteral("Pay Period"));
    grid.SetText(0, 1, QStringLiteral("Installment"));
    grid.SetText(0, 2, QStringLiteral("Accumulated"));
    if (ProjectIsThere())
        setWindowTitle(State.ProjectNames(Projects.SelectedProject));
}

void frmViewProject::grdViewProject_GotFocus()
{
    if (!ProjectIsThere())
        return;
    // Rows of an earlier filling stay below the new ones, and each filling prints again: coming back to the window is a
    // filling, too.
    ShowRows(*ui->grdViewProject, ProjectStatement(Projects.SelectedProject));
    ui->grdViewProject->SetCurrentRow(0);
    if (State.PrintProjectView)
        PrintProject(Projects.SelectedProject);
}
