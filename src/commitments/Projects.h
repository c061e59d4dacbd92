// The edits of the projects: savings goals that are paid in dated installments, one a pay period.
#pragma once

#include "foundation/Refusal.h"
#include "foundation/Report.h"
#include "foundation/State.h"

struct ProjectPanel {
    QString Project;
    QString Amount;
};

constexpr int ProjectsHelp = 25;      ///< help context
constexpr int NotEnoughFundsHelp = 4; ///< help context

/// What the projects' windows share; a test puts it back with one assignment.
struct ProjectsState {
    qint16 SelectedProject = 0; ///< index of the row selected in the list
};
inline ProjectsState Projects;

/// An amount that is no number or an empty description is refused.
std::optional<Refusal> ValidateProjectEntry(const ProjectPanel &panel);

/// What is told when the picked row of the forecast has less accumulated than the amount; nothing if it has enough.
std::optional<QString> ValidateProjectFunds(Currency amount);

/// Appends a project whose installments are those of the forecast's rows 1 to the picked one. Each is the row's
/// savings, divided by what is accumulated at the picked row, times the amount: in double from the currency texts,
/// rounded once to the ten-thousandth, ties to even. A pick beyond row 100: error 9, with the project already in the
/// arrays.
void AddProject(const QString &name, Currency amount);

/// Removes project `index`; projects with an empty name disappear with it. Error 9 outside, with nothing changed.
void DeleteProject(int index);

/// The installments of a project with their running total, for the screen and for paper.
std::vector<DatedRow> ProjectRows(int project);
void PrintProject(int project);
