// The per-user options: decimal text under the program's title, section "Options". Keys ignore letter case.
#pragma once

#include <QString>

QString GetSetting(const QString &key, const QString &fallback);
void SaveSetting(const QString &key, const QString &value);
