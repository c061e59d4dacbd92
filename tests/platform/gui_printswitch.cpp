// The print switch: one state, shown by the side that is lit, and a click for each change of it.
#include "Palettes.h"
#include "TestProgram.h"
#include "platform/controls/PrintSwitch.h"
#include "platform/controls/Theme.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

struct Stage {
    Stage()
    {
        auto *layout = new QVBoxLayout(&Window);
        layout->addWidget(Switch);
        Window.show();
        Window.activateWindow();
        if (!QTest::qWaitForWindowActive(&Window))
            qFatal("no window");
    }
    QPushButton *Side(const char *name) const { return Window.findChild<QPushButton *>(QString::fromLatin1(name)); }
    /// How many pixels of a side have that colour.
    int Pixels(const char *side, const QColor &colour) const
    {
        const QImage picture = Switch->grab(Side(side)->geometry()).toImage();
        int pixels = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                pixels += picture.pixelColor(x, y) == colour ? 1 : 0;
        return pixels;
    }
    bool IsLit(const char *side) const
    {
        return Pixels(side, AccentColour(Switch->palette())) > Side(side)->width() * Side(side)->height() / 2;
    }

    QWidget Window;
    PrintSwitch *Switch = new PrintSwitch;
    QSignalSpy Clicks{Switch, &PrintSwitch::Click};
};

} // namespace

class gui_printswitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setPalette(LightPalette()); }

    void TheLitSideIsTheTabStop()
    {
        Stage stage;
        QCOMPARE(stage.Side("pbPrintOff")->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(stage.Side("pbPrintOn")->focusPolicy(), Qt::ClickFocus);
        stage.Switch->Set(true);
        QCOMPARE(stage.Side("pbPrintOff")->focusPolicy(), Qt::ClickFocus);
        QCOMPARE(stage.Side("pbPrintOn")->focusPolicy(), Qt::StrongFocus);
    }

    void ItStartsOff()
    {
        Stage stage;
        QVERIFY(!stage.Switch->IsOn());
        QVERIFY(stage.Side("pbPrintOff")->isChecked());
        QVERIFY(!stage.Side("pbPrintOn")->isChecked());
        QCOMPARE(stage.Window.findChild<QLabel *>("Label1")->text(), "On");
        QCOMPARE(stage.Window.findChild<QLabel *>("Label2")->text(), "Off");
    }

    void OnlyTheSideThatHoldsIsLit_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light desktop") << false;
        QTest::newRow("dark desktop") << true;
    }
    void OnlyTheSideThatHoldsIsLit()
    {
        QFETCH(bool, dark);
        Stage stage;
        QApplication::setPalette(dark ? DarkPalette() : LightPalette()); // while it is shown
        for (const bool on : {false, true, false}) {
            stage.Switch->Set(on);
            QCOMPARE(stage.IsLit("pbPrintOn"), on);
            QCOMPARE(stage.IsLit("pbPrintOff"), !on);
            QCOMPARE(stage.Pixels(on ? "pbPrintOff" : "pbPrintOn", AccentColour(stage.Switch->palette())), 0);
            for (const char *word : {"Label1", "Label2"}) {
                const auto *label = stage.Window.findChild<QLabel *>(word);
                QVERIFY(Contrast(label->palette().color(label->foregroundRole()),
                                 label->parentWidget()->palette().color(QPalette::Button)) >= 4.5);
            }
        }
    }

    // As a window's design makes it: in a frame, shown later, with nothing changed since.
    void TheWordsCanBeReadFromTheStart()
    {
        for (const QPalette &palette : {DarkPalette(), LightPalette()}) {
            QApplication::setPalette(palette);
            QWidget window;
            auto *frame = new QGroupBox(&window);
            auto *layout = new QHBoxLayout(frame);
            layout->addWidget(new PrintSwitch(frame));
            window.show();
            QCoreApplication::processEvents();
            for (const char *word : {"Label1", "Label2"}) {
                const auto *label = window.findChild<QLabel *>(word);
                const double contrast = Contrast(label->palette().color(label->foregroundRole()),
                                                 label->parentWidget()->palette().color(QPalette::Button));
                QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
            }
        }
    }

    void CodeRaisesTheClickWhereSomethingChanges()
    {
        Stage stage;
        stage.Switch->Set(false);
        QCOMPARE(stage.Clicks.count(), 0);
        stage.Switch->Set(true);
        stage.Switch->Set(true);
        QCOMPARE(stage.Clicks.count(), 1);
        QVERIFY(stage.Clicks[0][0].toBool());
        stage.Side("pbPrintOff")->setChecked(true); // by its side, too
        QCOMPARE(stage.Clicks.count(), 2);
        QVERIFY(!stage.Clicks[1][0].toBool());
        QVERIFY(!stage.Switch->IsOn());
    }

    void TheWordsAreClicked()
    {
        Stage stage;
        const auto clickOn = [&](const char *word) {
            const auto *label = stage.Window.findChild<QLabel *>(word);
            // As the window system does it: into the window, which finds what is there.
            QTest::mouseClick(stage.Window.windowHandle(), Qt::LeftButton, {},
                              label->mapTo(&stage.Window, label->rect().center()));
        };
        clickOn("Label1");
        QVERIFY(stage.Switch->IsOn());
        clickOn("Label1"); // it is on already
        clickOn("Label2");
        QVERIFY(!stage.Switch->IsOn());
        QCOMPARE(stage.Clicks.count(), 2);
    }

    void TheKeysReachBothSides()
    {
        Stage stage;
        stage.Side("pbPrintOff")->setFocus();
        QTest::keyClick(stage.Side("pbPrintOff"), Qt::Key_Left);
        QVERIFY(stage.Switch->IsOn());
        QCOMPARE(QApplication::focusWidget(), stage.Side("pbPrintOn"));
        QTest::keyClick(stage.Side("pbPrintOn"), Qt::Key_Right);
        QVERIFY(!stage.Switch->IsOn());
        stage.Side("pbPrintOn")->setFocus();
        QTest::keyClick(stage.Side("pbPrintOn"), Qt::Key_Space);
        QVERIFY(stage.Switch->IsOn());
        QCOMPARE(stage.Clicks.count(), 3);
    }
};

REGISTER_TEST(gui_printswitch)
#include "gui_printswitch.moc"
