// The teacher's pictures: the files of a fresh household are what the drawings give, and they are sharp.
#include "FakeDesk.h"
#include "Sources.h"
#include "TestProgram.h"

#include "guidance/TeacherPicture.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr int ShownSide = 120; // of the picture in the list of tasks
const QString Project = QStringLiteral(PROJECT_FOLDER);

QString DrawingOf(Teacher pose)
{
    return Project +
           (pose == Teacher::Frozen ? u"/src/guidance/pictures/freeze.svg"_s : u"/src/guidance/pictures/teacher.svg"_s);
}

QString FileOf(Teacher pose)
{
    return Project + (pose == Teacher::Frozen ? u"/household/help/freeze.bmp"_s : u"/household/help/teacher.bmp"_s);
}

/// The drawing at the size of a picture.
QImage Rendered(const QString &drawing, const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::magenta); // which no drawing lets through
    QPainter painter(&picture);
    QSvgRenderer(drawing).render(&painter);
    return picture;
}

/// The greatest difference of a channel of a point.
int Difference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 256;
    int greatest = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            greatest = qMax(greatest, qAbs(a.red() - b.red()));
            greatest = qMax(greatest, qAbs(a.green() - b.green()));
            greatest = qMax(greatest, qAbs(a.blue() - b.blue()));
        }
    return greatest;
}

void Poses()
{
    QTest::addColumn<Teacher>("pose");
    QTest::newRow("pointing") << Teacher::Pointing;
    QTest::newRow("frozen") << Teacher::Frozen;
}

} // namespace

class gui_teacherpicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheHouseholdsPictureIsWhatTheDrawingGives_data() { Poses(); }
    void TheHouseholdsPictureIsWhatTheDrawingGives()
    {
        QFETCH(Teacher, pose);
        const QImage picture(FileOf(pose), "BMP");
        QVERIFY(!picture.isNull());
        QVERIFY(picture.width() >= 5 * ShownSide / 2);
        QCOMPARE(picture.width(), picture.height());
        const int difference = Difference(picture, Rendered(DrawingOf(pose), picture.size()));
        QVERIFY2(difference <= 2, qPrintable(u"scripts/draw-teacher has to be run: %1"_s.arg(difference)));
    }

    void TheProgramsOwnDrawingIsTheSame_data() { Poses(); }
    void TheProgramsOwnDrawingIsTheSame()
    {
        QFETCH(Teacher, pose);
        const QImage picture = TeacherDrawing(pose);
        QVERIFY(Difference(picture, Rendered(DrawingOf(pose), picture.size())) <= 2);
    }

    void ThePosesDiffer()
    {
        QVERIFY(Difference(QImage(FileOf(Teacher::Pointing)), QImage(FileOf(Teacher::Frozen))) > 100);
    }

    // Its size on the screen is a fraction of the file's, and every scale has points enough.
    void ThePictureIsScaledDownSmoothly_data() { Poses(); }
    void ThePictureIsScaledDownSmoothly()
    {
        QFETCH(Teacher, pose);
        FakeDesk desk;
        desk.WriteFile(u"help\\"_s + TeacherFile(pose), BytesOf(FileOf(pose)));
        const QIcon icon = TeacherPicture(pose);
        for (const double scale : {1.0, 1.5, 2.0, 2.5}) {
            const QPixmap shown = icon.pixmap(QSize(ShownSide, ShownSide), scale);
            QCOMPARE(shown.size(), (QSizeF(ShownSide, ShownSide) * scale).toSize());
            QCOMPARE(shown.devicePixelRatio(), scale);
            const QImage wanted =
                QImage(FileOf(pose)).scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            QVERIFY(Difference(shown.toImage(), wanted) <= 2);
        }
    }

    void AFamilysOwnPictureIsShown()
    {
        FakeDesk desk;
        desk.WriteFile(u"help\\teacher.bmp"_s, BytesOf(FileOf(Teacher::Frozen)));
        const QSize whole = QImage(FileOf(Teacher::Frozen)).size();
        QCOMPARE(
            Difference(TeacherPicture(Teacher::Pointing).pixmap(whole, 1.0).toImage(), QImage(FileOf(Teacher::Frozen))),
            0);
    }
};

REGISTER_TEST(gui_teacherpicture)
#include "gui_teacherpicture.moc"
