// A group of option buttons: one is selected or none, and only what becomes selected is told.
#include "GuiDesk.h"
#include "TestProgram.h"
#include "platform/controls/OptionGroup.h"

class gui_optiongroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { clicks.clear(); }

    void CodeSelectsAndTheClickIsTold()
    {
        group.Select(1);
        QCOMPARE(group.Selected(), 1);
        QCOMPARE(clicks, QList<int>{1});
        group.Select(1); // it stays selected
        QCOMPARE(clicks, QList<int>{1});
        group.Select(0);
        QCOMPARE(clicks, (QList<int>{1, 0}));
        QVERIFY(!second.isChecked());
    }

    void CodeClearsAllWithoutAClick()
    {
        group.Select(1);
        clicks.clear();
        group.Select(-1);
        QCOMPARE(group.Selected(), -1);
        QVERIFY(!first.isChecked());
        QVERIFY(!second.isChecked());
        QVERIFY(clicks.isEmpty());
        group.Select(1);
        QCOMPARE(clicks, QList<int>{1});
        first.setChecked(true); // still one at a time
        QCOMPARE(group.Selected(), 0);
        QVERIFY(!second.isChecked());
    }

    void TheTabKeyComesToTheSelectedOption()
    {
        group.Select(1);
        QVERIFY(!(first.focusPolicy() & Qt::TabFocus));
        QVERIFY(second.focusPolicy() & Qt::TabFocus);
        group.Select(-1);
        QVERIFY(first.focusPolicy() & Qt::TabFocus);
    }

private:
    QRadioButton first, second;
    QList<int> clicks;
    OptionGroup group{{&first, &second}, [this](int index) { clicks += index; }};
};

REGISTER_TEST(gui_optiongroup)
#include "gui_optiongroup.moc"
