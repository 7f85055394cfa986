#include "TableRepairModel.h"

#include "Captions.h"
#include "TDBModule.h"

#include <QDir>

TableRepairModel::TableRepairModel(const QString &dataDir, TDBModule *db) : m_dir(dataDir), m_db(db)
{
    m_controls.add(QStringLiteral("TFormRepair"), ControlKind::Label);
    m_controls.add(QStringLiteral("LTables"), ControlKind::Label);
    m_controls.add(QStringLiteral("ListReport"), ControlKind::Label);
    m_controls.setBuddy(QStringLiteral("ListReport"), QStringLiteral("LTables"));
    m_controls.add(QStringLiteral("BtnRepair"), ControlKind::Button);
    m_controls.add(QStringLiteral("BtnClose"), ControlKind::Button);
    retranslate();
    m_results = TableRepair(m_dir).check();
    showResults();
    m_controls.takeChanged();
}

void TableRepairModel::retranslate()
{
    m_controls.setText(QStringLiteral("TFormRepair"), captionText(Cap::RepairTitle));
    m_controls.setText(QStringLiteral("LTables"),
                       captionText(Cap::RepairTablesIn, {QDir::toNativeSeparators(m_dir)}));
    m_controls.setAccessibleName(
        QStringLiteral("ListReport"),
        captionText(Cap::RepairTablesIn, {QDir::toNativeSeparators(m_dir)}));
    m_controls.setText(QStringLiteral("BtnRepair"), captionText(Cap::RepairButton));
    m_controls.setText(QStringLiteral("BtnClose"), captionText(Cap::CloseButton));
    showResults();
}

QStringList TableRepairModel::lines() const
{
    return m_controls.state(QStringLiteral("ListReport")).items;
}

void TableRepairModel::showResults()
{
    QStringList lines;
    bool toRepair = false;
    for (const TableRepair::Result &result : std::as_const(m_results)) {
        lines.append(result.text());
        toRepair = toRepair || result.state == TableRepair::State::Damaged ||
                   result.state == TableRepair::State::IndexUnusable ||
                   result.state == TableRepair::State::Orphans ||
                   result.state == TableRepair::State::Failed;
    }
    m_controls.setItems(QStringLiteral("ListReport"), lines);
    m_controls.setEnabled(QStringLiteral("BtnRepair"), toRepair);
}

void TableRepairModel::BtnRepairClick()
{
    if (!m_controls.state(QStringLiteral("BtnRepair")).enabled)
        return;
    // The module's lock files would keep the repair out of its own tables.
    if (m_db)
        m_db->close();
    m_results = TableRepair(m_dir).repair();
    if (m_db)
        m_db->open(m_dir);
    showResults();
}
