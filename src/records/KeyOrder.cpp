#include "KeyOrder.h"

#include "DbfTable.h"
#include "LanguageDriver.h"

#include <algorithm>

std::vector<int> rowsInKeyOrder(const DbfTable &table, const QString &field)
{
    std::vector<int> rows = table.liveRows();
    const int f = table.fieldIndex(field);
    if (f < 0)
        return rows;
    // A driver this program does not know: its text in byte order, as the table reads it.
    const LanguageDriver &order = table.driver() ? *table.driver() : LanguageDriver::none();
    const std::size_t length = std::size_t(table.field(f).length);
    std::vector<QByteArray> keys(std::size_t(table.recordCount()));
    for (int r : rows)
        keys[std::size_t(r)] = table.rawField(r, f);
    std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) {
        return order.compare(keys[std::size_t(a)].constData(), keys[std::size_t(b)].constData(),
                             length) < 0;
    });
    return rows;
}
