#include "platform/values/Locale.h"

namespace {
/// The C locale has no currency symbol and no separators; whoever never chose a locale gets those of the United States.
QLocale Usable(const QLocale &locale)
{
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
}

QLocale &Chosen()
{
    static QLocale locale = Usable(QLocale::system());
    return locale;
}
} // namespace

const QLocale &UserLocale()
{
    return Chosen();
}

void SetUserLocale(const QLocale &locale)
{
    Chosen() = Usable(locale);
}
