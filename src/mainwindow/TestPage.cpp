#include "mainwindow/TestPage.h"

#include "foundation/StartAndEnd.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr const char *Lines[] = {
    "The output of Tallymere is not intended to be fancy",
    "as a flyer or camera-ready copy of a brochure. Therefore,",
    "the layouts are simple, to-the-point and easy to read - ",
    "the bottom line. The Printer Setup window allows you to adjust",
    "your printer settings to take advantage of the information",
    "Tallymere provides.",
    "",
    "To access the Printer Setup window, you must be in the Main Menu.",
    "First, you click on the Options menu, then click on Printer",
    "Setup. Another way to access the Printer Setup window is by",
    "pressing F2. The easiest way to access this window is by",
    "clicking on the Printer Setup icon on the Easy Access Toolbar.",
    "",
    "Once you are in the Printer Setup window, you will note its",
    "standard Windows look and feel. Although several choices",
    "confront you, for Tallymere's simple output, you only need",
    "to set Orientation for Portrait and Paper Size to Letter",
    "8 1/2 x 11, unless you desire something different.",
    "",
    "Once you are satisfied with your printer settings, click OK",
    "or press Enter to exit the Printer Setup window.",
};
} // namespace

void PrintTestPage()
{
    ApplyPrintSettings();
    ThePrinter.DocumentName = u"Test Page"_s;
    for (const char *line : Lines)
        ThePrinter.Print(QLatin1String(line)).NewLine();
    ThePrinter.EndDoc();
}
