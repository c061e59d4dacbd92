// The application object: the one place where an error that nobody traps ends the program, and where the program hears
// that it is to end from outside.
#pragma once

#include "platform/windows/ClickGuard.h"

#include <QApplication>

class Application : public QApplication
{
    Q_OBJECT
public:
    /// name: the program's short name, in small letters also that of its desktop file.
    Application(int &argc, char **argv, const QString &name);
    bool notify(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    /// The desktop asks to save: its session may end next, or go on.
    void SaveRequested();
    /// The program is to end without a question: a signal asks for it, or the desktop's session ends.
    void EndRequested();

protected:
    bool event(QEvent *event) override;

private:
    ClickGuard m_clickGuard;
};

class RuntimeError;

/// The default report of an error: title TheDesk.ProgramTitle, "Run-time error '13':", an empty line, the description.
/// Then the program ends. What else fails while the report stands open is not reported.
void ReportFatalError(const RuntimeError &error);
