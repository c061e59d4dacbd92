// The real desk: its own boxes, and what they wait for.
#include "InChild.h"
#include "TestProgram.h"
#include "ToyWindows.h"
#include "foundation/Identity.h"
#include "platform/desk/RealDesk.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QScreen>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Looks at every box that comes, leaves it a while and answers it with its button.
class Reader : public QObject
{
public:
    struct Box {
        QString Title;
        QString Text;
        QMessageBox::Icon TheIcon;
        QStringList LogBefore;
        bool IsAlone; ///< no other box stood open
    };
    QList<Box> Read;

    Reader()
    {
        connect(&m_timer, &QTimer::timeout, this, &Reader::Look);
        m_timer.start(20);
    }

private:
    void Look()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || box == m_box)
            return;
        Read += Box{box->windowTitle(), box->text(), box->icon(), Log, !m_box};
        m_box = box;
        QTimer::singleShot(500, box, [box] { box->button(QMessageBox::Ok)->click(); });
    }
    QTimer m_timer;
    QPointer<QMessageBox> m_box;
};

void PrintDocument(const QString &name)
{
    PrintJob job;
    job.Lines = QStringList{u"a line"_s};
    job.Name = name;
    TheDesk.PrintDocument(job);
}

QPoint MiddleOf(const QWidget &control)
{
    return control.mapTo(control.window(), control.rect().center());
}

/// The window system has moved the focus to a window, as at the user's press on it, which follows.
void MoveTo(ToyWindow &window)
{
    window.activateWindow();
    QTRY_COMPARE(TheWindows.Active(), &window);
}

} // namespace

class gui_realdesk : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString Printed(const QString &name) const { return m_folder.filePath(u"printed/2026-11-21 "_s + name); }

    /// Windows A and B, of which B prints when it is left.
    void ShowWindows()
    {
        const auto end = TheDesk.EndProgram;
        InstallRealDesk(AppTitle, m_folder.filePath(u"printed"_s));
        TheDesk.EndProgram = end;
        TheDesk.Now = [] { return QDateTime(QDate(2026, 11, 21), QTime(9, 30)); };
        Show("A");
        Show("B");
        Settle();
        QTest::qWait(750); // until a move is the user's own
        TakeLog();
    }

private Q_SLOTS:
    void ItsRandomNumbersLieFrom0ToBelow1AndDiffer()
    {
        const Desk before = TheDesk;
        InstallRealDesk(AppTitle, m_folder.filePath(u"printed"_s));
        QSet<double> drawn;
        for (int i = 0; i < 100; ++i) {
            const double random = TheDesk.Random();
            QVERIFY(random >= 0 && random < 1);
            drawn += random;
        }
        TheDesk = before;
        QVERIFY(drawn.size() > 90);
    }

    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        if (!QPrinterInfo::availablePrinters().isEmpty())
            QSKIP("this machine has a printer, and a test prints nothing on it");
    }
    void cleanup() { QDir(m_folder.filePath(u"printed"_s)).removeRecursively(); }

    void TheBoxAfterAPdfLeavesTheClickAlone()
    {
        ToyBox toys;
        ShowWindows();
        Reader reader;
        When("B Deactivate", [] { PrintDocument(u"Budget"_s); });
        MoveTo(toys["A"]);
        QVERIFY(QFile::exists(Printed(u"Budget.pdf"_s)));
        QWindow *window = toys["A"].windowHandle();
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, MiddleOf(*toys["A"].Button));
        QTest::qWait(600); // however long the button is held
        QCOMPARE(reader.Read.size(), 0);
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, MiddleOf(*toys["A"].Button));
        QVERIFY(Log.contains(u"A Click"_s));
        QTRY_COMPARE(reader.Read.size(), 1);
        QVERIFY(reader.Read[0].LogBefore.contains(u"A Click"_s));
        QCOMPARE(reader.Read[0].Title, AppTitle);
        QCOMPARE(reader.Read[0].Text,
                 u"No printer could be used. The printed pages are in the file\n"_s + Printed(u"Budget.pdf"_s));
        QCOMPARE(reader.Read[0].TheIcon, QMessageBox::Information);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCOMPARE(Active(), u"A"_s);
        QTest::qWait(500);
        QCOMPARE(reader.Read.size(), 1); // once
    }

    void SeveralDocumentsAreOneBox()
    {
        ToyBox toys;
        ShowWindows();
        Reader reader;
        PrintDocument(u"Budget"_s);
        PrintDocument(u"Overhead"_s);
        QCOMPARE(reader.Read.size(), 0); // not before the handler is done
        QTRY_COMPARE(reader.Read.size(), 1);
        QCOMPARE(reader.Read[0].Text, u"No printer could be used. The printed pages are in the files\n"_s +
                                          Printed(u"Budget.pdf"_s) + u'\n' + Printed(u"Overhead.pdf"_s));
        QTRY_VERIFY(!QApplication::activeModalWidget());
        PrintDocument(u"Budget"_s);
        QTRY_COMPARE(reader.Read.size(), 2);
        QCOMPARE(reader.Read[1].Text.section(u'\n', 1), Printed(u"Budget (2).pdf"_s));
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    void TheBoxWaitsForTheBoxOfTheClick()
    {
        ToyBox toys;
        ShowWindows();
        Reader reader;
        When("B Deactivate", [] { PrintDocument(u"Budget"_s); });
        When("A Click", [] { ShowMessage(u"refused"_s, u"A"_s, Icon::Stop); });
        MoveTo(toys["A"]);
        QTest::mouseClick(toys["A"].windowHandle(), Qt::LeftButton, Qt::NoModifier, MiddleOf(*toys["A"].Button));
        QTRY_COMPARE(reader.Read.size(), 2);
        QCOMPARE(reader.Read[0].Text, u"refused"_s);
        QVERIFY(reader.Read[1].IsAlone);
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    void TheBoxWaitsForAMenu()
    {
        ToyBox toys;
        ShowWindows();
        Reader reader;
        QMenu menu;
        menu.addAction(u"Open"_s, [] { Tell(u"chosen"_s); });
        PrintDocument(u"Budget"_s);
        menu.popup(toys["B"].mapToGlobal(QPoint(20, 20)));
        QTest::qWait(600);
        QCOMPARE(reader.Read.size(), 0);
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::keyClick(&menu, Qt::Key_Return);
        QTRY_COMPARE(reader.Read.size(), 1);
        QVERIFY(reader.Read[0].LogBefore.contains(u"chosen"_s));
        QTRY_VERIFY(!QApplication::activeModalWidget());
    }

    // The click that leaves both the window and the program.
    void TheBoxComesBeforeTheProgramEnds()
    {
        ToyBox toys;
        ShowWindows();
        const QString said = m_folder.filePath(u"said"_s);
        QCOMPARE(InChild([&] {
                     InstallRealDesk(AppTitle, m_folder.filePath(u"printed"_s));
                     Reader reader;
                     QTimer::singleShot(300, &reader, [&] {
                         QFile file(said);
                         if (file.open(QIODevice::WriteOnly))
                             file.write(reader.Read.isEmpty() ? "nothing" : reader.Read[0].Text.toUtf8());
                     });
                     PrintDocument(u"Budget"_s);
                     TheDesk.EndProgram();
                     return 1; // never reached
                 }),
                 0);
        QFile file(said);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll().startsWith("No printer could be used."));
    }

    // A message about a field is read beside it. Where neither the room below nor that above is enough, it is centred.
    void ABoxLeavesTheFieldInSight_data()
    {
        QTest::addColumn<int>("top"); // of the window, in percent of the screen's free height
        QTest::addColumn<int>("lines");
        QTest::addColumn<QString>("place");
        QTest::addColumn<bool>("focus"); // it has the focus, or else it is what the message is said to be about
        QTest::newRow("below it") << 30 << 1 << "below" << true;
        QTest::newRow("above it, at the screen's end") << 92 << 1 << "above" << true;
        QTest::newRow("clear of it anyway") << 0 << 1 << "clear" << true;
        QTest::newRow("no room") << 40 << 40 << "over" << true;
        QTest::newRow("the focus is elsewhere") << 30 << 1 << "below" << false;
    }
    void ABoxLeavesTheFieldInSight()
    {
        QFETCH(int, top);
        QFETCH(int, lines);
        QFETCH(QString, place);
        QFETCH(bool, focus);
        ToyBox toys;
        ShowWindows();
        ToyWindow &window = toys["B"];
        const QRect room = window.screen()->availableGeometry();
        window.move(room.left() + 100, room.top() + room.height() * top / 100);
        const bool clear = place == u"clear"_s;
        if (clear)
            window.resize(window.width(), 600); // with the first field far above its middle
        QLineEdit *marked = clear ? window.First : window.Second;
        window.FocusOn(focus ? marked : window.First);
        if (!focus)
            window.SetSubject(marked);
        Settle();
        const QRect field(marked->mapToGlobal(QPoint()), marked->size());
        QRect box;
        QTimer answerer;
        connect(&answerer, &QTimer::timeout, this, [&] {
            if (QWidget *shown = QApplication::activeModalWidget()) {
                answerer.stop();
                box = shown->frameGeometry();
                shown->close();
            }
        });
        answerer.start(20);
        ShowMessage(u"A line that is refused\n"_s.repeated(lines), u"B"_s, Icon::Stop);
        QVERIFY2(room.contains(box) || place == u"over"_s, qPrintable(QDebug::toString(box)));
        if (clear) {
            QVERIFY(qAbs(box.center().y() - window.frameGeometry().center().y()) < 30);
            return;
        }
        const QString found = box.top() > field.bottom()   ? u"below"_s
                              : box.bottom() < field.top() ? u"above"_s
                                                           : u"over"_s;
        QCOMPARE(found, place);
        QVERIFY(qAbs(box.center().x() - window.frameGeometry().center().x()) < 60 || place == u"over"_s);
    }

    void ABoxWithoutAFieldStandsOverItsWindow()
    {
        ToyBox toys;
        ShowWindows();
        ToyWindow &window = toys["B"];
        window.FocusOn(window.Button);
        QPoint middle;
        QTimer answerer;
        connect(&answerer, &QTimer::timeout, this, [&] {
            if (QWidget *shown = QApplication::activeModalWidget()) {
                answerer.stop();
                middle = shown->geometry().center();
                shown->close();
            }
        });
        answerer.start(20);
        window.move(250, 250);
        ShowMessage(u"done"_s, u"B"_s, Icon::Stop);
        QVERIFY((middle - window.geometry().center()).manhattanLength() < 30);
    }

    void ASavedNameGetsTheEndingOfItsFilter_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("name");
        QTest::newRow("without an ending") << u"party"_s << u"party.lst"_s;
        QTest::newRow("with it") << u"party.lst"_s << u"party.lst"_s;
        QTest::newRow("with two") << u"untitled.lst.lst"_s << u"untitled.lst.lst"_s;
        QTest::newRow("with quotes, which belong to it") << u"our \"best\" list.lst"_s << u"our \"best\" list.lst"_s;
        QTest::newRow("cancelled") << QString() << QString();
    }
    void ASavedNameGetsTheEndingOfItsFilter()
    {
        QFETCH(QString, typed);
        QFETCH(QString, name);
        ToyBox toys;
        ShowWindows();
        QTimer answerer;
        connect(&answerer, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            answerer.stop();
            QCOMPARE(dialog->nameFilters(), QStringList{u"Store List Files (*.lst)"_s});
            QCOMPARE(dialog->directory().path(), QDir(m_folder.path()).path());
            auto *field = dialog->findChild<QLineEdit *>(u"fileNameEdit"_s);
            if (typed.isEmpty())
                return dialog->reject();
            QTest::keyClicks(field, typed);
            QTest::keyClick(field, Qt::Key_Return);
        });
        answerer.start(20);
        const QString chosen = TheDesk.AskFile(
            {FileQuestion::Save, u"Store List Files (*.lst)|*.lst"_s, m_folder.path() + u'/', QString()});
        QCOMPARE(chosen, name.isEmpty() ? QString() : m_folder.filePath(name));
    }

    void TheNameOfAFileIsGivenAndCanBeTypedOver_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("name");
        QTest::newRow("left as it is") << QString() << u"weekly.lst"_s;
        QTest::newRow("typed over") << u"party"_s << u"party.lst"_s;
    }
    void TheNameOfAFileIsGivenAndCanBeTypedOver()
    {
        QFETCH(QString, typed);
        QFETCH(QString, name);
        QFile old(m_folder.filePath(u"weekly.lst"_s)); // which is replaced without a question of the dialog's own
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.close();
        ToyBox toys;
        ShowWindows();
        QTimer answerer;
        connect(&answerer, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            auto *field = dialog ? dialog->findChild<QLineEdit *>(u"fileNameEdit"_s) : nullptr;
            if (!field)
                return;
            field->setFocus(); // where the user types; else a file that the dialog marks would count, and not the text
            if (!field->hasFocus())
                return;
            answerer.stop();
            QCOMPARE(field->text(), u"weekly.lst"_s);
            QTest::keyClicks(field, typed);
            QTest::keyClick(field, Qt::Key_Return);
            if (QWidget *box = QApplication::activeModalWidget(); box && box != dialog)
                QFAIL("a question");
        });
        answerer.start(20);
        const QString chosen = TheDesk.AskFile(
            {FileQuestion::Save, u"Store List Files (*.lst)|*.lst"_s, m_folder.path() + u'/', u"weekly.lst"_s});
        QCOMPARE(chosen, m_folder.filePath(name));
        old.remove();
    }
};

REGISTER_TEST(gui_realdesk)
#include "gui_realdesk.moc"
