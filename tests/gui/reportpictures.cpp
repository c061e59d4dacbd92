// Prints every report to a PDF file and takes pictures of its pages: reportpictures FOLDER. Each is printed once as at
// a fresh start, once in a font with everything set. scripts/take-report-pictures runs it.
#include "GuiDesk.h"
#include "Reports.h"
#include "foundation/StartAndEnd.h"
#include "mainwindow/TestPage.h"
#include "platform/desk/PagePrinter.h"
#include "platform/windows/Application.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

const PrintFont FreshFont{u"Courier"_s, 8};
const PrintFont OddFont{u"DejaVu Serif"_s, 10, true, true, true, true, 0x802000};

bool TakePictures(PrintJob page, const PrintFont &font, const QString &folder)
{
    page.Font = font;
    const QString pdf = PrintToPaperOrPdf(page, folder, nullptr);
    QString picture = pdf;
    picture.chop(qsizetype(strlen(".pdf")));
    return QProcess::execute(u"pdftoppm"_s, {u"-png"_s, u"-r"_s, u"80"_s, pdf, picture}) == 0;
}

} // namespace

int main(int argc, char **argv)
{
    const Application application(argc, argv, ProgramName);
    if (argc != 2) {
        qWarning("usage: reportpictures FOLDER");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    GuiDesk desk;
    bool all = true;
    for (const Report &report : Reports) {
        ResetState();
        TakeHouseholdForReports();
        const PrintJob page = report.Print(desk).Page;
        all = TakePictures(page, FreshFont, folder) && TakePictures(page, OddFont, folder) && all;
    }
    PrintTestPage();
    all = TakePictures(desk.TakePrinted(), FreshFont, folder) && all;
    desk.TakeAll();
    return all ? 0 : 1;
}
