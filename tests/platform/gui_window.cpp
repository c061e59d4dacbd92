// The habits that windows share: entry rules, trapped errors, the first field, the way out and Esc.
#include "FakeDesk.h"
#include "TestProgram.h"
#include "ToyWindows.h"
#include "platform/values/RuntimeError.h"
#include "platform/windows/Window.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A design as the toolkit's compiler would make it.
struct LoanDesign {
    QLineEdit *txtAmount = nullptr;
    QLineEdit *txtCount = nullptr;
    QLineEdit *txtName = nullptr;
    QPushButton *cmdCalculate = nullptr;
    QPushButton *cmdFail = nullptr;
    QPushButton *cmdExit = nullptr;

    void setupUi(QWidget *window)
    {
        auto *layout = new QVBoxLayout(window);
        const auto add = [&](auto *&control, const char *name) {
            control = new std::remove_reference_t<decltype(*control)>(window);
            control->setObjectName(QString::fromLatin1(name));
            layout->addWidget(control);
        };
        add(txtAmount, "txtAmount");
        add(txtCount, "txtCount");
        add(txtName, "txtName");
        add(cmdCalculate, "cmdCalculate");
        add(cmdFail, "cmdFail");
        add(cmdExit, "cmdExit");
    }
};

constexpr EntryRule<LoanDesign> Rules[] = {
    {&LoanDesign::txtAmount, Numeric, "Amount is no amount"},
    {&LoanDesign::txtCount, Numeric, "Count is no number"},
    {&LoanDesign::txtName, NotEmpty, "Name is empty", &LoanDesign::txtAmount, 31},
};

const QString Loan = u"frmLoan"_s;

class LoanWindow : public Window<LoanDesign>
{
public:
    LoanWindow()
        : Window({.Title = u"Loans"_s, .TheIcon = Icon::Warning, .TheButtons = Buttons::OkHelp, .HelpContext = 30})
    {
        OnClick(ui.cmdCalculate, [this] { Accepted = Accepts(Rules); });
        OnClickTrapped(ui.cmdFail, [] { RaiseError(RuntimeError::Overflow); });
        UnloadOn(ui.cmdExit);
        StartAt(ui.txtCount);
    }
    bool QueryUnload(CloseMode mode) override
    {
        Closings += mode;
        return true;
    }
    bool ClosesOnEscape() const override { return Escapes && Window::ClosesOnEscape(); }

    inline static bool Accepted = false;
    inline static bool Escapes = true;
    inline static QList<CloseMode> Closings;
};

struct Loans : FakeDesk {
    Loans()
    {
        LoanWindow::Accepted = false;
        LoanWindow::Escapes = true;
        LoanWindow::Closings.clear();
        TheWindows.Register(Loan, [] { return new LoanWindow; });
        TheWindows.Register(u"frmOther"_s, [] { return new ToyWindow; });
        TheWindows.Show(Loan);
        Settle();
    }
    ~Loans() override
    {
        TheWindows.Reset();
        Settle();
        TakeLog();
    }
};

QWidget &Control(const QString &name)
{
    return *TheWindows.Loaded(Loan)->findChild<QWidget *>(name);
}

void Fill(const QString &amount, const QString &count, const QString &name)
{
    const QList<QPair<QString, QString>> texts{{u"txtAmount"_s, amount}, {u"txtCount"_s, count}, {u"txtName"_s, name}};
    for (const auto &[field, text] : texts)
        static_cast<QLineEdit &>(Control(field)).setText(text);
}

void Press(const QString &button)
{
    QTest::mouseClick(&Control(button), Qt::LeftButton);
    Settle();
}

QString Focus()
{
    return TheWindows.Loaded(Loan)->FocusControl()->objectName();
}

} // namespace

class gui_window : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheFirstRuleThatFailsIsShownAndMovesTheFocus_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("count");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("focus");
        QTest::addColumn<int>("help");
        QTest::newRow("all fail: the first one speaks") << "x"
                                                        << "x"
                                                        << ""
                                                        << "Amount is no amount"
                                                        << "txtAmount" << 30;
        QTest::newRow("the second") << "1"
                                    << "x"
                                    << ""
                                    << "Count is no number"
                                    << "txtCount" << 30;
        QTest::newRow("with a focus and a help page of its own") << "1"
                                                                 << "2"
                                                                 << ""
                                                                 << "Name is empty"
                                                                 << "txtAmount" << 31;
        QTest::newRow("all hold") << "1"
                                  << "2"
                                  << "Car"
                                  << ""
                                  << "cmdCalculate" << 0;
    }
    void TheFirstRuleThatFailsIsShownAndMovesTheFocus()
    {
        QFETCH(QString, amount);
        QFETCH(QString, count);
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(QString, focus);
        QFETCH(int, help);
        Loans desk;
        Fill(amount, count, name);
        Control(u"cmdCalculate"_s).setFocus();
        QString subject = u"cmdCalculate"_s;
        TheDesk.ShowMessage = [&, show = TheDesk.ShowMessage](const Message &message) {
            subject = TheWindows.Loaded(Loan)->Subject()->objectName();
            return show(message);
        };
        Press(u"cmdCalculate"_s);
        QCOMPARE(subject, focus); // the box is about the field that the focus then goes to
        QCOMPARE(TheWindows.Loaded(Loan)->Subject()->objectName(), focus);
        if (!text.isEmpty())
            QCOMPARE(desk.TakeMessage(), (Message{text, u"Loans"_s, Icon::Warning, Buttons::OkHelp, help}));
        QCOMPARE(LoanWindow::Accepted, text.isEmpty());
        QCOMPARE(Focus(), focus);
    }

    void ARefusedWindowComesToTheFront()
    {
        Loans desk;
        Fill(u"1"_s, u"x"_s, u"Car"_s);
        TheWindows.Show(u"frmOther"_s);
        Settle();
        QCOMPARE(TheWindows.Active()->objectName(), u"frmOther"_s);
        TheWindows.Loaded(Loan)->findChild<QPushButton *>(u"cmdCalculate"_s)->click(); // by code
        Settle();
        QCOMPARE(desk.TakeMessage().Text, u"Count is no number"_s);
        QCOMPARE(TheWindows.Active()->objectName(), Loan);
        QCOMPARE(Focus(), u"txtCount"_s);
    }

    void ATrappedErrorIsTheUnknownErrorUnderTheWindowsTitle()
    {
        Loans desk;
        Press(u"cmdFail"_s);
        const Message message = desk.TakeMessage();
        QCOMPARE(message.Title, u"Loans"_s);
        QCOMPARE(message.TheIcon, Icon::Warning);
        QCOMPARE(message.TheButtons, Buttons::Ok);
        QVERIFY(message.Text.startsWith(u"An unknown error occured."_s));
        QVERIFY(TheWindows.Loaded(Loan));
    }

    void EveryActivationStartsAtItsField()
    {
        Loans desk;
        QCOMPARE(Focus(), u"txtCount"_s);
        Control(u"txtName"_s).setFocus();
        QCOMPARE(Focus(), u"txtName"_s);
        TheWindows.Show(u"frmOther"_s);
        TheWindows.Show(Loan);
        Settle();
        QCOMPARE(Focus(), u"txtCount"_s);
    }

    void TheExitButtonUnloads()
    {
        Loans desk;
        Press(u"cmdExit"_s);
        QVERIFY(!TheWindows.Loaded(Loan));
        QVERIFY(desk.TakeEnd()); // it was the last window
        QCOMPARE(LoanWindow::Closings, QList{Form::CloseMode::Code});
    }

    void EscClosesAsTheCloseBoxDoes()
    {
        Loans desk;
        QTest::keyClick(&Control(u"txtAmount"_s), Qt::Key_Escape);
        Settle();
        QVERIFY(!TheWindows.Loaded(Loan));
        QVERIFY(desk.TakeEnd()); // it was the last window
        QCOMPARE(LoanWindow::Closings, QList{Form::CloseMode::CloseBox});
    }

    void EscLeavesAWindowThatDoesNotCloseByIt()
    {
        Loans desk;
        LoanWindow::Escapes = false;
        QTest::keyClick(&Control(u"txtAmount"_s), Qt::Key_Escape);
        Settle();
        QVERIFY(TheWindows.Loaded(Loan));
        LoanWindow::Escapes = true;
        QTest::keyClick(&Control(u"txtAmount"_s), Qt::Key_Escape, Qt::ShiftModifier);
        Settle();
        QVERIFY(TheWindows.Loaded(Loan));
    }

    void EscLeavesAModalQuestion()
    {
        Loans desk;
        TheWindows.Unload(Loan);
        LoanWindow::Closings.clear();
        bool stayed = false;
        QTimer::singleShot(0, this, [&] {
            QTest::keyClick(&Control(u"txtAmount"_s), Qt::Key_Escape);
            stayed = TheWindows.Loaded(Loan) && TheWindows.Loaded(Loan)->isVisible();
            TheWindows.Unload(Loan);
        });
        TheWindows.ShowModal(Loan);
        QVERIFY(stayed);
    }

    void F1OpensTheWindowsHelp()
    {
        Loans desk;
        QTest::keyClick(&Control(u"txtAmount"_s), Qt::Key_F1);
        QCOMPARE(std::exchange(desk.HelpQuestions, {}), (QList<HelpQuestion>{{QString(), 30, Loan}}));
    }

    void AControlThatIsNotThereIsAnError()
    {
        Loans desk;
        int number = 0;
        try {
            TheWindows.ControlOf<QLineEdit>(Loan, u"txtNowhere"_s);
        } catch (const RuntimeError &error) {
            number = error.Number;
        }
        QCOMPARE(number, 5);
    }
};

REGISTER_TEST(gui_window)
#include "gui_window.moc"
