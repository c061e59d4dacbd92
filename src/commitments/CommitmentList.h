// A list of the household's commitments as its window works with it: read from its file, edited record by record, saved
// after each edit and read back. Creditors, regular items, extra items and projects declare what differs between them;
// their windows and the worked cases run the same declarations. No window is needed.
#pragma once

#include "foundation/Refusal.h"

#include <QStringList>

// The caption of a window's commit button is the mode of its panel and is compared as text.
inline const QString NewCaption = QStringLiteral("&New");
inline const QString ChangeCaption = QStringLiteral("&Change");

/// What became of an entry.
struct EntryOutcome {
    bool Saved = false;                    ///< it is in the records and was written to the file
    std::optional<Message> Objection = {}; ///< the message where it was refused
    QString Focus = {};                    ///< the field that gets the focus then; empty: it stays where it is
};

struct CommitmentList {
    QString Title;       ///< of the window and of its messages
    int HelpContext = 0; ///< of the window and of its refusals
    QStringList Fields;  ///< the panel's fields; a panel's texts stand in the same order
    void (*Input)();     ///< reads the file
    void (*Save)();
    QStringList (*Names)();             ///< the rows of the list
    QStringList (*PanelOf)(int record); ///< the texts that show a record
    /// Takes the panel's texts as a new record or as those of `record`, as the caption says; any other caption takes
    /// nothing. The texts are put in their normal forms, also where an error is raised later on. An entry that is taken
    /// is saved and read back.
    EntryOutcome (*Commit)(QStringList &panel, const QString &caption, int record);
    void (*Remove)(int record); ///< from the records alone; 0 stands for no record
};

/// Writes the records and reads them back, so that memory and file are the same.
void SaveAndReload(const CommitmentList &list);
/// The delete button: removes a record, saves and reads back. Raises error 9, with nothing changed, where two records
/// or more are there and `record` is none of them.
void RemoveAndSave(const CommitmentList &list, int record);
/// A refusal with the message that the list's window shows.
EntryOutcome Refuse(const CommitmentList &list, const Refusal &refusal);
