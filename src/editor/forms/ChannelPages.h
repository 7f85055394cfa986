#pragma once

#include "ChannelGridModel.h"

#include <QHash>
#include <QTabWidget>
#include <array>
#include <vector>

class ControlBinder;
class QLabel;

// The channel pages: each starts with a header of the column captions, then one row per channel
// with its number and its controls, one column each, in the model's order.
class ChannelPages final : public QTabWidget
{
    Q_OBJECT
public:
    explicit ChannelPages(ControlBinder &binder, QWidget *parent = nullptr);
    Q_DISABLE_COPY_MOVE(ChannelPages)

    // Takes a page, a channel row or a control of a row, in the order the model lists them.
    void add(const Control &control, const Control &parent);
    void addPage(const Control &page);
    // After the last row: the rows stay at the top and the columns line up with the header.
    void finish();
    // The column captions again, and column widths that fit them.
    void retranslate();

private:
    struct Header
    {
        QLabel *number;
        std::array<QLabel *, ChannelGridModel::kColumns> columns;
    };
    void sizeColumns();

    ControlBinder &m_binder;
    std::vector<Header> m_headers;
    // The widgets of each column, the channel number first.
    std::array<std::vector<QWidget *>, ChannelGridModel::kColumns + 1> m_columns;
    QHash<QWidget *, int> m_filled;
};
