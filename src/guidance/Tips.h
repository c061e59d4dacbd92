// The tips of the day: a text file with one of them a line.
#pragma once

#include <QStringList>
#include <optional>

/// The lines of the file as they stand, blank ones included. Nothing for an empty path and where there is no such file,
/// or none that can be read.
std::optional<QStringList> ReadTips(const QString &path);

/// Which of `count` tips, from 1, is drawn by `random`, a number from 0 to below 1. Of none it is 1, too.
qint32 DrawTip(double random, qsizetype count);
