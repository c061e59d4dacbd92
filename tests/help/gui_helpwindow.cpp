// The window of the help, with the help file as it is laid down.
#include "../platform/PdfText.h"
#include "GuiDesk.h"
#include "Pages.h"
#include "TestProgram.h"
#include "help/HelpBook.h"
#include "help/HelpPages.h"
#include "help/HelpWindow.h"

#include <QAction>
#include <QDesktopServices>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QHelpSearchResult>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTextTable>
#include <QToolButton>
#include <unistd.h>

namespace {

constexpr int LongestIndexing = 20000; // milliseconds

/// The window as the viewer shows it.
class Reader
{
public:
    explicit Reader(const QString &question, const QString &file = HelpFile) : Book(file), Window(Book)
    {
        QSignalSpy listed(Book.Engine().contentModel(), &QHelpContentModel::contentsCreated);
        QSignalSpy indexed(Book.Engine().indexModel(), &QHelpIndexModel::indexCreated);
        QSignalSpy ready(&Window, &HelpWindow::SearchIsReady);
        Window.Answer(question);
        Window.ComeForward();
        if ((listed.isEmpty() && !listed.wait(LongestIndexing)) ||
            (indexed.isEmpty() && !indexed.wait(LongestIndexing)))
            qFatal("the contents are not listed");
        if (ready.isEmpty() && !ready.wait(LongestIndexing))
            qFatal("the words are not listed");
    }

    QString Page() const { return NameIn(Window.findChild<HelpPages *>()->source().fileName()); }
    QAction &Action(const QString &name) const { return *Window.findChild<QAction *>(name); }
    int Side() const { return Window.findChild<QTabWidget *>(u"sides"_s)->currentIndex(); }
    template <class Control>
    Control &Part(const QString &name) const
    {
        return *Window.findChild<Control *>(name);
    }
    /// The pages that are found, best first.
    QStringList Search(const QString &words)
    {
        auto &field = Part<QLineEdit>(u"searchField"_s);
        QHelpSearchEngine *engine = Book.Engine().searchEngine();
        QSignalSpy found(engine, &QHelpSearchEngine::searchingFinished);
        field.setText(words);
        QTest::keyClick(&field, Qt::Key_Return);
        if (found.isEmpty() && !found.wait(LongestIndexing))
            qFatal("the search does not end");
        QStringList pages;
        for (const QHelpSearchResult &result : engine->searchResults(0, engine->searchResultCount()))
            pages += NameIn(result.url().fileName());
        return pages;
    }

    HelpBook Book;
    HelpWindow Window;
};

/// A place on a page at which a link can be clicked; not valid where it has none.
QTextCursor FirstLink(const QTextBrowser &page)
{
    for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next())
        for (auto piece = block.begin(); !piece.atEnd(); ++piece)
            if (!piece.fragment().charFormat().anchorHref().isEmpty()) {
                QTextCursor cursor(page.document());
                cursor.setPosition(piece.fragment().position() + piece.fragment().length() / 2);
                return cursor;
            }
    return {};
}

/// Clicks on the first link of a page. Returns its address.
QString ClickLink(QTextBrowser &page)
{
    const QTextCursor link = FirstLink(page);
    if (link.isNull())
        return {};
    page.setTextCursor(link);
    page.ensureCursorVisible();
    const QPoint place = page.cursorRect(link).center();
    const QString address = page.anchorAt(place);
    QTest::mouseClick(page.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    Settle();
    return address;
}

/// Gives a variable of the environment another value for a while.
class WithVariable
{
public:
    WithVariable(const char *name, const QByteArray &value)
        : m_name(name), m_wasSet(qEnvironmentVariableIsSet(name)), m_before(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~WithVariable() { m_wasSet ? qputenv(m_name, m_before) : qunsetenv(m_name); }

private:
    const char *m_name;
    bool m_wasSet;
    QByteArray m_before;
};

/// Hears what the desktop is asked to open.
class Desktop : public QObject
{
    Q_OBJECT
public:
    Desktop()
    {
        for (const QString &scheme : Schemes)
            QDesktopServices::setUrlHandler(scheme, this, "Open");
    }
    ~Desktop() override
    {
        for (const QString &scheme : Schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }
    QStringList Opened;

public Q_SLOTS:
    void Open(const QUrl &address) { Opened += address.toString(); }

private:
    const QStringList Schemes{u"https"_s, u"mailto"_s, u"file"_s, u"qthelp"_s};
};

} // namespace

class gui_helpwindow : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_home.isValid());
        qputenv("XDG_CACHE_HOME", QFile::encodeName(m_home.filePath(u"cache"_s)));
    }

    void EveryWindowHasItsPage()
    {
        GuiDesk desk;
        Reader reader(u"topic frmMain"_s);
        for (const QString &window : TheWindows.Names()) {
            reader.Window.Answer(u"topic "_s + window);
            QCOMPARE(reader.Page(), window);
            QVERIFY(!reader.Window.windowTitle().startsWith(u" - "_s));
            QCOMPARE(reader.Side(), 0); // the contents
        }
    }

    void AContextOpensThePageOfItsWindow()
    {
        GuiDesk desk;
        desk.StartProgram();
        desk.TakeAll();
        Reader reader(u"topic frmMain"_s);
        for (auto context = HelpContexts.begin(); context != HelpContexts.end(); ++context) {
            reader.Window.Answer(u"context %1"_s.arg(context.key()));
            QCOMPARE(reader.Page(), context.value());
        }
        // What F1 says of a window's context agrees with its page.
        for (const QString &window : TheWindows.Names())
            if (const int context = TheWindows.Touch(window).HelpContext()) {
                reader.Window.Answer(u"context %1"_s.arg(context));
                QCOMPARE(reader.Page(), window);
            }
        desk.TakeAll();
    }

    void WhatHasNoPageOpensTheFirst_data()
    {
        QTest::addColumn<QString>("question");
        for (const char *question : {"topic frmNothing", "context 99", "topic", "", "nonsense"})
            QTest::newRow(question) << QString::fromLatin1(question);
    }
    void WhatHasNoPageOpensTheFirst()
    {
        QFETCH(QString, question);
        Reader reader(question);
        QCOMPARE(reader.Page(), u"index"_s);
    }

    void TheContentsComeWithTheSearch()
    {
        Reader reader(u"contents"_s);
        QCOMPARE(reader.Page(), u"index"_s);
        QCOMPARE(reader.Side(), 2);
        QVERIFY(reader.Part<QLineEdit>(u"searchField"_s).hasFocus());
    }

    void BrowseButtonsGoThroughTheContents()
    {
        Reader reader(u"contents"_s);
        QStringList forth, back;
        QVERIFY(!reader.Action(u"previous"_s).isEnabled());
        while (reader.Action(u"next"_s).isEnabled() && forth.size() < 200) {
            forth += reader.Page();
            reader.Action(u"next"_s).trigger();
        }
        forth += reader.Page();
        while (reader.Action(u"previous"_s).isEnabled() && back.size() < 200) {
            back.prepend(reader.Page());
            reader.Action(u"previous"_s).trigger();
        }
        back.prepend(reader.Page());
        QCOMPARE(forth.join(u" "_s), back.join(u" "_s));
        QCOMPARE(forth.size(), PageNames().size());
        QCOMPARE(QSet<QString>(forth.begin(), forth.end()).size(), forth.size());
        QCOMPARE(reader.Action(u"previous"_s).text(), u"<<"_s);
        QCOMPARE(reader.Action(u"next"_s).text(), u">>"_s);
    }

    void BackAndForwardFollowTheReader()
    {
        Reader reader(u"topic frmMain"_s);
        QVERIFY(!reader.Action(u"forward"_s).isEnabled());
        reader.Window.Answer(u"topic frmTip"_s);
        reader.Action(u"back"_s).trigger();
        QCOMPARE(reader.Page(), u"frmMain"_s);
        reader.Action(u"forward"_s).trigger();
        QCOMPARE(reader.Page(), u"frmTip"_s);
    }

    void TheContentsMarkThePage()
    {
        Reader reader(u"topic frmCreditors"_s);
        const auto &contents = reader.Part<QHelpContentWidget>(u"contents"_s);
        QCOMPARE(contents.currentIndex().data().toString() + u" - Help"_s, reader.Window.windowTitle());
        reader.Action(u"next"_s).trigger();
        QCOMPARE(contents.currentIndex().data().toString() + u" - Help"_s, reader.Window.windowTitle());
    }

    void SearchFindsEveryWindowByItsName()
    {
        GuiDesk desk;
        Reader reader(u"contents"_s);
        for (const QString &window : TheWindows.Names()) {
            const QString title = TitleOf(window);
            const QStringList found = reader.Search(title);
            QVERIFY2(found.contains(window), qPrintable(u"%1 by \"%2\": %3"_s.arg(window, title, found.join(u' '))));
        }
    }

    void SearchFindsEveryWindowByItsTitleBar()
    {
        GuiDesk desk;
        desk.StartProgram();
        desk.TakeAll();
        Reader reader(u"contents"_s);
        for (const QString &window : TheWindows.Names()) {
            const QString title = TheWindows.Touch(window).windowTitle();
            const QStringList found = reader.Search(title);
            QVERIFY2(found.contains(window), qPrintable(u"%1 by \"%2\": %3"_s.arg(window, title, found.join(u' '))));
        }
        desk.TakeAll();
    }

    void WhatIsNowhereIsNotFound()
    {
        Reader reader(u"contents"_s);
        QCOMPARE(reader.Search(u"xylophone"_s), QStringList());
    }

    void SignsOfAQueryAreNoCommands_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("words");
        QTest::newRow("points and a question mark") << u"How Do I...?"_s << u"How Do I"_s;
        QTest::newRow("a phrase") << u"\"pay  period\" date"_s << u"\"pay period\" date"_s;
        QTest::newRow("a lone quotation mark") << u"pay\" period"_s << u"pay period"_s;
        QTest::newRow("an apostrophe") << u"Corvelle's"_s << u"Corvelle s"_s;
        QTest::newRow("nothing") << u"?!"_s << QString();
    }
    void SignsOfAQueryAreNoCommands()
    {
        QFETCH(QString, query);
        QTEST(SearchWords(query), "words");
    }

    void TheIndexNamesThePages()
    {
        Reader reader(u"topic frmMain"_s);
        auto &filter = reader.Part<QLineEdit>(u"indexFilter"_s);
        reader.Part<QTabWidget>(u"sides"_s).setCurrentIndex(1);
        QVERIFY(filter.hasFocus());
        filter.setText(u"Loan Payment"_s);
        Settle();
        QTest::keyClick(&filter, Qt::Key_Return);
        QTRY_COMPARE(reader.Page(), u"frmPaymentCalculator"_s);
        QVERIFY(!reader.Book.Engine().indexModel()->stringList().contains(QString()));
    }

    void EscClosesIt_data()
    {
        QTest::addColumn<QString>("control");
        for (const char *control : {"pages", "contents", "searchField", "indexFilter"})
            QTest::newRow(control) << QString::fromLatin1(control);
    }
    void EscClosesIt()
    {
        QFETCH(QString, control);
        Reader reader(u"topic frmMain"_s);
        auto &widget = reader.Part<QWidget>(control);
        auto &sides = reader.Part<QTabWidget>(u"sides"_s);
        for (int side = 0; side < sides.count(); ++side)
            if (sides.widget(side)->isAncestorOf(&widget))
                sides.setCurrentIndex(side);
        QVERIFY(QTest::qWaitForWindowActive(&reader.Window));
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Escape);
        QTRY_VERIFY(!reader.Window.isVisible());
    }

    void LettersGrowAndShrink()
    {
        Reader reader(u"topic frmMain"_s);
        auto &pages = reader.Part<HelpPages>(u"pages"_s);
        const double usual = pages.font().pointSizeF();
        reader.Action(u"larger"_s).trigger();
        reader.Action(u"larger"_s).trigger();
        QVERIFY(pages.font().pointSizeF() > usual + 1.5);
        reader.Action(u"smaller"_s).trigger();
        QVERIFY(pages.font().pointSizeF() > usual + 0.5);
        reader.Action(u"normal"_s).trigger();
        QCOMPARE(pages.font().pointSizeF(), usual);
        QWheelEvent wheel(QPointF(50, 50), pages.viewport()->mapToGlobal(QPointF(50, 50)), {}, {0, 120}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(pages.viewport(), &wheel);
        QVERIFY(pages.font().pointSizeF() > usual);
    }

    void EveryControlHasAName()
    {
        Reader reader(u"topic frmMain"_s);
        for (const char *name : {"pages", "contents", "index", "indexFilter", "searchField", "searchResults"})
            QVERIFY2(!reader.Part<QWidget>(QString::fromLatin1(name)).accessibleName().isEmpty(), name);
        for (const char *name : {"previousButton", "nextButton"})
            QVERIFY2(reader.Part<QWidget>(QString::fromLatin1(name)).accessibleName().endsWith(u" page"_s), name);
    }

    void QuotedMessagesAndTablesAreLaidOut()
    {
        Reader reader(u"topic frmPaymentCalculator"_s);
        const auto &pages = reader.Part<HelpPages>(u"pages"_s);
        QVERIFY(
            pages.toPlainText().contains(u"\u201cBorrowed Amount does not contain a valid currency amount\u201d"_s));
        // The first column of each table is equally wide, so that they stand below each other.
        const QTextFrame *root = pages.document()->rootFrame();
        QVERIFY(root->childFrames().size() >= 3);
        for (const QTextFrame *frame : root->childFrames()) {
            const auto *table = qobject_cast<const QTextTable *>(frame);
            QVERIFY(table);
            QCOMPARE(table->format().columnWidthConstraints().value(0), QTextLength(QTextLength::PercentageLength, 32));
        }
        // The style sheet sets the headings off from what stands above.
        const QTextCursor heading = pages.document()->find(u"Step by step"_s);
        QVERIFY(!heading.isNull());
        QCOMPARE(heading.blockFormat().topMargin(), 20.0);
    }

    void ALinkIsFollowed()
    {
        Desktop desktop;
        Reader reader(u"contents"_s);
        auto &pages = reader.Part<HelpPages>(u"pages"_s);
        const QString address = ClickLink(pages);
        QVERIFY(!address.isEmpty());
        QCOMPARE(reader.Page(), NameIn(address));
        QCOMPARE(reader.Window.windowTitle(), TitleOf(NameIn(address)) + u" - Help"_s);
        QCOMPARE(desktop.Opened, QStringList());
    }

    void ALinkStaysInTheHelp_data()
    {
        QTest::addColumn<QString>("address");
        for (const char *address : {"https://tallymere.example/", "mailto:us@tallymere.example", "file:///etc/passwd"})
            QTest::newRow(address) << QString::fromLatin1(address);
    }
    void ALinkStaysInTheHelp()
    {
        QFETCH(QString, address);
        Desktop desktop;
        Reader reader(u"topic frmPaymentCalculator"_s);
        auto &pages = reader.Part<HelpPages>(u"pages"_s);
        pages.setHtml(u"<p><a href='%1'>Somewhere else</a></p>"_s.arg(address));
        QCOMPARE(ClickLink(pages), address);
        QCOMPARE(reader.Page(), u"frmPaymentCalculator"_s);
        QVERIFY(pages.toPlainText().startsWith(u"Somewhere else"_s));
        QCOMPARE(desktop.Opened, QStringList());
    }

    void ALinkToNoPageIsTold()
    {
        Reader reader(u"topic frmPaymentCalculator"_s);
        auto &pages = reader.Part<HelpPages>(u"pages"_s);
        pages.setSource(pages.source().resolved(QUrl(u"nothing.html"_s)));
        QVERIFY(pages.toPlainText().startsWith(u"There is no such page"_s));
        // It is nowhere in the contents.
        QVERIFY(!reader.Action(u"previous"_s).isEnabled());
        QVERIFY(!reader.Action(u"next"_s).isEnabled());
    }

    void APlaceOnAPageIsThatPage()
    {
        Reader reader(u"topic frmCreditors"_s);
        auto &pages = reader.Part<HelpPages>(u"pages"_s);
        pages.setSource(reader.Book.PageOf(u"frmRegulars"_s).resolved(QUrl(u"#frmRegulars"_s)));
        QCOMPARE(pages.source().fragment(), u"frmRegulars"_s);
        QCOMPARE(reader.Part<QHelpContentWidget>(u"contents"_s).currentIndex().data().toString(),
                 TitleOf(u"frmRegulars"_s));
        reader.Action(u"previous"_s).trigger();
        QCOMPARE(reader.Page(), u"frmCreditors"_s);
    }

    void LinksHaveTheColorOfTheMoment()
    {
        Reader reader(u"contents"_s);
        auto &pages = reader.Part<HelpPages>(u"pages"_s);
        const auto colorOfLink = [&] { return FirstLink(pages).charFormat().foreground().color(); };
        for (const QColor &color : {QColor(Qt::darkMagenta), QColor(Qt::darkGreen)}) {
            QPalette palette = pages.palette();
            palette.setColor(QPalette::Link, color);
            QApplication::setPalette(palette);
            Settle();
            QCOMPARE(colorOfLink(), color);
        }
        QApplication::setPalette(QPalette());
    }

    // The sides

    void APageIsPickedInTheContents()
    {
        Reader reader(u"topic frmMain"_s);
        auto &contents = reader.Part<QHelpContentWidget>(u"contents"_s);
        const auto click = [&](const QModelIndex &entry) {
            contents.scrollTo(entry);
            const QPoint place = contents.visualRect(entry).center();
            QTest::mouseClick(contents.viewport(), Qt::LeftButton, Qt::NoModifier, place);
        };
        const QModelIndex savings = contents.indexOf(reader.Book.PageOf(u"frmSavings"_s));
        click(savings);
        QCOMPARE(reader.Page(), u"frmSavings"_s);
        // The heading above it has no page, neither by a click nor by Enter.
        click(savings.parent());
        QCOMPARE(reader.Page(), u"frmSavings"_s);
        QTest::keyClick(&contents, Qt::Key_Return);
        QCOMPARE(reader.Page(), u"frmSavings"_s);
        // Enter opens the one that the arrows lead to.
        contents.setCurrentIndex(savings);
        QTest::keyClick(&contents, Qt::Key_Up);
        QTest::keyClick(&contents, Qt::Key_Return);
        QCOMPARE(reader.Page(), u"frmInterestRateCalculator"_s);
    }

    void APageIsPickedAmongThoseFound()
    {
        Reader reader(u"contents"_s);
        const QStringList found = reader.Search(u"amortization table"_s);
        QVERIFY(found.contains(u"frmAmortization"_s));
        auto &list = reader.Part<QTextBrowser>(u"foundPages"_s);
        QTRY_VERIFY(!FirstLink(list).isNull());
        QCOMPARE(NameIn(ClickLink(list)), found[0]);
        QCOMPARE(reader.Page(), found[0]);
        QCOMPARE(reader.Side(), 2); // the others are still there to be picked
    }

    void APageIsPickedInTheIndex()
    {
        Reader reader(u"topic frmMain"_s);
        auto &index = reader.Part<QHelpIndexWidget>(u"index"_s);
        reader.Part<QTabWidget>(u"sides"_s).setCurrentIndex(1);
        reader.Part<QLineEdit>(u"indexFilter"_s).setText(u"overtime"_s); // in any letter case
        Settle();
        QCOMPARE(index.model()->rowCount(), 1);
        QTest::mouseClick(index.viewport(), Qt::LeftButton, Qt::NoModifier,
                          index.visualRect(index.model()->index(0, 0)).center());
        QTRY_COMPARE(reader.Page(), u"frmCalculateWages"_s);
    }

    void ArrowsGoThroughTheIndexWhileOneTypes()
    {
        Reader reader(u"topic frmMain"_s);
        auto &index = reader.Part<QHelpIndexWidget>(u"index"_s);
        auto &filter = reader.Part<QLineEdit>(u"indexFilter"_s);
        reader.Part<QTabWidget>(u"sides"_s).setCurrentIndex(1);
        QVERIFY(QTest::qWaitForWindowActive(&reader.Window));
        filter.setText(u"over"_s); // Monthly Overhead, Overtime
        Settle();
        QCOMPARE(index.model()->rowCount(), 2);
        const auto press = [&](Qt::Key key) {
            QTest::keyClick(&filter, key);
            return index.currentIndex().data().toString();
        };
        QCOMPARE(press(Qt::Key_Up), u"Monthly Overhead"_s);
        QCOMPARE(press(Qt::Key_Up), u"Monthly Overhead"_s); // there is none above
        QCOMPARE(press(Qt::Key_Down), u"Overtime"_s);
        QCOMPARE(press(Qt::Key_Down), u"Overtime"_s);
        QVERIFY(filter.hasFocus());
        press(Qt::Key_Return);
        QCOMPARE(reader.Page(), u"frmCalculateWages"_s);
    }

    void EveryWordOfTheIndexIsThatOfOnePage()
    {
        Reader reader(u"topic frmMain"_s);
        for (const QString &word : reader.Book.Engine().indexModel()->stringList()) {
            QSet<QUrl> pages;
            for (const QHelpLink &page : reader.Book.Engine().documentsForKeyword(word))
                pages += page.url;
            QVERIFY2(pages.size() == 1, qPrintable(word));
        }
    }

    // Keys

    void KeysOfTheToolbar_data()
    {
        QTest::addColumn<QKeySequence>("key");
        QTest::addColumn<QString>("page");
        QTest::newRow("back") << QKeySequence(Qt::ALT | Qt::Key_Left) << u"frmCreditors"_s;
        QTest::newRow("back by the key for it") << QKeySequence(Qt::Key_Back) << u"frmCreditors"_s;
        QTest::newRow("the page before") << QKeySequence(Qt::ALT | Qt::Key_PageUp) << u"frmCreditors"_s;
        QTest::newRow("the page behind") << QKeySequence(Qt::ALT | Qt::Key_PageDown) << u"frmExtras"_s;
        QTest::newRow("the first page") << QKeySequence(Qt::ALT | Qt::Key_Home) << u"index"_s;
    }
    void KeysOfTheToolbar()
    {
        QFETCH(QKeySequence, key);
        Reader reader(u"topic frmCreditors"_s);
        QVERIFY(QTest::qWaitForWindowActive(&reader.Window));
        reader.Window.Answer(u"topic frmRegulars"_s);
        QTest::keySequence(&reader.Window, key);
        QTEST(reader.Page(), "page");
    }

    void F1OpensTheFirstPageOnceItHasBeenReleased()
    {
        Reader reader(u"topic frmMain"_s);
        QVERIFY(QTest::qWaitForWindowActive(&reader.Window));
        reader.Window.Answer(u"topic frmCreditors"_s); // asked for by F1, which is still held down
        QTest::keyClick(&reader.Window, Qt::Key_F1);
        QCOMPARE(reader.Page(), u"frmCreditors"_s);
        for (int held = 0; held <= 2 * HelpWindow::LongestHold; held += 400) {
            QTest::qWait(400);
            QTest::simulateEvent(&reader.Window, true, Qt::Key_F1, Qt::NoModifier, QString(), held % 800 == 0);
            QCOMPARE(reader.Page(), u"frmCreditors"_s);
        }
        QTest::qWait(HelpWindow::LongestHold + 100);
        QTest::keyClick(&reader.Window, Qt::Key_F1);
        QCOMPARE(reader.Page(), u"index"_s);
        reader.Window.Answer(u"topic frmTip"_s); // each question anew
        QTest::keyClick(&reader.Window, Qt::Key_F1);
        QCOMPARE(reader.Page(), u"frmTip"_s);
        QTest::qWait(HelpWindow::LongestHold + 100);
        QWidget other; // the computer was busy: the window comes to the front only now
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        reader.Window.ComeForward();
        QVERIFY(QTest::qWaitForWindowActive(&reader.Window));
        QTest::keyClick(&reader.Window, Qt::Key_F1);
        QCOMPARE(reader.Page(), u"frmTip"_s);
    }

    void ForwardHasKeys()
    {
        Reader reader(u"topic frmCreditors"_s);
        QVERIFY(QTest::qWaitForWindowActive(&reader.Window));
        reader.Window.Answer(u"topic frmRegulars"_s);
        for (const QKeySequence &key : {QKeySequence(Qt::ALT | Qt::Key_Right), QKeySequence(Qt::Key_Forward)}) {
            reader.Action(u"back"_s).trigger();
            QCOMPARE(reader.Page(), u"frmCreditors"_s);
            QTest::keySequence(&reader.Window, key);
            QCOMPARE(reader.Page(), u"frmRegulars"_s);
        }
    }

    void KeysOfTheLetters()
    {
        Reader reader(u"topic frmMain"_s);
        QVERIFY(QTest::qWaitForWindowActive(&reader.Window));
        auto &pages = reader.Part<HelpPages>(u"pages"_s);
        const double usual = pages.font().pointSizeF();
        const auto press = [&](Qt::Key key) { QTest::keySequence(&reader.Window, QKeySequence(Qt::CTRL | key)); };
        press(Qt::Key_Plus);
        QCOMPARE(pages.font().pointSizeF(), usual + 1);
        press(Qt::Key_Equal); // the same key without Shift
        QCOMPARE(pages.font().pointSizeF(), usual + 2);
        press(Qt::Key_Minus);
        QCOMPARE(pages.font().pointSizeF(), usual + 1);
        press(Qt::Key_0);
        QCOMPARE(pages.font().pointSizeF(), usual);
    }

    void APageIsPrinted()
    {
        QTemporaryDir folder;
        Reader reader(u"topic frmTip"_s);
        const QString file = folder.filePath(u"page.pdf"_s);
        QString documentName;
        QTimer::singleShot(0, &reader.Window, [&] {
            auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            documentName = dialog->printer()->docName();
            dialog->printer()->setOutputFileName(file);
            dialog->done(QDialog::Accepted);
        });
        reader.Action(u"print"_s).trigger();
        QCOMPARE(documentName, TitleOf(u"frmTip"_s));
        QVERIFY(PagesOf(file).join(QString()).contains(TitleOf(u"frmTip"_s)));
    }

    void ItFitsTheScreenAndItsTitlesFitTheContents()
    {
        Reader reader(u"topic frmSemiMonthlyPayInfo"_s);
        const QSize room = reader.Window.screen()->availableSize();
        QVERIFY(room.width() >= reader.Window.width() && room.height() > reader.Window.height());
        QVERIFY(room.width() < 880); // or the screen would be no limit
        const auto &contents = reader.Part<QHelpContentWidget>(u"contents"_s);
        const QModelIndex title = contents.currentIndex();
        QCOMPARE(title.data().toString(), TitleOf(u"frmSemiMonthlyPayInfo"_s));
        QVERIFY(contents.visualRect(title).width() >=
                contents.fontMetrics().horizontalAdvance(title.data().toString()));
    }

    void ItComesBackFromTheTaskBar()
    {
        Reader reader(u"topic frmMain"_s);
        reader.Window.showMaximized();
        reader.Window.ComeForward();
        QVERIFY(reader.Window.isMaximized()); // it keeps its size
        reader.Window.showMinimized();
        reader.Window.ComeForward();
        QVERIFY(!reader.Window.isMinimized());
        QVERIFY(reader.Window.isVisible());
    }

    // The working copy

    void TheFoldersOfTheProgramAreOnlyRead()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(u"budget help.hlp"_s);
        QVERIFY(QFile::copy(HelpFile, file));
        QFile::setPermissions(file, QFile::ReadOwner);
        QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::ExeOwner);
        {
            Reader reader(u"topic frmMain"_s, file);
            QCOMPARE(reader.Page(), u"frmMain"_s);
            QVERIFY(!reader.Search(u"budget"_s).isEmpty());
            QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                     QStringList{u"budget help.hlp"_s});
        }
        QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void NothingStaysBehind()
    {
        const QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
        QVERIFY(cache.path().startsWith(m_home.path()));
        const auto folders = [&] { return cache.entryList({u"reading-*"_s}, QDir::Dirs); };
        QVERIFY(cache.mkpath(u"reading-4194999-abcdef/deep"_s)); // of a process that has been ended
        const QStringList ofOthers{u"reading-%1-abcdef"_s.arg(::getppid()), u"reading-mine"_s};
        for (const QString &folder : ofOthers)
            QVERIFY(cache.mkpath(folder));
        {
            Reader reader(u"topic frmMain"_s);
            QCOMPARE(folders().size(), 1 + ofOthers.size());
            QCOMPARE(folders().filter(u"reading-%1-"_s.arg(QCoreApplication::applicationPid())).size(), 1);
        }
        QCOMPARE(folders(), ofOthers);
        for (const QString &folder : ofOthers)
            QVERIFY(cache.rmdir(folder));
    }

    void WithoutACacheItIsReadAllTheSame()
    {
        const WithVariable cache("XDG_CACHE_HOME", "/proc/nothing");
        Reader reader(u"topic frmMain"_s);
        QCOMPARE(reader.Page(), u"frmMain"_s);
    }

    void WhereNothingCanBeWrittenThatIsTold()
    {
        const WithVariable cache("XDG_CACHE_HOME", "/proc/nothing");
        const WithVariable temporary("TMPDIR", "/proc");
        HelpBook book(HelpFile);
        QVERIFY2(
            book.Error().startsWith(u"The help could not be opened, since its working copy cannot be written:\n"_s),
            qPrintable(book.Error()));
        QVERIFY(book.PageOf(u"frmMain"_s).isEmpty());
    }

    void TheHelpOfAnotherProgramIsToldToo()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(u"budget help.hlp"_s);
        QVERIFY(QFile::copy(HelpFile, file));
        {
            QSqlDatabase pages = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"foreign"_s);
            pages.setDatabaseName(file);
            QVERIFY(pages.open());
            QVERIFY(QSqlQuery(pages).exec(u"DELETE FROM IndexTable WHERE Identifier = 'index'"_s));
            pages.close();
        }
        QSqlDatabase::removeDatabase(u"foreign"_s);
        QCOMPARE(HelpBook(file).Error(), u"The help file is damaged:\n"_s + file);
    }

    void WhatCannotBeReadIsTold()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(u"budget help.hlp"_s);
        QCOMPARE(HelpBook(file).Error(), u"The help file is missing:\n"_s + file);
        QCOMPARE(HelpBook(folder.path()).Error(), u"The help file cannot be read:\n"_s + folder.path());
        QFile damaged(file);
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write("nothing that could be read");
        damaged.close();
        QCOMPARE(HelpBook(file).Error(), u"The help file is damaged:\n"_s + file);
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        QFile whole(HelpFile);
        QVERIFY(whole.open(QIODevice::ReadOnly));
        damaged.write(whole.read(whole.size() / 3));
        damaged.close();
        QCOMPARE(HelpBook(file).Error(), u"The help file is damaged:\n"_s + file);
        QVERIFY(damaged.resize(0));
        QCOMPARE(HelpBook(file).Error(), u"The help file is damaged:\n"_s + file);
    }
};

REGISTER_TEST(gui_helpwindow)
#include "gui_helpwindow.moc"
