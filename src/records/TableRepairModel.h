#pragma once

#include "ControlSet.h"
#include "TableRepair.h"

class TDBModule;

// The "Repair tables" window (TFormRepair): one line per table saying what is wrong with it,
// then, after "&Repair", what the repair did with it.
class TableRepairModel final
{
public:
    // db, when given, holds the tables open: it is closed around the repair and opened again
    // after it, without telling again what the report already says.
    TableRepairModel(const QString &dataDir, TDBModule *db);
    Q_DISABLE_COPY_MOVE(TableRepairModel)

    const ControlSet &controls() const { return m_controls; }
    // One line per table, in the order of the five tables.
    QStringList lines() const;
    const QList<TableRepair::Result> &results() const { return m_results; }

    // Repairs the damaged tables; the button stays enabled only while one is left to repair.
    void BtnRepairClick();

    void retranslate();

private:
    void showResults();

    QString m_dir;
    TDBModule *m_db;
    ControlSet m_controls;
    QList<TableRepair::Result> m_results;
};
