#include "mainwindow/frmPrinter.h"

#include "foundation/State.h"
#include "mainwindow/TestPage.h"
#include "platform/values/RuntimeError.h"

namespace {

/// A dialog that fails counts as one that is cancelled.
void Dialog(const std::function<void()> &steps)
{
    ResumeNext(steps, [](const RuntimeError &) {});
}

void SelectPrinter()
{
    TheDesk.AskPrinter(); // which keeps what is chosen
}

void SelectFont()
{
    // The dialog is not given the present settings: a habit of this window.
    const std::optional<PrintFont> font = TheDesk.AskFont();
    if (!font)
        return;
    State.PrintFontName = font->Name;
    State.PrintFontSize = font->Size;
    State.PrintFontBold = font->Bold;
    State.PrintFontItalic = font->Italic;
    State.PrintFontUnderline = font->Underline;
    State.PrintFontStrikethru = font->Strikethru;
    State.PrintFontColor = font->Color;
}

} // namespace

frmPrinter::frmPrinter()
{
    OnClick(ui.cmdPrinterSelect, [] { Dialog(SelectPrinter); });
    OnClick(ui.cmdFontSelect, [] { Dialog(SelectFont); });
    OnClick(ui.cmdPrintTest, PrintTestPage); // whose failure is nobody's to tell here
    UnloadOn(ui.cmdDone);
}
