#include "debt/frmInput.h"

#include "debt/DebtState.h"
#include "foundation/WindowNames.h"
#include "platform/windows/WindowRegister.h"

#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr EntryRule<Ui::frmInput> NumberRules[] = {{&Ui::frmInput::txtInput, Numeric, "Please enter a valid number"}};
constexpr EntryRule<Ui::frmInput> NameRules[] = {{&Ui::frmInput::txtInput, NotEmpty, "Please enter creditor name"}};
} // namespace

// Its messages go by the title of the question.
frmInput::frmInput() : Window({.Title = {}, .TheIcon = Icon::Warning})
{
    OnClick(ui.cmdOK, [this] { cmdOK_Click(); });
    OnEnter(ui.txtInput, [this] { FocusOn(ui.cmdOK); });
    StartAt(ui.txtInput);
}

void frmInput::Prepare(const Question &question)
{
    auto &window = static_cast<frmInput &>(TheWindows.Touch(WindowName::frmInput));
    Debt.InputPrompt = question.Prompt;
    window.ui.lblPrompt->setText(Debt.InputPrompt);
    window.setWindowTitle(question.Title);
    window.ui.txtInput->setText(question.Answer);
    const QString tip = question.Tip + u". Closing this box takes the last answer again."_s;
    window.ui.txtInput->setAccessibleDescription(tip);
    window.ui.txtInput->setToolTip(tip);
}

/// Esc is the close box. A key held down is one press, or it would answer the questions that follow.
void frmInput::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || event->modifiers() != Qt::NoModifier)
        Window::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        close();
}

bool frmInput::ValidateInput()
{
    if (windowTitle() == InputTitle::NumberOfCreditors)
        return Accepts(NumberRules);
    if (windowTitle() == InputTitle::CreditorName)
        return Accepts(NameRules);
    return true;
}

void frmInput::cmdOK_Click()
{
    if (!ValidateInput())
        return;
    Debt.InputResult = ui.txtInput->text();
    Close();
}
