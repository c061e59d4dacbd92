#include "foundation/Statement.h"

#include <QMetaMethod>

bool StatementOutlet::IsConnected() const
{
    static const QMetaMethod ready = QMetaMethod::fromSignal(&StatementOutlet::Ready);
    return isSignalConnected(ready);
}
