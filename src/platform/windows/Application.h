// The application object: the one place where an error that nobody traps ends the program.
#pragma once

#include "platform/windows/ClickGuard.h"

#include <QApplication>

class Application : public QApplication
{
    Q_OBJECT
public:
    Application(int &argc, char **argv);
    bool notify(QObject *receiver, QEvent *event) override;

private:
    ClickGuard m_clickGuard;
};

class RuntimeError;

/// The default report of an error: title AppTitle, "Run-time error '13':", an empty line, the description. Then the
/// program ends. What else fails while the report stands open is not reported.
void ReportFatalError(const RuntimeError &error);
