#pragma once

#include <QGroupBox>

class QButtonGroup;
class QGridLayout;
class QRadioButton;

// A captioned group of radio items laid out in columns, with the index of the selected item
// (-1 when none). The items are named <group name>_<index>.
class RadioGroup final : public QGroupBox
{
    Q_OBJECT
public:
    explicit RadioGroup(const QString &objectName, int columns = 1, QWidget *parent = nullptr);

    // Replaces the items; none is selected.
    void setItems(const QStringList &items);
    // New texts for the existing items (after a language change).
    void setItemTexts(const QStringList &items);
    int count() const;
    QRadioButton *item(int index) const;

    int itemIndex() const;
    // -1 clears the selection.
    void setItemIndex(int index);

Q_SIGNALS:
    // A click on item index.
    void itemClicked(int index);

private:
    QButtonGroup *m_buttons;
    QGridLayout *m_grid;
    int m_columns;
};
