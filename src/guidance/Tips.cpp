#include "guidance/Tips.h"

#include "platform/files/DataFile.h"
#include "platform/values/RuntimeError.h"

#include <cmath>

std::optional<QStringList> ReadTips(const QString &path)
{
    if (path.isEmpty() || !FileExists(path))
        return std::nullopt;
    std::optional<QStringList> tips;
    // A file that cannot be read counts as missing: a tip is no reason to end the program.
    IgnoreErrors([&] {
        InputFile file;
        file.Open(path);
        QStringList lines;
        while (!file.AtEnd())
            lines += file.InputLine();
        tips = lines;
    });
    return tips;
}

qint32 DrawTip(double random, qsizetype count)
{
    // The 1 is added afterwards: the sum could round up to one tip more than there are.
    return qint32(std::floor(random * double(count))) + 1;
}
