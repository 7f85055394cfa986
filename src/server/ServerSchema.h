#pragma once

#include <QStringList>

// The layout of the tables on the server, by version.
namespace ServerSchema {

// The statements that bring the tables from layout version `from` (0: none) to `to`.
QStringList upgrade(int from, int to);

// The channel table's number columns for bytes 0 to 14 of a channel record, in record order.
const QStringList &recordColumns();
// The profile table's tolerance columns, in the row order of the tolerance grid.
const QStringList &toleranceColumns();

} // namespace ServerSchema
