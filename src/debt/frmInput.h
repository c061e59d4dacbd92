// A small modal dialog that asks one question. The answer is left in the state.
#pragma once

#include "platform/windows/Window.h"
#include "ui_frmInput.h"

class frmInput : public Window<Ui::frmInput>
{
public:
    struct Question {
        QString Title; ///< decides what is tested
        QString Tip;   ///< what the answer has to be
        QString Prompt;
        QString Answer; ///< to start from
    };

    frmInput();

    /// Loads the dialog unseen and puts the question.
    static void Prepare(const Question &question);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool ValidateInput();
    void cmdOK_Click();
};

/// The questions of the pay off plan.
namespace InputTitle {
inline const QString NumberOfCreditors = QStringLiteral("Enter Number of Creditors");
inline const QString CreditorName = QStringLiteral("Enter Creditor Name");
} // namespace InputTitle
