#include "foundation/Statement.h"

#include <QMetaMethod>
#include <algorithm>

StatementRow Statement::Result() const
{
    const auto result = std::find_if(Rows.begin(), Rows.end(),
                                     [](const StatementRow &row) { return row.TheKind == StatementRow::Result; });
    return result == Rows.end() ? StatementRow() : *result;
}

bool StatementOutlet::IsConnected() const
{
    static const QMetaMethod ready = QMetaMethod::fromSignal(&StatementOutlet::Ready);
    return isSignalConnected(ready);
}
