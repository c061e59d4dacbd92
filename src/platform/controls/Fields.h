// Habits of the fields of all windows.
#pragma once

class QLineEdit;

/// Selects the whole text with the caret at its beginning, which so is what is seen of a long one.
void SelectWhole(QLineEdit *field);

/// From now on, a text that code puts into the field is seen from its beginning. What the user types stays in view
/// where it is typed.
void ShowFromBeginning(QLineEdit *field);

/// Formats the text as currency; one that is no number stays.
void ShowAsCurrency(QLineEdit *field);

/// A field that only shows has no ground of its own, so that nobody tries to type into it, and is never grey.
void ShowOnly(QLineEdit *field);
