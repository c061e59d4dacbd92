// Stands in for everything outside the program: records what is shown, asked, printed, saved and written, and answers
// only what was scripted. The whole program is put back when it comes and when it goes.
#pragma once

#include "foundation/Identity.h"
#include "foundation/State.h"
#include "platform/desk/Desk.h"
#include "platform/desk/Printer.h"

#include <QMap>
#include <QSet>
#include <QTemporaryDir>

/// Puts back everything that lives as long as the program: the state of all subsystems, the printer and the doors.
void ResetProgram();

class RecordingDesk
{
public:
    RecordingDesk();
    virtual ~RecordingDesk();
    RecordingDesk(const RecordingDesk &) = delete;
    RecordingDesk &operator=(const RecordingDesk &) = delete;

    // What the program did, taken off the record: the oldest of its kind, something empty where there is none.
    Message TakeMessage();
    PrintJob TakePrinted();
    HelpQuestion TakeHelp();
    bool TakeBeep();
    /// Everything the calculator was asked for, in order.
    QStringList TakeCalculatorCalls();
    /// The calls of the pointer, in order: true the hourglass, false the normal one.
    QList<bool> TakeHourglass();
    /// Whether the program was ended.
    bool TakeEnd();
    /// Takes everything so far: for tests of something else than what windows do.
    void TakeAll();
    /// What an option was set to; null if it was not set since it was taken last.
    QString TakeOption(const QString &key);
    /// The files of the folder that were written or removed by others than the test since they were taken or read
    /// last, in alphabetical order; in folders with "/".
    QStringList TakeFiles();

    // The record
    QList<Message> Messages;
    QList<FileQuestion> FileQuestions;
    QList<HelpQuestion> HelpQuestions;
    QList<PrintJob> Printed;
    QStringList CalculatorCalls;
    QList<bool> HourglassCalls;
    int Beeps = 0;
    bool Ended = false;

    // What it is answered
    QList<Answer> Answers;   ///< for boxes with Yes and No, in order
    QStringList FileAnswers; ///< for file dialogs, in order
    QString PrinterInUse = QStringLiteral("PDF files in printed");
    QList<bool> PrinterAnswers;                  ///< for printer dialogs, in order: whether one is chosen
    QList<std::optional<PrintFont>> FontAnswers; ///< for font dialogs, in order; nothing: cancelled
    QList<double> RandomNumbers;                 ///< from 0 to below 1, drawn in order; 0 when there are no more
    QMap<QString, QString> Options;              ///< as the store holds them, keys in lower case
    QSet<QString> SavedOptions;                  ///< keys of those that the program set
    QDateTime Now{QDate(2004, 1, 5), QTime(9, 30)};
    int StartCalculatorError = 0; ///< 0: it starts
    int BringForwardError = 0;
    bool Unscripted = false; ///< something was asked that nobody scripted an answer for

    /// An empty folder for data files, gone with the desk. It is the program's folder.
    QString Folder() const { return m_folder.path(); }
    /// The path of a data file there; "\" parts folders.
    QString Path(const QString &name) const;
    void WriteFile(const QString &name, const QByteArray &text) const;
    /// The bytes of a file, null if there is none. Who reads a file knows what became of it: it counts as taken.
    QByteArray ReadFile(const QString &name) const;
    void RemoveFile(const QString &name) const;
    /// Lays down a fresh household: empty lists, environm.ini of a biweekly household, untitled.lst, 26 tutor pages.
    void LayHousehold() const;

protected:
    /// As TakeFiles(), but they stay on the record.
    QStringList ChangedFiles() const;

private:
    void MarkAsKnown(const QString &name) const;

    Desk m_before;
    QTemporaryDir m_folder;
    mutable QSet<QString> m_knownFiles; ///< those that were there when the test looked last
};
