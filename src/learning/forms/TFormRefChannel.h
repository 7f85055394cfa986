#pragma once

#include "ListDialog.h"

// "Reference Channel": how to calibrate an empty reference channel, over RefChannelModel.
class TFormRefChannel final : public ListDialog
{
    Q_OBJECT
public:
    explicit TFormRefChannel(QWidget *parent = nullptr);
};
