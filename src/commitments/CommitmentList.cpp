#include "commitments/CommitmentList.h"

void SaveAndReload(const CommitmentList &list)
{
    list.Save();
    list.Input();
}

void RemoveAndSave(const CommitmentList &list, int record)
{
    list.Remove(record);
    SaveAndReload(list);
}

EntryOutcome Refuse(const CommitmentList &list, const Refusal &refusal)
{
    return {false, Message{refusal.Text, list.Title, Icon::Stop, Buttons::OkHelp, list.HelpContext}, refusal.Focus};
}
