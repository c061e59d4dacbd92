#include "commitments/ListPanel.h"

#include "platform/controls/ListBox.h"

#include <QPushButton>
#include <QScopeGuard>
#include <QStringListModel>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The height of a row, also while the list has none.
int RowHeight(const ListBox &list)
{
    const QStringListModel row({u"X"_s});
    QStyleOptionViewItem look;
    look.initFrom(&list);
    look.font = list.font();
    look.widget = &list;
    return list.itemDelegate()->sizeHint(look, row.index(0)).height();
}

} // namespace

void ListPanel::TakeControls(const Controls &controls)
{
    m_controls = controls;
    connect(controls.List, &ListBox::Click, this, [this] { RowClicked(); });
    OnClick(controls.Read, [this] { ReadClicked(); });
    OnClick(controls.Add, [this] { AddClicked(); });
    OnClickTrapped(controls.Commit, [this] { CommitEntry(); });
    OnClickTrapped(controls.Delete, [this] { DeleteClicked(); });
    OnClick(controls.Quit, [this] {
        m_controls.Add->setEnabled(false);
        m_controls.Delete->setEnabled(false);
        Close();
    });
    EnterRing(controls.Fields);
}

void ListPanel::ReadClicked()
{
    m_list.Input();
    FillList();
    m_controls.Add->setEnabled(true);
}

void ListPanel::AddClicked()
{
    EmptyFields();
    OpenPanel(NewCaption);
}

void ListPanel::RowClicked()
{
    SetFields(m_list.PanelOf(SelectedRecord()));
    m_controls.Delete->setEnabled(true);
    OpenPanel(ChangeCaption);
}

void ListPanel::DeleteClicked()
{
    RemoveAndSave(m_list, SelectedRecord());
    FillList();
    ClosePanel();
}

/// The panel shows its texts in their normal forms before any message about them.
EntryOutcome ListPanel::TakePanel()
{
    QStringList panel;
    for (const QLineEdit *field : std::as_const(m_controls.Fields))
        panel += field->text();
    const auto show = qScopeGuard([&] { SetFields(panel); });
    return m_list.Commit(panel, m_controls.Commit->text(), SelectedRecord());
}

void ListPanel::CommitEntry()
{
    const EntryOutcome outcome = TakePanel();
    auto *field = outcome.Focus.isEmpty() ? nullptr : findChild<QLineEdit *>(outcome.Focus);
    SetSubject(field);
    if (outcome.Objection)
        TheDesk.ShowMessage(*outcome.Objection);
    SetSubject(nullptr);
    if (field)
        FocusOn(field);
    if (!outcome.Saved)
        return;
    FillList();
    EntrySaved();
}

void ListPanel::FillList()
{
    m_controls.List->Clear();
    for (const QString &name : m_list.Names())
        m_controls.List->AddItem(name);
}

int ListPanel::SelectedRecord() const
{
    return m_controls.List->ListIndex() + 1;
}

void ListPanel::SetFields(const QStringList &texts)
{
    for (qsizetype i = 0; i < texts.size(); ++i) {
        m_controls.Fields[i]->setText(texts[i]);
        m_controls.Fields[i]->setCursorPosition(0); // also where the text is the same: its beginning is seen
    }
}

void ListPanel::EmptyFields()
{
    for (QLineEdit *field : std::as_const(m_controls.Fields))
        field->clear();
}

void ListPanel::EnableFields(bool enabled)
{
    for (QLineEdit *field : std::as_const(m_controls.Fields))
        field->setEnabled(enabled);
}

void ListPanel::OpenPanel(const QString &caption)
{
    m_controls.Commit->setText(caption);
    m_controls.Commit->setEnabled(true);
    EnableFields(true);
    FocusOn(m_controls.Fields.first());
}

void ListPanel::ClosePanel()
{
    // Or the toolkit moves it on from the disabled button to the quit button, where the next Enter closes the window.
    FocusOn(m_controls.List);
    m_controls.Commit->setEnabled(false);
    EmptyFields();
    EnableFields(false);
    m_controls.Delete->setEnabled(false);
}

void ListPanel::showEvent(QShowEvent *event)
{
    WindowBase::showEvent(event);
    if (!std::exchange(m_hasBeenShown, true))
        GiveListWholeRows();
}

/// Makes the window higher by what the row at the list's lower edge lacks, so that none is cut in half.
void ListPanel::GiveListWholeRows()
{
    const int row = RowHeight(*m_controls.List);
    const int rest = m_controls.List->viewport()->height() % row;
    if (rest > 0)
        resize(width(), height() + row - rest);
}
