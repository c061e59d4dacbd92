// A window's title that comes from the user.
#pragma once

#include <QString>

/// The toolkit takes "[*]" in a title for the place of a mark of unsaved changes; doubled it is what the user wrote.
inline QString Caption(QString text)
{
    return text.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}
