// Writes the teacher's pictures as the files that a fresh household gets: teacherpictures FOLDER.
#include "guidance/TeacherPicture.h"

#include <QGuiApplication>
#include <QStringList>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        qWarning("it is: teacherpictures FOLDER");
        return 2;
    }
    for (const Teacher pose : {Teacher::Pointing, Teacher::Frozen}) {
        const QString name = application.arguments().at(1) + QLatin1Char('/') + TeacherFile(pose);
        if (!TeacherDrawing(pose).save(name, "BMP")) {
            qWarning("cannot write %s", qPrintable(name));
            return 1;
        }
    }
    return 0;
}
