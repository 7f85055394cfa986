#pragma once

#include <QString>
#include <vector>

class DbfTable;

// The live rows of a table in the order of an index on one character field: keys compared
// through the sort weights of the table's language driver, rows of equal keys in file order.
// This is the order a window or a listing walks when the field's index is the active one.
// An unknown field gives the rows in file order.
std::vector<int> rowsInKeyOrder(const DbfTable &table, const QString &field);
