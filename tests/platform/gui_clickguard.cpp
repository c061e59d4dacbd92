// A double-click on what the first click closes: its second press must not reach what lies beneath.
#include "GuiDesk.h"
#include "TestProgram.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window with a button that fills it and a list of one row.
class Plain : public Form
{
public:
    Plain()
    {
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        Button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        layout->addWidget(Button);
        layout->addWidget(Field);
        resize(200, 200);
        connect(Button, &QPushButton::clicked, this, [this] { ++Clicks; });
    }
    QPushButton *Button = new QPushButton;
    QLineEdit *Field = new QLineEdit;
    int Clicks = 0;
};

/// Two windows that cover each other: a click on the upper one hides it.
struct Stage {
    Stage()
    {
        for (const QString &name : {u"lower"_s, u"upper"_s})
            TheWindows.Register(name, [] { return new Plain; });
        TheWindows.Show(u"lower"_s);
        Settle(); // it stands, and takes the upper one along no more
        TheWindows.Show(u"upper"_s);
        Lower().Field->setFocus();
        QObject::connect(Upper().Button, &QPushButton::clicked, [] { TheWindows.Hide(u"upper"_s); });
        Settle();
    }
    static Plain &Lower() { return static_cast<Plain &>(TheWindows.Touch(u"lower"_s)); }
    static Plain &Upper() { return static_cast<Plain &>(TheWindows.Touch(u"upper"_s)); }

    /// A click so many milliseconds after the last press, at a place on the screen.
    static void Click(QPushButton &button, int later, QPoint moved = {})
    {
        QTest::lastMouseTimestamp = LastPress + later - 1; // the press itself takes one
        LastPress += later;
        const QPoint place = button.mapFromGlobal(Place + moved);
        QTest::mousePress(&button, Qt::LeftButton, {}, place);
        QTest::lastMouseTimestamp = LastPress;
        QTest::mouseRelease(&button, Qt::LeftButton, {}, place);
        Settle();
    }
    void Start()
    {
        LastPress = QTest::lastMouseTimestamp;
        Place = Upper().Button->mapToGlobal(QPoint(50, 50));
        Lower().move(Upper().pos());
        Click(*Upper().Button, 5000);
    }

    GuiDesk Desk;
    inline static int LastPress;
    inline static QPoint Place;
};

const int Quick = 60;

} // namespace

class gui_clickguard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheSecondPressReachesNothing()
    {
        Stage stage;
        stage.Start();
        QVERIFY(!stage.Upper().isVisible());
        stage.Click(*stage.Lower().Button, Quick);
        QCOMPARE(stage.Lower().Clicks, 0);
        QCOMPARE(stage.Lower().FocusControl(), stage.Lower().Field); // nor does it move the focus
        stage.Click(*stage.Lower().Button, Quick);
        QCOMPARE(stage.Lower().Clicks, 0); // nor does a third one
        stage.Click(*stage.Lower().Button, QApplication::doubleClickInterval() + 1);
        QCOMPARE(stage.Lower().Clicks, 1);
        stage.Click(*stage.Lower().Button, Quick); // what did not close is clicked as quickly as one likes
        QCOMPARE(stage.Lower().Clicks, 2);
    }

    void TheToolkitsDoubleClickIsSwallowedToo()
    {
        Stage stage;
        stage.Start();
        int seen = 0;
        connect(stage.Lower().Button, &QPushButton::pressed, this, [&] { ++seen; });
        QTest::lastMouseTimestamp = Stage::LastPress + Quick;
        const QPoint place = stage.Lower().Button->mapFromGlobal(Stage::Place);
        QTest::mouseDClick(stage.Lower().Button, Qt::LeftButton, {}, place);
        QTest::mouseRelease(stage.Lower().Button, Qt::LeftButton, {}, place);
        QCOMPARE(seen, 0);
    }

    void OnceTheTimeIsOverAPressIsAClick()
    {
        Stage stage;
        stage.Start();
        stage.Click(*stage.Lower().Button, QApplication::doubleClickInterval());
        QCOMPARE(stage.Lower().Clicks, 1);
    }

    void APressElsewhereIsAClick()
    {
        Stage stage;
        stage.Start();
        stage.Click(*stage.Lower().Button, Quick, QPoint(60, 0));
        QCOMPARE(stage.Lower().Clicks, 1);
    }

    void AShakingHandIsStillInTheSamePlace()
    {
        Stage stage;
        stage.Start();
        stage.Click(*stage.Lower().Button, Quick, QPoint(6, -6));
        QCOMPARE(stage.Lower().Clicks, 0);
    }

    void AWindowThatAnotherOneHidesTakesNoClickWithIt()
    {
        Stage stage;
        connect(stage.Lower().Button, &QPushButton::clicked, this, [] { TheWindows.Hide(u"upper"_s); });
        Stage::LastPress = QTest::lastMouseTimestamp;
        Stage::Place = stage.Lower().Button->mapToGlobal(QPoint(50, 50));
        stage.Click(*stage.Lower().Button, 5000);
        QVERIFY(!stage.Upper().isVisible());
        stage.Click(*stage.Lower().Button, Quick);
        QCOMPARE(stage.Lower().Clicks, 2);
    }

    // A menu closes with each pick; what is clicked next is meant.
    void APopupMayClose()
    {
        Stage stage;
        QPushButton popup;
        popup.setWindowFlags(Qt::Popup);
        popup.resize(200, 200);
        popup.move(stage.Upper().pos());
        popup.show();
        connect(&popup, &QPushButton::clicked, &popup, &QWidget::hide);
        Stage::LastPress = QTest::lastMouseTimestamp;
        Stage::Place = popup.mapToGlobal(QPoint(50, 50));
        stage.Lower().move(popup.pos());
        stage.Click(popup, 5000);
        QVERIFY(!popup.isVisible());
        stage.Click(*stage.Lower().Button, Quick);
        QCOMPARE(stage.Lower().Clicks, 1);
    }
};

REGISTER_TEST(gui_clickguard)
#include "gui_clickguard.moc"
