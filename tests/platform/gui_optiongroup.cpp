// A group of option buttons: one is selected or none, and only what becomes selected is a click.
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

    void ArrowsPassOverOptionsThatCannotBeChosen()
    {
        QWidget window;
        QRadioButton *options[4];
        for (QRadioButton *&option : options)
            option = new QRadioButton(&window);
        QList<int> chosen;
        OptionGroup four({options[0], options[1], options[2], options[3]}, [&](int index) { chosen += index; });
        window.show();
        options[1]->setEnabled(false);
        options[3]->hide();
        four.Select(0);
        QTest::keyClick(options[0], Qt::Key_Down);
        QCOMPARE(four.Selected(), 2);
        QTest::keyClick(options[2], Qt::Key_Right);
        QCOMPARE(four.Selected(), 0);
        QTest::keyClick(options[0], Qt::Key_Up);
        QCOMPARE(four.Selected(), 2);
        QCOMPARE(chosen, (QList<int>{0, 2, 0, 2}));
        options[0]->setEnabled(false);
        QTest::keyClick(options[2], Qt::Key_Down); // nothing else is left
        QCOMPARE(four.Selected(), 2);
        QCOMPARE(chosen.size(), 4);
    }

    void ArrowsWithModifiersAreNotItsKeys()
    {
        struct Window : QWidget {
            void keyPressEvent(QKeyEvent *event) override { Keys += event->key(); }
            QList<int> Keys;
        } window;
        auto *one = new QRadioButton(&window), *other = new QRadioButton(&window);
        OptionGroup pair({one, other}, [](int) {});
        pair.Select(0);
        QTest::keyClick(one, Qt::Key_Left, Qt::AltModifier);
        QTest::keyClick(one, Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(pair.Selected(), 0);
        QVERIFY(window.Keys.contains(int(Qt::Key_Left)));       // the key goes on to whoever waits for it
        QTest::keyClick(one, Qt::Key_Down, Qt::KeypadModifier); // the arrows of the number pad are arrows
        QCOMPARE(pair.Selected(), 1);
    }

    void AnOptionStandsForItsValue()
    {
        QRadioButton weekly, monthly;
        QList<qint16> frequencies;
        ValueOptions<qint16> options({{&weekly, qint16(7)}, {&monthly, qint16(30)}},
                                     [&](qint16 frequency) { frequencies += frequency; });
        QVERIFY(!options.Selected());
        options.Select(30);
        QVERIFY(monthly.isChecked());
        QCOMPARE(options.Selected().value(), qint16(30));
        options.Select(30);
        weekly.click();
        QCOMPARE(frequencies, (QList<qint16>{30, 7}));
        options.Select(15); // no option stands for it
        QVERIFY(!weekly.isChecked() && !monthly.isChecked());
        QVERIFY(!options.Selected());
        QCOMPARE(frequencies.size(), 2);
    }

private:
    QRadioButton first, second;
    QList<int> clicks;
    OptionGroup group{{&first, &second}, [this](int index) { clicks += index; }};
};

REGISTER_TEST(gui_optiongroup)
#include "gui_optiongroup.moc"
