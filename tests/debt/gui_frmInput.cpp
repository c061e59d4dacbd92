// The question dialogue: what it tests goes by its title, and only OK leaves an answer.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "debt/DebtState.h"
#include "debt/frmInput.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString Input = u"frmInput"_s;

void Ask(const QString &title, const QString &answer = {})
{
    frmInput::Prepare({.Title = title, .Tip = u"a tip"_s, .Prompt = u"What?"_s, .Answer = answer});
    Show(Input);
}
} // namespace

class gui_frmInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItsDesign()
    {
        GuiDesk desk;
        Show(Input);
        QCOMPARE(TheWindows.Loaded(Input)->windowTitle(), u"Input"_s);
        QCOMPARE(TextOf(Input, u"cmdOK"_s), u"&OK"_s);
        QCOMPARE(FocusOf(Input), u"txtInput"_s);
    }

    void AQuestionFillsIt()
    {
        GuiDesk desk;
        Ask(u"Enter Number of Creditors"_s, u"1"_s);
        QCOMPARE(TheWindows.Loaded(Input)->windowTitle(), u"Enter Number of Creditors"_s);
        QCOMPARE(Debt.InputPrompt, u"What?"_s);
        QCOMPARE(TextOf(Input, u"lblPrompt"_s), u"What?"_s);
        QCOMPARE(TextOf(Input, u"txtInput"_s), u"1"_s);
        const QString tip = u"a tip. Closing this box takes the last answer again."_s;
        QCOMPARE(Find(Input, u"txtInput"_s).toolTip(), tip);
        QCOMPARE(Find(Input, u"txtInput"_s).accessibleDescription(), tip);
        QCOMPARE(Find(Input, u"cmdOK"_s).toolTip(), u"Take this answer; closing the box takes the last answer again"_s);
        QCOMPARE(Find<QLineEdit>(Input, u"txtInput"_s).selectedText(), u"1"_s); // typing replaces it
    }

    void TheTitleDecidesWhatIsTested_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        const QString number = u"Please enter a valid number"_s;
        const QString name = u"Please enter creditor name"_s;
        QTest::newRow("a number") << InputTitle::NumberOfCreditors << u"3"_s << QString();
        QTest::newRow("a fraction") << InputTitle::NumberOfCreditors << u"2.5"_s << QString();
        QTest::newRow("below 1") << InputTitle::NumberOfCreditors << u"-1"_s << QString();
        QTest::newRow("too large for later") << InputTitle::NumberOfCreditors << u"70000"_s << QString();
        QTest::newRow("no number") << InputTitle::NumberOfCreditors << u"two"_s << number;
        QTest::newRow("nothing for a number") << InputTitle::NumberOfCreditors << QString() << number;
        QTest::newRow("a blank for a number") << InputTitle::NumberOfCreditors << u" "_s << number;
        QTest::newRow("a name") << InputTitle::CreditorName << u"Card"_s << QString();
        QTest::newRow("a blank for a name") << InputTitle::CreditorName << u" "_s << QString();
        QTest::newRow("nothing for a name") << InputTitle::CreditorName << QString() << name;
        QTest::newRow("any other title") << u"Enter creditor name"_s << QString() << QString();
    }
    void TheTitleDecidesWhatIsTested()
    {
        QFETCH(QString, title);
        QFETCH(QString, text);
        QFETCH(QString, message);
        GuiDesk desk;
        Debt.InputResult = u"before"_s;
        Ask(title);
        Find(Input, u"cmdOK"_s).setFocus();
        Type(Input, u"txtInput"_s, text);
        Click(Input, u"cmdOK"_s);
        QCOMPARE(TheWindows.Loaded(Input) != nullptr, !message.isEmpty());
        QCOMPARE(Debt.InputResult, message.isEmpty() ? text : u"before"_s);
        if (message.isEmpty())
            return;
        QCOMPARE(desk.TakeMessage(), (Message{message, title, Icon::Warning}));
        QCOMPARE(FocusOf(Input), u"txtInput"_s);
    }

    void OnlyOkLeavesAnAnswer()
    {
        GuiDesk desk;
        Debt.InputResult = u"before"_s;
        Ask(InputTitle::CreditorName);
        Type(Input, u"txtInput"_s, u"Card"_s);
        PressEnter(Input, u"txtInput"_s); // presses no button
        QVERIFY(IsShown(Input));
        QCOMPARE(FocusOf(Input), u"cmdOK"_s); // but the next one does
        CloseByFrame(Input);
        QVERIFY(!TheWindows.Loaded(Input));
        QCOMPARE(Debt.InputResult, u"before"_s);
    }

    void EnterAndEnterAgainIsAnAnswer()
    {
        GuiDesk desk;
        Ask(InputTitle::CreditorName);
        Type(Input, u"txtInput"_s, u"Card"_s);
        PressEnter(Input, u"txtInput"_s);
        PressEnter(Input, FocusOf(Input));
        QVERIFY(!TheWindows.Loaded(Input));
        QCOMPARE(Debt.InputResult, u"Card"_s);
    }

    void EscIsItsCloseBox_data()
    {
        QTest::addColumn<bool>("held");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("control");
        QTest::newRow("in the field") << false << 0 << u"txtInput"_s;
        QTest::newRow("on the button") << false << 0 << u"cmdOK"_s;
        QTest::newRow("held down since the question before") << true << 0 << u"txtInput"_s;
        QTest::newRow("with Ctrl it is another key") << false << int(Qt::ControlModifier) << u"txtInput"_s;
    }
    void EscIsItsCloseBox()
    {
        QFETCH(bool, held);
        QFETCH(int, modifiers);
        QFETCH(QString, control);
        GuiDesk desk;
        Debt.InputResult = u"before"_s;
        frmInput::Prepare({.Title = InputTitle::CreditorName, .Tip = {}, .Prompt = {}, .Answer = u"Card"_s});
        bool stayed = false;
        QTimer::singleShot(0, [&] {
            QWidget &receiver = Find(Input, control);
            static_cast<Form *>(receiver.window())->FocusOn(&receiver);
            QTest::simulateEvent(&receiver, true, Qt::Key_Escape, Qt::KeyboardModifiers(modifiers), u"\x1b"_s, held);
            stayed = IsShown(Input);
            if (stayed)
                CloseByFrame(Input);
        });
        TheWindows.ShowModal(Input);
        QCOMPARE(stayed, held || modifiers);
        QVERIFY(!TheWindows.Loaded(Input));
        QCOMPARE(Debt.InputResult, u"before"_s);
    }

    void EachComingBackStartsInTheField()
    {
        GuiDesk desk;
        Ask(InputTitle::CreditorName, u"Card"_s);
        static_cast<Form &>(*TheWindows.Loaded(Input)).FocusOn(&Find(Input, u"cmdOK"_s));
        QCOMPARE(FocusOf(Input), u"cmdOK"_s);
        Show(u"frmPayOff"_s);
        Find<QLineEdit>(Input, u"txtInput"_s).deselect();
        Show(Input);
        QCOMPARE(FocusOf(Input), u"txtInput"_s);
        QCOMPARE(Find<QLineEdit>(Input, u"txtInput"_s).selectedText(), u"Card"_s);
    }

    void TheNextQuestionFindsAFreshDialogue()
    {
        GuiDesk desk;
        Ask(InputTitle::NumberOfCreditors, u"1"_s);
        Click(Input, u"cmdOK"_s);
        QCOMPARE(Debt.InputResult, u"1"_s);
        Show(Input);
        QCOMPARE(TheWindows.Loaded(Input)->windowTitle(), u"Input"_s);
        QCOMPARE(TextOf(Input, u"txtInput"_s), QString());
    }

    void TheTutorRestsWhileItIsLoaded()
    {
        GuiDesk desk;
        desk.StartProgram();
        const auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        QVERIFY(timer.isActive());
        TheWindows.Touch(Input);
        QVERIFY(!timer.isActive());
        TheWindows.Unload(Input);
        QVERIFY(timer.isActive());
    }

    void BehindThePayOffWindowItDoesNotStartTheTutorEarly()
    {
        GuiDesk desk;
        desk.StartProgram();
        const auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        TheWindows.Touch(u"frmPayOff"_s);
        TheWindows.Touch(Input);
        TheWindows.Unload(Input);
        QVERIFY(!timer.isActive());
        TheWindows.Unload(u"frmPayOff"_s);
        QVERIFY(timer.isActive());
    }
};

REGISTER_TEST(gui_frmInput)
#include "gui_frmInput.moc"
