// The real message boxes: what stands in them and what their buttons do; and where the file dialogs open.
#include "TestProgram.h"
#include "ToyWindows.h"
#include "foundation/Identity.h"
#include "platform/desk/RealDesk.h"

#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Looks at the box that the message opens, then answers it.
Answer Ask(const Message &message, const std::function<void(QMessageBox &)> &look,
           QMessageBox::StandardButton button = QMessageBox::Ok)
{
    QTimer::singleShot(0, qApp, [=] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        look(*box);
        box->button(button)->click();
    });
    return TheDesk.ShowMessage(message);
}

QStringList ButtonsOf(const QMessageBox &box)
{
    QStringList names;
    for (QAbstractButton *button : box.buttons())
        names += button->text().remove(QLatin1Char('&'));
    names.sort();
    return names;
}

} // namespace

class gui_messagebox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_toys = std::make_unique<ToyBox>();
        const auto end = TheDesk.EndProgram;
        InstallRealDesk(AppTitle, m_folder.path());
        TheDesk.EndProgram = end;
        Show("A");
        Settle();
    }
    void cleanup() { m_toys.reset(); }

    void TitleTextAndIcon_data()
    {
        QTest::addColumn<Icon>("icon");
        QTest::addColumn<int>("shown");
        QTest::newRow("stop") << Icon::Stop << int(QMessageBox::Critical);
        QTest::newRow("question") << Icon::Question << int(QMessageBox::Question);
        QTest::newRow("warning") << Icon::Warning << int(QMessageBox::Warning);
        QTest::newRow("information") << Icon::Information << int(QMessageBox::Information);
        QTest::newRow("none") << Icon::None << int(QMessageBox::NoIcon);
    }
    void TitleTextAndIcon()
    {
        QFETCH(Icon, icon);
        QFETCH(int, shown);
        const Answer answer = Ask({"Please enter a name", "Creditors", icon}, [&](QMessageBox &box) {
            QCOMPARE(box.windowTitle(), "Creditors");
            QCOMPARE(box.text(), "Please enter a name");
            QCOMPARE(int(box.icon()), shown);
            QCOMPARE(ButtonsOf(box), QStringList{"OK"});
            QVERIFY(box.isModal());
        });
        QCOMPARE(answer, Answer::Ok);
    }

    // What a user has typed may stand in a message and is no mark-up.
    void AShortTextLeavesTheTitleItsRoom()
    {
        const QString title = QStringLiteral("Set Current Pay Period");
        int width = 0, needed = 0;
        Ask({.Text = QStringLiteral("No."), .Title = title}, [&](QMessageBox &box) {
            QFont bold = box.font();
            bold.setBold(true);
            width = box.width();
            needed = QFontMetrics(bold).horizontalAdvance(title) + 100; // icon and buttons of the frame
        });
        QVERIFY2(width >= needed, qPrintable(QString::number(width)));
    }

    void TheTextIsPlain()
    {
        const QString text = QStringLiteral("<b>A & B</b>\n\nsecond line");
        Ask({text, "title", Icon::Stop}, [&](QMessageBox &box) {
            QCOMPARE(box.text(), text);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            const auto *label = box.findChild<QLabel *>("qt_msgbox_label");
            QVERIFY(label);
            QCOMPARE(label->text(), text);
            QCOMPARE(label->textFormat(), Qt::PlainText);
        });
    }

    void Questions_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<Answer>("answer");
        QTest::newRow("Yes") << int(QMessageBox::Yes) << Answer::Yes;
        QTest::newRow("No") << int(QMessageBox::No) << Answer::No;
    }
    void Questions()
    {
        QFETCH(int, button);
        QFETCH(Answer, answer);
        const Answer given = Ask(
            {"Delete it?", "Creditors", Icon::Question, Buttons::YesNo},
            [](QMessageBox &box) {
                QCOMPARE(ButtonsOf(box), (QStringList{"No", "Yes"}));
            },
            QMessageBox::StandardButton(button));
        QCOMPARE(given, answer);
    }

    void KeysAnswer_data()
    {
        QTest::addColumn<Buttons>("buttons");
        QTest::addColumn<int>("key");
        QTest::addColumn<Answer>("answer");
        QTest::newRow("Enter is OK") << Buttons::Ok << int(Qt::Key_Return) << Answer::Ok;
        QTest::newRow("Esc closes a box with OK alone") << Buttons::Ok << int(Qt::Key_Escape) << Answer::Ok;
        QTest::newRow("Enter is OK beside Help") << Buttons::OkHelp << int(Qt::Key_Return) << Answer::Ok;
        QTest::newRow("Esc closes a box with OK and Help") << Buttons::OkHelp << int(Qt::Key_Escape) << Answer::Ok;
        QTest::newRow("Enter is the first button, Yes") << Buttons::YesNo << int(Qt::Key_Return) << Answer::Yes;
        QTest::newRow("Esc is No") << Buttons::YesNo << int(Qt::Key_Escape) << Answer::No;
    }
    void KeysAnswer()
    {
        QFETCH(Buttons, buttons);
        QFETCH(int, key);
        QFETCH(Answer, answer);
        QTimer::singleShot(0, qApp, [key] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box);
            Settle();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
            QVERIFY(!box->isVisible());
        });
        QCOMPARE(TheDesk.ShowMessage({"text", "title", Icon::Question, buttons, 22}), answer);
    }

    // The key that has brought the box is still held, and the user has not read it yet.
    void AHeldKeyAnswersNothing_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("marked"); // as repeated by the window system
        for (const auto &[name, key] : {std::pair{"Return", Qt::Key_Return},
                                        {"Enter", Qt::Key_Enter},
                                        {"Space", Qt::Key_Space},
                                        {"Esc", Qt::Key_Escape},
                                        {"the letter of No", Qt::Key_N}}) {
            QTest::newRow(name) << int(key) << true;
            QTest::newRow(qPrintable(name + u", not marked"_s)) << int(key) << false;
        }
    }
    void AHeldKeyAnswersNothing()
    {
        QFETCH(int, key);
        QFETCH(bool, marked);
        const auto send = [&](QEvent::Type type, QWidget *to, bool repeated, quint64 at) {
            QKeyEvent event(type, key, Qt::NoModifier, QString(), repeated);
            event.setTimestamp(at);
            QCoreApplication::sendEvent(to, &event);
        };
        constexpr quint64 start = 5000;
        constexpr int ofAClick = 150; // milliseconds; by a letter it is shown as a press before it counts
        bool stayed = false, answered = false;
        QTimer::singleShot(0, qApp, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box);
            Settle();
            QWidget *button = QApplication::focusWidget();
            for (quint64 at = start; at < start + 100; at += 50) {
                send(QEvent::KeyRelease, button, marked, at);
                send(QEvent::KeyPress, button, marked, at);
            }
            send(QEvent::KeyRelease, button, false, start + 120);
            QTest::qWait(ofAClick);
            stayed = box->isVisible();
            // Pressed again, it is an answer.
            send(QEvent::KeyPress, button, false, start + 300);
            send(QEvent::KeyRelease, button, false, start + 400);
            QTest::qWait(ofAClick);
            answered = !box->isVisible();
            box->close();
        });
        TheDesk.ShowMessage({"Delete it?", "Creditors", Icon::Question, Buttons::YesNo});
        QVERIFY(stayed);
        QVERIFY(answered);
    }

    void AHeldAccessKeyAnswersNothing()
    {
        bool stayed = false, answered = false;
        QTimer::singleShot(0, qApp, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box);
            Settle();
            constexpr int ofAClick = 150; // milliseconds, as above
            const auto press = [&](bool repeated) {
                qt_handleKeyEvent(box->windowHandle(), QEvent::KeyPress, Qt::Key_N, Qt::AltModifier, u"n"_s, repeated);
                QTest::qWait(ofAClick);
            };
            press(true);
            stayed = box->isVisible();
            press(false);
            answered = !box->isVisible();
            box->close();
        });
        QCOMPARE(TheDesk.ShowMessage({"Delete it?", "Creditors", Icon::Question, Buttons::YesNo}), Answer::No);
        QVERIFY(stayed);
        QVERIFY(answered);
    }

    // Where either answer costs something, neither may be given by a key that only wants to get away.
    void AQuestionThatMustBeAnsweredStays_data()
    {
        QTest::addColumn<bool>("must");
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Esc answers a usual question") << false << true;
        QTest::newRow("so does the close box") << false << false;
        QTest::newRow("Esc does not answer this one") << true << true;
        QTest::newRow("nor does the close box") << true << false;
    }
    void AQuestionThatMustBeAnsweredStays()
    {
        QFETCH(bool, must);
        QFETCH(bool, byKey);
        QTimer::singleShot(0, qApp, [=] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box);
            Settle();
            if (byKey)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            else
                box->close();
            Settle();
            QCOMPARE(box->isVisible(), must);
            if (must) {
                box->button(QMessageBox::Yes)->click();
                QVERIFY(!box->isVisible());
            }
        });
        const Answer answer = TheDesk.ShowMessage({.Text = "text",
                                                   .Title = "title",
                                                   .TheIcon = Icon::Question,
                                                   .TheButtons = Buttons::YesNo,
                                                   .MustBeAnswered = must});
        QCOMPARE(answer, must ? Answer::Yes : Answer::No);
    }

    void TheHelpButtonOpensTheHelpAndLeavesTheBox()
    {
        QList<HelpQuestion> asked;
        TheDesk.ShowHelp = [&](const HelpQuestion &question) { asked += question; };
        const Answer answer =
            Ask({"Please enter an amount", "Creditors", Icon::Stop, Buttons::OkHelp, 22}, [&](QMessageBox &box) {
                QCOMPARE(ButtonsOf(box), (QStringList{"Help", "OK"}));
                QCOMPARE(box.button(QMessageBox::Help)->isEnabled(), true);
                box.button(QMessageBox::Help)->click();
                box.button(QMessageBox::Help)->click();
                Settle();
                QVERIFY(box.isVisible());
            });
        QCOMPARE(answer, Answer::Ok);
        QCOMPARE(asked.size(), 2);
        QCOMPARE(asked[0].Context, 22);
    }

    void F1InABoxIsItsHelpButton()
    {
        QList<HelpQuestion> asked;
        TheDesk.ShowHelp = [&](const HelpQuestion &question) { asked += question; };
        Ask({"Please enter an amount", "Creditors", Icon::Stop, Buttons::OkHelp, 22}, [&](QMessageBox &box) {
            QTest::keyClick(box.button(QMessageBox::Ok), Qt::Key_F1);
            Settle();
            QVERIFY(box.isVisible());
        });
        QCOMPARE(asked, (QList<HelpQuestion>{{QString(), 22}}));
    }

    void F1HeldDownInABoxAsksOnce_data()
    {
        QTest::addColumn<Buttons>("buttons");
        QTest::newRow("with a help button") << Buttons::OkHelp;
        QTest::newRow("without one") << Buttons::Ok;
    }
    void F1HeldDownInABoxAsksOnce()
    {
        QFETCH(Buttons, buttons);
        QList<HelpQuestion> asked;
        TheDesk.ShowHelp = [&](const HelpQuestion &question) { asked += question; };
        Ask({"Please enter an amount", "Creditors", Icon::Stop, buttons, 22}, [&](QMessageBox &box) {
            QTest::keyPress(box.button(QMessageBox::Ok), Qt::Key_F1);
            QKeyEvent again(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(box.button(QMessageBox::Ok), &again);
            Settle();
            QVERIFY(box.isVisible());
        });
        QCOMPARE(asked.size(), 1);
    }

    void F1InABoxWithoutHelpAsksForThePageOfTheWindowBehind()
    {
        QList<HelpQuestion> asked;
        TheDesk.ShowHelp = [&](const HelpQuestion &question) { asked += question; };
        (*m_toys)["A"].TheHelpContext = 7;
        Ask({"text", "title"}, [&](QMessageBox &box) {
            QTest::keyClick(box.button(QMessageBox::Ok), Qt::Key_F1);
            Settle();
            QVERIFY(box.isVisible());
        });
        QCOMPARE(asked, (QList<HelpQuestion>{{QString(), 7, "A"}}));
    }

    void TheBoxStandsOverTheActiveWindow()
    {
        Show("B");
        Settle();
        Ask({"text", "title"}, [&](QMessageBox &box) { QCOMPARE(box.parentWidget(), TheWindows.Loaded("B")); });
        // Over the minimized one it could not be seen.
        (*m_toys)["B"].showMinimized();
        Settle();
        Ask({"text", "title"}, [&](QMessageBox &box) { QVERIFY(!box.parentWidget()); });
    }

    void ABoxBeforeTheFirstWindowStandsAlone()
    {
        m_toys = std::make_unique<ToyBox>();
        InstallRealDesk(AppTitle, m_folder.path());
        Ask({"text", "title"}, [&](QMessageBox &box) { QVERIFY(!box.parentWidget()); });
    }

    void ABoxOverABoxReturnsInOrder()
    {
        QStringList answered;
        QTimer::singleShot(0, qApp, [&] {
            auto *outer = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(outer);
            const Answer inner = Ask({"inner", "title"}, [](QMessageBox &box) { QCOMPARE(box.text(), "inner"); });
            QCOMPARE(inner, Answer::Ok);
            answered += "inner";
            QVERIFY(outer->isVisible());
            outer->button(QMessageBox::Yes)->click();
        });
        QCOMPARE(TheDesk.ShowMessage({"outer", "title", Icon::Question, Buttons::YesNo}), Answer::Yes);
        answered += "outer";
        QCOMPARE(answered, (QStringList{"inner", "outer"}));
    }

    // The file dialogs

    void AFileDialogOpensInTheFolderOnTheDisk_data()
    {
        struct Case {
            const char *Name;
            const char *OnDisk;
            const char *Given;
            const char *File;
            const char *Start;
        };
        static const Case cases[] = {
            {"without a name", "stores", "\\stores\\", "", "/stores/"},
            {"with a name", "stores", "\\stores\\", "weekly.lst", "/stores/weekly.lst"},
            {"spelled otherwise", "STORES", "\\stores\\", "", "/STORES/"},
            {"spelled otherwise, with a name", "STORES", "\\stores\\", "weekly.lst", "/STORES/weekly.lst"},
            {"without a separator at its end", "STORES", "\\stores", "", "/STORES/"},
            {"with the platform's separators", "STORES", "/stores/", "weekly.lst", "/STORES/weekly.lst"},
            {"a folder in a folder", "Lists/STORES", "\\lists\\stores\\", "", "/Lists/STORES/"},
            {"no such folder", "elsewhere", "\\stores\\", "", "/stores/"},
        };
        QTest::addColumn<QString>("onDisk");
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("start");
        for (const Case &one : cases)
            QTest::newRow(one.Name) << one.OnDisk << one.Given << one.File << one.Start;
    }
    void AFileDialogOpensInTheFolderOnTheDisk()
    {
        QFETCH(QString, onDisk);
        QFETCH(QString, given);
        QFETCH(QString, name);
        QFETCH(QString, start);
        const QTemporaryDir household;
        QVERIFY(QDir(household.path()).mkpath(onDisk));
        for (const FileQuestion::Kind kind : {FileQuestion::Open, FileQuestion::Save})
            QCOMPARE(DialogStart({kind, "Store List Files (*.lst)|*.lst", household.path() + given, name}),
                     household.path() + start);
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<ToyBox> m_toys;
};

REGISTER_TEST(gui_messagebox)
#include "gui_messagebox.moc"
