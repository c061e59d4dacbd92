// The files of the tutor's pages and of the tips: their layout, and that what they quote is what the program says.
#include "FakeDesk.h"
#include "GuidanceTexts.h"
#include "Sources.h"
#include "TestProgram.h"

#include "foundation/StartAndEnd.h"

namespace {

const QString Footer = u"\n\nFor more information press F1\n"
                       "Use the browse (<< and >>) buttons at the top to move \n"
                       "forward and backward through the instructions"_s;
constexpr int LeastSteps = 4;
constexpr int MostLettersOfTip = 250; // what the tip's window has room for

void EachPage()
{
    QTest::addColumn<int>("page");
    for (int page = 1; page <= MostTutorPages; ++page)
        QTest::addRow("page %d", page) << page;
}

/// The string literals of the program's sources.
const QStringList &Literals()
{
    static const QStringList literals = [] {
        QStringList found;
        for (const QString &file : SourceFiles({u"*.cpp"_s, u"*.h"_s}))
            found += LiteralsOf(file);
        return found;
    }();
    return literals;
}

/// Whether the program shows a text: as it stands, with a date in the place of the one it has, or with a dash or a
/// colon behind it.
bool IsShownByProgram(QString text)
{
    static const QRegularExpression date(u"[A-Z][a-z]+ \\d{1,2}, \\d{4}$"_s);
    static const QRegularExpression joint(u"^[ :-]*$"_s);
    text.remove(date);
    return std::any_of(Literals().begin(), Literals().end(), [&](const QString &literal) {
        return literal.startsWith(text) && joint.match(literal.mid(text.size())).hasMatch();
    });
}

} // namespace

class tst_instructions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheFileBeginsAndEndsWithAMarkAndHasOneBetweenPages()
    {
        const QStringList lines = LinesOf(InstructionFile);
        QVERIFY(!lines.isEmpty());
        QCOMPARE(lines.first(), u";"_s);
        QCOMPARE(lines.last(), u";"_s);
        QCOMPARE(lines.count(u";"_s), MostTutorPages + 1);
        QCOMPARE(lines.filter(QRegularExpression(u"^;."_s)).size(), 0);
    }

    void EachPageIsLoadedWithItsFooter_data() { EachPage(); }
    void EachPageIsLoadedWithItsFooter() // the last one, too
    {
        QFETCH(int, page);
        FakeDesk desk;
        State.ApplicationPath = desk.Folder();
        desk.WriteFile(u"help\\Instruction.txt"_s, BytesOf(InstructionFile));
        LoadTutorInstructions();
        QCOMPARE(State.TutorInstructions(page), u'\n' + LinesOfPage(page).join(u'\n') + Footer);
    }

    void EachPageLeadsThroughFourStepsAtLeast_data() { EachPage(); }
    void EachPageLeadsThroughFourStepsAtLeast()
    {
        QFETCH(int, page);
        static const QRegularExpression number(u"^(\\d+)\\. "_s);
        int steps = 0;
        bool isBehindThem = false;
        for (const QString &line : LinesOfPage(page)) {
            const QRegularExpressionMatch match = number.match(line);
            if (!match.hasMatch()) {
                isBehindThem = steps > 0;
                continue;
            }
            QVERIFY2(!isBehindThem, "a text between two steps");
            QCOMPARE(match.captured(1).toInt(), ++steps);
        }
        QVERIFY2(steps >= LeastSteps, qPrintable(u"%1 steps"_s.arg(steps)));
    }

    void EachLineCanBeShownAndPrinted_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("pages") << InstructionFile;
        QTest::newRow("tips") << TipFile;
    }
    void EachLineCanBeShownAndPrinted()
    {
        QFETCH(QString, path);
        const QStringList lines = LinesOf(path);
        QVERIFY(lines.size() >= LeastTips);
        for (const QString &line : lines) {
            QVERIFY2(!line.trimmed().isEmpty(), "a blank line");
            QCOMPARE(line, line.trimmed());
            QVERIFY2(std::all_of(line.begin(), line.end(), [](QChar c) { return c >= u' ' && c <= u'~'; }),
                     qPrintable(line));
            QVERIFY2(line.count(u'"') % 2 == 0, qPrintable(line));
        }
    }

    void WhatStandsInSingleQuotesTheProgramShows()
    {
        QStringList quoted;
        for (const QString &path : {InstructionFile, TipFile})
            for (const QString &line : LinesOf(path))
                quoted += QuotedTexts(line);
        quoted.removeDuplicates();
        QVERIFY(quoted.contains(u"Budget - December 1, 2026"_s)); // or nothing would be looked at
        for (const QString &text : std::as_const(quoted))
            QVERIFY2(IsShownByProgram(text), qPrintable(text));
    }

    void EachTipGoesOnFromItsHeading() // "Did you know..."
    {
        const QStringList tips = LinesOf(TipFile);
        QVERIFY2(tips.size() >= LeastTips, qPrintable(u"%1 tips"_s.arg(tips.size())));
        QCOMPARE(QSet<QString>(tips.begin(), tips.end()).size(), tips.size());
        static const QRegularExpression question(u"^That ([^?]|\\?\")+\\?( [A-Z\"][^?]*\\.)?$"_s);
        for (const QString &tip : tips) {
            QVERIFY2(question.match(tip).hasMatch(), qPrintable(tip));
            QVERIFY2(tip.size() <= MostLettersOfTip, qPrintable(u"%1: %2"_s.arg(tip.size()).arg(tip)));
        }
    }
};

REGISTER_TEST(tst_instructions)
#include "tst_instructions.moc"
