#include "RecordingDesk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

RecordingDesk::RecordingDesk() : m_before(TheDesk)
{
    ResetState();
    ThePrinter.Reset();
    State.ApplicationPath = Folder();
    State.StoresDirectory = Folder() + QStringLiteral("\\stores\\");
    TheDesk.ShowMessage = [this](const Message &message) {
        Messages += message;
        if (message.TheButtons != Buttons::YesNo)
            return Answer::Ok;
        if (Answers.isEmpty()) {
            Unscripted = true;
            return Answer::No;
        }
        return Answers.takeFirst();
    };
    TheDesk.AskFile = [this](const FileQuestion &question) {
        FileQuestions += question;
        if (FileAnswers.isEmpty()) {
            Unscripted = true;
            return QString();
        }
        return FileAnswers.takeFirst();
    };
    TheDesk.ShowHelp = [this](const HelpQuestion &question) { HelpQuestions += question; };
    TheDesk.PrintDocument = [this](const PrintJob &job) { Printed += job; };
    TheDesk.Now = [this] { return Now; };
    TheDesk.ProgramFolder = [this] { return Folder(); };
    TheDesk.GetSetting = [this](const QString &key, const QString &fallback) {
        return Options.value(key.toLower(), fallback);
    };
    TheDesk.SaveSetting = [this](const QString &key, const QString &value) { Options[key.toLower()] = value; };
    TheDesk.StartCalculator = [this] {
        CalculatorCalls += QStringLiteral("start");
        if (StartCalculatorError != 0)
            RaiseError(RuntimeError::Code(StartCalculatorError));
    };
    TheDesk.BringCalculatorForward = [this] {
        CalculatorCalls += QStringLiteral("forward");
        if (BringForwardError != 0)
            RaiseError(RuntimeError::Code(BringForwardError));
    };
    TheDesk.CloseCalculator = [this] { CalculatorCalls += QStringLiteral("close"); };
    TheDesk.Beep = [this] { ++Beeps; };
    TheDesk.Hourglass = [this](bool on) { HourglassCalls += on; };
    TheDesk.EndProgram = [this] { Ended = true; };
}

RecordingDesk::~RecordingDesk()
{
    TheDesk = m_before;
    ThePrinter.Reset();
    ResetState();
}

Message RecordingDesk::TakeMessage()
{
    return Messages.isEmpty() ? Message() : Messages.takeFirst();
}

QString RecordingDesk::Path(const QString &name) const
{
    return Folder() + QLatin1Char('/') + QString(name).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

void RecordingDesk::WriteFile(const QString &name, const QByteArray &text) const
{
    const QString path = Path(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray RecordingDesk::ReadFile(const QString &name) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void RecordingDesk::RemoveFile(const QString &name) const
{
    QFile::remove(Path(name));
}

void RecordingDesk::LayHousehold() const
{
    for (const char *name :
         {"creditor.txt", "regulars.txt", "extra.txt", "projects.txt", "mastshop.txt", "stores\\untitled.lst"})
        WriteFile(QLatin1String(name), "0\r\n");
    WriteFile(QStringLiteral("environm.ini"),
              "26\r\n1000\r\n14\r\n1\r\n15\r\n0\r\n0.06\r\n\"untitled.lst\"\r\n0.9\r\n");
    QByteArray pages = ";\r\n";
    for (int page = 1; page <= MostTutorPages; ++page)
        pages += "Page " + QByteArray::number(page) + "\r\n;\r\n";
    WriteFile(QStringLiteral("help\\Instruction.txt"), pages);
}
