#pragma once

#include "ListDialog.h"

// "Analyse": the channels that would accept the last coin, over AnalyseModel. It stays open
// beside the learning form until the next coin.
class TTarvikAnalyse final : public ListDialog
{
    Q_OBJECT
public:
    TTarvikAnalyse(const QStringList &lines, QWidget *parent = nullptr);
    // Shows the list without waiting; it frees itself when closed.
    static TTarvikAnalyse *open(const QStringList &lines, QWidget *parent);
};
