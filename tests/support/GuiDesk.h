// The fake desk of window tests: the program's windows are declared, a household lies in the folder, and controls are
// found by their given names.
#pragma once

#include "FakeDesk.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "platform/windows/WindowRegister.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

class GuiDesk : public FakeDesk
{
public:
    GuiDesk();
    ~GuiDesk() override;

    /// Loads the household of the folder and shows the main window with the pay period answered; what is shown and
    /// active afterwards is frmMain alone.
    void StartProgram();
};

/// Lets everything happen that is due.
void Settle();

/// A control of a loaded window; the test fails hard where it does not exist.
template <class Control = QWidget>
Control &Find(const QString &window, const QString &control)
{
    Form *form = TheWindows.Loaded(window);
    auto *found = form ? form->findChild<Control *>(control) : nullptr;
    if (!found)
        qFatal("no %s.%s", qPrintable(window), qPrintable(control));
    return *found;
}

// What the user does
void Show(const QString &window);
void Click(const QString &window, const QString &control); ///< a real click of the mouse on an enabled button
void Type(const QString &window, const QString &field, const QString &text); ///< replaces the field's text by typing
void PressEnter(const QString &window, const QString &field);
void ClickRow(const QString &window, const QString &list, int row); ///< a real click of the mouse on a list's row
/// Chooses an entry of the main window's menus; an entry that is grey fails the test.
void Choose(const QString &entry);
void CloseByFrame(const QString &window);

// What the user sees
QString TextOf(const QString &window, const QString &control); ///< of a field, label or button
bool IsEnabled(const QString &window, const QString &control);
QStringList RowsOf(const QString &window, const QString &list);
/// The name of the control that has the focus in the window.
QString FocusOf(const QString &window);
bool IsShown(const QString &window);
QString ActiveWindow();
/// The rows of a grid that are not empty from row `from` on, cells joined by " | ".
QStringList GridRows(const QString &window, const QString &grid, int from = 0);
