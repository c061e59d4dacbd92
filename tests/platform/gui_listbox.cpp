// The list box: what counts as a click, and what only moves the mark.
#include "TestProgram.h"
#include "platform/controls/ListBox.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

/// A list of three rows between two fields, on the screen.
struct Stage {
    Stage()
    {
        auto *layout = new QVBoxLayout(&Window);
        layout->addWidget(Before);
        layout->addWidget(List);
        layout->addWidget(After);
        for (const char *text : {"first", "second", "third"})
            List->AddItem(QString::fromLatin1(text));
        Window.resize(300, 300);
        Window.show();
        Window.activateWindow();
        if (!QTest::qWaitForWindowActive(&Window))
            qFatal("no window");
        Before->setFocus();
    }
    QPoint At(int row) const { return List->visualItemRect(List->item(row)).center(); }
    void Click(int row, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(List->viewport(), button, {}, At(row));
    }
    void DoubleClick(int row, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseDClick(List->viewport(), button, {}, At(row));
    }
    /// With the button held down.
    void MoveTo(int row, Qt::MouseButton button) const
    {
        QMouseEvent move(QEvent::MouseMove, At(row), List->viewport()->mapToGlobal(At(row)), Qt::NoButton, button,
                         Qt::NoModifier);
        QApplication::sendEvent(List->viewport(), &move);
    }
    void Press(Qt::Key key) const { QTest::keyClick(List, key); }

    QWidget Window;
    QLineEdit *Before = new QLineEdit;
    ListBox *List = new ListBox;
    QLineEdit *After = new QLineEdit;
    QSignalSpy Clicks{List, &ListBox::Click};
    QSignalSpy DoubleClicks{List, &ListBox::DoubleClick};
};

} // namespace

class gui_listbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FillingSelectsNothing()
    {
        Stage stage;
        QCOMPARE(stage.List->ListIndex(), -1);
        QCOMPARE(stage.List->Items(), (QStringList{"first", "second", "third"}));
        QCOMPARE(stage.Clicks.count(), 0);
    }

    void MovingTheFocusIntoTheListSelectsNothing()
    {
        Stage stage;
        QTest::keyClick(stage.Before, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), stage.List);
        QCOMPARE(stage.List->ListIndex(), -1);
        QCOMPARE(stage.Clicks.count(), 0);
        stage.Press(Qt::Key_Tab); // and Tab leaves it
        QCOMPARE(QApplication::focusWidget(), stage.After);
    }

    void AClickSelects()
    {
        Stage stage;
        stage.Click(1);
        QCOMPARE(stage.List->ListIndex(), 1);
        QCOMPARE(stage.Clicks.count(), 1);
    }

    void AClickOnTheSelectedRowCountsAgain()
    {
        Stage stage;
        stage.Click(1);
        stage.Click(1);
        QCOMPARE(stage.Clicks.count(), 2);
        QCOMPARE(stage.List->ListIndex(), 1);
    }

    void AClickBelowTheRowsIsNone()
    {
        Stage stage;
        stage.Click(0);
        QTest::mouseClick(stage.List->viewport(), Qt::LeftButton, {},
                          stage.List->viewport()->rect().bottomLeft() - QPoint(-5, 3));
        QCOMPARE(stage.Clicks.count(), 1);
        QCOMPARE(stage.List->ListIndex(), 0);
    }

    void OnlyTheLeftButtonClicks_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("right") << Qt::RightButton;
        QTest::newRow("middle") << Qt::MiddleButton;
    }
    void OnlyTheLeftButtonClicks()
    {
        QFETCH(Qt::MouseButton, button);
        Stage stage;
        stage.Click(1, button);
        stage.DoubleClick(1, button);
        QCOMPARE(stage.List->ListIndex(), -1);
        stage.Click(0);
        stage.Click(1, button);
        stage.DoubleClick(2, button);
        QTest::mousePress(stage.List->viewport(), button, {}, stage.At(1));
        stage.MoveTo(2, button);
        QTest::mouseRelease(stage.List->viewport(), button, {}, stage.At(2));
        QCOMPARE(stage.List->ListIndex(), 0);
        QCOMPARE(stage.Clicks.count(), 1);
        QCOMPARE(stage.DoubleClicks.count(), 0);
    }

    // The row where the button is released counts.
    void APressThatWandersIsAClickWhereItEnds()
    {
        Stage stage;
        QTest::mousePress(stage.List->viewport(), Qt::LeftButton, {}, stage.At(0));
        stage.MoveTo(2, Qt::LeftButton);
        QTest::mouseRelease(stage.List->viewport(), Qt::LeftButton, {}, stage.At(2));
        QCOMPARE(stage.Clicks.count(), 1);
        QCOMPARE(stage.List->ListIndex(), 2);
    }

    void ADoubleClickIsAClickAndADoubleClick()
    {
        Stage stage;
        stage.Click(1);
        stage.DoubleClick(1);
        QCOMPARE(stage.DoubleClicks.count(), 1);
        QCOMPARE(stage.List->ListIndex(), 1);
    }

    void ArrowsOnlyMoveTheMark()
    {
        Stage stage;
        stage.List->setFocus();
        stage.Click(0);
        stage.Press(Qt::Key_Down);
        stage.Press(Qt::Key_Down);
        QCOMPARE(stage.List->currentRow(), 2);
        QCOMPARE(stage.List->ListIndex(), 0);
        stage.Press(Qt::Key_Home);
        stage.Press(Qt::Key_End);
        stage.Press(Qt::Key_Up);
        stage.Press(Qt::Key_T); // typing ahead moves the mark, too
        QCOMPARE(stage.List->currentRow(), 2);
        QCOMPARE(stage.List->ListIndex(), 0);
        QCOMPARE(stage.Clicks.count(), 1);
    }

    // A row that is marked without its click would be overwritten by a change that was meant for another.
    void APressBelowTheRowsThatWandersOntoOneSelectsNothing()
    {
        Stage stage;
        const QPoint below = stage.List->viewport()->rect().bottomLeft() - QPoint(-5, 3);
        stage.Click(0);
        QTest::mousePress(stage.List->viewport(), Qt::LeftButton, {}, below);
        QTest::mouseMove(stage.List->viewport(), stage.At(2));
        QTest::mouseMove(stage.List->viewport(), stage.At(1));
        QTest::mouseRelease(stage.List->viewport(), Qt::LeftButton, {}, stage.At(1));
        QCOMPARE(stage.List->ListIndex(), 0);
        QCOMPARE(stage.List->currentRow(), 0);
        QCOMPARE(stage.Clicks.count(), 1);
    }

    void APressSelectsNothingBeforeItsRelease()
    {
        Stage stage;
        QTest::mousePress(stage.List->viewport(), Qt::LeftButton, {}, stage.At(1));
        QCOMPARE(stage.List->currentRow(), 1); // the mark shows where the click will be
        QCOMPARE(stage.List->ListIndex(), -1);
        QTest::mouseRelease(stage.List->viewport(), Qt::LeftButton, {}, stage.At(1));
        QCOMPARE(stage.List->ListIndex(), 1);
        QCOMPARE(stage.Clicks.count(), 1);
    }

    void ARowThatIsGoneBeforeTheReleaseIsNotClicked()
    {
        Stage stage;
        QTest::mousePress(stage.List->viewport(), Qt::LeftButton, {}, stage.At(1));
        stage.List->Clear();
        stage.List->AddItem("new");
        QTest::mouseRelease(stage.List->viewport(), Qt::LeftButton, {}, stage.At(0));
        QCOMPARE(stage.List->ListIndex(), -1);
        QCOMPARE(stage.Clicks.count(), 0);
    }

    void ADoubleClickPicksNothingInTheListThatItsFirstClickHasFilled()
    {
        Stage stage;
        connect(stage.List, &ListBox::Click, stage.List, [&stage] {
            stage.List->Clear();
            stage.List->AddItem("new");
        });
        stage.Click(0);
        stage.DoubleClick(0);
        QTest::mouseRelease(stage.List->viewport(), Qt::LeftButton, {}, stage.At(0));
        QCOMPARE(stage.Clicks.count(), 1);
        QCOMPARE(stage.DoubleClicks.count(), 0);
        stage.Click(0); // a later click is one again
        QCOMPARE(stage.Clicks.count(), 2);
    }

    void TwoQuickClicksOnDifferentRowsAreTwoClicks()
    {
        Stage stage;
        stage.Click(0);
        stage.DoubleClick(2);
        QTest::mouseRelease(stage.List->viewport(), Qt::LeftButton, {}, stage.At(2));
        QCOMPARE(stage.Clicks.count(), 2);
        QCOMPARE(stage.DoubleClicks.count(), 0);
        QCOMPARE(stage.List->ListIndex(), 2);
    }

    void TheMarkBeginsOnTheFirstRowThatCanBeChosen()
    {
        Stage stage;
        stage.List->item(0)->setFlags(Qt::NoItemFlags);
        QCOMPARE(stage.List->currentRow(), -1);
        QTest::keyClick(stage.Before, Qt::Key_Tab);
        QCOMPARE(stage.List->currentRow(), 1);
        stage.List->Clear();
        stage.List->AddItem("new"); // and again in a list that is filled while the keys are in it
        QCOMPARE(stage.List->currentRow(), 0);
        QCOMPARE(stage.List->ListIndex(), -1);
    }

    void NoKeyClicksBeforeTheUserHasChosen_data() { EnterAndSpaceAreTheClick_data(); }
    void NoKeyClicksBeforeTheUserHasChosen()
    {
        QFETCH(int, key);
        Stage stage;
        QTest::keyClick(stage.Before, Qt::Key_Tab);
        QCOMPARE(stage.List->currentRow(), 0);
        stage.Press(Qt::Key(key));
        stage.Press(Qt::Key_Shift);
        stage.Press(Qt::Key(key));
        QCOMPARE(stage.Clicks.count(), 0);
        QCOMPARE(stage.List->ListIndex(), -1);
        stage.Press(Qt::Key_Home); // it stands there already, but now the user has said so
        stage.Press(Qt::Key(key));
        QCOMPARE(stage.Clicks.count(), 1);
        QCOMPARE(stage.List->ListIndex(), 0);
        stage.List->Clear();
        stage.List->AddItem("new");
        stage.Press(Qt::Key(key)); // nobody has chosen among the new rows
        QCOMPARE(stage.Clicks.count(), 1);
    }

    void AKeyHeldDownNeverClicks_data() { EnterAndSpaceAreTheClick_data(); }
    void AKeyHeldDownNeverClicks()
    {
        QFETCH(int, key);
        Stage stage;
        stage.Press(Qt::Key_Down);
        QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, key == Qt::Key_Space ? " " : "\r", true);
        QApplication::sendEvent(stage.List, &held);
        QCOMPARE(stage.Clicks.count(), 0);
        QCOMPARE(stage.List->ListIndex(), -1);
        stage.Press(Qt::Key(key));
        QApplication::sendEvent(stage.List, &held);
        QCOMPARE(stage.Clicks.count(), 1);
    }

    void TypingChoosesAndItsBlanksClickNothing()
    {
        Stage stage;
        stage.List->Clear();
        for (const char *text : {"May 1", "May 15", "June 1"})
            stage.List->AddItem(QString::fromLatin1(text));
        QTest::keyClicks(stage.List, "may 15");
        QCOMPARE(stage.Clicks.count(), 0);
        QCOMPARE(stage.List->currentRow(), 1);
        stage.Press(Qt::Key_Return);
        QCOMPARE(stage.List->ListIndex(), 1);
        QTest::qWait(QApplication::keyboardInputInterval() + 100);
        QTest::keyClicks(stage.List, "j");
        QTest::qWait(QApplication::keyboardInputInterval() + 100);
        stage.Press(Qt::Key_Space); // a while later the blank is a click again
        QCOMPARE(stage.List->ListIndex(), 2);
        QCOMPARE(stage.Clicks.count(), 2);
    }

    void ControlAndEnterIsADoubleClick()
    {
        Stage stage;
        QTest::keyClick(stage.List, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(stage.DoubleClicks.count(), 0); // on a row that nobody chose
        stage.Press(Qt::Key_Down);
        QTest::keyClick(stage.List, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(stage.Clicks.count(), 1);
        QCOMPARE(stage.DoubleClicks.count(), 1);
        QCOMPARE(stage.List->ListIndex(), 1);
    }

    void EnterAndSpaceAreTheClick_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Enter of the number pad") << int(Qt::Key_Enter);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }
    void EnterAndSpaceAreTheClick()
    {
        QFETCH(int, key);
        Stage stage;
        QTest::keyClick(stage.Before, Qt::Key_Tab);
        stage.Press(Qt::Key_Home);
        stage.Press(Qt::Key_Down);
        stage.Press(Qt::Key(key));
        QCOMPARE(stage.List->ListIndex(), 1);
        QCOMPARE(stage.Clicks.count(), 1);
        stage.Press(Qt::Key(key)); // on the selected row again
        QCOMPARE(stage.Clicks.count(), 2);
    }

    void KeysInAnEmptyListDoNothing()
    {
        Stage stage;
        stage.List->Clear();
        stage.List->setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Down, Qt::Key_Home})
            stage.Press(key);
        QCOMPARE(stage.Clicks.count(), 0);
        QCOMPARE(stage.List->ListIndex(), -1);
    }

    void APositionThatCodeSetsIsAClickOnce()
    {
        Stage stage;
        stage.List->SetListIndex(2);
        QCOMPARE(stage.List->ListIndex(), 2);
        QCOMPARE(stage.Clicks.count(), 1);
        stage.List->SetListIndex(2); // the value it has already
        QCOMPARE(stage.Clicks.count(), 1);
        stage.List->SetListIndex(-1); // no row, no click
        QCOMPARE(stage.List->ListIndex(), -1);
        QCOMPARE(stage.Clicks.count(), 1);
        stage.List->SetListIndex(2);
        QCOMPARE(stage.Clicks.count(), 2);
    }

    void ClearingTellsNothing()
    {
        Stage stage;
        stage.Click(1);
        stage.List->Clear();
        QCOMPARE(stage.List->ListIndex(), -1);
        QCOMPARE(stage.List->count(), 0);
        QCOMPARE(stage.Clicks.count(), 1);
        stage.List->AddItem("afresh");
        QCOMPARE(stage.List->ListIndex(), -1);
    }

    void AClickMayEmptyTheList()
    {
        Stage stage;
        connect(stage.List, &ListBox::Click, stage.List, &ListBox::Clear);
        stage.Click(1);
        QCOMPARE(stage.List->count(), 0);
        QCOMPARE(stage.List->ListIndex(), -1);
    }

    void ASortedListIgnoresCase()
    {
        ListBox list;
        list.setSortingEnabled(true);
        for (const char *text : {"pears", "Apples", "bread", "Milk", "apples 2"})
            list.AddItem(QString::fromLatin1(text));
        QCOMPARE(list.Items(), (QStringList{"Apples", "apples 2", "bread", "Milk", "pears"}));
    }

    void AnUnsortedListKeepsTheOrder()
    {
        ListBox list;
        for (const char *text : {"pears", "Apples", "bread"})
            list.AddItem(QString::fromLatin1(text));
        QCOMPARE(list.Items(), (QStringList{"pears", "Apples", "bread"}));
    }
};

REGISTER_TEST(gui_listbox)
#include "gui_listbox.moc"
