// The guided routes: how they are told apart. One window leads through all three; its title chooses the route when it
// begins. The two that go through work windows are taken up again by route and step, as the shared state keeps them.
#pragma once

#include <QString>
#include <QtGlobal>

namespace RouteTitle {
inline const QString Budget = QStringLiteral("Getting Started With Your Budget");
inline const QString Shopping = QStringLiteral("Getting Started With Shopping");
inline const QString PayOff = QStringLiteral("Getting Started With Paying Off Bills");
} // namespace RouteTitle

/// GuidedSetupRoute
constexpr qint32 ShoppingRoute = 0;
constexpr qint32 PayOffRoute = 1;
