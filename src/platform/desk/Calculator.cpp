#include "platform/desk/Calculator.h"

#include "platform/desk/DesktopWindows.h"
#include "platform/values/RuntimeError.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QWindow>
#include <csignal>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

struct UsualCalculator {
    const char *Name;
    bool KeepsToOneInstance; ///< a second start brings the first one forward
};
constexpr UsualCalculator UsualCalculators[] = {
    {"kcalc", false},        {"gnome-calculator", true}, {"mate-calc", false}, {"galculator", false},
    {"qalculate-gtk", true}, {"qalculate-qt", true},     {"xcalc", false},
};

/// Eleven keyboard steps down and twenty-five to the right.
constexpr QPoint PlaceBeside(250, 110);

/// A calculator that this program started; no process before the first start.
struct StartedCalculator {
    qint64 ProcessId = 0;
    QByteArray StartTime; ///< tells the process from a later one that was given the same number
    QString Path;
    bool KeepsToOneInstance = false;
    bool Wanted = false; ///< the user has asked for it, so it keeps the keyboard
};
StartedCalculator Started; // the last one
/// Those before it. One that could not be brought forward runs on beside its successor and ends with the program.
QList<StartedCalculator> StartedBefore;

struct InstalledCalculator {
    QString Path;
    UsualCalculator Kind;
};

/// The first one that is installed; an empty path if none is.
InstalledCalculator Find()
{
    for (const UsualCalculator &calculator : UsualCalculators) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(calculator.Name));
        if (!path.isEmpty())
            return {path, calculator};
    }
    return {};
}

/// When a process was started, in the system's ticks; empty if it does not run.
QByteArray StartTimeOf(qint64 processId)
{
    QFile file(u"/proc/%1/stat"_s.arg(processId));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // Behind the program's name, which may hold anything, stand the state and the other figures.
    constexpr int state = 0;
    constexpr int startTime = 19;
    const QByteArray line = file.readAll();
    const QList<QByteArray> figures = line.mid(line.lastIndexOf(')') + 2).split(' ');
    const bool ended = figures[state] == "Z" || figures[state] == "X";
    return ended ? QByteArray() : figures.value(startTime);
}

bool Runs(const StartedCalculator &calculator = Started)
{
    return calculator.ProcessId != 0 && !calculator.StartTime.isEmpty() &&
           StartTimeOf(calculator.ProcessId) == calculator.StartTime;
}

/// The name under which the oldest of the calculators is started, to know its window by.
QString InstanceName()
{
    return u"%1-calculator-%2"_s.arg(QCoreApplication::applicationName().toLower())
        .arg(QCoreApplication::applicationPid());
}

/// Starts a calculator that lives on by itself, and tells its process; 0 if it could not be started.
qint64 Launch(const QString &path)
{
    QProcess process;
    process.setProgram(path);
    if (path.endsWith(QLatin1String("/xcalc")))
        process.setArguments({u"-name"_s, InstanceName()});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    qint64 processId = 0;
    return process.startDetached(&processId) ? processId : 0;
}

DesktopWindow CalculatorWindow(const StartedCalculator &calculator = Started)
{
    return FindDesktopWindow(calculator.ProcessId, InstanceName().toLatin1());
}

/// Waits for the window of a calculator that has just been started, without holding up anything; then places it, and
/// gives the keyboard back to the window of this program that had it last.
class Placement : public QObject
{
public:
    explicit Placement(QObject *parent) : QObject(parent)
    {
        m_age.start();
        connect(&m_timer, &QTimer::timeout, this, &Placement::Look);
        m_timer.start(Interval);
        Look();
    }

private:
    static constexpr int Interval = 50;          // milliseconds, as the others
    static constexpr int LongestStart = 15000;   // a window that comes later stays where it is
    static constexpr int LongestFocusing = 1500; // how long after its window a calculator may take the keyboard

    void Look()
    {
        if (QWindow *focused = QGuiApplication::focusWindow())
            m_lastFocused = focused;
        if (!Runs() || m_age.hasExpired(m_window == 0 ? LongestStart : LongestFocusing)) {
            deleteLater();
            m_timer.stop();
            return;
        }
        if (m_window == 0) {
            m_window = CalculatorWindow();
            if (m_window == 0)
                return;
            MoveDesktopWindow(m_window, PlaceBeside);
            m_age.restart();
        }
        QWindow *own = OwnWindow();
        if (!Started.Wanted && own && ActiveDesktopWindow() == m_window) {
            ActivateDesktopWindow(DesktopWindow(own->winId()));
            m_timer.stop();
            deleteLater();
        }
    }

    QWindow *OwnWindow() const
    {
        if (m_lastFocused && m_lastFocused->isVisible())
            return m_lastFocused;
        if (QWindow *modal = QGuiApplication::modalWindow())
            return modal;
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (QWindow *window : windows)
            if (window->isVisible())
                return window;
        return nullptr;
    }

    QTimer m_timer;
    QElapsedTimer m_age; // of the start, then of the window
    QPointer<QWindow> m_lastFocused;
    DesktopWindow m_window = 0;
};

} // namespace

bool CalculatorInstalled()
{
    return !Find().Path.isEmpty();
}

void StartCalculator()
{
    const InstalledCalculator calculator = Find();
    const qint64 processId = calculator.Path.isEmpty() ? 0 : Launch(calculator.Path);
    if (processId == 0)
        RaiseError(RuntimeError::FileNotFound);
    if (Runs())
        StartedBefore += Started;
    Started = {processId, StartTimeOf(processId), calculator.Path, calculator.Kind.KeepsToOneInstance, Started.Wanted};
    if (DesktopWindowsReachable())
        new Placement(QCoreApplication::instance());
}

void BringCalculatorForward()
{
    Started.Wanted = true;
    if (!Runs())
        RaiseError(RuntimeError::InvalidProcedureCall);
    if (const DesktopWindow window = CalculatorWindow())
        ActivateDesktopWindow(window);
    else if (Started.KeepsToOneInstance)
        Launch(Started.Path);
    else if (!DesktopWindowsReachable())
        RaiseError(RuntimeError::InvalidProcedureCall); // nothing here can raise it; a new one comes to the front
}

void CloseCalculator()
{
    StartedBefore += std::exchange(Started, {});
    for (const StartedCalculator &calculator : std::exchange(StartedBefore, {})) {
        if (!Runs(calculator))
            continue;
        const DesktopWindow window = CalculatorWindow(calculator);
        if (window == 0 || !CloseDesktopWindow(window))
            ::kill(pid_t(calculator.ProcessId), SIGTERM);
    }
}
