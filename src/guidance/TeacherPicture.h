// The teacher's two pictures. They are files of the household's help folder, which a family may replace by its own.
#pragma once

#include <QIcon>
#include <QImage>

enum class Teacher { Pointing, Frozen };

/// The program's own drawing, sharp at more than double scale. The files that a fresh household gets are made of it.
QImage TeacherDrawing(Teacher pose);
/// What such a file is called in the help folder.
QString TeacherFile(Teacher pose);

/// The picture of help\teacher.bmp or help\freeze.bmp; the program's own drawing where there is none that can be read.
QIcon TeacherPicture(Teacher pose);
