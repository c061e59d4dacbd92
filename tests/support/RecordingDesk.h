// Stands in for everything outside the program: records what is shown, asked and printed, and answers only what was
// scripted. The shared state and the printer are put back when it comes and when it goes.
#pragma once

#include "foundation/State.h"
#include "platform/desk/Desk.h"
#include "platform/desk/Printer.h"

#include <QMap>
#include <QTemporaryDir>

class RecordingDesk
{
public:
    RecordingDesk();
    virtual ~RecordingDesk();
    RecordingDesk(const RecordingDesk &) = delete;
    RecordingDesk &operator=(const RecordingDesk &) = delete;

    /// The oldest message that was not taken yet; an empty one if there is none.
    Message TakeMessage();

    // What the program did
    QList<Message> Messages;
    QList<FileQuestion> FileQuestions;
    QList<HelpQuestion> HelpQuestions;
    QList<PrintJob> Printed;
    QStringList CalculatorCalls;
    QList<bool> HourglassCalls;
    int Beeps = 0;
    bool Ended = false;

    // What it is answered
    QList<Answer> Answers;          ///< for boxes with Yes and No, in order
    QStringList FileAnswers;        ///< for file dialogs, in order
    QMap<QString, QString> Options; ///< keys in lower case
    QDateTime Now{QDate(2004, 1, 5), QTime(9, 30)};
    int StartCalculatorError = 0; ///< 0: it starts
    int BringForwardError = 0;
    bool Unscripted = false; ///< something was asked that nobody scripted an answer for

    /// An empty folder for data files, gone with the desk. It is the program's folder.
    QString Folder() const { return m_folder.path(); }
    /// The path of a data file there; "\" parts folders.
    QString Path(const QString &name) const;
    void WriteFile(const QString &name, const QByteArray &text) const;
    /// The bytes of a file, null if there is none.
    QByteArray ReadFile(const QString &name) const;
    void RemoveFile(const QString &name) const;
    /// Lays down a fresh household: empty lists, environm.ini of a biweekly household, untitled.lst, 26 tutor pages.
    void LayHousehold() const;

private:
    Desk m_before;
    QTemporaryDir m_folder;
};
