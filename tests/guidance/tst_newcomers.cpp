// What people asked who tried the program without instructions: each question has its answer in one tip, and in one
// paragraph of the tutor's page of the window that raised it.
#include "GuidanceTexts.h"
#include "TestProgram.h"

#include <QtTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Words that stand together in one paragraph answer a question.
struct Answer {
    const char *Question;
    QStringList TipWords;
    int Page;
    QStringList PageWords;
};

const QList<Answer> &Answers()
{
    static const QList<Answer> answers{
        {"Is the rent a creditor, is the insurance?",
         {u"creditor is any bill"_s, u"rent"_s, u"insurance"_s, u"every month"_s},
         3,
         {u"creditor is any bill"_s, u"rent"_s, u"insurance"_s, u"every month"_s}},
        {"Where do bills of a month go that I meet among the regular items?",
         {u"once a month"_s, u"every pay period"_s, u"rent as a creditor"_s, u"groceries as a regular item"_s},
         17,
         {u"fixed day of every month"_s, u"rent or insurance"_s, u"is a creditor"_s}},
        {"And where do groceries go that I meet among the creditors?",
         {u"once a month"_s, u"every pay period"_s, u"rent as a creditor"_s, u"groceries as a regular item"_s},
         3,
         {u"every pay period"_s, u"groceries"_s, u"regular item"_s}},
        {"What is a pay period called?",
         {u"pay period is named by its payday"_s},
         22,
         {u"pay period is named by its payday"_s}},
        {"May I accept today's date?",
         {u"offers today's date"_s, u"no payday"_s, u"last payday instead"_s},
         22,
         {u"type your last payday"_s, u"Enter Current Pay Period"_s}},
        {"What happens if the date is not a payday of the same chain?",
         {u"same chain of days as before"_s, u"every two weeks"_s, u"moves every pay period"_s, u"extra items"_s,
          u"installments no longer match"_s},
         22,
         {u"same chain of days as before"_s, u"every two weeks"_s, u"today's date"_s, u"moves every pay period"_s,
          u"extra items"_s, u"installments"_s, u"no longer match"_s}},
        {"Is the paycheck before taxes or after?",
         {u"Paycheck Amount"_s, u"net pay"_s, u"after taxes"_s},
         5,
         {u"Paycheck Amount"_s, u"net pay"_s, u"after taxes"_s}},
        {"Why is the button that adds a creditor gray?",
         {u"List Creditors"_s, u"nothing can be added before"_s},
         3,
         {u"List Creditors"_s, u"nothing can be added before"_s}},
        {"Why is the button that adds a regular item gray?",
         {u"List Regular Items"_s, u"nothing can be added before"_s},
         17,
         {u"List Regular Items"_s, u"nothing can be added before"_s}},
        {"Why is the button that adds a pay period gray?",
         {u"List Pay Periods"_s, u"nothing can be added before"_s},
         6,
         {u"List Pay Periods"_s, u"nothing can be added before"_s}},
        {"Why is the button that adds a project gray?",
         {u"List Projects"_s, u"nothing can be added before"_s},
         16,
         {u"List Projects"_s, u"then \"Add Project\""_s}},
        {"What does the list of dates want after Add Pay Period?",
         {u"Add Pay Period"_s, u"click on a date"_s, u"New Item"_s, u"change it"_s},
         6,
         {u"Add Pay Period"_s, u"click on a date"_s, u"New Item"_s}},
        {"What is this New Item?",
         {u"Add Pay Period"_s, u"click on a date"_s, u"New Item"_s, u"change it"_s},
         6,
         {u"click the pay period"_s, u"click 'New Item' to change it"_s}},
        {"How is the completion date of a project entered?",
         {u"completion date"_s, u"picked by a click"_s, u"savings forecast"_s, u"Double-click"_s},
         16,
         {u"Double-click \"Completion Date\""_s, u"picked by a click"_s, u"savings forecast"_s}},
        {"Why does Budget show another pay period than mine?",
         {u"first press"_s, u"looks ahead"_s, u"next pay period"_s},
         2,
         {u"first press"_s, u"looks ahead"_s, u"next pay period"_s}},
        {"What is this bill that I have never entered?",
         {u"Budget - December 1, 2026"_s, u"no bill"_s, u"money put aside"_s, u"deficit"_s, u"CREDIT - Budget"_s},
         2,
         {u"Budget - December 1, 2026"_s, u"no bill"_s, u"money put aside"_s, u"deficit"_s, u"CREDIT - Budget"_s}},
        {"How do I enter a bill that is due on the 31st?",
         {u"29th, 30th or 31st"_s, u"28th"_s},
         3,
         {u"29th, 30th or 31st"_s, u"28th"_s}},
        {"Why do the SAVINGS not come back in the next budget?",
         {u"SAVINGS are not carried over"_s, u"starts from one paycheck"_s, u"yours to put away"_s},
         2,
         {u"SAVINGS are not carried over"_s, u"starts from one paycheck"_s, u"yours to put away"_s}},
        {"How do I back up?",
         {u"back up"_s, u"leave Tallymere"_s, u"copy the folder"_s},
         5,
         {u"back up"_s, u"leave Tallymere"_s, u"copy the folder of the program"_s}},
        {"May a name have a quotation mark?",
         {u"quotation mark in a name"_s, u"entries behind it"_s, u"spoiled"_s},
         3,
         {u"quotation mark"_s, u"ends the name too early"_s, u"spoils the entries behind it"_s}},
    };
    return answers;
}

/// Whether all the words stand in one of the paragraphs, in any letter case.
bool StandTogether(const QStringList &words, const QStringList &paragraphs)
{
    return std::any_of(paragraphs.begin(), paragraphs.end(), [&](const QString &paragraph) {
        return std::all_of(words.begin(), words.end(),
                           [&](const QString &word) { return paragraph.contains(word, Qt::CaseInsensitive); });
    });
}

} // namespace

class tst_newcomers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachQuestionIsAnswered_data()
    {
        QTest::addColumn<int>("number");
        for (int number = 0; number < Answers().size(); ++number)
            QTest::newRow(Answers()[number].Question) << number;
    }
    void EachQuestionIsAnswered()
    {
        QFETCH(int, number);
        const Answer &answer = Answers()[number];
        QVERIFY(!answer.TipWords.isEmpty() && !answer.PageWords.isEmpty());
        QVERIFY2(StandTogether(answer.TipWords, LinesOf(TipFile)), "in no tip");
        QVERIFY2(StandTogether(answer.PageWords, LinesOfPage(answer.Page)), "not on the tutor's page");
    }
};

REGISTER_TEST(tst_newcomers)
#include "tst_newcomers.moc"
