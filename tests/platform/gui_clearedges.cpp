// On a dark desktop the edges of controls can be seen, measured on what is drawn; and a style that has edges of its own
// keeps them.
#include "Palettes.h"
#include "TestProgram.h"
#include "platform/controls/ClearEdges.h"
#include "platform/controls/DropDownList.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/Theme.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

struct Stage {
    explicit Stage(QWidget *control)
    {
        auto *layout = new QVBoxLayout(&Window);
        layout->setContentsMargins(20, 20, 20, 20);
        layout->addWidget(Other);
        layout->addWidget(control);
        Other->setFocus();
        Window.resize(300, 300);
        Window.show();
        Window.activateWindow();
        if (!QTest::qWaitForWindowActive(&Window))
            qFatal("no window");
        Other->setFocus();
        QCoreApplication::processEvents();
        Picture = Window.grab().toImage();
    }
    QWidget Window;
    QLineEdit *Other = new QLineEdit;
    QImage Picture;
};

/// The greatest contrast with the ground on the way from a place outside of a control four pixels into it.
double EdgeContrast(const QImage &picture, QPoint outside, QPoint step)
{
    const QColor ground = picture.pixelColor(outside);
    double greatest = 1;
    for (int i = 1; i <= 4; ++i)
        greatest = qMax(greatest, Contrast(picture.pixelColor(outside + i * step), ground));
    return greatest;
}

/// The contrast of the weakest of four edges, each in its middle; the upper one of a group box is looked for elsewhere.
double WeakestEdge(const QImage &picture, const QRect &control, int top)
{
    const QPoint middle = control.center();
    return std::min({EdgeContrast(picture, {control.left() - 1, middle.y()}, {1, 0}),
                     EdgeContrast(picture, {control.right() + 1, middle.y()}, {-1, 0}),
                     EdgeContrast(picture, {middle.x(), control.bottom() + 1}, {0, -1}),
                     EdgeContrast(picture, {middle.x(), top - 1}, {0, 1})});
}

const QHash<QString, std::function<QWidget *()>> Controls{
    {"field", [] { return new QLineEdit; }},
    {"list", [] { return new ListBox; }},
    {"grid", [] { return new Grid; }},
    {"drop-down list", [] { return new DropDownList; }},
    {"button", [] { return new QPushButton("Press"); }},
    {"frame",
     [] {
         auto *frame = new QFrame;
         frame->setFrameShape(QFrame::StyledPanel);
         frame->setMinimumHeight(40);
         return frame;
     }},
    {"title panel",
     [] {
         auto *panel = new QFrame;
         panel->setMinimumHeight(40);
         StyleTitlePanel(panel);
         return panel;
     }},
};

} // namespace

class gui_clearedges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QApplication::setPalette(DarkPalette()); }
    void cleanup()
    {
        QApplication::setStyle(new ClearEdges("Fusion"));
        QApplication::setPalette(LightPalette());
    }

    void EdgesAreSeenOnADarkDesktop_data()
    {
        QTest::addColumn<QString>("control");
        for (auto control = Controls.begin(); control != Controls.end(); ++control)
            QTest::newRow(qPrintable(control.key())) << control.key();
    }
    void EdgesAreSeenOnADarkDesktop()
    {
        QFETCH(QString, control);
        QWidget *widget = Controls[control]();
        const Stage stage(widget);
        const double weakest = WeakestEdge(stage.Picture, widget->geometry(), widget->geometry().top());
        QVERIFY2(weakest >= 3, qPrintable(QString::number(weakest)));
    }

    void TheFrameOfAGroupIsSeenBelowItsTitle()
    {
        auto *group = new QGroupBox("Print");
        group->setMinimumHeight(100);
        const Stage stage(group);
        const QRect place = group->geometry();
        // The upper edge is somewhere below the title; nothing else is drawn on the right of it.
        int top = place.top();
        double upper = 1;
        for (; top < place.center().y() && upper < 3; ++top)
            upper = Contrast(stage.Picture.pixelColor(place.center().x(), top),
                             stage.Picture.pixelColor(place.center().x(), place.top() - 1));
        QVERIFY(upper >= 3);
        QVERIFY(top > place.top() + 10 && top < place.top() + 40);
        QVERIFY(WeakestEdge(stage.Picture, place, top - 1) >= 3);
    }

    void OptionsAreSeen_data()
    {
        QTest::addColumn<bool>("round");
        QTest::addColumn<bool>("checked");
        QTest::newRow("radio button") << true << false;
        QTest::newRow("radio button, selected") << true << true;
        QTest::newRow("check box") << false << false;
        QTest::newRow("check box, checked") << false << true;
    }
    void OptionsAreSeen()
    {
        QFETCH(bool, round);
        QFETCH(bool, checked);
        QAbstractButton *option = round ? static_cast<QAbstractButton *>(new QRadioButton) : new QCheckBox;
        option->setChecked(checked);
        const Stage stage(option);
        QStyleOptionButton look;
        look.initFrom(option);
        const QRect mark =
            option->style()
                ->subElementRect(round ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &look, option)
                .translated(option->pos());
        const double weakest = WeakestEdge(stage.Picture, mark, mark.top());
        QVERIFY2(weakest >= 3, qPrintable(QString::number(weakest)));
    }

    void TheFocusIsSeen_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<bool>("dark");
        for (const char *control : {"field", "list", "grid"})
            for (const bool dark : {false, true})
                QTest::addRow("%s, %s", control, dark ? "dark" : "light") << QString(control) << dark;
    }
    void TheFocusIsSeen()
    {
        QFETCH(QString, control);
        QFETCH(bool, dark);
        QApplication::setPalette(dark ? DarkPalette() : LightPalette());
        QWidget *widget = Controls[control]();
        Stage stage(widget);
        widget->setFocus();
        QCoreApplication::processEvents();
        const QImage focused = stage.Window.grab().toImage();
        const QPoint edge(widget->geometry().left(), widget->geometry().center().y());
        double change = 1; // of the edge, by the focus
        double contrast = 1;
        for (int x = 0; x < 2; ++x) {
            const QColor with = focused.pixelColor(edge + QPoint(x, 0));
            change = qMax(change, double(qAbs(with.hslHue() - stage.Picture.pixelColor(edge + QPoint(x, 0)).hslHue())));
            contrast = qMax(contrast, Contrast(with, focused.pixelColor(edge - QPoint(2, 0))));
        }
        QVERIFY2(change > 30, "the edge has the same hue with the focus and without");
        QVERIFY2(contrast >= 3, qPrintable(QString::number(contrast)));
    }

    // The light look is the toolkit's own.
    void ALightDesktopIsLeftAlone()
    {
        QApplication::setPalette(LightPalette());
        const auto picture = [](const QString &control) {
            const Stage stage(Controls[control]());
            return stage.Picture;
        };
        for (auto control = Controls.begin(); control != Controls.end(); ++control) {
            QApplication::setStyle("Fusion");
            const QImage plain = picture(control.key());
            QApplication::setStyle(new ClearEdges("Fusion"));
            QCOMPARE(picture(control.key()), plain);
        }
    }

    void AStyleWithEdgesOfItsOwnKeepsThem()
    {
        const auto picture = [] {
            const Stage stage(new QLineEdit);
            return stage.Picture;
        };
        QApplication::setStyle("Windows");
        const QImage plain = picture();
        QApplication::setStyle(new ClearEdges("Windows"));
        QCOMPARE(static_cast<QProxyStyle *>(QApplication::style())->baseStyle()->name(), "windows");
        QCOMPARE(picture(), plain);
    }
};

REGISTER_TEST(gui_clearedges)
#include "gui_clearedges.moc"
