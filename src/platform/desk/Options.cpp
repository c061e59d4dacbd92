#include "platform/desk/Options.h"

#include "platform/desk/Desk.h"

#include <QSettings>

namespace {
constexpr auto Section = "Options";

/// The key in the spelling in which it already stands in the store.
QString StoredKey(const QSettings &store, const QString &key)
{
    const QStringList keys = store.childKeys();
    for (const QString &stored : keys)
        if (stored.compare(key, Qt::CaseInsensitive) == 0)
            return stored;
    return key;
}
} // namespace

QString GetSetting(const QString &key, const QString &fallback)
{
    QSettings store(QSettings::IniFormat, QSettings::UserScope, TheDesk.ProgramTitle);
    store.beginGroup(QLatin1String(Section));
    return store.value(StoredKey(store, key), fallback).toString();
}

void SaveSetting(const QString &key, const QString &value)
{
    QSettings store(QSettings::IniFormat, QSettings::UserScope, TheDesk.ProgramTitle);
    store.beginGroup(QLatin1String(Section));
    store.setValue(StoredKey(store, key), value);
    store.sync(); // the way out ends the process at once
}
