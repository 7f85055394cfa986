#pragma once

#include "CoinProfile.h"
#include "Encodings.h"
#include "FormModel.h"

#include <memory>
#include <optional>

class ProfileStore;
class RecordStore;
struct ConfigImage;

// The coin profile form TFormProfilC without its widgets: the profile's name, description,
// substitution channel, enable box, value with its price-line selector, the tolerance grid
// ("GridTolerances" in the group "GroupTolerances": one edit per row, "Tolerance1" to
// "Tolerance14", keys "ToleranceKey1" ...; leaving "GridTolerances" normalises it), the list of
// stored profiles ("GridProfiles": one item per profile, the selected one as item index) with
// its navigator ("DBNavigator1": First, Prior, Next, Last, Delete) and the buttons. "&Exit" hands
// the settings over as a CoinProfile.
class ProfilCModel final : public FormModel
{
public:
    // channel: the coin learning form's channel (1-based; 0 when none is chosen), whose credit
    // base in image normalises the value.
    ProfilCModel(RecordStore &store, UserPrompt *prompt, int channel, const ConfigImage &image);
    // Over the profile table of a data module.
    ProfilCModel(ProfileStore &store, UserPrompt *prompt, int channel, const ConfigImage &image);
    ~ProfilCModel() override;

    static constexpr int kToleranceRows = 14;
    // The names of the tolerance grid's row r (0-based): its value edit and its key.
    static QString toleranceName(int row);
    static QString toleranceKeyName(int row);

    // The base that values are shown in: base 2 from channel 31, base 1 below.
    static DecimalWord valueBase(const ConfigImage &image, int channel);

    // The description of the listed profile row (0-based), shown beside its name.
    QString profileDescription(int row) const;
    // Reads the profile table again.
    void refreshProfiles();

    // What "&Exit" handed over; nothing after "&Cancel" or while the form is open.
    const std::optional<CoinProfile> &result() const { return m_result; }

    void retranslate() override;

    // The handlers. A click in the tolerance grid normalises every row, as leaving the grid
    // does; leaving one row with Tab, the arrows or the page keys normalises that row.
    void GridTolerancesClick();
    void BtnOpenClick();
    void BtnSaveClick();
    void BtnExitClick();
    void BtnCancelClick();

protected:
    void typed(const QString &name, const QString &text) override;
    void left(const QString &name) override;
    void clicked(const QString &name) override;
    void picked(const QString &name, int item) override;

private:
    void build();
    // The navigator's First, Prior, Next, Last and Delete (which asks first).
    void navigate(const QString &button);
    void deleteProfile(int row);
    void valueExit();
    // Rewrites rows [from, to) "%7d"; false, with the conversion error told, at the first row
    // that is not an integer (the rows before it are already rewritten).
    bool normaliseRows(int from, int to);
    // The grid rows as integers; nothing, with the conversion error told, when one is not.
    std::optional<std::array<int, kToleranceRows>> toleranceValues();
    void showTolerance(int row, int value);
    int toleranceRowOf(const QString &name) const;

    ProfilCModel(std::unique_ptr<RecordStore> own, UserPrompt *prompt, int channel,
                 const ConfigImage &image);

    std::unique_ptr<RecordStore> m_own; // the data module's, when made over its profile table
    RecordStore &m_store;
    DecimalWord m_base;
    QList<QPair<QString, QString>> m_profiles; // name, description
    bool m_valueChanged = false;
    std::optional<CoinProfile> m_result;
};
