// What every list and every grid of the program keeps: no row is selected without its click, and no key clicks a row
// that the user has not chosen.
#include "GuiDesk.h"
#include "TestProgram.h"
#include "Windows.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A row per control of that kind in the program's windows.
template <class Control>
void AddRows()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("control");
    GuiDesk desk;
    int found = 0;
    for (const QString &window : TheWindows.Names()) {
        for (const Control *control : TheWindows.Touch(window).findChildren<Control *>()) {
            QTest::newRow(qPrintable(window + u'.' + control->objectName())) << window << control->objectName();
            ++found;
        }
    }
    if (found == 0)
        qFatal("no window has such a control");
    desk.TakeAll();
}

template <class Control>
Control &Present(const QString &window, const QString &name)
{
    State.CurrentPayPeriodConfirmed = true;
    State.CurrentPayPeriod = u"01-05-2004"_s;
    Show(window);
    Form &form = *TheWindows.Loaded(window);
    auto &control = Find<Control>(window, name);
    // Whatever the window does at a click, it is not what is looked at here.
    control.setEnabled(true);
    QObject::disconnect(&control, &Control::Click, &form, nullptr);
    form.FocusOn(&control);
    Settle();
    return control;
}

void FillList(ListBox &list)
{
    list.Clear();
    for (const QString &text : {u"Car"_s, u"Phone"_s, u"Rent"_s})
        list.AddItem(text);
    Settle();
}

QPoint PlaceOf(const QAbstractItemView &view, int row)
{
    return view.visualRect(view.model()->index(row, 0)).center();
}

/// Shows another window and comes back.
void LeaveAndReturn(const QString &window)
{
    TheWindows.Register(u"another"_s, [] { return new Form; });
    Show(u"another"_s);
    Show(window);
}

} // namespace

class gui_rowview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void APressBelowTheRowsSelectsNothing_data() { AddRows<ListBox>(); }
    void APressBelowTheRowsSelectsNothing()
    {
        QFETCH(QString, window);
        QFETCH(QString, control);
        GuiDesk desk;
        auto &list = Present<ListBox>(window, control);
        desk.TakeAll(); // how the window came to be is no matter here
        FillList(list);
        QSignalSpy clicks(&list, &ListBox::Click);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 0));
        QCOMPARE(list.ListIndex(), 0);
        const QPoint below(20, list.viewport()->height() - 3);
        QVERIFY(!list.indexAt(below).isValid());
        QTest::mousePress(list.viewport(), Qt::LeftButton, {}, below);
        QTest::mouseMove(list.viewport(), PlaceOf(list, 2));
        QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 2));
        QCOMPARE(list.ListIndex(), 0);
        QCOMPARE(clicks.count(), 1);
        desk.Messages.clear();
    }

    void NoKeyClicksARowOfAListThatNobodyHasChosen_data() { AddRows<ListBox>(); }
    void NoKeyClicksARowOfAListThatNobodyHasChosen()
    {
        QFETCH(QString, window);
        QFETCH(QString, control);
        GuiDesk desk;
        auto &list = Present<ListBox>(window, control);
        desk.TakeAll(); // how the window came to be is no matter here
        FillList(list);
        QSignalSpy clicks(&list, &ListBox::Click);
        QTest::keyClick(&list, Qt::Key_Return);
        QTest::keyClick(&list, Qt::Key_Space);
        QCOMPARE(clicks.count(), 0);
        QCOMPARE(list.ListIndex(), -1);
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(list.ListIndex(), 1);
        QCOMPARE(clicks.count(), 1);
        LeaveAndReturn(window);
        FillList(list);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(clicks.count(), 1);
        QTest::keyClick(&list, Qt::Key_Down); // the mark has begun on the first row again
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(list.ListIndex(), 1);
        desk.Messages.clear();
    }

    void NoKeyClicksARowOfAGridThatNobodyHasChosen_data() { AddRows<Grid>(); }
    void NoKeyClicksARowOfAGridThatNobodyHasChosen()
    {
        QFETCH(QString, window);
        QFETCH(QString, control);
        GuiDesk desk;
        auto &grid = Present<Grid>(window, control);
        desk.TakeAll(); // how the window came to be is no matter here
        QSignalSpy clicks(&grid, &Grid::Click);
        const auto fill = [&] {
            grid.SetShape(1, grid.Columns());
            for (int row = 1; row <= 3; ++row)
                grid.AddItem(u"item"_s, row);
            Settle();
        };
        fill();
        for (int visit = 1; visit <= 2; ++visit) {
            QTest::keyClick(&grid, Qt::Key_Return);
            QTest::keyClick(&grid, Qt::Key_Space);
            QCOMPARE(clicks.count(), visit - 1);
            QCOMPARE(grid.CurrentRow(), 0);
            QTest::keyClick(&grid, Qt::Key_Down);
            QTest::keyClick(&grid, Qt::Key_Return);
            QCOMPARE(clicks.count(), visit);
            QCOMPARE(grid.CurrentRow(), 2);
            LeaveAndReturn(window);
            grid.setEnabled(true); // a window may grey a grid that has no rows
            static_cast<Form *>(grid.window())->FocusOn(&grid);
            fill();
        }
        desk.Messages.clear();
    }

    // The mark alone, where a window fills nothing when it is activated.
    void AfterComingBackTheMarkBeginsAnewAndTheSelectionStays()
    {
        GuiDesk desk;
        auto &list = Present<ListBox>(u"frmCreditors"_s, u"lstCreditors"_s);
        FillList(list);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, PlaceOf(list, 2));
        QCOMPARE(list.currentRow(), 2);
        LeaveAndReturn(u"frmCreditors"_s);
        QCOMPARE(list.currentRow(), 0);
        QCOMPARE(list.ListIndex(), 2);
        QSignalSpy clicks(&list, &ListBox::Click);
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(clicks.count(), 0);
    }

    // A date that is typed into the field of the completion date opens the forecast with its first letter; the rest of
    // it, blank and Enter included, goes to the grid.
    void ADateTypedForTheForecastPicksNoRow()
    {
        GuiDesk desk;
        State.PaycheckAmount = Currency::FromDouble(1000);
        State.PayFrequency = 14;
        State.ForecastPeriods = 12;
        State.CurrentPayPeriod = u"01-05-2004"_s;
        State.CurrentPayPeriodConfirmed = true;
        Show(u"frmProjects"_s);
        Click(u"frmProjects"_s, u"cmdListProjects"_s);
        Click(u"frmProjects"_s, u"cmdAddProject"_s);
        TheWindows.ControlOf<QLineEdit>(u"frmSetCurrentPayPeriod"_s, u"txtCurrentPayPeriod"_s).setText(u"01-05-2004"_s);
        QTest::keyClick(&Find(u"frmProjects"_s, u"txtProjectCompletionDate"_s), Qt::Key_M);
        Settle();
        QCOMPARE(ActiveWindow(), u"frmSavingsForecast"_s);
        auto &grid = Find<Grid>(u"frmSavingsForecast"_s, u"grdSavingsForecast"_s);
        QVERIFY(grid.Rows() > 12);
        QTest::keyClicks(&grid, u"ay 12 2004"_s);
        QTest::keyClick(&grid, Qt::Key_Return);
        Settle();
        QVERIFY(IsShown(u"frmSavingsForecast"_s));
        QVERIFY(State.ProjectDateFromForecast);
        QCOMPARE(TextOf(u"frmProjects"_s, u"txtProjectCompletionDate"_s), QString());
    }

    void EnterHeldOnTheAddButtonAddsNoPayPeriod()
    {
        GuiDesk desk;
        State.PayFrequency = 14;
        State.CurrentPayPeriod = u"01-05-2004"_s;
        State.CurrentPayPeriodConfirmed = true;
        Show(u"frmExtras"_s);
        Click(u"frmExtras"_s, u"cmdListPayPeriods"_s);
        const QByteArray before = desk.ReadFile(u"extra.txt"_s);
        QTest::keyClick(&Find(u"frmExtras"_s, u"cmdAddPayPeriod"_s), Qt::Key_Return);
        Settle();
        QCOMPARE(ActiveWindow(), u"frmScanPayPeriods"_s);
        auto &list = Find<ListBox>(u"frmScanPayPeriods"_s, u"lstScanPayPeriods"_s);
        QVERIFY(list.count() > 0);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QApplication::sendEvent(&list, &held);
        QTest::keyClick(&list, Qt::Key_Return);
        Settle();
        QVERIFY(IsShown(u"frmScanPayPeriods"_s));
        QCOMPARE(desk.ReadFile(u"extra.txt"_s), before);
    }
};

REGISTER_TEST(gui_rowview)
#include "gui_rowview.moc"
