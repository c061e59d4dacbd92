// Takes a picture of every window, empty and filled, and of the help, on a light and on a dark desktop, at the scale
// that QT_SCALE_FACTOR tells: screenshots FOLDER. The clock stands still, so that pictures change with the windows
// only.
#include "Households.h"

#include "GuiDesk.h"
#include "Windows.h"
#include "help/HelpBook.h"
#include "help/HelpWindow.h"
#include "platform/controls/ClearEdges.h"
#include "platform/values/Locale.h"
#include "platform/windows/Application.h"

#include <QHelpSearchEngine>
#include <QImage>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDateTime TimeOfPictures(QDate(2026, 1, 5), QTime(9, 30));

/// The picture with at most 256 colours, which takes a third of the room. Where it has more, neighbours are made equal
/// in steps that the eye does not see.
QImage SmallPicture(const QPixmap &pixmap)
{
    const QImage picture = pixmap.toImage().convertToFormat(QImage::Format_RGB32);
    for (int step = 1; step <= 8; step *= 2) {
        const auto nearby = [step](int channel) { return qMin(255, (channel + step / 2) / step * step); };
        QHash<QRgb, uchar> numbers;
        QList<QRgb> colours;
        QImage small(picture.size(), QImage::Format_Indexed8);
        bool fits = true;
        for (int y = 0; fits && y < picture.height(); ++y) {
            for (int x = 0; fits && x < picture.width(); ++x) {
                const QRgb exact = picture.pixel(x, y);
                const QRgb colour = qRgb(nearby(qRed(exact)), nearby(qGreen(exact)), nearby(qBlue(exact)));
                auto number = numbers.find(colour);
                if (number == numbers.end()) {
                    fits = colours.size() < 256;
                    number = numbers.insert(colour, uchar(colours.size()));
                    colours += colour;
                }
                small.scanLine(y)[x] = number.value();
            }
        }
        if (fits) {
            small.setColorTable(colours);
            return small;
        }
    }
    return picture;
}

bool SavePicture(QWidget &window, const QString &folder, const QString &view, bool dark)
{
    const QPixmap picture = window.grab();
    const QString name = u"%1/%2-%3-%4.png"_s.arg(folder, view)
                             .arg(qRound(picture.devicePixelRatio() * 100))
                             .arg(dark ? u"dark"_s : u"light"_s);
    const bool saved = SmallPicture(picture).save(name, "PNG", 0);
    if (!saved)
        qWarning("cannot write %s", qPrintable(name));
    return saved;
}

bool TakePicture(const QString &view, Household household, bool dark, const QString &folder)
{
    RecordingDesk desk;
    desk.Now = TimeOfPictures;
    RegisterWindows();
    desk.Options[u"show tallymere tutor"_s] = u"0"_s;
    LayHouseholdOf(desk, household);
    if (!ShowAtWork(view, household)) {
        qWarning("%s does not show itself", qPrintable(view));
        TheWindows.Reset();
        return false;
    }
    const bool saved = SavePicture(*TheWindows.Loaded(WindowOf(view)), folder,
                                   view + (household == Household::Empty ? u"-empty"_s : u"-filled"_s), dark);
    TheWindows.Reset();
    Settle();
    return saved;
}

/// The help at a page, and with what a search finds.
bool TakeHelpPictures(bool dark, const QString &folder)
{
    constexpr int LongestSearch = 20000; // milliseconds
    HelpBook book(QStringLiteral(HELP_FILE));
    if (!book.Error().isEmpty()) {
        qWarning("%s", qPrintable(book.Error()));
        return false;
    }
    HelpWindow window(book);
    QSignalSpy ready(&window, &HelpWindow::SearchIsReady);
    window.Answer(u"topic frmCreditors"_s);
    window.ComeForward();
    if (ready.isEmpty() && !ready.wait(LongestSearch))
        return false;
    Settle();
    bool saved = SavePicture(window, folder, u"help-page"_s, dark);
    QSignalSpy found(book.Engine().searchEngine(), &QHelpSearchEngine::searchingFinished);
    window.Answer(u"contents"_s);
    auto &field = *window.findChild<QLineEdit *>(u"searchField"_s);
    field.setText(u"pay day"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    if (found.isEmpty() && !found.wait(LongestSearch))
        return false;
    Settle();
    saved = SavePicture(window, folder, u"help-search"_s, dark) && saved;
    return saved;
}

} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv, u"Tallymere"_s);
    if (argc != 2) {
        qWarning("it is: screenshots FOLDER");
        return 2;
    }
    QApplication::setStyle(new ClearEdges(u"Fusion"_s));
    SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    RegisterWindows();
    const QStringList views = Views();
    TheWindows.Reset();
    int missing = 0;
    for (const bool dark : {false, true}) {
        UseDesktop(dark, UsualFontSize);
        for (const QString &view : views)
            for (const Household household : {Household::Empty, Household::Filled})
                if (household == Household::Filled ||
                    !view.contains(u'.')) // a further panel shows the same with either
                    missing += !TakePicture(view, household, dark, application.arguments().at(1));
        missing += !TakeHelpPictures(dark, application.arguments().at(1));
    }
    return missing == 0 ? 0 : 1;
}
