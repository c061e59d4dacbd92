// The base of all windows: labels of several lines have the height that their lines need, whatever the width.
#include "TestProgram.h"
#include "platform/windows/Form.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Narrow = 220;
constexpr int Wide = 900;

/// A text above a list that takes all the height it gets.
class TextWindow : public Form
{
public:
    TextWindow()
    {
        auto *layout = new QVBoxLayout(this);
        Text->setWordWrap(true);
        Text->setText(u"After obtaining information, this feature proceeds to display a plan that pays off "
                      "your bills in the shortest time possible considering the money you have to work with"_s);
        List->setMinimumSize(Narrow / 2, 100);
        layout->addWidget(Text);
        layout->addWidget(List, 1);
    }
    /// As low as the width lets the window be.
    void Squeeze(int width)
    {
        resize(width, 1);
        for (int i = 0; i < 5; ++i) // it grows with what its labels ask for
            QCoreApplication::processEvents();
        resize(width, minimumHeight());
        QCoreApplication::processEvents();
    }
    /// What the lines need in a window of that width, told by a label of which nobody wants any height.
    int Need(int width) const
    {
        QLabel lines(Text->text());
        lines.setWordWrap(true);
        return lines.heightForWidth(width - layout()->contentsMargins().left() - layout()->contentsMargins().right());
    }

    QLabel *const Text = new QLabel;
    QListWidget *const List = new QListWidget;
};

} // namespace

class gui_form : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ALabelsHeightFollowsItsWidthBothWays()
    {
        TextWindow window;
        window.show();
        QVERIFY(window.Need(Narrow) > 2 * window.Need(Wide)); // else there is nothing to see
        window.Squeeze(Narrow);
        QCOMPARE(window.Text->height(), window.Need(Narrow));
        const int height = window.height();
        window.Squeeze(Wide);
        QCOMPARE(window.Text->height(), window.Need(Wide));
        QCOMPARE(window.height(), height - window.Need(Narrow) + window.Need(Wide)); // as low as before
        window.Squeeze(Narrow);
        QCOMPARE(window.Text->height(), window.Need(Narrow));
        QCOMPARE(window.height(), height);
    }

    void AShorterTextGivesTheHeightBack()
    {
        TextWindow window;
        window.show();
        window.Squeeze(Narrow);
        const int height = window.height();
        const int tall = window.Need(Narrow);
        window.Text->setText(u"short"_s);
        window.Squeeze(Narrow);
        QVERIFY(window.Need(Narrow) < tall);
        QCOMPARE(window.Text->height(), window.Need(Narrow));
        QCOMPARE(window.height(), height - tall + window.Need(Narrow));
    }

    void AReservedHeightIsKept()
    {
        TextWindow window;
        window.show();
        const int low = window.Need(Wide) + 5;
        const int high = window.Need(Narrow) + 5;
        QVERIFY(low < window.Need(Narrow));
        window.Text->setMinimumHeight(low);
        window.Squeeze(Narrow);
        QCOMPARE(window.Text->height(), window.Need(Narrow));
        window.Squeeze(Wide);
        QCOMPARE(window.Text->height(), low);
        // What the window reserves later counts from then on.
        window.Text->setMinimumHeight(high);
        window.Squeeze(Narrow);
        QCOMPARE(window.Text->height(), high);
        window.Squeeze(Wide);
        QCOMPARE(window.Text->height(), high);
        window.Text->setMinimumHeight(10); // less than a line
        window.Squeeze(Narrow);
        QCOMPARE(window.Text->height(), window.Need(Narrow));
        window.Squeeze(Wide);
        QCOMPARE(window.Text->height(), window.Need(Wide));
    }

    void TheLongestTextHasItsRoomFromTheStart()
    {
        TextWindow window;
        const QString longest = window.Text->text();
        const int need = window.Need(Narrow);
        window.Text->setText(QString());
        window.Text->setProperty("longestText", longest);
        window.show();
        window.Squeeze(Narrow);
        QCOMPARE(window.Text->height(), need);
        const int height = window.height();
        window.Text->setText(longest);
        window.Squeeze(Narrow);
        QCOMPARE(window.height(), height); // nothing moves
        QCOMPARE(window.Text->height(), need);
        window.Text->setText(longest + longest); // longer than anybody thought
        window.Squeeze(Narrow);
        QCOMPARE(window.Text->height(), window.Need(Narrow));
        QVERIFY(window.Text->height() > need);
    }
};

REGISTER_TEST(gui_form)
#include "gui_form.moc"
