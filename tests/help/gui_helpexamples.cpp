// The pages of the help against the windows: the captions that they name exist, and their examples come out as they
// say.
#include "Captions.h"
#include "GuiDesk.h"
#include "Households.h"
#include "Pages.h"
#include "TestProgram.h"
#include "platform/controls/DropDownList.h"

#include <QAction>
#include <QEventLoop>
#include <QTabBar>
#include <QThread>
#include <QTimer>

namespace {

const QString MainWindow = u"frmMain"_s;
const QDateTime TimeOfExamples(QDate(2026, 1, 5), QTime(9, 30));

QString FolderOf(const QString &window)
{
    for (const QString &path : SourceFiles({window + u".ui"_s}))
        return QFileInfo(path).path() + u'/';
    return {};
}

/// Everything that can stand on a control of the window: what it shows as it opens, and the texts of its sources, which
/// give some controls another caption while one works with it.
QSet<QString> CaptionsOf(const QString &window)
{
    static QHash<QString, QSet<QString>> known;
    if (known.contains(window))
        return known[window];
    QSet<QString> captions;
    const Form &form = TheWindows.Touch(window);
    captions += Plain(form.windowTitle());
    for (const QWidget *widget : form.findChildren<QWidget *>()) {
        for (const QString &caption : CaptionsOf(*widget))
            captions += caption;
        if (auto *list = qobject_cast<const ListBox *>(widget))
            for (const QString &row : list->Items())
                captions += Plain(row.section(u": "_s, 0, 0));
        else if (auto *choice = qobject_cast<const QComboBox *>(widget))
            for (int row = 0; row < choice->count(); ++row)
                captions += Plain(choice->itemText(row));
        else if (auto *tabs = qobject_cast<const QTabBar *>(widget))
            for (int tab = 0; tab < tabs->count(); ++tab)
                captions += Plain(tabs->tabText(tab));
        // A button with a picture goes by its name.
        captions += Plain(widget->accessibleName());
    }
    for (const QAction *action : form.findChildren<QAction *>())
        captions += Plain(action->text());
    const QString folder = FolderOf(window);
    for (const QString &path : SourceFiles({u"*.cpp"_s, u"*.h"_s})) {
        const QFileInfo file(path);
        const bool ofAnotherWindow = file.baseName().startsWith(u"frm"_s) && file.baseName() != window;
        if (path.startsWith(folder) && !ofAnotherWindow)
            for (const QString &literal : LiteralsOf(path))
                captions += Plain(literal);
    }
    captions -= QString();
    return known[window] = captions;
}

QList<Node> ExamplesOf(const QString &page)
{
    QList<Node> examples;
    const Node read = PageOf(page);
    for (const Node *table : read.All(u"table"_s))
        if (table->Attributes.value(u"class"_s) == u"example"_s)
            examples += *table;
    return examples;
}

/// What a page says and the program says, word for word but for varying places on the page.
bool Says(const QString &said, const QString &page)
{
    const QStringList pieces = PiecesOf(page);
    const QString text = said.simplified();
    if (pieces.size() == 1 && !page.contains(u'\u2026'))
        return text == pieces[0];
    return StandInOrder(pieces, text);
}

/// Carries out the rows of an example one after the other. A row that opens a modal window returns only when that is
/// closed; the rows meanwhile are carried out from the event loop that waits for it.
class Example : public QObject
{
public:
    Example(GuiDesk &desk, const Node &table, const QString &window)
        : m_desk(desk), m_rows(RowsOfTable(table)), m_window(window)
    {
    }

    /// What went wrong first; empty if the example comes out.
    QString Run()
    {
        const bool opensAnotherFirst = !m_rows.isEmpty() && m_rows[0].Attributes.contains(u"data-open"_s);
        if (!opensAnotherFirst && m_window != MainWindow) {
            Node open;
            open.Attributes[u"data-open"_s] = m_window;
            m_rows.prepend(open);
            m_first = 1;
        }
        TickSoon();
        QElapsedTimer time;
        time.start();
        while (!m_finished && m_error.isEmpty() && !time.hasExpired(LongestExample))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        if (m_error.isEmpty() && !m_finished)
            m_error = u"it does not end"_s;
        if (m_error.isEmpty())
            for (const Message &message : m_desk.Messages)
                m_error += u"a box that the page does not announce: "_s + message.Text;
        return m_error;
    }

private:
    static constexpr int LongestExample = 20000; // milliseconds

    static QList<Node> RowsOfTable(const Node &table)
    {
        QList<Node> rows;
        for (const Node *row : table.All(u"tr"_s))
            rows += *row;
        return rows;
    }

    // A timer of its own for each row: one that repeats itself would rest in the loop of a modal window.
    void TickSoon()
    {
        QTimer::singleShot(1, this, [this] { Tick(); });
    }

    void Tick()
    {
        if (m_finished || !m_error.isEmpty())
            return;
        TickSoon();
        const int level = QThread::currentThread()->loopLevel();
        if (m_busy && level <= m_level) // it is no modal window's loop that waits within the row
            return;
        if (m_next == m_rows.size()) {
            m_finished = !m_busy;
            return;
        }
        const bool wasBusy = std::exchange(m_busy, true);
        const int before = std::exchange(m_level, level);
        Do(m_rows[m_next++]);
        m_busy = wasBusy;
        m_level = before;
    }

    void Fail(const QString &what) { m_error = u"row %1: %2"_s.arg(m_next - m_first).arg(what); }

    template <class Control>
    Control *Get(const QString &name)
    {
        Form *form = TheWindows.Loaded(m_window);
        auto *control = form ? form->findChild<Control *>(name) : nullptr;
        if (!control)
            Fail(u"no %1.%2"_s.arg(m_window, name));
        return control;
    }

    /// Boxes with Yes and No that the next row opens are answered as the rows behind it say.
    void PrepareAnswers()
    {
        m_desk.Answers.clear();
        for (qsizetype row = m_next; row < m_rows.size() && m_rows[row].Attributes.contains(u"data-answer"_s); ++row)
            if (const QString answer = m_rows[row].Attributes[u"data-answer"_s]; answer != u"OK"_s)
                m_desk.Answers += answer == u"Yes"_s ? Answer::Yes : Answer::No;
    }

    void Do(const Node &row)
    {
        const QMap<QString, QString> &data = row.Attributes;
        const QList<const Node *> cells = row.All(u"td"_s);
        const QString cell = cells.isEmpty() ? QString() : cells.constLast()->Text();
        const auto is = [&](const char *name) { return data.contains(QString::fromLatin1(name)); };
        const auto control = [&](const char *name) { return data.value(QString::fromLatin1(name)); };
        const int place = data.value(u"data-row"_s).toInt();
        if (!is("data-answer"))
            PrepareAnswers();

        if (is("data-type")) {
            if (Get<QLineEdit>(control("data-type")))
                Type(m_window, control("data-type"), cell);
        } else if (is("data-enter")) {
            if (Get<QWidget>(control("data-enter")))
                PressEnter(m_window, control("data-enter"));
        } else if (is("data-click")) {
            ClickOn(control("data-click"));
        } else if (is("data-pick")) {
            Pick(control("data-pick"), place, data.value(u"data-column"_s).toInt());
        } else if (is("data-doubleclick")) {
            if (auto *widget = Get<QWidget>(control("data-doubleclick")))
                DoubleClick(*widget, place);
        } else if (is("data-open")) {
            Open(control("data-open"));
        } else if (is("data-answer")) {
            if (m_desk.Messages.isEmpty())
                return Fail(u"no box says: "_s + cell);
            if (const QString text = m_desk.TakeMessage().Text; !Says(text, cell))
                Fail(u"the box says: "_s + text);
        } else if (is("data-see")) {
            const QString text = TextIn(control("data-see"), data);
            if (m_error.isEmpty() && !Says(text, cell))
                Fail(u"%1 shows \"%2\", not \"%3\""_s.arg(control("data-see"), text, cell));
        } else if (is("data-contains")) {
            const QString text = TextIn(control("data-contains"), data).simplified();
            if (m_error.isEmpty() && !text.contains(cell))
                Fail(u"%1 shows \"%2\", not \"%3\""_s.arg(control("data-contains"), text, cell));
        } else if (is("data-file")) {
            const QStringList lines = QString::fromUtf8(m_desk.ReadFile(control("data-file"))).split(u"\r\n"_s);
            if (!lines.contains(cell))
                Fail(u"no line \"%1\" in %2: %3"_s.arg(cell, control("data-file"), lines.join(u" | "_s)));
        } else {
            Fail(u"nothing is done: "_s + row.Text());
        }
    }

    void ClickOn(const QString &name)
    {
        Form *form = TheWindows.Loaded(m_window);
        if (form && !form->findChild<QWidget *>(name) && form->findChild<QAction *>(name))
            return Choose(name);
        auto *control = Get<QWidget>(name);
        if (!control)
            return;
        if (!control->isEnabled())
            return Fail(name + u" is grey"_s);
        Click(m_window, name);
    }

    void Pick(const QString &name, int row, int column)
    {
        auto *control = Get<QWidget>(name);
        if (!control)
            return;
        if (auto *choice = qobject_cast<QComboBox *>(control)) {
            if (row >= choice->count())
                return Fail(u"%1 has no row %2"_s.arg(name).arg(row));
            static_cast<Form *>(choice->window())->FocusOn(choice);
            // As a pick with the keys: the list is opened, its row chosen.
            choice->showPopup();
            choice->view()->setCurrentIndex(
                choice->model()->index(row, choice->modelColumn(), choice->rootModelIndex()));
            QTest::keyClick(choice->view(), Qt::Key_Return);
            Settle();
            return;
        }
        if (qobject_cast<ListBox *>(control))
            return ClickRow(m_window, name, row);
        auto *grid = qobject_cast<Grid *>(control);
        if (!grid || row < 1 || row >= grid->Rows())
            return Fail(u"%1 has no row %2"_s.arg(name).arg(row));
        // Row 0 of the grid is its heading, which the view does not count.
        const QModelIndex cell = grid->model()->index(row - 1, column);
        grid->scrollTo(cell);
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->visualRect(cell).center());
        Settle();
    }

    void DoubleClick(QWidget &widget, int row)
    {
        if (auto *list = qobject_cast<ListBox *>(&widget)) {
            if (!list->item(row))
                return Fail(u"%1 has no row %2"_s.arg(list->objectName()).arg(row));
            const QPoint middle = list->visualItemRect(list->item(row)).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
        } else {
            QTest::mouseDClick(&widget, Qt::LeftButton);
        }
        Settle();
    }

    void Open(const QString &window)
    {
        if (!TheWindows.Knows(window))
            return Fail(u"no window "_s + window);
        m_window = window;
        if (QApplication::activeModalWidget() != TheWindows.Loaded(window) || !TheWindows.Loaded(window))
            TheWindows.Show(window);
        Settle();
    }

    QString TextIn(const QString &name, const QMap<QString, QString> &data)
    {
        auto *control = Get<QWidget>(name);
        const int row = data.value(u"data-row"_s).toInt();
        const int column = data.value(u"data-column"_s).toInt();
        if (!control)
            return {};
        if (auto *grid = qobject_cast<Grid *>(control)) {
            if (row < grid->Rows() && column < grid->Columns())
                return grid->Text(row, column);
            Fail(u"%1 has no row %2 or column %3"_s.arg(name).arg(row).arg(column));
            return {};
        }
        if (auto *list = qobject_cast<ListBox *>(control)) {
            if (row < list->Items().size())
                return list->Items()[row];
            Fail(u"%1 has no row %2"_s.arg(name).arg(row));
            return {};
        }
        if (auto *choice = qobject_cast<QComboBox *>(control))
            return data.contains(u"data-row"_s) ? choice->itemText(row) : choice->currentText();
        if (auto *box = qobject_cast<QCheckBox *>(control))
            return box->isChecked() ? u"checked"_s : u"not checked"_s;
        return TextOf(m_window, name);
    }

    GuiDesk &m_desk;
    QList<Node> m_rows;
    QString m_window; ///< in which the next row is carried out
    QString m_error;
    qsizetype m_next = 0;
    qsizetype m_first = 0; ///< of the page, behind the row that opens its window
    bool m_busy = false;
    bool m_finished = false;
    int m_level = 0; ///< of the event loop in which the row that is being carried out began
};

void LayHouseholdFor(GuiDesk &desk, const QString &household)
{
    desk.Now = TimeOfExamples;
    LayHouseholdOf(desk, household == u"sample"_s ? Household::Filled : Household::Empty);
}

QString RunExample(const Node &table, const QString &window)
{
    GuiDesk desk;
    LayHouseholdFor(desk, table.Attributes.value(u"data-household"_s));
    desk.StartProgram();
    QString error;
    {
        Example example(desk, table, window);
        error = example.Run();
    }
    desk.Answers.clear();
    desk.TakeAll();
    while (QApplication::activeModalWidget() && !error.isEmpty()) {
        QApplication::activeModalWidget()->close();
        Settle();
    }
    return error;
}

Node Table(const QByteArray &rows)
{
    const Node page = ReadPage("<table class='example' data-household='empty'>" + rows + "</table>");
    return *page.All(u"table"_s)[0];
}

} // namespace

class gui_helpexamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryWindowHasAPage()
    {
        GuiDesk desk;
        const QStringList pages = PageNames();
        QStringList missing;
        for (const QString &window : TheWindows.Names())
            if (!pages.contains(window))
                missing += window;
        QCOMPARE(missing.join(u" | "_s), QString());
    }

    void CaptionsExist_data() { EachPage(); }
    void CaptionsExist()
    {
        QFETCH(QString, name);
        GuiDesk desk;
        desk.StartProgram();
        QStringList missing;
        const Node page = PageOf(name);
        for (const Node *bold : page.All(u"b"_s)) {
            const QString other = bold->Attributes.value(u"title"_s);
            QString caption = bold->Text();
            if (caption.endsWith(u':'))
                caption.chop(1);
            QSet<QString> captions = other.isEmpty() ? CaptionsOf(MainWindow) : QSet<QString>();
            const QString window = other.isEmpty() ? name : other;
            if (TheWindows.Knows(window))
                captions += CaptionsOf(window);
            else if (window.startsWith(u"frm"_s))
                missing += u"no window "_s + window;
            if (!captions.contains(caption))
                missing += other.isEmpty() ? caption : u"%1 (%2)"_s.arg(caption, other);
        }
        desk.TakeAll();
        QCOMPARE(missing.join(u" | "_s), QString());
    }

    void TheExampleComesOut_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<int>("number");
        for (const QString &page : PageNames())
            for (int number = 0; number < ExamplesOf(page).size(); ++number)
                QTest::newRow(qPrintable(u"%1 %2"_s.arg(page).arg(number + 1))) << page << number;
    }
    void TheExampleComesOut()
    {
        QFETCH(QString, page);
        QFETCH(int, number);
        QCOMPARE(RunExample(ExamplesOf(page)[number], page), QString());
    }

    void WindowsThatComputeHaveAnExample()
    {
        GuiDesk desk;
        // Those that only show something, or take it down for another window.
        const QSet<QString> plain{u"frmAbout"_s, u"frmSplash"_s,         u"frmPrinter"_s, u"frmHowDoI"_s,
                                  u"frmTip"_s,   u"frmTallymereTutor"_s, u"frmWelcome"_s};
        QStringList missing;
        for (const QString &window : TheWindows.Names())
            if (!plain.contains(window) && ExamplesOf(window).isEmpty())
                missing += window;
        QCOMPARE(missing.join(u" | "_s), QString());
    }

    void WhatDoesNotComeOutIsNoticed_data()
    {
        QTest::addColumn<QByteArray>("rows");
        QTest::addColumn<QString>("error");
        QTest::newRow("another text") << QByteArray("<tr data-see='txtBorrowedAmount'><td>$0.01</td></tr>")
                                      << u"row 1: txtBorrowedAmount shows \"$0.00\", not \"$0.01\""_s;
        QTest::newRow("a text that lacks something") << QByteArray("<tr data-contains='cmdExit'><td>Quit</td></tr>")
                                                     << u"row 1: cmdExit shows \"E&xit\", not \"Quit\""_s;
        QTest::newRow("no such control") << QByteArray("<tr data-click='cmdNothing'><td>x</td></tr>")
                                         << u"row 1: no frmPaymentCalculator.cmdNothing"_s;
        QTest::newRow("a grey button") << QByteArray("<tr data-click='cmdAmortizationTable'><td>x</td></tr>")
                                       << u"row 1: cmdAmortizationTable is grey"_s;
        QTest::newRow("a box that is not announced")
            << QByteArray("<tr data-type='txtBorrowedAmount'><td>x</td></tr><tr data-click='cmdCalculate'/>")
            << u"a box that the page does not announce: Borrowed Amount does not contain a valid currency amount"_s;
        QTest::newRow("a box that does not come")
            << QByteArray("<tr data-click='cmdExit'/><tr data-answer='OK'><td>Well?</td></tr>")
            << u"row 2: no box says: Well?"_s;
        QTest::newRow("a box that says something else")
            << QByteArray("<tr data-type='txtBorrowedAmount'><td>x</td></tr><tr data-click='cmdCalculate'/>"
                          "<tr data-answer='OK'><td>Borrowed Amount</td></tr>")
            << u"row 3: the box says: Borrowed Amount does not contain a valid currency amount"_s;
        QTest::newRow("no such line") << QByteArray("<tr data-file='creditor.txt'><td>7</td></tr>")
                                      << u"row 1: no line \"7\" in creditor.txt: 0 | "_s;
        QTest::newRow("a row that says nothing")
            << QByteArray("<tr><td>Done</td></tr>") << u"row 1: nothing is done: Done"_s;
        QTest::newRow("no such window") << QByteArray("<tr data-open='frmNothing'><td>x</td></tr>")
                                        << u"row 1: no window frmNothing"_s;
    }
    void WhatDoesNotComeOutIsNoticed()
    {
        QFETCH(QByteArray, rows);
        QFETCH(QString, error);
        QCOMPARE(RunExample(Table(rows), u"frmPaymentCalculator"_s), error);
    }
};

REGISTER_TEST(gui_helpexamples)
#include "gui_helpexamples.moc"
