// The edits of the projects: savings goals that are paid in dated installments, one a pay period.
#pragma once

#include "commitments/CommitmentList.h"
#include "foundation/State.h"
#include "foundation/Statement.h"

/// The projects' list with its panel of description, amount and completion date. Its commit only adds: the installments
/// are those of the forecast up to the picked row.
extern const CommitmentList ProjectList;

/// What the projects' windows share; a test puts it back with one assignment.
struct ProjectsState {
    qint16 SelectedProject = 0; ///< index of the row that was clicked last in the list
    bool Unsaved = false;       ///< an entry that failed half-way stands in memory and not in the file
};
inline ProjectsState Projects;

/// An amount that is no number or an empty description is refused.
std::optional<Refusal> ValidateProjectEntry(const QStringList &panel);

/// The message when the picked row of the forecast has less accumulated than the amount; nothing if it has enough.
std::optional<Message> ValidateProjectFunds(Currency amount);

/// Appends a project whose installments are those of the forecast's rows 1 to the picked one. Each is the row's
/// savings, divided by what is accumulated at the picked row, times the amount: in double from the currency texts,
/// rounded once to the ten-thousandth, ties to even. A pick beyond row 100: error 9, with the project already in the
/// arrays.
void AddProject(const QString &name, Currency amount);

/// Removes Projects.SelectedProject; projects with an empty name disappear with it. A single project goes whatever is
/// selected; of several, error 9 where there is no such project, with nothing changed.
void DeleteProject();

/// The installments of a project with their running total, for the screen and for paper.
Statement ProjectStatement(int project);
void PrintProject(int project);
