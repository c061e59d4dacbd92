#include "GuiDesk.h"

#include "Windows.h"

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {
TestLine TheLastAct = TestLine::current();
} // namespace

GuiDesk::GuiDesk(TestLine where) : FakeDesk(where)
{
    TheLastAct = where;
    EndsWithItsWindows = true;
    LayHousehold();
    RegisterWindows();
}

GuiDesk::~GuiDesk()
{
    TheWindows.Reset();
    Settle();
}

void GuiDesk::StartProgram(TestLine where)
{
    EndsWithItsWindows = false;
    State.CurrentPayPeriodConfirmed = true;
    TheWindows.Show(u"frmMain"_s);
    Settle();
    if (TakeCalculatorCalls() != QStringList{u"start"_s})
        Fail(u"the start did not start the calculator"_s, where);
}

void Settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

void Fail(const QString &text, TestLine where)
{
    QTest::qFail(qPrintable(text), where.file_name(), int(where.line()));
}

TestLine LastAct()
{
    return TheLastAct;
}

void GiveUp(const QString &text, TestLine where)
{
    Fail(text, where);
    QMessageLogger(where.file_name(), int(where.line()), where.function_name())
        .fatal("%s:%d: %s", where.file_name(), int(where.line()), qPrintable(text));
}

namespace {

/// Whether a user can act on a control: it is enabled, to be seen, and no modal window stands before it.
bool InReach(const QWidget &control, TestLine where)
{
    TheLastAct = where;
    const QWidget *modal = QApplication::activeModalWidget();
    if (!control.isEnabled())
        Fail(control.objectName() + u" is grey"_s, where);
    else if (!control.isVisible())
        Fail(control.objectName() + u" is not to be seen"_s, where);
    else if (modal && modal != control.window())
        Fail(u"%1 is behind %2"_s.arg(control.objectName(), modal->objectName()), where);
    else
        return true;
    return false;
}

} // namespace

void Show(const QString &window, TestLine where)
{
    TheLastAct = where;
    TheWindows.Show(window);
    Settle();
}

void Click(const QString &window, const QString &control, TestLine where)
{
    QWidget &button = Find(window, control, where);
    if (!InReach(button, where))
        return;
    QTest::mouseClick(&button, Qt::LeftButton);
    Settle();
}

void Type(const QString &window, const QString &field, const QString &text, TestLine where)
{
    auto &edit = Find<QLineEdit>(window, field, where);
    if (!InReach(edit, where))
        return;
    static_cast<Form *>(edit.window())->FocusOn(&edit);
    edit.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&edit, Qt::Key_Delete);
    else
        QTest::keyClicks(&edit, text);
    Settle();
}

void PressEnter(const QString &window, const QString &field, TestLine where)
{
    QWidget &control = Find(window, field, where);
    if (!InReach(control, where))
        return;
    QTest::keyClick(&control, Qt::Key_Return);
    Settle();
}

void ClickRow(const QString &window, const QString &list, int row, TestLine where)
{
    auto &box = Find<ListBox>(window, list, where);
    if (!InReach(box, where))
        return;
    const QListWidgetItem *item = box.item(row);
    if (!item)
        return Fail(u"%1 has no row %2"_s.arg(list).arg(row), where);
    QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::NoModifier, box.visualItemRect(item).center());
    Settle();
}

void Choose(const QString &entry, TestLine where)
{
    auto &action = Find<QAction>(u"frmMain"_s, entry, where);
    if (!InReach(*TheWindows.Loaded(u"frmMain"_s), where))
        return;
    if (!action.isEnabled())
        return Fail(entry + u" is grey"_s, where);
    action.trigger();
    Settle();
}

void CloseByFrame(const QString &window, TestLine where)
{
    TheLastAct = where;
    Form *form = TheWindows.Loaded(window);
    if (!form)
        GiveUp(u"no "_s + window, where);
    form->close();
    Settle();
}

QString TextOf(const QString &window, const QString &control, TestLine where)
{
    QWidget &widget = Find(window, control, where);
    if (auto *field = qobject_cast<QLineEdit *>(&widget))
        return field->text();
    if (auto *label = qobject_cast<QLabel *>(&widget))
        return label->text();
    if (auto *group = qobject_cast<QGroupBox *>(&widget))
        return group->title();
    if (auto *button = qobject_cast<QAbstractButton *>(&widget))
        return button->text();
    GiveUp(u"%1.%2 has no text"_s.arg(window, control), where);
}

bool IsEnabled(const QString &window, const QString &control, TestLine where)
{
    return Find(window, control, where).isEnabled();
}

QStringList RowsOf(const QString &window, const QString &list, TestLine where)
{
    return Find<ListBox>(window, list, where).Items();
}

QString FocusOf(const QString &window, TestLine where)
{
    const Form *form = TheWindows.Loaded(window);
    if (!form)
        GiveUp(u"no "_s + window, where);
    const QWidget *control = form->FocusControl();
    return control ? control->objectName() : QString();
}

bool IsShown(const QString &window)
{
    return TheWindows.Loaded(window) && TheWindows.Loaded(window)->isVisible();
}

QString ActiveWindow()
{
    return TheWindows.Active() ? TheWindows.Active()->objectName() : QString();
}

QStringList GridRows(const QString &window, const QString &grid, int from, TestLine where)
{
    const auto &table = Find<Grid>(window, grid, where);
    QStringList rows;
    for (int row = from; row < table.Rows(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.Columns(); ++column)
            cells += table.Text(row, column);
        if (!cells.join(QString()).isEmpty())
            rows += cells.join(u" | "_s);
    }
    return rows;
}
