#include "guidance/TeacherPicture.h"

#include "platform/desk/Desk.h"
#include "platform/files/DataFile.h"

#include <QImageReader>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

using namespace Qt::Literals::StringLiterals;

// A static library's resources are left out unless something asks for them. This has to stand outside any namespace.
static void KeepPictures()
{
    Q_INIT_RESOURCE(pictures);
}

QImage TeacherDrawing(Teacher pose)
{
    constexpr int side = 320; // pixels
    KeepPictures();
    QImage picture(side, side, QImage::Format_RGB32);
    QPainter painter(&picture);
    QSvgRenderer(pose == Teacher::Frozen ? u":/pictures/freeze.svg"_s : u":/pictures/teacher.svg"_s).render(&painter);
    return picture;
}

QString TeacherFile(Teacher pose)
{
    return pose == Teacher::Frozen ? u"freeze.bmp"_s : u"teacher.bmp"_s;
}

QIcon TeacherPicture(Teacher pose)
{
    // Not by State.ApplicationPath: the welcome shows the tutor before there is one.
    QImageReader file(ExistingPath(TheDesk.ProgramFolder() + u"\\help\\"_s + TeacherFile(pose)));
    file.setDecideFormatFromContent(true);
    const QImage picture = file.read();
    return QIcon(QPixmap::fromImage(picture.isNull() ? TeacherDrawing(pose) : picture));
}
