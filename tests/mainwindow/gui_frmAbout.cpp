// Title, version and system information.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "Palettes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmAbout"_s;
const QString OK = u"cmdOK"_s;
const QString SysInfo = u"cmdSysInfo"_s;

const Message Unavailable{u"System Information Is Unavailable At This Time"_s, u"Corvelle's Tallymere 1.0"_s};

QImage IconPicture()
{
    return Find<QLabel>(Window, u"picIcon"_s).pixmap(Qt::ReturnByValue).toImage();
}

} // namespace

class gui_frmAbout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWindow()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"About The Corvelle's Tallymere 1.0"_s);
        QCOMPARE(TextOf(Window, u"lblTitle"_s), u"The Corvelle's Tallymere 1.0"_s);
        QCOMPARE(TextOf(Window, u"lblVersion"_s), u"Version 1.0.0 for 32-bit systems (Windows 95, NT or 98)"_s);
        QVERIFY(!TextOf(Window, u"lblDescription"_s).isEmpty());
        QCOMPARE(TextOf(Window, OK), u"OK"_s);
        QCOMPARE(TextOf(Window, SysInfo), u"&System Info..."_s);
        QCOMPARE(FocusOf(Window), OK);
        QTest::keyClick(&Find(Window, OK), Qt::Key_Tab);
        QCOMPARE(FocusOf(Window), SysInfo);
    }

    void ThePictureIsTheProgramsAndGoesWithTheDesktop()
    {
        GuiDesk desk;
        Show(Window);
        const QImage light = IconPicture();
        QCOMPARE(light.deviceIndependentSize(), QSizeF(64, 64));
        QImage blank(light.size(), light.format());
        blank.fill(Qt::transparent);
        QVERIFY(light != blank);
        const QPalette before = QApplication::palette();
        QApplication::setPalette(DarkPalette());
        Settle();
        const QImage dark = IconPicture();
        QApplication::setPalette(before);
        Settle();
        QVERIFY(dark != light);
        QCOMPARE(IconPicture(), light);
    }

    void SystemInformationIsUnavailable()
    {
        GuiDesk desk;
        Show(Window);
        Click(Window, SysInfo);
        QCOMPARE(desk.Messages.size(), 1);
        QCOMPARE(desk.TakeMessage(), Unavailable);
        QVERIFY(IsShown(Window));
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_S, Qt::AltModifier);
        QCOMPARE(desk.TakeMessage(), Unavailable);
    }

    void OKUnloadsIt()
    {
        GuiDesk desk;
        Show(Window);
        Click(Window, OK);
        QVERIFY(!TheWindows.Loaded(Window));
    }

    void ItOpensFromTheMenu()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuHelpAbout"_s);
        QCOMPARE(ActiveWindow(), Window);
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_Escape);
        Settle();
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
        QVERIFY(!TheWindows.Loaded(Window));
    }
};

REGISTER_TEST(gui_frmAbout)
#include "gui_frmAbout.moc"
