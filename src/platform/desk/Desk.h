// What lies outside the program: message boxes, dialogs, printer, clock, options, help and the desktop's calculator.
// Everything is reached through TheDesk, so that main installs the real ones and a test installs recorders.
// This header needs no window.
#pragma once

#include "platform/desk/PrintJob.h"

#include <QDateTime>
#include <QString>
#include <functional>
#include <optional>

enum class Icon { None, Stop, Question, Warning, Information };
enum class Buttons { Ok, OkHelp, YesNo };
enum class Answer { Ok, Yes, No };

/// One message box. HelpContext counts only where the buttons have a help button.
struct Message {
    QString Text;
    QString Title;
    Icon TheIcon = Icon::None;
    Buttons TheButtons = Buttons::Ok;
    int HelpContext = 0;
    bool MustBeAnswered = false; ///< Esc and the close box are no answer to the question
    bool operator==(const Message &) const = default;
};

/// One file dialog. Filter as "Store List Files (*.lst)|*.lst".
struct FileQuestion {
    enum Kind { Open, Save } TheKind = Open;
    QString Filter;
    QString Directory;
    QString FileName;
    bool operator==(const FileQuestion &) const = default;
};

/// What the help is asked for: the page of a topic, which is a window's given name; without one that of a context; with
/// neither, the contents. An empty file is the program's own help file.
struct HelpQuestion {
    QString File;
    int Context = 0;
    QString Topic = {};
    bool operator==(const HelpQuestion &) const = default;
};

struct Desk {
    QString ProgramTitle; ///< options store, default error report and the platform's own messages go by it
    std::function<Answer(const Message &)> ShowMessage;
    std::function<QString(const FileQuestion &)> AskFile; ///< empty: cancelled
    std::function<void(const HelpQuestion &)> ShowHelp;
    std::function<void(const PrintJob &)> PrintDocument;
    /// The printer dialog: whether a printer was chosen, which every later document is printed on. False: cancelled.
    std::function<bool()> AskPrinter;
    /// Where documents go at present: a printer's name, or "PDF files in printed".
    std::function<QString()> PrinterInUse;
    /// The font dialog, which opens on a font of its own. Nothing: cancelled.
    std::function<std::optional<PrintFont>()> AskFont;
    std::function<QDateTime()> Now;
    std::function<double()> Random;         ///< a number from 0 to below 1
    std::function<QString()> ProgramFolder; ///< folder of the executable, where the household lies
    std::function<QString(const QString &key, const QString &fallback)> GetSetting; ///< section "Options"
    std::function<void(const QString &key, const QString &value)> SaveSetting;
    std::function<void()> StartCalculator;        ///< starts and places it; raises error 53 if none is installed
    std::function<void()> BringCalculatorForward; ///< raises error 5 if it does not run
    std::function<void()> CloseCalculator;        ///< closes the one that the program started
    std::function<void()> Beep;
    std::function<void(bool)> Hourglass; ///< the pointer: true the hourglass, false the normal one
    std::function<void()> EndProgram;    ///< ends the process at once
};
inline Desk TheDesk;

/// Short forms for the usual boxes.
Answer ShowMessage(const QString &text, const QString &title, Icon icon, Buttons buttons = Buttons::Ok,
                   int helpContext = 0);
