#include "commitments/Regulars.h"

#include "foundation/BudgetFiles.h"
#include "foundation/Compaction.h"
#include "foundation/OneMore.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

enum Field { Amount, Item };

QStringList Names()
{
    QStringList names;
    for (int i = 1; i <= State.NumberOfRegulars; ++i)
        names += State.Regulars(i).RegularItem;
    return names;
}

QStringList PanelOf(int record)
{
    const RegularRecord &regular = State.Regulars(record);
    return {FormatCurrency(regular.RegularAmount), regular.RegularItem};
}

EntryOutcome Commit(QStringList &panel, const QString &caption, int record)
{
    if (const auto refusal = ValidateRegularEntry(panel))
        return Refuse(RegularList, *refusal);
    const RegularRecord regular{panel[Item], ToCurrency(panel[Amount])};
    panel[Amount] = FormatCurrency(regular.RegularAmount);
    if (caption == NewCaption)
        AddRegular(regular);
    else if (caption == ChangeCaption)
        ChangeRegular(record, regular);
    else
        return {};
    SaveAndReload(RegularList);
    return {.Saved = true};
}

} // namespace

const CommitmentList RegularList{.Title = u"Regulars"_s,
                                 .HelpContext = 23,
                                 .Fields = {u"txtRegularAmount"_s, u"txtRegularItem"_s},
                                 .Input = InputRegulars,
                                 .Save = SaveRegulars,
                                 .Names = Names,
                                 .PanelOf = PanelOf,
                                 .Commit = Commit,
                                 .Remove = DeleteRegular};

std::optional<Refusal> ValidateRegularEntry(const QStringList &panel)
{
    return FirstFailure({
        {IsNumeric(panel[Amount]), "Please enter a numerical dollar amount in the Regular Amount field",
         "txtRegularAmount"},
        {!panel[Item].isEmpty(), "Please enter a regular item description in the Regular Item field", "txtRegularItem"},
    });
}

void AddRegular(const RegularRecord &record)
{
    const qint16 count = OneMore(State.NumberOfRegulars);
    State.Regulars.RedimPreserve(count);
    State.NumberOfRegulars = count;
    State.Regulars(count) = record;
}

void ChangeRegular(int index, const RegularRecord &record)
{
    State.Regulars(index) = record;
}

void DeleteRegular(int index)
{
    if (State.NumberOfRegulars < 2) {
        State.Regulars.Redim(0);
        State.NumberOfRegulars = 0;
        return;
    }
    DeleteByMark(State.Regulars, State.NumberOfRegulars, index, &RegularRecord::RegularItem);
}
