// The locale whose signs amounts and numbers use on the screen and on paper.
#pragma once

#include <QLocale>

/// The user's locale; the C locale counts as United States English.
const QLocale &UserLocale();

/// Takes another locale for the rest of the run, for tests.
void SetUserLocale(const QLocale &locale);
