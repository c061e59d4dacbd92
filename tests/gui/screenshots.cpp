// Takes a picture of every window, empty and filled, on a light and on a dark desktop, at the scale that
// QT_SCALE_FACTOR tells: screenshots FOLDER. The clock stands still, so that pictures change with the windows only.
#include "Households.h"

#include "GuiDesk.h"
#include "Windows.h"
#include "platform/Application.h"
#include "platform/Locale.h"

#include <QImage>
#include <QStyleFactory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Half the colours of a screen are more than these pictures need.
QImage SmallPicture(const QPixmap &picture)
{
    return picture.toImage().convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither | Qt::AvoidDither);
}

bool TakePicture(const QString &window, Household household, bool dark, const QString &folder)
{
    RecordingDesk desk;
    DeclareWindows();
    desk.Options[u"show tallymere tutor"_s] = u"0"_s;
    LayHouseholdOf(desk, household);
    if (!ShowAtWork(window, household)) {
        qWarning("%s does not show itself", qPrintable(window));
        TheWindows.Reset();
        return false;
    }
    Form &form = *TheWindows.Loaded(window);
    const QPixmap picture = form.grab();
    const QString name = u"%1/%2-%3-%4-%5.png"_s.arg(folder, window, household == Household::Empty ? u"empty"_s : u"filled"_s)
                             .arg(qRound(picture.devicePixelRatio() * 100))
                             .arg(dark ? u"dark"_s : u"light"_s);
    const bool saved = SmallPicture(picture).save(name, "PNG", 0);
    if (!saved)
        qWarning("cannot write %s", qPrintable(name));
    TheWindows.Reset();
    Settle();
    return saved;
}

} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv);
    if (argc != 2) {
        qWarning("it is: screenshots FOLDER");
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    DeclareWindows();
    const QStringList windows = TheWindows.Names();
    TheWindows.Reset();
    int missing = 0;
    for (const bool dark : {false, true}) {
        UseDesktop(dark, UsualFontSize);
        for (const QString &window : windows)
            for (const Household household : {Household::Empty, Household::Filled})
                missing += !TakePicture(window, household, dark, application.arguments().at(1));
    }
    return missing == 0 ? 0 : 1;
}
