#include "mainwindow/frmPrinter.h"

#include "foundation/State.h"
#include "mainwindow/TestPage.h"
#include "platform/desk/PrinterFont.h"
#include "platform/values/RuntimeError.h"

using namespace Qt::Literals::StringLiterals;

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
    ShowWhatHolds();
    OnClick(ui.cmdPrinterSelect, [this] {
        Dialog(SelectPrinter);
        ShowWhatHolds();
    });
    OnClick(ui.cmdFontSelect, [this] {
        Dialog(SelectFont);
        ShowWhatHolds();
    });
    OnClick(ui.cmdPrintTest, PrintTestPage); // whose failure is nobody's to tell here
    UnloadOn(ui.cmdDone);
}

/// The dialogs do not open on it, so the window says it.
void frmPrinter::ShowWhatHolds()
{
    ui.lblPrinterNow->setText(u"Now: "_s + TheDesk.PrinterInUse());
    ui.lblFontNow->setText(u"Now: "_s +
                           NameOf({State.PrintFontName, State.PrintFontSize, State.PrintFontBold, State.PrintFontItalic,
                                   State.PrintFontUnderline, State.PrintFontStrikethru, State.PrintFontColor}));
}
