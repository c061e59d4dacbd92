// Tests that must fail: each causes one thing and does not take it, or does what a user cannot do. ctest does not run
// them; gui_fakes runs them in a program of their own and looks for their failures.
#include "GuiDesk.h"
#include "TestProgram.h"

#include <QMessageBox>

using namespace Qt::Literals::StringLiterals;

class FakesAtFault : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AMessage()
    {
        FakeDesk desk;
        ShowMessage(u"text"_s, u"title"_s, Icon::Stop);
    }
    void ABeep()
    {
        FakeDesk desk;
        TheDesk.Beep();
    }
    void APrintJob()
    {
        FakeDesk desk;
        TheDesk.PrintDocument({});
    }
    void AHelpQuestion()
    {
        FakeDesk desk;
        TheDesk.ShowHelp({});
    }
    void AnHourglassLeftOn()
    {
        FakeDesk desk;
        TheDesk.Hourglass(false);
        TheDesk.Hourglass(true);
    }
    void AnOption()
    {
        FakeDesk desk;
        TheDesk.SaveSetting(u"Key"_s, u"1"_s);
    }
    void AnOptionSetAgain()
    {
        FakeDesk desk;
        TheDesk.SaveSetting(u"Key"_s, u"1"_s);
        desk.TakeOption(u"Key"_s);
        TheDesk.SaveSetting(u"Key"_s, u"1"_s);
    }
    void TheCalculator()
    {
        FakeDesk desk;
        TheDesk.CloseCalculator();
    }
    void TheEnd()
    {
        FakeDesk desk;
        TheDesk.EndProgram();
    }
    void AQuestionWithoutAnAnswer()
    {
        FakeDesk desk;
        TheDesk.AskFile({});
    }
    void APrinterDialogWithoutAnAnswer()
    {
        FakeDesk desk;
        TheDesk.AskPrinter();
    }
    void AFontDialogWithoutAnAnswer()
    {
        FakeDesk desk;
        TheDesk.AskFont();
    }
    void AChosenPrinterWithoutItsDialog()
    {
        FakeDesk desk;
        desk.PrinterAnswers = {true};
    }
    void AChosenFontWithoutItsDialog()
    {
        FakeDesk desk;
        desk.FontAnswers = {PrintFont()};
    }
    void AnAnswerWithoutAQuestion()
    {
        FakeDesk desk;
        desk.Answers = {Answer::Yes};
    }
    void ANewFile()
    {
        FakeDesk desk;
        Write(desk, u"new.txt"_s, "0");
    }
    void AFileOfTheHousehold()
    {
        FakeDesk desk;
        desk.LayHousehold();
        Write(desk, u"stores/untitled.lst"_s, "1\r\n");
    }
    void AFileOfTheSameBytes()
    {
        FakeDesk desk;
        desk.LayHousehold();
        QFile::remove(desk.Path(u"creditor.txt"_s));
        Write(desk, u"creditor.txt"_s, "0\r\n");
    }
    void AFileWrittenAfterItWasRead()
    {
        FakeDesk desk;
        desk.LayHousehold();
        desk.ReadFile(u"environm.ini"_s);
        Write(desk, u"environm.ini"_s, "26\r\n");
    }
    void AFileThatWent()
    {
        FakeDesk desk;
        desk.LayHousehold();
        QFile::remove(desk.Path(u"extra.txt"_s));
    }
    void AClickOnAGreyButton()
    {
        GuiDesk desk;
        Show(u"frmCreditors"_s);
        Find(u"frmCreditors"_s, u"cmdListCreditors"_s).setEnabled(false);
        Click(u"frmCreditors"_s, u"cmdListCreditors"_s);
    }
    void AClickOnAnUnseenButton()
    {
        GuiDesk desk;
        Show(u"frmCreditors"_s);
        Find(u"frmCreditors"_s, u"cmdListCreditors"_s).hide();
        Click(u"frmCreditors"_s, u"cmdListCreditors"_s);
    }
    void AClickOnARowThatIsNotThere()
    {
        GuiDesk desk;
        Show(u"frmScanPayPeriods"_s);
        ClickRow(u"frmScanPayPeriods"_s, u"lstScanPayPeriods"_s, 5000);
    }
    void TypingIntoAGreyField()
    {
        GuiDesk desk;
        Show(u"frmSetCurrentPayPeriod"_s);
        Find(u"frmSetCurrentPayPeriod"_s, u"txtCurrentPayPeriod"_s).setEnabled(false);
        Type(u"frmSetCurrentPayPeriod"_s, u"txtCurrentPayPeriod"_s, u"1/1/2004"_s);
    }
    void ActingBehindAModalWindow()
    {
        GuiDesk desk;
        Show(u"frmCreditors"_s);
        QTimer::singleShot(0, [] {
            Click(u"frmCreditors"_s, u"cmdListCreditors"_s);
            TheWindows.Unload(u"frmSetCurrentPayPeriod"_s);
        });
        TheWindows.ShowModal(u"frmSetCurrentPayPeriod"_s);
    }
    void ABoxThatNobodyAnswers()
    {
        GuiDesk desk;
        Show(u"frmCreditors"_s);
        QMessageBox(QMessageBox::Question, u"title"_s, u"stray"_s, QMessageBox::Yes | QMessageBox::No).exec();
    }
    void AModalWindowThatNobodyCloses()
    {
        GuiDesk desk;
        Show(u"frmCreditors"_s);
        TheWindows.ShowModal(u"frmSetCurrentPayPeriod"_s);
    }
    // Ends the program, so nothing comes behind these.
    void AWindowThatIsNotThere() { Click(u"frmNowhere"_s, u"cmdNothing"_s); }
    void ATestThatHangs()
    {
        for (;;)
            QThread::msleep(100);
    }

private:
    /// Writes as the program does, past the desk.
    static void Write(const FakeDesk &desk, const QString &name, const QByteArray &text)
    {
        QFile file(desk.Path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
};

REGISTER_TEST(FakesAtFault)
#include "FakesAtFault.moc"
