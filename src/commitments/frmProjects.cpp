#include "commitments/frmProjects.h"

#include "commitments/Projects.h"
#include "foundation/BudgetFiles.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmProjects.h"

#include <QKeyEvent>

namespace {

/// A character, Backspace or Esc; Enter comes by the window's ring, and a tab is none.
bool IsKeyPress(const QKeyEvent &key)
{
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    if (key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Escape)
        return true;
    return !key.text().isEmpty() && key.text().front().isPrint();
}

bool IsControlEnter(const QKeyEvent &key)
{
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) && (key.modifiers() & Qt::ControlModifier);
}

} // namespace

frmProjects::frmProjects() : ui(std::make_unique<Ui::frmProjects>())
{
    ui->setupUi(this);
    TakeControls({.Title = QStringLiteral("Projects"),
                  .HelpContext = ProjectsHelp,
                  .List = ui->lstProjects,
                  .Delete = ui->cmdDeleteProject,
                  .Commit = ui->cmdNew,
                  .Fields = {ui->txtProject, ui->txtProjectAmount, ui->txtProjectCompletionDate}});
    connect(ui->cmdListProjects, &QPushButton::clicked, this, &frmProjects::cmdListProjects_Click);
    connect(ui->cmdAddProject, &QPushButton::clicked, this, &frmProjects::cmdAddProject_Click);
    for (QLineEdit *field : {ui->txtProject, ui->txtProjectAmount, ui->txtProjectCompletionDate})
        connect(field, &QLineEdit::textChanged, this, &frmProjects::UpdateNewButton);
    connect(ui->cmdNew, &QPushButton::clicked, this, &frmProjects::cmdNew_Click);
    connect(ui->lstProjects, &ListBox::Click, this, &frmProjects::lstProjects_Click);
    connect(ui->lstProjects, &ListBox::DoubleClick, this, &frmProjects::lstProjects_DblClick);
    connect(ui->cmdDeleteProject, &QPushButton::clicked, this, &frmProjects::cmdDeleteProject_Click);
    connect(ui->cmdQuit, &QPushButton::clicked, this, &frmProjects::cmdQuit_Click);
    EnterRing({ui->txtProject, ui->txtProjectAmount, ui->txtProjectCompletionDate});
    // The ring ends at the date, where Enter is a key like any other.
    OnEnter(ui->txtProjectCompletionDate, [this] { PickCompletionDate(); });
    ui->txtProjectCompletionDate->installEventFilter(this);
    ui->lstProjects->installEventFilter(this);
}

frmProjects::~frmProjects() = default;

bool frmProjects::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->txtProjectCompletionDate && ui->txtProjectCompletionDate->isEnabled()) {
        if (event->type() == QEvent::MouseMove)
            txtProjectCompletionDate_MouseMove();
        if (event->type() == QEvent::MouseButtonDblClick ||
            (event->type() == QEvent::KeyPress && IsKeyPress(*static_cast<QKeyEvent *>(event)))) {
            PickCompletionDate();
            return true;
        }
    }
    // The keyboard's way to what a double-click does.
    if (watched == ui->lstProjects && event->type() == QEvent::KeyPress && ui->lstProjects->currentRow() >= 0 &&
        IsControlEnter(*static_cast<QKeyEvent *>(event))) {
        ui->lstProjects->SetListIndex(ui->lstProjects->currentRow());
        lstProjects_DblClick();
        return true;
    }
    return ListPanel::eventFilter(watched, event);
}

void frmProjects::FillProjectList()
{
    ui->lstProjects->Clear();
    for (int i = 1; i <= State.NumberOfProjects; ++i)
        ui->lstProjects->AddItem(State.ProjectNames(i));
}

void frmProjects::SaveAndReload()
{
    SaveProjects();
    InputProjects();
    FillProjectList();
}

/// What an entry has left in memory and not in the file, because it failed half-way, is dropped before the next edit.
void frmProjects::DropUnsaved()
{
    if (std::exchange(m_unsaved, false))
        InputProjects();
}

void frmProjects::UpdateNewButton()
{
    if (!AddingProject)
        return;
    ui->cmdNew->setEnabled(!ui->txtProject->text().isEmpty() && !ui->txtProjectAmount->text().isEmpty() &&
                           !ui->txtProjectCompletionDate->text().isEmpty());
}

/// The date is never typed: the forecast writes it when the user has picked one of its rows.
void frmProjects::PickCompletionDate()
{
    State.ProjectDateFromForecast = true;
    TheWindows.Show(QStringLiteral("frmSavingsForecast"));
}

void frmProjects::cmdListProjects_Click()
{
    InputProjects();
    FillProjectList();
    ui->cmdAddProject->setEnabled(true);
}

void frmProjects::cmdAddProject_Click()
{
    EmptyFields();
    EnableFields(true);
    FocusOn(ui->txtProject);
    AddingProject = true;
    UpdateNewButton(); // the fields were emptied while nothing was added
}

void frmProjects::txtProjectCompletionDate_MouseMove()
{
    if (!ui->txtProject->text().isEmpty() && !ui->txtProjectAmount->text().isEmpty())
        ui->txtProjectCompletionDate->setToolTip(QStringLiteral("Double-click to select valid date"));
}

void frmProjects::CommitEntry()
{
    if (Refused(ValidateProjectEntry({ui->txtProject->text(), ui->txtProjectAmount->text()})))
        return;
    const Currency amount = ToCurrency(ui->txtProjectAmount->text());
    ui->txtProjectAmount->setText(FormatCurrency(amount));
    if (const auto shortage = ValidateProjectFunds(amount)) {
        ShowMessage(*shortage, QStringLiteral("Projects"), Icon::Warning, Buttons::OkHelp, NotEnoughFundsHelp);
        return;
    }
    DropUnsaved();
    m_unsaved = true;
    AddProject(ui->txtProject->text(), amount);
    SaveAndReload();
    m_unsaved = false;
    AddingProject = false;
    ui->cmdNew->setEnabled(false);
}

void frmProjects::cmdNew_Click()
{
    Trap([this] { CommitEntry(); });
}

void frmProjects::lstProjects_Click()
{
    AddingProject = false;
    Projects.SelectedProject = ToInteger(SelectedRecord());
    const int project = Projects.SelectedProject;
    const DateText completionDate = State.ProjectEntryDates(project)(EntriesOf(project));
    SetFields(
        {State.ProjectNames(project), FormatCurrency(State.ProjectAmounts(project)), FormatLongDate(completionDate)});
    ui->cmdDeleteProject->setEnabled(true);
    EnableFields(true);
    FocusOn(ui->txtProject);
}

void frmProjects::lstProjects_DblClick()
{
    TheDesk.Beep();
    const QString question =
        QStringLiteral("Do you wish to print project %1?").arg(State.ProjectNames(Projects.SelectedProject));
    State.PrintProjectView =
        ShowMessage(question, QStringLiteral("Projects"), Icon::Question, Buttons::YesNo) == Answer::Yes;
    TheWindows.Show(QStringLiteral("frmViewProject"));
}

void frmProjects::cmdDeleteProject_Click()
{
    Trap([this] {
        DropUnsaved();
        DeleteProject(SelectedRecord()); // an earlier choice that is no longer marked stays
        SaveAndReload();
        ClosePanel();
    });
}

void frmProjects::cmdQuit_Click()
{
    ui->cmdAddProject->setEnabled(false);
    ui->cmdDeleteProject->setEnabled(false);
    TheWindows.Unload(objectName());
}
