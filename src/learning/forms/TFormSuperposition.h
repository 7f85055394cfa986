#pragma once

#include "ListDialog.h"

// "Overlapped channels list": the pairs of channels whose windows overlap, over
// SuperpositionModel.
class TFormSuperposition final : public ListDialog
{
    Q_OBJECT
public:
    TFormSuperposition(const QStringList &lines, QWidget *parent = nullptr);
};
