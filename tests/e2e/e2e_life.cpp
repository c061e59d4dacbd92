// The life of windows on a real X server: what the window manager and other programs do is no business of the windows,
// and what the user does is heard once and in order. Keys and clicks come from outside, by xdotool.
#include "ToyWindows.h"
#include "platform/desk/RealDesk.h"
#include "platform/windows/Application.h"

#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QProcess>
#include <QTemporaryDir>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

namespace {

/// One call of xdotool; keys and buttons are pressed and let go when it returns.
bool Do(const QStringList &words)
{
    QProcess tool;
    tool.start(u"xdotool"_s, words);
    return tool.waitForFinished(10000) && tool.exitCode() == 0;
}
bool Key(const QString &key)
{
    return Do({u"key"_s, u"--clearmodifiers"_s, key});
}
bool TypeText(const QString &text)
{
    return Do({u"type"_s, u"--delay"_s, u"5"_s, text});
}
bool ClickAt(QPoint point)
{
    return Do(
        {u"mousemove"_s, u"--sync"_s, QString::number(point.x()), QString::number(point.y()), u"click"_s, u"1"_s});
}
bool ClickTitleBar(const Form &form)
{
    const QRect frame = form.frameGeometry();
    return ClickAt({frame.center().x(), (frame.top() + form.geometry().top()) / 2});
}
bool ClickControl(const QWidget &control)
{
    return ClickAt(control.mapToGlobal(control.rect().center()));
}
/// Beside the controls.
bool ClickBody(const Form &form)
{
    return ClickAt(form.mapToGlobal(QPoint(form.width() / 2, 3)));
}

/// The window that lies on top, as the window manager tells.
WId TopWindow()
{
    QProcess tool;
    tool.start(u"xprop"_s, {u"-root"_s, u"_NET_CLIENT_LIST_STACKING"_s});
    tool.waitForFinished(10000);
    const QByteArray answer = tool.readAllStandardOutput();
    return answer.mid(answer.lastIndexOf("0x")).trimmed().toULongLong(nullptr, 16);
}

QStringList Comes(const QString &name)
{
    return {name + u" Activate"_s, name + u" GotFocus First"_s};
}
QStringList Goes(const QString &name)
{
    return {name + u" LostFocus First"_s, name + u" Deactivate"_s};
}
QStringList OpensFrom(const QString &old, const QString &name)
{
    return QStringList{name + u" Load"_s} + Goes(old) + Comes(name);
}
QStringList Closes(const QString &name)
{
    return {name + u" QueryUnload by code"_s, name + u" Unload"_s};
}

/// Shows a window and waits until the window system has followed and has nothing more to say.
void ShowAtRest(const char *name, QPoint place)
{
    Show(name);
    Form *form = TheWindows.Loaded(QString::fromLatin1(name));
    form->setWindowTitle(QString::fromLatin1(name));
    form->setGeometry(QRect(place, QSize(320, 220)));
    QTRY_COMPARE(QApplication::activeWindow(), form);
    QTRY_VERIFY(form->frameGeometry().top() < form->geometry().top());
    QTRY_COMPARE(form->geometry().topLeft(), place);
    QTest::qWait(250);
}

/// Long enough for what the window system may still tell to arrive.
void Linger()
{
    QTest::qWait(250);
}

/// Another program with one window, which has the focus once this object stands.
class Stranger
{
public:
    Stranger()
    {
        m_process.start(QCoreApplication::applicationFilePath(), {u"--stranger"_s});
        m_stands =
            m_process.waitForStarted(10000) && QTest::qWaitFor([] { return !QGuiApplication::focusWindow(); }, 10000);
    }
    ~Stranger() { Leave(); }
    bool Stands() const { return m_stands; }
    void Leave()
    {
        m_process.terminate();
        m_process.waitForFinished(10000);
    }

private:
    QProcess m_process;
    bool m_stands = false;
};

int BeAStranger(int argc, char **argv)
{
    QApplication application(argc, argv);
    QLabel window(u"Another program"_s);
    window.setGeometry(860, 500, 300, 200);
    window.setFocusPolicy(Qt::StrongFocus);
    window.show();
    return application.exec();
}

constexpr QPoint Left(40, 80);
constexpr QPoint Right(460, 80);
constexpr QPoint Below(60, 110); // covers most of Left

} // namespace

class e2e_life : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Do({u"mousemove"_s, u"1200"_s, u"900"_s}); }

    void ShowingMovesTheUserAndHisKeys()
    {
        ToyBox toys;
        ShowAtRest("A", Left);
        TakeLog();
        ShowAtRest("B", Right);
        QCOMPARE(TakeLog(), OpensFrom("A", "B"));
        QVERIFY(TypeText("12"));
        QTRY_COMPARE(toys["B"].First->text(), "12");
        ShowAtRest("A", Left);
        QCOMPARE(TakeLog(), Goes("B") + Comes("A"));
        QVERIFY(TypeText("3"));
        QTRY_COMPARE(toys["A"].First->text(), "3");
        QCOMPARE(TopWindow(), toys["A"].winId());
    }

    void ClicksOnAnotherWindowMoveTheUser()
    {
        ToyBox toys;
        ShowAtRest("A", Left);
        ShowAtRest("B", Right);
        TakeLog();
        QVERIFY(ClickTitleBar(toys["A"]));
        QTRY_COMPARE(Log, Goes("B") + Comes("A"));
        Linger();
        QCOMPARE(TakeLog(), Goes("B") + Comes("A"));
        QVERIFY(ClickBody(toys["B"]));
        QTRY_COMPARE(Log, Goes("A") + Comes("B"));
        Linger();
        QCOMPARE(TakeLog(), Goes("A") + Comes("B"));
    }

    void AClickOnAFieldOfAnotherWindowEndsInThatField()
    {
        ToyBox toys;
        ShowAtRest("A", Left);
        ShowAtRest("B", Right);
        toys["A"].Second->setText("12.50");
        TakeLog();
        QVERIFY(ClickControl(*toys["A"].Second));
        QTRY_COMPARE(QApplication::focusWidget(), toys["A"].Second);
        Linger();
        const QStringList heard = TakeLog();
        QCOMPARE(heard.first(2), Goes("B"));
        QCOMPARE(heard[2], "A Activate");
        QCOMPARE(heard.last(), "A GotFocus Second");
        QCOMPARE(heard.count("A Activate"), 1);
        QVERIFY(TypeText("7"));
        QTRY_COMPARE(toys["A"].Second->text(), "7"); // it was selected as a whole
        QVERIFY(ClickControl(*toys["B"].Button));    // and a click on a button over there is a click
        QTRY_VERIFY(Log.contains("B Click"));
        QCOMPARE(Log.last(), "B Click");
    }

    void TheFramesClosingGivesBack()
    {
        ToyBox toys;
        ShowAtRest("C", Below);
        ShowAtRest("A", Left);
        ShowAtRest("B", Right);
        TakeLog();
        QVERIFY(Key("alt+F4"));
        const QStringList expected = QStringList{"B QueryUnload by frame", "B Unload"} + Comes("A");
        QTRY_COMPARE(Log, expected);
        Linger();
        QCOMPARE(TakeLog(), expected);
        QTRY_COMPARE(QApplication::activeWindow(), &toys["A"]);
        Refusing = {"A"};
        QVERIFY(Key("alt+F4"));
        QTRY_COMPARE(Log, QStringList{"A QueryUnload by frame"});
        Linger();
        QVERIFY(toys["A"].isVisible());
        QCOMPARE(TakeLog(), QStringList{"A QueryUnload by frame"});
    }

    void UnloadingGivesBackToTheOneBeforeAndToNoThird()
    {
        ToyBox toys;
        ShowAtRest("C", Below);
        ShowAtRest("A", Left);
        ShowAtRest("B", Below); // over both
        TakeLog();
        Unload("B");
        QCOMPARE(TakeLog(), Closes("B") + Comes("A"));
        Linger();
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(QApplication::activeWindow(), &toys["A"]);
        QVERIFY(TypeText("5"));
        QTRY_COMPARE(toys["A"].First->text(), "5");
    }

    void ManyMovesInOneHandlerEndWhereTheLastOneLeads()
    {
        ToyBox toys;
        ShowAtRest("C", Below);
        ShowAtRest("A", Left);
        TakeLog();
        // The window system hears of all of it only afterwards, and its answers come late.
        Show("B");
        Show("C");
        Show("B");
        Show("A");
        Show("D");
        Unload("D");
        Hide("B");
        QStringList expected = OpensFrom("A", "B") + Goes("B") + Comes("C") + Goes("C") + Comes("B") + Goes("B") +
                               Comes("A") + OpensFrom("A", "D") + Closes("D") + Comes("A");
        QCOMPARE(TakeLog(), expected);
        QTRY_COMPARE(QApplication::activeWindow(), &toys["A"]);
        QTest::qWait(900); // longer than any answer is waited for
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(QApplication::activeWindow(), &toys["A"]);
        QVERIFY(TypeText("5"));
        QTRY_COMPARE(toys["A"].First->text(), "5");
    }

    void AGotFocusThatTakesLongIsNoMove()
    {
        ToyBox toys;
        ShowAtRest("A", Left);
        ShowAtRest("B", Below);
        TakeLog();
        // Its load puts the window in front away, so that the window manager turns to the one behind it meanwhile.
        WhenHeard[u"C Load"_s] = [] { TheWindows.Hide(u"B"_s); };
        WhenHeard[u"C GotFocus First"_s] = [] { QTest::qSleep(900); };
        Show("C");
        QTRY_COMPARE(QApplication::activeWindow(), &toys["C"]);
        QTest::qWait(900);
        const QStringList log = TakeLog();
        QCOMPARE(log.count(u"C GotFocus First"_s), 1);
        QCOMPARE(log.last(), u"C GotFocus First"_s);
        QCOMPARE(QApplication::activeWindow(), &toys["C"]);
    }

    void AnotherProgramIsNoMove()
    {
        ToyBox toys;
        ShowAtRest("A", Left);
        ShowAtRest("B", Right);
        TakeLog();
        {
            Stranger stranger;
            QVERIFY(stranger.Stands());
            Linger();
            QCOMPARE(TakeLog(), QStringList());
            QCOMPARE(Active(), "B");
            stranger.Leave(); // the focus falls back
            QTRY_COMPARE(QApplication::activeWindow(), &toys["B"]);
            Linger();
            QCOMPARE(TakeLog(), QStringList());
        }
        {
            Stranger stranger;
            QVERIFY(stranger.Stands());
            QVERIFY(ClickBody(toys["B"])); // the user comes back himself
            QTRY_COMPARE(QApplication::activeWindow(), &toys["B"]);
            Linger();
            QCOMPARE(TakeLog(), QStringList());
        }
        QTRY_COMPARE(QApplication::activeWindow(), &toys["B"]);
        {
            Stranger stranger;
            QVERIFY(stranger.Stands());
            QVERIFY(ClickBody(toys["A"])); // he comes back to another window
            QTRY_COMPARE(Log, Goes("B") + Comes("A"));
            Linger();
            QCOMPARE(TakeLog(), Goes("B") + Comes("A"));
        }
    }

    void AMessageBoxIsNoMove()
    {
        ToyBox toys;
        QTemporaryDir folder;
        const auto end = TheDesk.EndProgram;
        InstallRealDesk(u"Toys"_s, folder.path());
        TheDesk.EndProgram = end;
        ShowAtRest("C", Below);
        ShowAtRest("A", Left);
        toys["A"].FocusOn(toys["A"].Second);
        TakeLog();
        QTimer answering;
        connect(&answering, &QTimer::timeout, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box && box == QApplication::activeWindow()) {
                answering.stop();
                QVERIFY(Key("Return"));
            }
        });
        answering.start(50);
        QCOMPARE(ShowMessage("text", "title", Icon::Warning), Answer::Ok);
        QCOMPARE(TakeLog(), QStringList());
        QTRY_COMPARE(QApplication::focusWidget(), toys["A"].Second);
        Linger();
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(Active(), "A");
        QVERIFY(TypeText("9"));
        QTRY_COMPARE(toys["A"].Second->text(), "9");
    }

    // The window prints when it is left; the box that tells of the file must not take the click that left it.
    void ABoxAfterAPdfLeavesTheClickAlone()
    {
        ToyBox toys;
        QTemporaryDir folder;
        const auto end = TheDesk.EndProgram;
        InstallRealDesk(u"Toys"_s, folder.path());
        TheDesk.EndProgram = end;
        ShowAtRest("A", Left);
        ShowAtRest("B", Right);
        When("B Deactivate", [] { TheDesk.PrintDocument({{}, {u"a line"_s}, u"Budget"_s}); });
        QStringList before;
        QTimer answering;
        connect(&answering, &QTimer::timeout, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box && box == QApplication::activeWindow()) {
                answering.stop();
                before = Log;
                QVERIFY(Key("Return"));
            }
        });
        answering.start(50);
        TakeLog();
        QVERIFY(ClickControl(*toys["A"].Button));
        QTRY_VERIFY(!before.isEmpty());
        QVERIFY(before.contains("B Deactivate"));
        QCOMPARE(before.last(), "A Click");
        QTRY_VERIFY(!QApplication::activeModalWidget());
        Linger();
        QCOMPARE(Active(), "A");
    }

    void AMenuIsNoMove()
    {
        ToyBox toys;
        ShowAtRest("A", Left);
        QMenu menu;
        menu.addAction("&Open", [] { Tell("chosen"); });
        TakeLog();
        menu.popup(toys["A"].mapToGlobal(QPoint(20, 20)));
        QTRY_VERIFY(menu.isVisible());
        Linger();
        QVERIFY(Key("o"));
        QTRY_COMPARE(Log, QStringList{"chosen"});
        Linger();
        QCOMPARE(TakeLog(), QStringList{"chosen"});
        QCOMPARE(QApplication::focusWidget(), toys["A"].First);
    }

    void AModalWindowStaysInFrontOfItsCaller()
    {
        ToyBox toys;
        ShowAtRest("C", Right);
        ShowAtRest("A", Left);
        TakeLog();
        QStringList shown, clicked;
        WId top = 0, modal = 0;
        QTimer::singleShot(0, this, [&] {
            toys["B"].setGeometry(QRect(Below, QSize(320, 220)));
            QTRY_COMPARE(QApplication::activeWindow(), &toys["B"]);
            Linger();
            shown = TakeLog();
            QVERIFY(ClickTitleBar(toys["A"]));
            QVERIFY(ClickTitleBar(toys["C"]));
            QVERIFY(ClickControl(*toys["C"].Button));
            Linger();
            clicked = TakeLog();
            modal = toys["B"].winId();
            top = TopWindow();
            QVERIFY(TypeText("4"));
            QTRY_COMPARE(toys["B"].First->text(), "4");
            Unload("B");
        });
        ShowModal("B");
        QCOMPARE(shown, OpensFrom("A", "B"));
        QCOMPARE(clicked, QStringList());
        QCOMPARE(top, modal);
        QCOMPARE(TakeLog(), Closes("B") + Comes("A"));
        QTRY_COMPARE(QApplication::activeWindow(), &toys["A"]);
        Linger();
        QCOMPARE(TakeLog(), QStringList());
    }

    // As the dialogue that asks for one creditor after the other does.
    void AModalWindowShownAgainAndAgainKeepsItsCaller()
    {
        ToyBox toys;
        ShowAtRest("C", Below);
        ShowAtRest("A", Left);
        TakeLog();
        When("B Load", [&] { toys["B"].OnEnter(toys["B"].First, [] { Unload("B"); }); });
        for (int i = 0; i < 4; ++i) {
            QTimer typing;
            connect(&typing, &QTimer::timeout, this, [&] {
                if (QApplication::focusWidget() && QApplication::focusWidget()->window() == TheWindows.Loaded("B")) {
                    typing.stop();
                    QVERIFY(TypeText("5"));
                    QVERIFY(Key("Return"));
                }
            });
            typing.start(20);
            ShowModal("B");
            QCOMPARE(TakeLog(), OpensFrom("A", "B") + Closes("B") + Comes("A"));
        }
        QTRY_COMPARE(QApplication::activeWindow(), &toys["A"]);
        Linger();
        QCOMPARE(TakeLog(), QStringList());
        QVERIFY(TypeText("6"));
        QTRY_COMPARE(toys["A"].First->text(), "6");
    }

    void KeysOfTheUser()
    {
        ToyBox toys;
        ShowAtRest("A", Left);
        toys["A"].Second->setText("12.50");
        TakeLog();
        QVERIFY(Key("Return"));
        QTRY_COMPARE(Log, (QStringList{"A LostFocus First", "A GotFocus Second"}));
        QCOMPARE(toys["A"].Second->selectedText(), "12.50");
        QVERIFY(Key("alt+p"));
        QTRY_COMPARE(Log.mid(2), (QStringList{"A LostFocus Second", "A GotFocus Button", "A Click"}));
        TakeLog();
        QVERIFY(Key("Return"));
        QTRY_COMPARE(Log, QStringList{"A Click"});
        QVERIFY(Key("Escape"));
        QVERIFY(Key("Tab"));
        QTRY_COMPARE(QApplication::focusWidget(), toys["A"].First);
        QVERIFY(toys["A"].isVisible());
    }

    void TheSecondPressOfADoubleClickDoesNotFallThrough()
    {
        ToyBox toys;
        ShowAtRest("A", Left);
        ShowAtRest("B", Left); // covers it, button over button
        When("B Click", [] { Hide("B"); });
        TakeLog();
        const QPoint place = toys["B"].Button->mapToGlobal(toys["B"].Button->rect().center());
        QVERIFY(Do({u"mousemove"_s, u"--sync"_s, QString::number(place.x()), QString::number(place.y()), u"click"_s,
                    u"--repeat"_s, u"2"_s, u"--delay"_s, u"60"_s, u"1"_s}));
        QTRY_VERIFY(Log.contains("B Click"));
        QTest::qWait(QApplication::doubleClickInterval() + 100);
        QVERIFY(!toys["B"].isVisible());
        QVERIFY(!Log.contains("A Click"));
        QVERIFY(Do({u"click"_s, u"1"_s})); // the pointer is there already
        QTRY_VERIFY(Log.contains("A Click"));
    }

    void AWindowThatIsOnlyLookedAtLeavesTheUserAtWork()
    {
        ToyBox toys;
        ShowAtRest("C", Below);
        ShowAtRest("A", Left);
        QVERIFY(TypeText("1"));
        QTRY_COMPARE(toys["A"].First->text(), "1");
        TakeLog();
        Show("T");
        toys["T"].setGeometry(QRect(QPoint(900, 600), QSize(200, 150)));
        QTRY_VERIFY(toys["T"].windowHandle()->isExposed());
        Linger();
        QVERIFY(TypeText("2"));
        QTRY_COMPARE(toys["A"].First->text(), "12");
        QCOMPARE(TakeLog(), QStringList{"T Load"});
        // A click on it and its closing move nobody either.
        QVERIFY(ClickControl(*toys["T"].Button));
        QTRY_COMPARE(Log, QStringList{"T Click"});
        TakeLog();
        toys["T"].close();
        QTRY_COMPARE(QApplication::activeWindow(), &toys["A"]);
        Linger();
        QCOMPARE(TakeLog(), (QStringList{"T QueryUnload by frame", "T Unload"}));
        // Nor does it call the user back from another program.
        Stranger stranger;
        QVERIFY(stranger.Stands());
        Show("T");
        QTRY_VERIFY(toys["T"].windowHandle()->isExposed());
        Linger();
        QVERIFY(!QGuiApplication::focusWindow());
    }

    void AWindowThatIsOnlyLookedAtComesBackFromTheTaskBarBesideTheUser()
    {
        ToyBox toys;
        ShowAtRest("A", Left);
        Show("T");
        QTRY_VERIFY(toys["T"].windowHandle()->isExposed());
        toys["T"].showMinimized();
        QTRY_VERIFY(!toys["T"].windowHandle()->isExposed());
        toys["A"].activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &toys["A"]);
        QTest::qWait(1000); // whatever was expected has come
        TakeLog();
        Show("T");
        QTRY_VERIFY(toys["T"].windowHandle()->isExposed());
        Linger();
        QCOMPARE(TakeLog(), QStringList());
        QVERIFY(TypeText("4"));
        QTRY_COMPARE(toys["A"].First->text(), "4");
    }

    void AWindowThatIsOnlyLookedAtIsEnteredWhereTheUserAskedForIt()
    {
        ToyBox toys;
        ShowAtRest("C", Below);
        ShowAtRest("A", Left);
        Show("T");
        toys["T"].setGeometry(QRect(QPoint(900, 600), QSize(200, 150)));
        QTRY_VERIFY(toys["T"].windowHandle()->isExposed());
        Linger();
        TakeLog();
        TheWindows.ShowAndActivate("T");
        Unload("A");
        QTRY_COMPARE(QApplication::activeWindow(), &toys["T"]);
        Linger();
        QCOMPARE(TakeLog(), Goes("A") + Comes("T") + Closes("A"));
        QVERIFY(TypeText("3"));
        QTRY_COMPARE(toys["T"].First->text(), "3");
        QVERIFY(ClickBody(toys["C"]));
        QTRY_COMPARE(Active(), "C");
        Linger();
        QCOMPARE(TakeLog(), Goes("T") + Comes("C"));
    }

    void TheLastWindowsFrameEndsTheProgram()
    {
        ToyBox toys;
        ShowAtRest("A", Left);
        TakeLog();
        QVERIFY(Key("alt+F4"));
        QTRY_VERIFY(Log.contains("the program ends"));
        QCOMPARE(TakeLog(), (QStringList{"A QueryUnload by frame", "A Unload", "the program ends"}));
    }
};

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--stranger") == 0)
        return BeAStranger(argc, argv);
    Application application(argc, argv, u"Toys"_s);
    e2e_life test;
    return QTest::qExec(&test, argc, argv);
}
#include "e2e_life.moc"
