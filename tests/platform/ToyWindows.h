// Windows that do nothing but log their life, for the tests of the register, offscreen and on a real X server.
#pragma once

#include "platform/desk/Desk.h"
#include "platform/windows/Form.h"
#include "platform/windows/WindowRegister.h"

#include <QHash>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>
#include <QtTest>
#include <utility>

/// What the windows have heard, in order: "A Load", "A GotFocus First".
inline QStringList Log;
/// What a window does when it hears something, by what the log says of it.
inline QHash<QString, std::function<void()>> WhenHeard;
/// Windows whose QueryUnload cancels.
inline QSet<QString> Refusing;

inline void Tell(const QString &what)
{
    Log += what;
    if (const auto handler = WhenHeard.value(what))
        handler();
}

inline QStringList TakeLog()
{
    return std::exchange(Log, {});
}

/// Lets everything happen that is due, the ends of unloaded windows included.
inline void Settle()
{
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

/// Two fields, a button and nothing else.
class ToyWindow : public Form
{
public:
    explicit ToyWindow(bool takesActivation = true)
        : First(new QLineEdit), Second(new QLineEdit), Button(new QPushButton(QStringLiteral("&Press"))),
          m_takesActivation(takesActivation)
    {
        auto *layout = new QVBoxLayout(this);
        const QList<QPair<QWidget *, QString>> controls{
            {First, QStringLiteral("First")}, {Second, QStringLiteral("Second")}, {Button, QStringLiteral("Button")}};
        for (const auto &[control, name] : controls) {
            control->setObjectName(name);
            layout->addWidget(control);
        }
        connect(Button, &QPushButton::clicked, this, [this] { Tell(objectName() + QStringLiteral(" Click")); });
        OnGotFocus(First, [] { ++FirstFieldEntered; });
        EnterRing({First, Second});
    }

    void Load() override { Hear("Load"); }
    void Activate() override { Hear("Activate"); }
    void Deactivate() override { Hear("Deactivate"); }
    bool QueryUnload(CloseMode mode) override
    {
        Hear(mode == CloseMode::CloseBox ? "QueryUnload by frame" : "QueryUnload by code");
        return !Refusing.contains(objectName());
    }
    void Unload() override { Hear("Unload"); }
    void GotFocus(QWidget *control) override
    {
        Form::GotFocus(control);
        Tell(objectName() + QStringLiteral(" GotFocus ") + control->objectName());
    }
    void LostFocus(QWidget *control) override
    {
        Form::LostFocus(control);
        Tell(objectName() + QStringLiteral(" LostFocus ") + control->objectName());
    }
    bool TakesActivation() const override { return m_takesActivation; }
    int HelpContext() const override { return TheHelpContext; }
    using Form::OnEnter;

    QLineEdit *const First;
    QLineEdit *const Second;
    QPushButton *const Button;
    int TheHelpContext = 0;
    inline static int FirstFieldEntered = 0; ///< how often the handler of a first field's got-focus has run

private:
    void Hear(const char *what) { Tell(objectName() + QLatin1Char(' ') + QLatin1String(what)); }
    bool m_takesActivation;
};

/// The toys of one test: windows A to D, and T, which takes no activation. Its end closes all without a word.
class ToyBox
{
public:
    ToyBox() : m_before(TheDesk)
    {
        Clear();
        for (const char *name : {"A", "B", "C", "D"})
            TheWindows.Register(QString::fromLatin1(name), [] { return new ToyWindow; });
        TheWindows.Register(QStringLiteral("T"), [] { return new ToyWindow(false); });
        TheDesk.Hourglass = [](bool) {};
        TheDesk.EndProgram = [] { Tell(QStringLiteral("the program ends")); };
    }
    ~ToyBox()
    {
        TheWindows.Reset();
        Settle();
        Clear();
        TheDesk = m_before;
    }
    ToyBox(const ToyBox &) = delete;
    ToyBox &operator=(const ToyBox &) = delete;

    ToyWindow &operator[](const char *name) const
    {
        auto *form = static_cast<ToyWindow *>(TheWindows.Loaded(QString::fromLatin1(name)));
        if (!form)
            qFatal("%s is not loaded", name);
        return *form;
    }

private:
    static void Clear()
    {
        Log.clear();
        WhenHeard.clear();
        Refusing.clear();
        ToyWindow::FirstFieldEntered = 0;
    }
    Desk m_before;
};

inline void Show(const char *name)
{
    TheWindows.Show(QString::fromLatin1(name));
}
inline void ShowModal(const char *name)
{
    TheWindows.ShowModal(QString::fromLatin1(name));
}
inline void Hide(const char *name)
{
    TheWindows.Hide(QString::fromLatin1(name));
}
inline bool Unload(const char *name)
{
    return TheWindows.Unload(QString::fromLatin1(name));
}
inline QString Active()
{
    return TheWindows.Active() ? TheWindows.Active()->objectName() : QString();
}
inline void When(const char *heard, const std::function<void()> &handler)
{
    WhenHeard.insert(QString::fromLatin1(heard), handler);
}
