// What fields do in every window: long texts are seen from their beginning, a price is formatted when it is left. And
// the spinner at a field.
#include "GuiDesk.h"
#include "TestProgram.h"
#include "platform/controls/Fields.h"
#include "platform/controls/UpDown.h"

#include <QHBoxLayout>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString LongText = u"The beginning of a text that is much longer than the field in which it stands"_s;

class Entry : public Form
{
public:
    Entry()
    {
        auto *layout = new QVBoxLayout(this);
        for (QLineEdit *field : {First, Price})
            layout->addWidget(field);
        resize(150, 80);
        CurrencyWhenLeft({Price});
        EnterRing({First, Price});
    }
    void Load() override { First->setText(LongText); }
    QLineEdit *First = new QLineEdit;
    QLineEdit *Price = new QLineEdit;
};

Entry &Present()
{
    TheWindows.Register(u"entry"_s, [] { return new Entry; });
    Show(u"entry"_s);
    return static_cast<Entry &>(*TheWindows.Loaded(u"entry"_s));
}

} // namespace

class gui_fields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WhatCodeWritesIsSeenFromItsBeginning()
    {
        GuiDesk desk;
        Entry &entry = Present();
        QCOMPARE(entry.First->cursorPosition(), 0); // selected as a whole when the window came
        QCOMPARE(entry.First->selectedText(), LongText);
        entry.Price->setText(LongText);
        QCOMPARE(entry.Price->cursorPosition(), 0);
        entry.First->setText(u"Again: "_s + LongText); // also under the caret
        QCOMPARE(entry.First->cursorPosition(), 0);
    }

    void WhatTheUserTypesStaysInView()
    {
        GuiDesk desk;
        Entry &entry = Present();
        QTest::keyClicks(entry.First, "typed");
        QCOMPARE(entry.First->text(), u"typed"_s);
        QCOMPARE(entry.First->cursorPosition(), 5);
        QTest::keyClick(entry.First, Qt::Key_Backspace);
        QCOMPARE(entry.First->text(), u"type"_s);
        QCOMPARE(entry.First->cursorPosition(), 4);
    }

    void AFieldThatOnlyShowsIsNeverGrey()
    {
        const QPalette before = QApplication::palette();
        QLineEdit field(LongText);
        ShowOnly(&field);
        field.setEnabled(false);
        const auto ink = [&] { return field.palette().color(QPalette::Text); };
        QVERIFY(field.isReadOnly());
        QCOMPARE(field.palette().color(QPalette::Base), QColor(Qt::transparent));
        QCOMPARE(ink(), before.color(QPalette::Active, QPalette::Text));
        QVERIFY(ink() != before.color(QPalette::Disabled, QPalette::Text));
        QPalette after = before; // the desktop turns dark
        after.setColor(QPalette::Text, QColor(0xe0, 0xe0, 0xe0));
        after.setColor(QPalette::Disabled, QPalette::Text, QColor(0x80, 0x80, 0x80));
        QApplication::setPalette(after);
        QEvent told(QEvent::ApplicationPaletteChange); // as widgets hear of it while the program runs
        QCoreApplication::sendEvent(&field, &told);
        const QColor dark = ink();
        field.setEnabled(true);
        const QColor enabled = ink();
        QApplication::setPalette(before);
        QCOMPARE(dark, QColor(0xe0, 0xe0, 0xe0));
        QCOMPARE(enabled, QColor(0xe0, 0xe0, 0xe0));
        QCOMPARE(field.palette().color(QPalette::Base), QColor(Qt::transparent));
    }

    void EnterAndTheMouseSelectFromTheEndToTheBeginning()
    {
        GuiDesk desk;
        Entry &entry = Present();
        entry.Price->setText(LongText);
        QTest::keyClick(entry.First, Qt::Key_Return);
        QCOMPARE(entry.Price->selectedText(), LongText);
        QCOMPARE(entry.Price->cursorPosition(), 0);
        QTest::mouseClick(entry.First, Qt::LeftButton);
        QCOMPARE(entry.First->selectedText(), LongText);
        QCOMPARE(entry.First->cursorPosition(), 0);
    }

    void APriceIsFormattedWhenItIsLeft_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a number") << u"1250"_s << u"$1,250.00"_s;
        QTest::newRow("a negative one") << u"-3.5"_s << u"($3.50)"_s;
        QTest::newRow("currency already") << u"$1,250.00"_s << u"$1,250.00"_s;
        QTest::newRow("no number") << u"abc"_s << u"abc"_s;
        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("more than money can be") << u"12345678901234567890"_s << u"$12,345,678,901,234,567,890.00"_s;
    }
    void APriceIsFormattedWhenItIsLeft()
    {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        GuiDesk desk;
        Entry &entry = Present();
        entry.FocusOn(entry.Price);
        entry.Price->clear();
        QTest::keyClicks(entry.Price, typed);
        QCOMPARE(entry.Price->text(), typed);
        entry.FocusOn(entry.First);
        QCOMPARE(entry.Price->text(), shown);
        QCOMPARE(entry.Price->cursorPosition(), 0);
    }

    void TheSpinnerIsAsHighAsItsFieldAndStacked()
    {
        QWidget window;
        auto *row = new QHBoxLayout(&window);
        row->setSpacing(0);
        auto *field = new QLineEdit(u"12"_s);
        auto *spinner = new UpDown;
        row->addWidget(field);
        row->addWidget(spinner);
        spinner->SetBuddy(field);
        window.resize(300, 200);
        window.show();
        QCoreApplication::processEvents();
        auto *up = spinner->findChild<QWidget *>(u"Up"_s), *down = spinner->findChild<QWidget *>(u"Down"_s);
        QCOMPARE(spinner->height(), field->height());
        QCOMPARE(spinner->x(), field->geometry().right() + 1);
        QCOMPARE(spinner->y(), field->y());
        QCOMPARE(up->x(), down->x());
        QCOMPARE(down->y(), up->y() + up->height());
        QCOMPARE(up->height() + down->height(), spinner->height());
        QVERIFY(qAbs(up->height() - down->height()) <= 1);

        QSignalSpy steps(spinner, &UpDown::Stepped);
        QTest::mouseClick(up, Qt::LeftButton);
        QTest::mouseClick(down, Qt::LeftButton);
        QTest::keyClick(field, Qt::Key_Up);
        QTest::keyClick(field, Qt::Key_Down);
        QTest::keyClick(field, Qt::Key_Left); // that one is the caret's
        QList<int> stepped;
        for (const QList<QVariant> &step : steps)
            stepped += step.first().toInt();
        QCOMPARE(stepped, (QList<int>{1, -1, 1, -1}));
    }
};

REGISTER_TEST(gui_fields)
#include "gui_fields.moc"
