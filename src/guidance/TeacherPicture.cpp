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

namespace {

constexpr int DrawnSide = 320; // pixels, sharp at more than double scale

QPixmap Drawing(const QString &name)
{
    KeepPictures();
    QPixmap picture(DrawnSide, DrawnSide);
    QPainter painter(&picture);
    QSvgRenderer(u":/pictures/%1.svg"_s.arg(name)).render(&painter);
    return picture;
}

} // namespace

QIcon TeacherPicture(Teacher pose)
{
    const QString name = pose == Teacher::Frozen ? u"freeze"_s : u"teacher"_s;
    // Not by State.ApplicationPath: the welcome shows the tutor before there is one.
    QImageReader file(ExistingPath(TheDesk.ProgramFolder() + u"\\help\\%1.bmp"_s.arg(name)));
    file.setDecideFormatFromContent(true);
    const QImage picture = file.read();
    return QIcon(picture.isNull() ? Drawing(name) : QPixmap::fromImage(picture));
}
