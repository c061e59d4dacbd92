#include "RecordingDesk.h"

#include "budget/BudgetGenerator.h"
#include "budget/MonthlyOverhead.h"
#include "budget/SavingsForecast.h"
#include "budget/ScanPayPeriods.h"
#include "commitments/Extras.h"
#include "commitments/Projects.h"
#include "debt/PayOffPlan.h"
#include "foundation/Tutor.h"
#include "income/IncomeState.h"
#include "shopping/ShoppingDoors.h"
#include "shopping/ShoppingState.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A file that the test knows carries this time, so that every later writing shows, even one of the same bytes.
const std::filesystem::file_time_type KnownTime{};

std::filesystem::path Native(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

} // namespace

void ResetProgram()
{
    State = {};
    ThePrinter.Reset();
    Forecast = {};
    Overhead = {};
    Scan = {};
    Extras = {};
    Projects = {};
    Debt = {};
    Income = {};
    Shopping = {};
    RememberedTutorTimer.clear();
    // Whoever stands behind a door and outlived its test hears no more of it.
    for (QObject *door :
         std::initializer_list<QObject *>{&TheTutorRequests, &TheBudgetOutlet, &TheForecastOutlet, &ThePayPeriodOutlet,
                                          &TheCompletionDateOutlet, &ThePayOffOutlet, &TheShoppingDoors})
        door->disconnect();
}

RecordingDesk::RecordingDesk() : m_before(TheDesk)
{
    ResetProgram();
    TheDesk.ProgramTitle = AppTitle;
    State.ApplicationPath = Folder();
    State.StoresDirectory = Folder() + u"\\stores\\"_s;
    // The next scripted answer; a question that nobody scripted one for is cancelled.
    const auto next = [this](auto &answers) {
        if (!answers.isEmpty())
            return answers.takeFirst();
        Unscripted = true;
        return typename std::decay_t<decltype(answers)>::value_type();
    };
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
    TheDesk.AskFile = [this, next](const FileQuestion &question) {
        FileQuestions += question;
        return next(FileAnswers);
    };
    TheDesk.AskPrinter = [this, next] { return next(PrinterAnswers); };
    TheDesk.PrinterInUse = [this] { return PrinterInUse; };
    TheDesk.AskFont = [this, next] { return next(FontAnswers); };
    TheDesk.ShowHelp = [this](const HelpQuestion &question) { HelpQuestions += question; };
    TheDesk.PrintDocument = [this](const PrintJob &job) { Printed += job; };
    TheDesk.Now = [this] { return Now; };
    TheDesk.Random = [this] { return RandomNumbers.isEmpty() ? 0 : RandomNumbers.takeFirst(); };
    TheDesk.ProgramFolder = [this] { return Folder(); };
    TheDesk.GetSetting = [this](const QString &key, const QString &fallback) {
        return Options.value(key.toLower(), fallback);
    };
    TheDesk.SaveSetting = [this](const QString &key, const QString &value) {
        Options[key.toLower()] = value;
        SavedOptions += key.toLower();
    };
    TheDesk.StartCalculator = [this] {
        CalculatorCalls += u"start"_s;
        if (StartCalculatorError != 0)
            RaiseError(RuntimeError::Code(StartCalculatorError));
    };
    TheDesk.BringCalculatorForward = [this] {
        CalculatorCalls += u"forward"_s;
        if (BringForwardError != 0)
            RaiseError(RuntimeError::Code(BringForwardError));
    };
    TheDesk.CloseCalculator = [this] { CalculatorCalls += u"close"_s; };
    TheDesk.Beep = [this] { ++Beeps; };
    TheDesk.Hourglass = [this](bool on) { HourglassCalls += on; };
    TheDesk.EndProgram = [this] { Ended = true; };
}

RecordingDesk::~RecordingDesk()
{
    TheDesk = m_before;
    ResetProgram();
}

Message RecordingDesk::TakeMessage()
{
    return Messages.isEmpty() ? Message() : Messages.takeFirst();
}

PrintJob RecordingDesk::TakePrinted()
{
    return Printed.isEmpty() ? PrintJob() : Printed.takeFirst();
}

HelpQuestion RecordingDesk::TakeHelp()
{
    return HelpQuestions.isEmpty() ? HelpQuestion() : HelpQuestions.takeFirst();
}

bool RecordingDesk::TakeBeep()
{
    if (Beeps == 0)
        return false;
    --Beeps;
    return true;
}

void RecordingDesk::TakeAll()
{
    Messages.clear();
    Printed.clear();
    HelpQuestions.clear();
    Beeps = 0;
    HourglassCalls.clear();
    CalculatorCalls.clear();
    SavedOptions.clear();
    Ended = false;
    TakeFiles();
}

QStringList RecordingDesk::TakeCalculatorCalls()
{
    return std::exchange(CalculatorCalls, {});
}

QList<bool> RecordingDesk::TakeHourglass()
{
    return std::exchange(HourglassCalls, {});
}

bool RecordingDesk::TakeEnd()
{
    return std::exchange(Ended, false);
}

QString RecordingDesk::TakeOption(const QString &key)
{
    return SavedOptions.remove(key.toLower()) ? Options.value(key.toLower()) : QString();
}

QStringList RecordingDesk::TakeFiles()
{
    const QStringList files = ChangedFiles();
    for (const QString &file : files)
        MarkAsKnown(file);
    return files;
}

QStringList RecordingDesk::ChangedFiles() const
{
    const QDir folder(Folder());
    QStringList changed;
    for (const QString &file : m_knownFiles)
        if (!QFileInfo::exists(folder.filePath(file)))
            changed += file;
    QDirIterator files(Folder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        std::error_code unreadable;
        if (std::filesystem::is_regular_file(Native(path), unreadable) &&
            std::filesystem::last_write_time(Native(path), unreadable) != KnownTime)
            changed += folder.relativeFilePath(path);
    }
    changed.sort();
    return changed;
}

void RecordingDesk::MarkAsKnown(const QString &name) const
{
    const QString path = Path(name);
    const QString file = QDir(Folder()).relativeFilePath(path);
    if (!QFileInfo::exists(path)) {
        m_knownFiles -= file;
        return;
    }
    m_knownFiles += file;
    std::error_code failed;
    if (std::filesystem::is_regular_file(Native(path), failed))
        std::filesystem::last_write_time(Native(path), KnownTime, failed);
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
    file.close();
    MarkAsKnown(name);
}

QByteArray RecordingDesk::ReadFile(const QString &name) const
{
    MarkAsKnown(name);
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void RecordingDesk::RemoveFile(const QString &name) const
{
    QFile::remove(Path(name));
    MarkAsKnown(name);
}

void RecordingDesk::LayHousehold() const
{
    for (const char *name :
         {"creditor.txt", "regulars.txt", "extra.txt", "projects.txt", "mastshop.txt", "stores\\untitled.lst"})
        WriteFile(QLatin1String(name), "0\r\n");
    WriteFile(u"environm.ini"_s, "26\r\n1000\r\n14\r\n1\r\n15\r\n0\r\n0.06\r\n\"untitled.lst\"\r\n0.9\r\n");
    QByteArray pages = ";\r\n";
    for (int page = 1; page <= MostTutorPages; ++page)
        pages += "Page " + QByteArray::number(page) + "\r\n;\r\n";
    WriteFile(u"help\\Instruction.txt"_s, pages);
}
