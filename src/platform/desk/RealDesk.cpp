#include "platform/desk/RealDesk.h"

#include "platform/desk/Calculator.h"
#include "platform/desk/Desk.h"
#include "platform/desk/HelpViewer.h"
#include "platform/desk/Options.h"
#include "platform/desk/PagePrinter.h"
#include "platform/desk/PrinterFont.h"
#include "platform/files/DataFile.h"
#include "platform/windows/WindowRegister.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QTimer>
#include <cstdlib>
#include <memory>
#include <utility>

namespace {

QMessageBox::Icon BoxIcon(Icon icon)
{
    switch (icon) {
    case Icon::Stop: return QMessageBox::Critical;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Warning: return QMessageBox::Warning;
    case Icon::Information: return QMessageBox::Information;
    case Icon::None: break;
    }
    return QMessageBox::NoIcon;
}

/// The window that a dialog stands over. One that is minimized would keep the dialog from the screen.
QWidget *DialogParent()
{
    Form *front = TheWindows.Front();
    return front && !front->isMinimized() ? front : nullptr;
}

/// A box that leaves in sight what it is about, and stays, where the message wants it, until one of its buttons is
/// pressed.
class Box : public QMessageBox
{
public:
    explicit Box(bool mustBeAnswered) : QMessageBox(DialogParent()), m_mustBeAnswered(mustBeAnswered) {}

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (!m_mustBeAnswered || !event->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent *event) override
    {
        if (m_mustBeAnswered)
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }

    /// Before it goes to the screen: the toolkit centres it over the window, and it moves below or above the field that
    /// it is about.
    void showEvent(QShowEvent *event) override
    {
        QMessageBox::showEvent(event);
        const auto *form = qobject_cast<const Form *>(parentWidget());
        const auto *field = form ? qobject_cast<const QLineEdit *>(form->Subject()) : nullptr;
        if (!field)
            return;
        constexpr int gap = 8;
        const int titleBar = form->geometry().top() - form->frameGeometry().top();
        const QRect box = geometry().adjusted(0, -titleBar, 0, 0);
        const QRect kept(field->mapToGlobal(QPoint()), field->size());
        const QRect room = form->screen()->availableGeometry();
        if (!box.intersects(kept))
            return;
        if (kept.bottom() + gap + box.height() <= room.bottom())
            move(x(), kept.bottom() + gap);
        else if (kept.top() - gap - box.height() >= room.top())
            move(x(), kept.top() - gap - box.height());
    }

private:
    bool m_mustBeAnswered;
};

/// The frame shows the title beside its buttons, and where the text is short it would be cut.
void GiveTitleItsRoom(QMessageBox &box)
{
    constexpr int frameButtons = 120; // pixels that a frame takes beside the title
    QFont bold = box.font();
    bold.setBold(true);
    const int width = QFontMetrics(bold).horizontalAdvance(box.windowTitle()) + frameButtons;
    if (auto *layout = qobject_cast<QGridLayout *>(box.layout()))
        layout->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Fixed), layout->rowCount(), 0, 1,
                        layout->columnCount());
}

Answer ShowBox(const Message &message)
{
    Box box(message.MustBeAnswered);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(message.Title);
    box.setTextFormat(Qt::PlainText);
    box.setText(message.Text);
    box.setIcon(BoxIcon(message.TheIcon));
    if (message.TheButtons == Buttons::YesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes); // the first button is the default one
    } else {
        box.setStandardButtons(QMessageBox::Ok);
        box.setDefaultButton(QMessageBox::Ok);
        box.setEscapeButton(QMessageBox::Ok);
    }
    if (message.TheButtons == Buttons::OkHelp) {
        // A help button of the box's own role would close the box; this one only opens the help.
        auto *help = box.addButton(QMessageBox::Help);
        help->disconnect();
        QObject::connect(help, &QPushButton::clicked, &box, [&message] {
            TheDesk.ShowHelp({QString(), message.HelpContext});
        });
    }
    GiveTitleItsRoom(box);
    const bool busy = QApplication::overrideCursor();
    TheDesk.Hourglass(false); // nobody answers a box under a busy pointer
    int answer = 0;
    TheWindows.WhileAway([&] { answer = box.exec(); });
    if (busy)
        TheDesk.Hourglass(true);
    switch (answer) {
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    default: return message.TheButtons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
}

/// "Store List Files (*.lst)|*.lst" in the toolkit's words.
QString DialogFilter(const QString &filter)
{
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].left(parts[i].indexOf(QLatin1Char('('))).trimmed();
        filters +=
            QStringLiteral("%1 (%2)").arg(name, QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' ')));
    }
    return filters.join(QStringLiteral(";;"));
}

} // namespace

QString DialogStart(const FileQuestion &question)
{
    // Without the separator at its end, where no name would be left to look for on the disk.
    QString folder = question.Directory;
    while (folder.endsWith(QLatin1Char('\\')) || folder.endsWith(QLatin1Char('/')))
        folder.chop(1);
    return QDir::cleanPath(ExistingPath(folder)) + QLatin1Char('/') + question.FileName;
}

namespace {

/// What was chosen. The toolkit takes quotes in the name field for marks around several names; here they belong to the
/// name, so that whoever asked can tell the user what is wrong with it.
QString ChosenFile(const QFileDialog &dialog)
{
    const auto *field = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (field && field->text().contains(QLatin1Char('"')))
        return dialog.directory().filePath(field->text());
    return dialog.selectedFiles().constFirst();
}

QString AskFile(const FileQuestion &question)
{
    const bool saves = question.TheKind == FileQuestion::Save;
    QString answer;
    TheWindows.WhileAway([&] {
        QFileDialog dialog(DialogParent(), QString(), DialogStart(question), DialogFilter(question.Filter));
        dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
        if (saves) {
            // A name without an ending gets the filter's, or the file would be found in no dialog again.
            dialog.setDefaultSuffix(question.Filter.section(QLatin1Char('.'), -1));
            // Only who saves knows which file that will be, and asks before one is replaced.
            dialog.setOption(QFileDialog::DontConfirmOverwrite);
            if (auto *field = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
                field->selectAll(); // what is typed takes the given name's place
        }
        if (dialog.exec() == QDialog::Accepted)
            answer = ChosenFile(dialog);
    });
    return answer;
}

} // namespace

namespace {

/// Tells of the documents that have become files. The leaving of a window prints, and a box would swallow the click
/// that left it; so the box comes once that click has done its work, and names all the files there are by then.
class PdfNotice : public QObject
{
public:
    PdfNotice()
    {
        m_timer.setSingleShot(true);
        connect(&m_timer, &QTimer::timeout, this, [this] { UserIsBusy() ? m_timer.start(Rest) : Show(); });
    }

    void Add(const PrintedDocument &document)
    {
        m_paths += document.PdfPath;
        if (!document.PdfIsChosen)
            AddReason(QStringLiteral("No printer could be used. "));
        if (!document.RefusedFolder.isEmpty())
            AddReason(QStringLiteral("The folder %1 cannot be written to. ").arg(document.RefusedFolder));
        m_timer.start(Rest);
    }

    /// Now, whatever the user does.
    void Show()
    {
        m_timer.stop();
        if (m_paths.isEmpty())
            return;
        const QStringList paths = std::exchange(m_paths, {});
        const QString reasons = std::exchange(m_reasons, {}).join(QString());
        const QString place = paths.size() == 1 ? QStringLiteral("The printed pages are in the file\n")
                                                : QStringLiteral("The printed pages are in the files\n");
        ShowMessage(reasons + place + paths.join(QLatin1Char('\n')), TheDesk.ProgramTitle, Icon::Information);
    }

private:
    // The window system tells of the move to another window first, and of the press that caused it a moment later.
    static constexpr int Rest = 200; // milliseconds

    void AddReason(const QString &reason)
    {
        if (!m_reasons.contains(reason))
            m_reasons += reason;
    }

    static bool UserIsBusy()
    {
        // A menu, or a box or dialog of the desk; a modal window of the program is a place to work in like any other.
        QWidget *modal = QApplication::activeModalWidget();
        return QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget() ||
               (modal && !qobject_cast<Form *>(modal));
    }

    QTimer m_timer;
    QStringList m_paths;
    QStringList m_reasons; // why they are files, and where they are; none where the user asked for just that
};

} // namespace

void InstallRealDesk(const QString &programTitle, const QString &printedFolder,
                     const std::function<QString()> &helpFile)
{
    TheDesk.ProgramTitle = programTitle;
    TheDesk.ShowMessage = ShowBox;
    TheDesk.AskFile = AskFile;
    const auto help = std::make_shared<HelpViewer>(QCoreApplication::applicationDirPath() + QLatin1Char('/') +
                                                       QCoreApplication::applicationName() + QStringLiteral("Help"),
                                                   helpFile);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, [help] { help->Close(); });
    TheDesk.ShowHelp = [help](const HelpQuestion &question) { help->Ask(question); };
    const auto notice = std::make_shared<PdfNotice>();
    const auto printer = std::make_shared<DocumentPrinter>(printedFolder);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, [printer] { printer->Forget(); });
    TheDesk.PrintDocument = [printer, notice](const PrintJob &job) {
        const PrintedDocument document = printer->Print(job);
        if (!document.PdfPath.isEmpty())
            notice->Add(document);
    };
    TheDesk.AskPrinter = [printer] {
        bool chosen = false;
        TheWindows.WhileAway([&] { chosen = printer->Choose(DialogParent()); });
        return chosen;
    };
    TheDesk.PrinterInUse = [printer] { return printer->InUse(); };
    TheDesk.AskFont = [] {
        std::optional<PrintFont> font;
        TheWindows.WhileAway([&] { font = AskPrinterFont(DialogParent()); });
        return font;
    };
    TheDesk.Now = [] { return QDateTime::currentDateTime(); };
    TheDesk.Random = [] { return QRandomGenerator::global()->generateDouble(); };
    TheDesk.ProgramFolder = [] { return QCoreApplication::applicationDirPath(); };
    TheDesk.GetSetting = GetSetting;
    TheDesk.SaveSetting = SaveSetting;
    TheDesk.StartCalculator = StartCalculator;
    TheDesk.BringCalculatorForward = BringCalculatorForward;
    TheDesk.CloseCalculator = CloseCalculator;
    TheDesk.Beep = [] { QApplication::beep(); };
    TheDesk.Hourglass = [](bool on) {
        if (on)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            while (QApplication::overrideCursor())
                QApplication::restoreOverrideCursor();
    };
    // At once: no window gets another event, and nothing else is saved. A click that leaves both a window that prints
    // and the program is answered before that.
    TheDesk.EndProgram = [notice] {
        notice->Show();
        std::_Exit(EXIT_SUCCESS);
    };
}
