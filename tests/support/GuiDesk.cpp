#include "GuiDesk.h"

#include "Windows.h"

#include <QAction>
#include <QGroupBox>
#include <QTest>

GuiDesk::GuiDesk()
{
    LayHousehold();
    RegisterWindows();
}

GuiDesk::~GuiDesk()
{
    TheWindows.Reset();
    Settle();
}

void GuiDesk::StartProgram()
{
    State.CurrentPayPeriodConfirmed = true;
    TheWindows.Show(QStringLiteral("frmMain"));
    Settle();
}

void Settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

void Show(const QString &window)
{
    TheWindows.Show(window);
    Settle();
}

void Click(const QString &window, const QString &control)
{
    QWidget &button = Find(window, control);
    if (!button.isEnabled())
        QTest::qFail(qPrintable(control + QStringLiteral(" is grey")), __FILE__, __LINE__);
    QTest::mouseClick(&button, Qt::LeftButton);
    Settle();
}

void Type(const QString &window, const QString &field, const QString &text)
{
    auto &edit = Find<QLineEdit>(window, field);
    if (!edit.isEnabled())
        QTest::qFail(qPrintable(field + QStringLiteral(" is grey")), __FILE__, __LINE__);
    static_cast<Form *>(edit.window())->FocusOn(&edit);
    edit.selectAll();
    if (text.isEmpty())
        QTest::keyClick(&edit, Qt::Key_Delete);
    else
        QTest::keyClicks(&edit, text);
    Settle();
}

void PressEnter(const QString &window, const QString &field)
{
    QTest::keyClick(&Find(window, field), Qt::Key_Return);
    Settle();
}

void ClickRow(const QString &window, const QString &list, int row)
{
    auto &box = Find<ListBox>(window, list);
    const QRect rect = box.visualItemRect(box.item(row));
    QTest::mouseClick(box.viewport(), Qt::LeftButton, Qt::NoModifier, rect.center());
    Settle();
}

void Choose(const QString &entry)
{
    auto &action = Find<QAction>(QStringLiteral("frmMain"), entry);
    if (!action.isEnabled())
        QTest::qFail(qPrintable(entry + QStringLiteral(" is grey")), __FILE__, __LINE__);
    action.trigger();
    Settle();
}

void CloseByFrame(const QString &window)
{
    TheWindows.Loaded(window)->close();
    Settle();
}

QString TextOf(const QString &window, const QString &control)
{
    QWidget &widget = Find(window, control);
    if (auto *field = qobject_cast<QLineEdit *>(&widget))
        return field->text();
    if (auto *label = qobject_cast<QLabel *>(&widget))
        return label->text();
    if (auto *group = qobject_cast<QGroupBox *>(&widget))
        return group->title();
    if (auto *button = qobject_cast<QAbstractButton *>(&widget))
        return button->text();
    qFatal("%s.%s has no text", qPrintable(window), qPrintable(control));
}

bool IsEnabled(const QString &window, const QString &control)
{
    return Find(window, control).isEnabled();
}

QStringList RowsOf(const QString &window, const QString &list)
{
    return Find<ListBox>(window, list).Items();
}

QString FocusOf(const QString &window)
{
    QWidget *control = TheWindows.Loaded(window)->FocusControl();
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

QStringList GridRows(const QString &window, const QString &grid, int from)
{
    const auto &table = Find<Grid>(window, grid);
    QStringList rows;
    for (int row = from; row < table.Rows(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.Columns(); ++column)
            cells += table.Text(row, column);
        if (!cells.join(QString()).isEmpty())
            rows += cells.join(QStringLiteral(" | "));
    }
    return rows;
}
