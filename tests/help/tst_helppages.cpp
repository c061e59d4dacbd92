// The pages of the help, read as files: their form, their links, their place in the contents, the messages they
// explain, and their spelling.
#include "Pages.h"
#include "TestProgram.h"

#include <QProcess>

namespace {

/// What stands in the sources and is read by nobody, or is explained where it stands.
const QRegularExpression NoMessage(u"^(Show (Welcome|Tips) [Aa]t Startup"         // options
                                   "|For more information press F1.*"             // the tutor's own footer
                                   "|.*\\(\\*\\.lst\\)\\|\\*\\.lst"               // a filter of the file dialog
                                   "|(Save|Input) (Master|Current) Shopping List" // titles of boxes
                                   "|(The )?Corvelle's Tallymere 1\\.0"
                                   "|(Current Pay Period: |Wednesday )September 30, 2004" // measures of room
                                   ")$"_s);
/// Files whose texts are read elsewhere than in boxes: menus, hints and the printed test page.
const QStringList NoMessages{u"mainwindow/MainMenu.cpp"_s, u"mainwindow/TestPage.cpp"_s};

const Node &Project()
{
    static const Node project = ReadPage(BytesOf(HelpFolder + u"tallymere.qhp"_s));
    return project;
}

/// The words that the spelling checker does not know.
QStringList Misspelled(const QString &words)
{
    QProcess checker;
    checker.start(u"hunspell"_s, {u"-d"_s, u"en_US"_s, u"-i"_s, u"utf-8"_s, u"-p"_s,
                                  QStringLiteral(PROJECT_FOLDER "/tests/help/words.txt"), u"-l"_s});
    checker.write(words.toUtf8());
    checker.closeWriteChannel();
    if (!checker.waitForFinished() || checker.exitCode() != 0)
        qFatal("hunspell is not installed or has failed");
    return QString::fromUtf8(checker.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

class tst_helppages : public QObject
{
    Q_OBJECT

private:
    QString m_messages; // of the page of messages that every window can show
    QStringList m_literals;

private Q_SLOTS:
    void initTestCase()
    {
        m_messages = WordsOf(u"messages"_s);
        for (const QString &file : SourceFiles({u"*.cpp"_s, u"*.h"_s}))
            m_literals += LiteralsOf(file);
        for (const QString &file : SourceFiles({u"*.ui"_s}))
            m_literals += TextsOfDesign(file);
        for (QString &literal : m_literals)
            literal = literal.simplified();
        QVERIFY(m_literals.size() > 1000);
        QVERIFY(PageNames().contains(u"frmPaymentCalculator"_s));
    }

    void ItIsWellFormed_data() { EachPage(); }
    void ItIsWellFormed()
    {
        QFETCH(QString, name);
        QString error;
        const Node page = ReadPage(BytesOf(PagesFolder + name + u".html"_s), &error);
        QCOMPARE(error, QString());
        QCOMPARE(page.All(u"html"_s).size(), 1);
        QCOMPARE(page.All(u"body"_s).size(), 1);
        QCOMPARE(page.All(u"body"_s)[0]->Attributes.value(u"id"_s), name);
        QCOMPARE(page.All(u"title"_s).size(), 1);
        QVERIFY(!page.All(u"title"_s)[0]->Text().isEmpty());
        QCOMPARE(page.All(u"h1"_s).size(), 1);
        QCOMPARE(page.All(u"link"_s).size(), 1);
        QCOMPARE(page.All(u"link"_s)[0]->Attributes.value(u"href"_s), u"../help.css"_s);
        QVERIFY(QFile::exists(HelpFolder + u"help.css"_s));
        QVERIFY2(page.Text().size() > 300, "there is hardly anything on it");
    }

    void EveryPageHasItsPlace_data() { EachPage(); }
    void EveryPageHasItsPlace()
    {
        QFETCH(QString, name);
        const QString title = TitleOf(name);
        QStringList inContents, inIndex;
        for (const Node *section : Project().All(u"section"_s))
            if (NameIn(section->Attributes.value(u"ref"_s)) == name)
                inContents += section->Attributes.value(u"title"_s);
        QCOMPARE(inContents, QStringList{title}); // once, so that the browse buttons know where they are
        for (const Node *keyword : Project().All(u"keyword"_s))
            if (keyword->Attributes.value(u"id"_s) == name) {
                QCOMPARE(NameIn(keyword->Attributes.value(u"ref"_s)), name);
                inIndex += keyword->Attributes.value(u"name"_s);
            }
        QCOMPARE(inIndex, QStringList{title});
    }

    void WhatTheProjectNamesExists()
    {
        const QStringList pages = PageNames();
        for (const QString &kind : {u"section"_s, u"keyword"_s})
            for (const Node *entry : Project().All(kind)) {
                const QString ref = entry->Attributes.value(u"ref"_s);
                if (!ref.isEmpty())
                    QVERIFY2(pages.contains(NameIn(ref)), qPrintable(ref));
                // One without a name would be an empty line of the index.
                if (kind == u"keyword"_s)
                    QVERIFY2(!entry->Attributes.value(u"name"_s).isEmpty(), qPrintable(ref));
            }
    }

    void ContextsLeadToTheirWindows()
    {
        QMap<int, QString> found;
        for (const Node *keyword : Project().All(u"keyword"_s))
            if (const QString id = keyword->Attributes.value(u"id"_s); id.startsWith(u"context-"_s))
                found[id.mid(8).toInt()] = NameIn(keyword->Attributes.value(u"ref"_s));
        QCOMPARE(found, HelpContexts);
    }

    void NoLinkIsDead_data() { EachPage(); }
    void NoLinkIsDead()
    {
        QFETCH(QString, name);
        const Node page = PageOf(name);
        QStringList dead;
        for (const Node *link : page.All(u"a"_s)) {
            const QString address = link->Attributes.value(u"href"_s);
            QVERIFY2(!address.isEmpty() && !link->Text().isEmpty(), qPrintable(u"an empty link: "_s + link->Text()));
            const QString target = address.startsWith(u'#') ? name : NameIn(address);
            if (!QFile::exists(PagesFolder + target + u".html"_s) ||
                (!address.startsWith(u'#') && address.section(u'#', 0, 0) != target + u".html"_s)) {
                dead += address;
                continue;
            }
            const QString anchor = address.section(u'#', 1);
            bool isThere = anchor.isEmpty();
            PageOf(target).ForEach([&](const Node &node) {
                isThere =
                    isThere || node.Attributes.value(u"id"_s) == anchor || node.Attributes.value(u"name"_s) == anchor;
            });
            if (!isThere)
                dead += address;
        }
        QCOMPARE(dead.join(u" | "_s), QString());
    }

    void WhatItQuotesIsInTheProgram_data() { EachPage(); }
    void WhatItQuotesIsInTheProgram()
    {
        QFETCH(QString, name);
        QStringList missing;
        const Node page = PageOf(name);
        for (const Node *quotation : page.All(u"q"_s)) {
            const QString text = quotation->Text();
            const QStringList pieces = PiecesOf(text);
            QVERIFY2(!pieces.isEmpty(), qPrintable(text));
            for (const QString &piece : pieces)
                if (!std::any_of(m_literals.begin(), m_literals.end(), [&](const QString &literal) {
                        // Word for word; only around its varying places the program joins it of several texts.
                        return PiecesOf(literal).contains(piece) || (pieces.size() > 1 && literal.contains(piece)) ||
                               (text.contains(u'\u2026') && literal.contains(piece));
                    }))
                    missing += piece;
        }
        QCOMPARE(missing.join(u" | "_s), QString());
    }

    void EveryMessageIsExplained_data()
    {
        QTest::addColumn<QString>("file");
        for (const QString &path : SourceFiles({u"*.cpp"_s, u"*.h"_s}))
            if (const QString file = path.mid(SourceFolder.size());
                !NoMessages.contains(file) && !file.startsWith(u"help/"_s))
                QTest::newRow(qPrintable(file)) << file;
    }
    void EveryMessageIsExplained()
    {
        QFETCH(QString, file);
        static const QRegularExpression sentence(u"^[A-Z ]\\S*( +\\S+){3,}"_s);
        const QString window = file.section(u'/', -1).section(u'.', 0, 0);
        const QStringList pages = PageNames();
        QString words = m_messages;
        if (pages.contains(window))
            words += u' ' + WordsOf(window);
        else
            for (const QString &page : pages) // a text that belongs to several windows or to a list of one
                words += u' ' + WordsOf(page);
        QStringList missing;
        for (const QString &literal : LiteralsOf(SourceFolder + file))
            if (sentence.match(literal).hasMatch() && !NoMessage.match(literal.simplified()).hasMatch() &&
                !StandInOrder(PiecesOf(literal), words))
                missing += literal;
        QCOMPARE(missing.join(u" | "_s), QString());
    }

    void FiguresStandInExamples_data() { EachPage(); }
    void FiguresStandInExamples()
    {
        // Any other amount of money could be wrong without a test that notices.
        QFETCH(QString, name);
        QStringList loose;
        const std::function<void(const Node &)> look = [&](const Node &node) {
            static const QRegularExpression amount(u"\\$[0-9]"_s);
            if ((node.Name == u"table"_s && node.Attributes.value(u"class"_s) == u"example"_s) || node.Name == u"q"_s)
                return;
            if (amount.match(node.Words).hasMatch())
                loose += node.Words.simplified();
            for (const Node &child : node.Children)
                look(child);
        };
        look(PageOf(name));
        QCOMPARE(loose.join(u" | "_s), QString());
    }

    void WhatNewcomersAskIsAnswered_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("words");
        const QString questions = u"questions"_s;
        QTest::newRow("what a creditor is") << u"frmCreditors"_s << QStringList{u"Rent, insurance"_s};
        QTest::newRow("that a pay period has the name of its pay day")
            << questions << QStringList{u"named by its pay day"_s, u"same chain of days"_s};
        QTest::newRow("what happens on another day")
            << questions << QStringList{u"every two weeks"_s, u"every pay period moves"_s, u"no longer match"_s};
        QTest::newRow("that net pay is meant") << u"frmEnvironmentSettings"_s << QStringList{u"net"_s};
        QTest::newRow("that a list is read before something is added")
            << questions << QStringList{u"List Creditors"_s, u"then something can be added"_s};
        QTest::newRow("what Add Pay Period asks for")
            << u"frmExtras"_s << QStringList{u"Add Pay Period"_s, u"New Item"_s};
        QTest::newRow("how a completion date is picked")
            << u"frmProjects"_s << QStringList{u"Completion Date"_s, u"forecast"_s};
        QTest::newRow("that the first press of Budget looks ahead")
            << questions << QStringList{u"first press"_s, u"looks ahead"_s, u"second press"_s};
        QTest::newRow("what stands among the bills")
            << questions << QStringList{u"Budget - December 1, 2026"_s, u"put aside"_s, u"CREDIT - Budget"_s};
        QTest::newRow("a bill at the month's end") << questions << QStringList{u"29th, 30th or 31st as the 28th"_s};
        QTest::newRow("why savings stay behind") << questions << QStringList{u"SAVINGS"_s, u"not carried over"_s};
        QTest::newRow("how to back up") << questions << QStringList{u"back up"_s, u"copy its whole folder"_s};
        QTest::newRow("what a quotation mark does")
            << questions << QStringList{u"quotation mark"_s, u"ends the name too early"_s};
    }
    void WhatNewcomersAskIsAnswered()
    {
        QFETCH(QString, page);
        QFETCH(QStringList, words);
        QVERIFY2(StandInOrder(words, WordsOf(page)), qPrintable(words.join(u" ... "_s)));
    }

    void SpellingIsRight_data() { EachPage(); }
    void SpellingIsRight()
    {
        QFETCH(QString, name);
        // What stands in a quotation or an answer is the program's; its own misspelling is explained there.
        QString words;
        const std::function<void(const Node &)> read = [&](const Node &node) {
            if (node.Name == u"q"_s || node.Attributes.contains(u"data-file"_s))
                return;
            words += node.Words;
            for (const Node &child : node.Children)
                read(child);
            if (!node.Name.isEmpty() && node.Name != u"b"_s && node.Name != u"i"_s && node.Name != u"a"_s)
                words += u'\n';
        };
        read(PageOf(name));
        QCOMPARE(Misspelled(words.replace(u'\u2019', u'\'')), QStringList());
    }

    void TheSpellingCheckerKnowsWhatIsWrong()
    {
        QCOMPARE(Misspelled(u"A recieved colour\n"_s), (QStringList{u"recieved"_s, u"colour"_s}));
    }
};

REGISTER_TEST(tst_helppages)
#include "tst_helppages.moc"
