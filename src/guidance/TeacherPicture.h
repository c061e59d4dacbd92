// The teacher's two pictures. They are files of the household's help folder, which a family may replace by its own.
#pragma once

#include <QIcon>

enum class Teacher { Pointing, Frozen };

/// The picture of help\teacher.bmp or help\freeze.bmp; the program's own drawing where there is none that can be read.
QIcon TeacherPicture(Teacher pose);
