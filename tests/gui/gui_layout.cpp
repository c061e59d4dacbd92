// Every declared window, empty and filled, on light and dark desktops and with small and large letters: texts have the
// room they need, nothing overlaps or sticks out, access keys differ, every control says what it is.
#include "Households.h"

#include "GuiDesk.h"
#include "TestProgram.h"
#include "Windows.h"
#include "platform/controls/Theme.h"

#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Letters of menu entries that the design gives twice.
const QStringList SharedMenuLetters{u"mnuTipOfTheDay mnuTallymereTutor"_s};

/// Access keys that the design gives twice in a window; the key goes round among them.
const QStringList SharedAccessKeys{u"cmdAddPayPeriod cmdAddExtraItem"_s, u"cmdDeletePayPeriod cmdDeleteExtraItem"_s};

constexpr QSize SmallestScreen{1280, 720}; // what a window may cover with letters of the usual size
constexpr double ReadableContrast = 4.5;
constexpr int LongestList = 2000;
constexpr int TitleBarHeight = 28; // pixels of a usual one
constexpr int FrameWidth = 32;     // pixels of the widest, on both sides

const QString LongestDate = u"September 30, 2004"_s;
const QString LongestAmount = u"($99,999.99)"_s;

QString Size(const QSize &size)
{
    return u"%1 x %2"_s.arg(size.width()).arg(size.height());
}

bool IsSmaller(const QSize &room, const QSize &need)
{
    return room.width() < need.width() || room.height() < need.height();
}

/// The controls of a window, without the parts that the toolkit puts inside of controls.
QList<QWidget *> Controls(const Form &form)
{
    QList<QWidget *> controls;
    for (QWidget *widget : form.findChildren<QWidget *>())
        if (widget->window() == &form && widget->isVisible() && !widget->objectName().isEmpty() &&
            !widget->objectName().startsWith(u"qt_"_s))
            controls += widget;
    return controls;
}

/// The width that a field has for its text.
int TextRoom(const QLineEdit &field)
{
    constexpr int toolkitsMargin = 2; // on either side, of the field's own
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.rect = field.contentsRect();
    option.lineWidth = field.hasFrame() ? field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field) : 0;
    const QMargins margins = field.textMargins();
    return field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field).width() - margins.left() -
           margins.right() - 2 * toolkitsMargin;
}

/// The longest text of its kind where a field shows a long date or an amount, else an empty one.
QString LongestOfItsKind(const QString &text)
{
    static const QRegularExpression longDate(u"^[A-Z][a-z]+ \\d{1,2}, \\d{4}$"_s);
    if (longDate.match(text).hasMatch())
        return LongestDate;
    return text.contains(u'$') ? LongestAmount : QString();
}

class Inspector
{
public:
    explicit Inspector(Form &form) : m_form(form) {}

    /// What is wrong with the window as it stands; contents: also whether lists and grids show theirs in full width.
    QStringList Faults(bool contents)
    {
        m_faults.clear();
        const QList<QWidget *> controls = Controls(m_form);
        for (QWidget *control : controls) {
            LookAtRoom(*control, contents);
            LookAtPlace(*control);
            LookAtName(*control);
            LookAtContrast(*control);
        }
        LookForOverlaps(controls);
        LookAtAccessKeys(controls);
        for (const QMenu *menu : m_form.findChildren<QMenu *>())
            LookAtLetters(menu->actions(), menu->objectName());
        for (const QMenuBar *bar : m_form.findChildren<QMenuBar *>())
            LookAtLetters(bar->actions(), bar->objectName());
        return m_faults;
    }

private:
    void Fault(const QWidget &control, const QString &what) { m_faults += control.objectName() + u": "_s + what; }

    void LookAtRoom(QWidget &control, bool contents)
    {
        if (auto *label = qobject_cast<QLabel *>(&control)) {
            if (label->text().isEmpty())
                return;
            if (label->wordWrap() && label->heightForWidth(label->width()) > label->height())
                Fault(control,
                      u"its lines need %1 pixels of height and have %2"_s.arg(label->heightForWidth(label->width()))
                          .arg(label->height()));
            else if (!label->wordWrap() && IsSmaller(label->size(), label->sizeHint()))
                Fault(control,
                      u"\"%1\" needs %2 and has %3"_s.arg(label->text(), Size(label->sizeHint()), Size(label->size())));
        } else if (auto *button = qobject_cast<QAbstractButton *>(&control)) {
            if (IsSmaller(button->size(), button->sizeHint()))
                Fault(control, u"\"%1\" needs %2 and has %3"_s.arg(button->text(), Size(button->sizeHint()),
                                                                   Size(button->size())));
        } else if (auto *group = qobject_cast<QGroupBox *>(&control)) {
            if (group->width() < group->minimumSizeHint().width())
                Fault(control, u"its title is cut"_s);
        } else if (auto *field = qobject_cast<QLineEdit *>(&control)) {
            if (field->height() < field->minimumSizeHint().height())
                Fault(control, u"its text is cut from above or below"_s);
            if (contents && field->isReadOnly() &&
                field->fontMetrics().horizontalAdvance(field->text()) > field->width())
                Fault(control, u"it does not show the whole of \"%1\""_s.arg(field->text()));
        } else if (auto *combo = qobject_cast<QComboBox *>(&control)) {
            if (IsSmaller(combo->size(), combo->minimumSizeHint()))
                Fault(control, u"its rows are cut"_s);
        } else if (auto *list = qobject_cast<QListWidget *>(&control)) {
            LookAtRows(*list, contents);
        } else if (auto *table = qobject_cast<QTableView *>(&control)) {
            LookAtCells(*table, contents);
        }
    }

    void LookAtRows(const QListWidget &list, bool contents)
    {
        for (int row = 0; row < qMin(list.count(), LongestList); ++row) {
            const QRect room = list.visualItemRect(list.item(row));
            if (room.height() < list.fontMetrics().height())
                Fault(list, u"row %1 is cut from above or below"_s.arg(row));
            if (contents && list.fontMetrics().horizontalAdvance(list.item(row)->text()) > list.viewport()->width())
                Fault(list, u"it does not show the whole of \"%1\""_s.arg(list.item(row)->text()));
        }
    }

    void LookAtCells(const QTableView &table, bool contents)
    {
        if (table.verticalHeader()->defaultSectionSize() < table.fontMetrics().height())
            Fault(table, u"its rows are cut from above or below"_s);
        if (!contents)
            return;
        const int screen = m_form.screen()->availableSize().width();
        if (table.horizontalScrollBar()->maximum() > 0 && m_form.width() < screen - FrameWidth)
            Fault(table, u"it has to be scrolled sideways"_s);
        const QHeaderView &heading = *table.horizontalHeader();
        for (int column = 0; column < table.model()->columnCount(); ++column) {
            const int room = table.columnWidth(column);
            const int need = qMax(static_cast<const QAbstractItemView &>(table).sizeHintForColumn(column),
                                  heading.isHidden() ? 0 : heading.sectionSizeHint(column));
            if (room > 0 && need > room) // a column without any width is hidden by design
                Fault(table, u"column %1 needs %2 pixels and has %3"_s.arg(column).arg(need).arg(room));
        }
    }

    void LookAtPlace(const QWidget &control)
    {
        const QWidget *parent = control.parentWidget();
        const auto *area = qobject_cast<QScrollArea *>(parent->parentWidget());
        if (area && area->widget() == &control)
            return;
        if (!parent->rect().contains(control.geometry()))
            Fault(control, u"it sticks out of what holds it"_s);
    }

    void LookForOverlaps(const QList<QWidget *> &controls)
    {
        for (qsizetype i = 0; i < controls.size(); ++i)
            for (qsizetype j = i + 1; j < controls.size(); ++j)
                if (controls[i]->parentWidget() == controls[j]->parentWidget() &&
                    controls[i]->geometry().intersects(controls[j]->geometry()))
                    Fault(*controls[i], u"it overlaps "_s + controls[j]->objectName());
    }

    void LookAtName(QWidget &control)
    {
        const bool takesFocus = control.focusPolicy() & Qt::TabFocus;
        if (!takesFocus && !qobject_cast<QAbstractButton *>(&control))
            return;
        const QAccessibleInterface *voice = QAccessible::queryAccessibleInterface(&control);
        if (!voice || voice->text(QAccessible::Name).isEmpty())
            Fault(control, u"it does not say what it is"_s);
    }

    void LookAtContrast(const QWidget &control)
    {
        const auto *label = qobject_cast<const QLabel *>(&control);
        if (!label || label->text().isEmpty() || !label->isEnabled())
            return;
        // A label has no ground of its own: it lies on the first one behind it.
        const double contrast =
            Contrast(label->palette().color(label->foregroundRole()),
                     label->parentWidget()->palette().color(label->parentWidget()->backgroundRole()));
        if (contrast < ReadableContrast)
            Fault(control, u"its contrast is %1 to 1"_s.arg(contrast, 0, 'f', 1));
    }

    void LookAtAccessKeys(const QList<QWidget *> &controls)
    {
        QHash<QString, QString> owners;
        for (const QWidget *control : controls) {
            QString text;
            if (const auto *label = qobject_cast<const QLabel *>(control); label && label->buddy())
                text = label->text();
            else if (const auto *button = qobject_cast<const QAbstractButton *>(control))
                text = button->text();
            else if (const auto *group = qobject_cast<const QGroupBox *>(control))
                text = group->title();
            const QString key = QKeySequence::mnemonic(text).toString();
            if (key.isEmpty())
                continue;
            if (owners.contains(key) && !SharedAccessKeys.contains(owners.value(key) + u' ' + control->objectName()))
                Fault(*control, u"%1 is taken by %2"_s.arg(key, owners.value(key)));
            owners.insert(key, control->objectName());
        }
    }

    void LookAtLetters(const QList<QAction *> &actions, const QString &menu)
    {
        QHash<QString, QString> owners;
        for (const QAction *action : actions) {
            const QString letter = QKeySequence::mnemonic(action->text()).toString();
            if (letter.isEmpty())
                continue;
            const QString pair = owners.value(letter) + u' ' + action->objectName();
            if (owners.contains(letter) && !SharedMenuLetters.contains(pair))
                m_faults += u"%1: %2 share %3"_s.arg(menu, pair, letter);
            owners.insert(letter, action->objectName());
        }
    }

    Form &m_form;
    QStringList m_faults;
};

} // namespace

class gui_layout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Else the filled household would be looked at in windows that are empty all the same.
    void TheFilledHouseholdFillsTheWindows_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QStringList>("fields");
        QTest::newRow("creditors") << u"frmCreditors"_s
                                   << QStringList{u"txtCreditorDueDate"_s, u"txtCreditorAmount"_s, u"txtCreditor"_s};
        QTest::newRow("regular items") << u"frmRegulars"_s << QStringList{u"txtRegularItem"_s, u"txtRegularAmount"_s};
        QTest::newRow("extra items") << u"frmExtras"_s
                                     << QStringList{u"lblPayPeriod"_s, u"txtExtraItemAmount"_s, u"txtExtraItem"_s};
        QTest::newRow("projects") << u"frmProjects"_s
                                  << QStringList{u"txtProject"_s, u"txtProjectAmount"_s, u"txtProjectCompletionDate"_s};
        QTest::newRow("wages") << u"frmCalculateWages"_s
                               << QStringList{u"txtTotalRegularPay"_s, u"txtTotalOvertimePay"_s, u"txtYearlyGross"_s};
        QTest::newRow("loan payments") << u"frmPaymentCalculator"_s << QStringList{u"lblMonthlyPayment"_s};
        QTest::newRow("interest rates") << u"frmInterestRateCalculator"_s << QStringList{u"lblInterestRate"_s};
        QTest::newRow("savings") << u"frmSavings"_s << QStringList{u"lblFutureValue"_s};
    }
    void TheFilledHouseholdFillsTheWindows()
    {
        QFETCH(QString, window);
        QFETCH(QStringList, fields);
        GuiDesk desk;
        LayHouseholdOf(desk, Household::Filled);
        QVERIFY(ShowAtWork(window, Household::Filled));
        desk.TakeAll(); // what the windows do is the matter of their own tests
        QCOMPARE(ActiveWindow(), window);
        for (const QString &field : fields)
            QVERIFY2(!TextOf(window, field).isEmpty(), qPrintable(field));
    }

    void TheFilledHouseholdFillsTheGrids_data()
    {
        QTest::addColumn<QString>("window");
        QTest::addColumn<QString>("grid");
        QTest::addColumn<int>("rows"); // below the heading, without the empty ones
        QTest::newRow("the installments of a project") << u"frmViewProject"_s << u"grdViewProject"_s << 6;
        QTest::newRow("payments, years and total of a loan")
            << u"frmAmortization"_s << u"grdAmortization"_s << 360 + 30 + 1;
    }
    void TheFilledHouseholdFillsTheGrids()
    {
        QFETCH(QString, window);
        QFETCH(QString, grid);
        GuiDesk desk;
        LayHouseholdOf(desk, Household::Filled);
        QVERIFY(ShowAtWork(window, Household::Filled));
        desk.TakeAll(); // what the windows do is the matter of their own tests
        QCOMPARE(ActiveWindow(), window);
        QTEST(int(GridRows(window, grid, 1).size()), "rows");
    }

    // Small screens are set up by the rows of CMakeLists.txt.
    void EveryWindowFitsTheScreen_data()
    {
        QTest::addColumn<QString>("view");
        QTest::addColumn<bool>("filled");
        RegisterWindows();
        const QStringList views = Views();
        TheWindows.Reset();
        for (const QString &view : views)
            for (const bool filled : {false, true})
                QTest::addRow("%s, %s", qPrintable(view), filled ? "filled" : "empty") << view << filled;
    }
    void EveryWindowFitsTheScreen()
    {
        QFETCH(QString, view);
        QFETCH(bool, filled);
        UseDesktop(false, UsualFontSize);
        const Household household = filled ? Household::Filled : Household::Empty;
        GuiDesk desk;
        LayHouseholdOf(desk, household);
        QVERIFY(ShowAtWork(view, household));
        desk.TakeAll(); // what the windows do is the matter of their own tests
        desk.Messages.clear();
        Form &form = *TheWindows.Loaded(WindowOf(view));
        const QSize room = form.screen()->availableSize() - QSize(0, TitleBarHeight);
        QVERIFY2(!IsSmaller(room, form.size()),
                 qPrintable(u"it opens at %1 and has %2"_s.arg(Size(form.size()), Size(room))));
        QCOMPARE(Inspector(form).Faults(true).join(u"; "_s), QString());
    }

    void EveryDateAndEveryAmountFitsItsField_data()
    {
        QTest::addColumn<QString>("view");
        QTest::addColumn<double>("fontSize");
        RegisterWindows();
        const QStringList views = Views();
        TheWindows.Reset();
        for (const QString &view : views)
            for (const double fontSize : {UsualFontSize, 2 * UsualFontSize})
                QTest::addRow("%s, %g points", qPrintable(view), fontSize) << view << fontSize;
    }
    void EveryDateAndEveryAmountFitsItsField()
    {
        // What is known to show one; windows to come are looked at without being named here.
        static const QHash<QString, QStringList> known{
            {u"frmAverageNetPercentage"_s, {u"txtFirstCheckGross"_s, u"txtSecondCheckNet"_s}},
            {u"frmCalculateWages"_s, {u"txtHourlyPayRate"_s, u"txtOvertimeRate"_s, u"txtYearlyGross"_s}},
            {u"frmCreditors"_s, {u"txtCreditorAmount"_s}},
            {u"frmCurrentShoppingList"_s, {u"txtUnitPrice"_s, u"txtCouponValue"_s}},
            {u"frmEnvironmentSettings"_s, {u"txtPaycheckAmount"_s}},
            {u"frmExtras"_s, {u"txtExtraItemAmount"_s}},
            {u"frmGettingStarted.pnlStartBudget2"_s, {u"txtAverageTakeHomePay"_s}},
            {u"frmGettingStarted.pnlStartBudget6"_s, {u"txtCreditorAmount"_s}},
            {u"frmGettingStarted.pnlStartBudget8"_s, {u"txtRegularItemAmount"_s}},
            {u"frmInterestRateCalculator"_s, {u"txtBorrowedAmount"_s, u"txtMonthlyPayments"_s}},
            {u"frmPaymentCalculator"_s, {u"txtBorrowedAmount"_s}},
            {u"frmProjects"_s, {u"txtProjectAmount"_s, u"txtProjectCompletionDate"_s}},
            {u"frmRegulars"_s, {u"txtRegularAmount"_s}},
            {u"frmSavings"_s, {u"txtMonthlyDeposits"_s, u"txtCurrentSavingsAmount"_s}},
            {u"frmSetCurrentPayPeriod"_s, {u"txtCurrentPayPeriod"_s}},
        };
        QFETCH(QString, view);
        QFETCH(double, fontSize);
        UseDesktop(false, fontSize);
        GuiDesk desk;
        LayHouseholdOf(desk, Household::Filled);
        QVERIFY(ShowAtWork(view, Household::Filled));
        desk.TakeAll(); // what the windows do is the matter of their own tests
        desk.Messages.clear();
        Form &form = *TheWindows.Loaded(WindowOf(view));
        form.resize(form.minimumSizeHint());
        Settle();
        QStringList seen;
        QStringList clipped;
        for (const QLineEdit *field : form.findChildren<QLineEdit *>()) {
            const QString longest = LongestOfItsKind(field->text());
            if (longest.isEmpty())
                continue;
            seen += field->objectName();
            const int need = field->fontMetrics().horizontalAdvance(longest);
            if (need > TextRoom(*field))
                clipped += u"%1 needs %2 pixels and has %3"_s.arg(field->objectName()).arg(need).arg(TextRoom(*field));
        }
        for (const QString &field : known.value(view))
            QVERIFY2(seen.contains(field), qPrintable(field + u" shows neither a date nor an amount"_s));
        QCOMPARE(clipped.join(u"; "_s), QString());
    }

    void EveryFieldSaysUnderThePointerWhatItTakes()
    {
        GuiDesk desk;
        LayHouseholdOf(desk, Household::Empty);
        int described = 0;
        for (const QString &window : TheWindows.Names()) {
            QVERIFY(ShowAtWork(window, Household::Empty));
            desk.TakeAll(); // what the windows do is the matter of their own tests
            for (const QLineEdit *field : TheWindows.Loaded(window)->findChildren<QLineEdit *>()) {
                if (field->accessibleDescription().isEmpty())
                    continue;
                ++described;
                QVERIFY2(!field->toolTip().isEmpty(), qPrintable(field->objectName()));
            }
        }
        desk.Messages.clear();
        QVERIFY(described > 10);
        QCOMPARE(Find(u"frmEnvironmentSettings"_s, u"txtPaycheckAmount"_s).toolTip(), u"Net amount of one paycheck"_s);
    }

    void EveryWindowHasRoomForWhatItShows_data()
    {
        QTest::addColumn<QString>("view");
        QTest::addColumn<bool>("filled");
        QTest::addColumn<bool>("dark");
        QTest::addColumn<double>("fontSize");
        RegisterWindows();
        const QStringList views = Views();
        TheWindows.Reset();
        QVERIFY(views.contains(u"frmMain"_s));
        QVERIFY(views.contains(u"frmGettingStarted.pnlStartPayOff2"_s));
        for (const QString &view : views)
            for (const bool filled : {false, true})
                for (const bool dark : {false, true})
                    for (const double fontSize : {UsualFontSize, 1.5 * UsualFontSize, 2 * UsualFontSize}) {
                        // A further panel shows the same with either household, and the colours are those of its
                        // window.
                        if (view.contains(u'.') && (!filled || (dark && fontSize != UsualFontSize)))
                            continue;
                        QTest::addRow("%s, %s, %s, %g points", qPrintable(view), filled ? "filled" : "empty",
                                      dark ? "dark" : "light", fontSize)
                            << view << filled << dark << fontSize;
                    }
    }
    void EveryWindowHasRoomForWhatItShows()
    {
        QFETCH(QString, view);
        QFETCH(bool, filled);
        QFETCH(bool, dark);
        QFETCH(double, fontSize);
        UseDesktop(dark, fontSize);
        const Household household = filled ? Household::Filled : Household::Empty;
        GuiDesk desk;
        LayHouseholdOf(desk, household);
        QVERIFY(ShowAtWork(view, household));
        desk.TakeAll(); // what the windows do is the matter of their own tests
        Form &form = *TheWindows.Loaded(WindowOf(view));
        QVERIFY2(!IsSmaller(form.size(), form.minimumSizeHint()), "the window opens too small for its controls");
        // A statement opens as tall as its lines, up to the screen; what is empty fits the smallest one.
        const QSize most = filled ? form.screen()->availableSize() : SmallestScreen;
        if (fontSize == UsualFontSize)
            QVERIFY2(!IsSmaller(most, form.size()), qPrintable(u"it opens at "_s + Size(form.size())));
        QCOMPARE(Inspector(form).Faults(true).join(u"; "_s), QString());

        form.resize(form.minimumSizeHint());
        Settle();
        QCOMPARE(Inspector(form).Faults(false).join(u"; "_s), QString());
    }
};

REGISTER_TEST(gui_layout)
#include "gui_layout.moc"
