#pragma once

#include "CoinProfile.h"

#include <QDialog>
#include <QHash>
#include <optional>

class ProfilCModel;
class QButtonGroup;
class QTableWidget;
class RecordStore;
class UserPrompt;
struct ConfigImage;

// "Coin Profile": the window over ProfilCModel. One widget per control, named after it; what a
// person does goes to the model, what the model reports changed comes back into the widgets.
class TFormProfilC final : public QDialog
{
    Q_OBJECT
public:
    TFormProfilC(ProfilCModel &model, QWidget *parent = nullptr);
    ~TFormProfilC() override;
    Q_DISABLE_COPY_MOVE(TFormProfilC)

    // The coin learning form's "Se&lect...": shows the form modally over the profile table of
    // db for the learning channel (1-based, 0 for none; its base in image shapes the value)
    // and returns what "&Exit" handed over, nothing after "&Cancel". Without tables it says so
    // and returns nothing.
    static std::optional<CoinProfile> choose(QWidget *parent, RecordStore *records,
                                             UserPrompt &prompt, int channel,
                                             const ConfigImage &image);

    // Escape and the window's close button count as "&Cancel".
    void reject() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void build();
    void showControls(const QStringList &names);
    void showTolerances();
    void showProfiles();
    void focusMoved(QWidget *old, QWidget *now);
    bool inside(QWidget *widget, QWidget *container) const;

    ProfilCModel &m_model;
    QHash<QString, QWidget *> m_widgets;
    QButtonGroup *m_priceLine = nullptr;
    QTableWidget *m_tolerances = nullptr;
    QTableWidget *m_profiles = nullptr;
    bool m_painting = false;
};
