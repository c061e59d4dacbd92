// The help as a program of its own, so that it can be read over a window or a box that blocks the other one:
//   TallymereHelp [--listen] [HELPFILE]
// With --listen the questions come line by line from the standard input, whose end is the end of the help. Each is
// answered by "shown" and the page's file name once that stands on the screen; a help file that cannot be read by
// "error" and why, with tabs between the lines of that. Without --listen it shows the contents.
#include "help/HelpBook.h"
#include "help/HelpWindow.h"
#include "platform/controls/ClearEdges.h"
#include "platform/controls/Icons.h"

#include <QApplication>
#include <QMessageBox>
#include <QSocketNotifier>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void Say(const QByteArray &line)
{
    std::puts(line.constData());
    std::fflush(stdout);
}

/// Reads questions as they come and has the window answer them.
class Listener : public QObject
{
public:
    explicit Listener(HelpWindow &window)
        : QObject(&window), m_window(window), m_notifier(STDIN_FILENO, QSocketNotifier::Read)
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, &Listener::Read);
    }

private:
    void Read()
    {
        char bytes[1024];
        const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (count <= 0) { // the program that asked has ended
            m_notifier.setEnabled(false);
            QCoreApplication::quit();
            return;
        }
        m_unread += QByteArray(bytes, qsizetype(count));
        for (qsizetype end = m_unread.indexOf('\n'); end >= 0; end = m_unread.indexOf('\n')) {
            m_window.Answer(QString::fromUtf8(m_unread.left(end)));
            m_window.ComeForward();
            m_unread.remove(0, end + 1);
            Say("shown " + m_window.Page().fileName().toUtf8());
        }
    }

    HelpWindow &m_window;
    QSocketNotifier m_notifier;
    QByteArray m_unread;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"TallymereHelp"_s);
    QGuiApplication::setDesktopFileName(u"tallymere"_s);
    QApplication::setStyle(new ClearEdges);
    QApplication::setWindowIcon(ThemedIcon(u"help"_s));

    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool listens = arguments.removeAll(u"--listen"_s) > 0;
    const QString file = arguments.value(0, QCoreApplication::applicationDirPath() + u"/help/budget help.hlp"_s);
    HelpBook book(file);
    if (!book.Error().isEmpty()) {
        if (listens) // the program shows it in its own manner
            Say("error " + QString(book.Error()).replace(u'\n', u'\t').toUtf8());
        else
            QMessageBox::critical(nullptr, u"Help"_s, book.Error());
        return EXIT_FAILURE;
    }
    HelpWindow window(book);
    if (listens) {
        new Listener(window);
    } else {
        window.Answer(u"contents"_s);
        window.ComeForward();
    }
    return application.exec();
}
