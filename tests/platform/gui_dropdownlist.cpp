// The drop-down list: nothing is selected that nobody has selected, and what counts as a click.
#include "TestProgram.h"
#include "platform/controls/DropDownList.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalSpy>

namespace {

/// A list of three stores on the screen, nothing selected.
struct Stage {
    Stage()
    {
        for (const char *text : {"Bakery", "Grocer", "Market"})
            List.AddItem(QString::fromLatin1(text));
        List.show();
        List.activateWindow();
        if (!QTest::qWaitForWindowActive(&List))
            qFatal("no window");
        List.setFocus();
    }
    /// The user opens the list and clicks a row of it.
    void Pick(int row)
    {
        List.showPopup();
        QAbstractItemView *rows = List.view();
        if (!QTest::qWaitForWindowExposed(rows->window()))
            qFatal("the list does not open");
        QTest::qWait(QApplication::doubleClickInterval() + 10); // the list ignores a release right after it has opened
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, {},
                          rows->visualRect(rows->model()->index(row, 0)).center());
        QCoreApplication::processEvents();
    }
    QList<bool> Changed() const
    {
        QList<bool> changed;
        for (const QList<QVariant> &click : Clicks)
            changed += click.first().toBool();
        return changed;
    }

    DropDownList List;
    QSignalSpy Clicks{&List, &DropDownList::Click};
};

} // namespace

class gui_dropdownlist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FillingSelectsNothing()
    {
        Stage stage;
        QCOMPARE(stage.List.ListIndex(), -1);
        QCOMPARE(stage.List.currentText(), QString());
        QCOMPARE(stage.List.Items(), (QStringList{"Bakery", "Grocer", "Market"}));
        QCOMPARE(stage.Clicks.count(), 0);
        stage.List.SetListIndex(1);
        stage.List.AddItem("Pharmacy");
        QCOMPARE(stage.List.currentText(), "Grocer");
        QCOMPARE(stage.Clicks.count(), 1);
    }

    void APositionThatCodeSetsIsAClickOnce()
    {
        Stage stage;
        stage.List.SetListIndex(2);
        QCOMPARE(stage.List.currentText(), "Market");
        stage.List.SetListIndex(2);
        QCOMPARE(stage.Changed(), QList<bool>{true});
        stage.List.SetListIndex(-1);
        QCOMPARE(stage.List.ListIndex(), -1);
        QCOMPARE(stage.Clicks.count(), 1);
        stage.List.SetListIndex(2);
        QCOMPARE(stage.Clicks.count(), 2);
    }

    void ClearingRaisesNothing()
    {
        Stage stage;
        stage.List.SetListIndex(0);
        stage.List.Clear();
        QCOMPARE(stage.List.ListIndex(), -1);
        QCOMPARE(stage.List.count(), 0);
        stage.List.AddItem("Grocer");
        QCOMPARE(stage.List.ListIndex(), -1);
        QCOMPARE(stage.Clicks.count(), 1);
    }

    void APickIsAClickAndAPickOfTheSameRowIsOneAgain()
    {
        Stage stage;
        stage.Pick(1);
        QCOMPARE(stage.List.currentText(), "Grocer");
        QCOMPARE(stage.Changed(), QList<bool>{true});
        stage.Pick(1);
        QCOMPARE(stage.Changed(), (QList<bool>{true, false}));
        stage.Pick(0);
        QCOMPARE(stage.Changed(), (QList<bool>{true, false, true}));
        stage.List.SetListIndex(2);
        stage.Pick(2); // that one code has selected
        QCOMPARE(stage.Changed(), (QList<bool>{true, false, true, true, false}));
    }

    void TheKeysPick()
    {
        Stage stage;
        QTest::keyClick(&stage.List, Qt::Key_Down);
        QCOMPARE(stage.List.currentText(), "Bakery");
        QTest::keyClick(&stage.List, Qt::Key_M);
        QCOMPARE(stage.List.currentText(), "Market");
        QCOMPARE(stage.Changed(), (QList<bool>{true, true}));
        QTest::keyClick(&stage.List, Qt::Key_Down, Qt::AltModifier);
        QVERIFY(stage.List.view()->isVisible());
        QTest::keyClick(stage.List.view(), Qt::Key_Up);
        QCOMPARE(stage.Clicks.count(), 2); // moving the mark in the open list is no pick
        QTest::keyClick(stage.List.view(), Qt::Key_Return);
        QCOMPARE(stage.List.currentText(), "Grocer");
        QCOMPARE(stage.Clicks.count(), 3);
        QTest::keyClick(&stage.List, Qt::Key_Down, Qt::AltModifier);
        QTest::keyClick(stage.List.view(), Qt::Key_Up);
        QTest::keyClick(stage.List.view(), Qt::Key_Escape); // nor is leaving it
        QCOMPARE(stage.List.currentText(), "Grocer");
        QCOMPARE(stage.Clicks.count(), 3);
    }

    void TheWheelPicksNothing()
    {
        Stage stage;
        stage.List.SetListIndex(1);
        QWheelEvent turn(QPointF(5, 5), stage.List.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&stage.List, &turn);
        QCOMPARE(stage.List.ListIndex(), 1);
        QVERIFY(!turn.isAccepted()); // it scrolls the window
    }

    void ASortedListIgnoresCaseAndKeepsItsSelection()
    {
        DropDownList list;
        list.setProperty("sorted", true);
        for (const char *text : {"pears", "Apples", "bread"})
            list.AddItem(QString::fromLatin1(text));
        list.SetListIndex(1);
        QSignalSpy clicks(&list, &DropDownList::Click);
        for (const char *text : {"Milk", "apples 2", "Apples"})
            list.AddItem(QString::fromLatin1(text));
        QCOMPARE(list.Items(), (QStringList{"Apples", "Apples", "apples 2", "bread", "Milk", "pears"}));
        QCOMPARE(list.currentText(), "bread");
        QCOMPARE(clicks.count(), 0);
    }

    void AnEditableListKeepsWhatIsTyped()
    {
        DropDownList list;
        list.setEditable(true);
        list.AddItem("Grocer");
        QCOMPARE(list.currentText(), QString());
        QTest::keyClicks(list.lineEdit(), "Butcher");
        list.AddItem("Market");
        QCOMPARE(list.currentText(), "Butcher");
        QTest::keyClick(list.lineEdit(), Qt::Key_Return);
        QCOMPARE(list.Items(), (QStringList{"Grocer", "Market"}));
    }
};

REGISTER_TEST(gui_dropdownlist)
#include "gui_dropdownlist.moc"
