#include "EditorModel.h"

#include "Backups.h"
#include "Captions.h"
#include "ConfigFile.h"
#include "EditorServices.h"
#include "Messages.h"
#include "ReadSequence.h"
#include "TMonnayeur.h"
#include "UserPrompt.h"
#include "WriteSequence.h"

namespace {

struct Button
{
    const char *name;
    Cap caption;
    bool needsLink;
};

// The editor's buttons, in the order of its tool bar.
constexpr Button kButtons[] = {
    {"SpeedButton1", Cap::ReadValidator, true},
    {"SpeedButton8", Cap::WriteValidator, true},
    {"BtnWriteChanges", Cap::WriteChanges, true},
    // Beside the write: what it would change.
    {"BtnChanges", Cap::Changes, true},
    {"SpeedButton2", Cap::Clone, true},
    {"SpeedButton4", Cap::StoreInTables, false},
    {"BtnOpenFile", Cap::OpenFile, false},
    {"BtnSaveFile", Cap::SaveFile, false},
    {"BtnInit", Cap::Initialise, false},
    {"BtnOutput", Cap::Output, false},
    {"BtnLearn", Cap::CoinLearning, true},
    {"BtnReference", Cap::ReferenceCalibration, true},
    {"BtnControl", Cap::ChannelControl, true},
    {"BtnOverlap", Cap::OverlapCheck, false},
    {"BtnCopy", Cap::CopyTitle, false},
    {"BtnValues", Cap::ValuesTable, false},
    {"BtnSaved", Cap::SavedValidators, false},
    {"BtnBatch", Cap::Batch, true},
    {"BtnHistory", Cap::History, true},
    {"BtnPrint", Cap::PrintSheet, false},
    {"BtnPdf", Cap::SaveSheetPdf, false},
    {"BitBtn1", Cap::Close, false},
};

bool isLearningButton(const QString &name)
{
    return name == QLatin1String("BtnLearn") || name == QLatin1String("BtnReference") ||
           name == QLatin1String("BtnControl") || name == QLatin1String("BtnOverlap");
}

QString kindName(ControlKind kind)
{
    switch (kind) {
    case ControlKind::Edit:
        return QStringLiteral("an edit box");
    case ControlKind::Check:
        return QStringLiteral("a check box");
    case ControlKind::Radio:
        return QStringLiteral("a radio group");
    case ControlKind::Button:
        return QStringLiteral("a button");
    default:
        return QStringLiteral("not a control one can use");
    }
}

// Boxes whose text is not part of the image: typing into them changes nothing else.
bool isTableBox(const QString &name)
{
    return name == QLatin1String("EIdent") || name == QLatin1String("EDescription");
}

} // namespace

EditorModel::EditorModel(UserPrompt *prompt, EditorServices *services, TMonnayeur *link)
    : m_services(services), m_link(link), m_grid(m_s), m_identity(m_s), m_money(m_s),
      m_options(m_s), m_counters(m_s), m_test(m_s), m_copy(m_s, [this] { display(); }),
      m_changes(m_s, [this] { EHFUBMIN0Exit(); })
{
    m_s.prompt = prompt;
    ControlSet &c = m_s.controls;
    c.add(QStringLiteral("TFormData"), ControlKind::Label);
    for (const Button &button : kButtons) {
        c.add(QLatin1String(button.name), ControlKind::Button);
        c.setEnabled(QLatin1String(button.name), !button.needsLink || link);
    }
    // The buttons that open other windows show where the program has those windows.
    c.setVisible(QStringLiteral("BtnCopy"), services && services->copyDialogAvailable());
    c.setVisible(QStringLiteral("BtnValues"), services && services->valueTablesAvailable());
    c.setVisible(QStringLiteral("BtnSaved"), services && services->savedValidatorsAvailable());
    c.setVisible(QStringLiteral("BtnBatch"), services && services->batchAvailable());
    c.setVisible(QStringLiteral("BtnHistory"), services && services->historyAvailable());
    for (const char *name : {"BtnLearn", "BtnReference", "BtnControl", "BtnOverlap"})
        c.setVisible(QLatin1String(name), services && services->learningAvailable());
    // The sheet is printed once the editor holds a configuration.
    showSheetButtons();
    c.add(QStringLiteral("Gauge1"), ControlKind::Gauge);
    c.add(QStringLiteral("Label3"), ControlKind::Label);
    c.setVisible(QStringLiteral("Gauge1"), false);
    c.setVisible(QStringLiteral("Label3"), false);

    m_identity.addControls();
    m_test.addControls();
    m_test.setLink(link);
    m_grid.addControls();
    m_money.addControls();
    m_options.addControls();
    m_counters.addControls();
    // The pages appear as they are filled.
    for (int page = 1; page <= ChannelGridModel::kPages; ++page)
        c.setVisible(QStringLiteral("Tableau%1").arg(page), false);
    retranslate();
    c.takeChanged();
}

void EditorModel::retranslate()
{
    ControlSet &c = m_s.controls;
    c.setText(QStringLiteral("TFormData"), captionText(Cap::FormTitle));
    for (const Button &button : kButtons) {
        c.setText(QLatin1String(button.name), captionText(button.caption));
        c.setToolTip(QLatin1String(button.name), captionText(button.caption));
        c.setAccessibleName(QLatin1String(button.name), captionText(button.caption));
    }
    m_identity.retranslate();
    m_test.retranslate();
    m_grid.retranslate();
    m_money.retranslate();
    m_options.retranslate();
    m_counters.retranslate();
    m_copy.retranslate();
    display();
    flush();
}

void EditorModel::flush()
{
    showWriteChanges();
    if (!m_s.controls.hasChanges())
        return;
    const QStringList names = m_s.controls.takeChanged();
    if (changed)
        changed(names);
}

void EditorModel::exclusive(const std::function<void()> &work)
{
    const bool wasBusy = m_busy;
    m_busy = true;
    work();
    m_busy = wasBusy;
    flush();
}

// ---- display ------------------------------------------------------------------------------

void EditorModel::display()
{
    m_s.flags.filling = true;
    m_identity.display();
    m_test.showGate(m_identity.gates().testValue);
    m_grid.display();
    m_options.display(m_identity.gates());
    m_money.display();
    m_counters.display();
    m_s.flags.filling = false;
}

void EditorModel::showModel(bool light)
{
    m_grid.showModel(light);
    m_money.showModel(light);
    m_options.showModel(light);
}

void EditorModel::showPagesOfImage()
{
    const int pages = (m_s.image.channelCount() + 9) / 10;
    for (int page = 1; page <= pages; ++page)
        m_grid.showPage(page);
}

void EditorModel::showSheetButtons()
{
    for (const char *name : {"BtnPrint", "BtnPdf"})
        m_s.controls.setEnabled(QLatin1String(name), m_holdsConfiguration);
    // The history is the connected validator's: it shows once the validator was read or written.
    m_s.controls.setEnabled(QStringLiteral("BtnHistory"),
                            m_link && m_s.baselineFrom.fromValidator());
}

void EditorModel::loadImage(const ConfigImage &image, bool modified, BaselineSource::Kind kind,
                            const QString &from)
{
    // The validator did not receive what was opened: Changes keeps counting from what it held.
    if (!m_s.baselineFrom.fromValidator()) {
        m_s.baseline = image;
        m_s.baselineFrom = {kind, from, 0, {}};
    }
    showImage(image);
    m_s.flags.configModified = modified;
    flush();
}

void EditorModel::editImage(const ConfigImage &image)
{
    showImage(image);
    m_s.flags.configModified = true;
    flush();
}

void EditorModel::showImage(const ConfigImage &image)
{
    m_s.image = image;
    m_holdsConfiguration = true;
    showSheetButtons();
    m_money.takeFromImage();
    m_counters.takeFromImage();
    showModel(image.isLight());
    showPagesOfImage();
    display();
    m_s.flags.editChanged = false;
}

void EditorModel::setGauge(int value)
{
    m_s.controls.setValue(QStringLiteral("Gauge1"), std::min(value, 100));
}

void EditorModel::showProgress(bool shown, const QString &label)
{
    ControlSet &c = m_s.controls;
    if (shown) {
        c.setText(QStringLiteral("Label3"), label);
        c.setValue(QStringLiteral("Gauge1"), 0);
    }
    c.setVisible(QStringLiteral("Gauge1"), shown);
    c.setVisible(QStringLiteral("Label3"), shown);
    flush();
    if (repaintNow)
        repaintNow();
}

void EditorModel::FormActivate()
{
    if (m_s.flags.readOnOpen) {
        m_s.flags.openingRead = true;
        SpeedButton1Click();
        m_s.flags.openingRead = false;
        m_s.flags.promptFlag = false;
        m_s.flags.configModified = false;
        if (m_s.flags.readFailed)
            return;
    }
    display();
    flush();
}

// ---- editing ------------------------------------------------------------------------------

void EditorModel::EHFUBMIN0Change()
{
    m_s.flags.editChanged = true;
    m_s.flags.configModified = true;
}

void EditorModel::EHFUBMIN0Exit()
{
    if (!m_s.flags.editChanged)
        return;
    // The value boxes show amounts of the bases they were displayed with.
    const DecimalWord base1 = m_s.base(0);
    const DecimalWord base2 = m_s.base(30);
    m_identity.store();
    QStringList notNumbers = m_money.store();
    ChannelGridModel::AmountTrouble amounts;
    notNumbers += m_grid.store(base1, base2, &amounts);
    // Cleared after the copy, so that a later exit without a change leaves the image alone.
    m_s.flags.editChanged = false;
    if (!notNumbers.isEmpty() && m_s.prompt)
        m_s.prompt->tell(messageText(Msg::ValueBetween0And255), UserPrompt::Kind::Error);
    // Amounts the base cannot hold: corrected to its maximum, or refused when negative.
    if (amounts.overMaximum)
        m_s.tell(messageText(Msg::ValueOverMaximum));
    if (!amounts.negative.isEmpty())
        m_s.tell(messageText(Msg::AmountNegative, {amounts.negative.join(QStringLiteral(", "))}));
    display();
    flush();
}

std::optional<DecimalWord> EditorModel::amountBase(const QString &name) const
{
    if (const int k = ChannelGridModel::channelIndex(name, "Value"); k >= 0)
        return m_s.base(k);
    const int slot = MoneyModel::priceSlot(name);
    if (slot >= 0 &&
        MoneyModel::slotForm(slot, m_s.outputType(), m_s.checked(QStringLiteral("ChkResetEx"))) ==
            MoneyModel::SlotForm::Price)
        return m_s.base(0);
    return std::nullopt;
}

const Control *EditorModel::lookup(const QString &name, QString *error) const
{
    const Control *control = m_s.controls.find(name);
    if (!control && error)
        *error = QStringLiteral("no control ") + name;
    return control;
}

bool EditorModel::canAct(const Control &control, QString *error) const
{
    auto fail = [&](const QString &why) {
        if (error)
            *error = control.name + QLatin1Char(' ') + why;
        return false;
    };
    for (const Control *c = &control; c;
         c = c->parent.isEmpty() ? nullptr : m_s.controls.find(c->parent)) {
        if (!c->state.visible)
            return fail(QStringLiteral("is hidden"));
        if (!c->state.enabled)
            return fail(QStringLiteral("is disabled"));
    }
    return true;
}

bool EditorModel::type(const QString &name, const QString &text, QString *error)
{
    const Control *control = lookup(name, error);
    if (!control)
        return false;
    if (control->kind != ControlKind::Edit || control->state.readOnly) {
        if (error)
            *error = name + QStringLiteral(" takes no typing: it is ") +
                     (control->kind == ControlKind::Edit ? QStringLiteral("read-only")
                                                         : kindName(control->kind));
        return false;
    }
    if (!canAct(*control, error))
        return false;
    m_s.controls.setText(name, text);
    if (!isTableBox(name))
        EHFUBMIN0Change();
    m_s.controls.takeChanged(); // the box already shows what was typed
    flush();                    // "Write changes" may have become enabled
    return true;
}

bool EditorModel::leave(const QString &name, QString *error)
{
    const Control *control = lookup(name, error);
    if (!control)
        return false;
    if (control->kind != ControlKind::Edit && control->kind != ControlKind::Check) {
        if (error)
            *error = name + QStringLiteral(" takes no focus: it is ") + kindName(control->kind);
        return false;
    }
    exitBox(name);
    if (const int k = ChannelGridModel::channelOfBox(name); k >= 0)
        writeChannelAtOnce(k);
    flush();
    const QString focus = m_money.takeFocusRequest();
    if (!focus.isEmpty() && focusRequested)
        focusRequested(focus);
    return true;
}

// Each box's exit handler; most boxes share the general one.
void EditorModel::exitBox(const QString &name)
{
    if (isTableBox(name))
        return;
    const bool changed = m_s.flags.editChanged;
    if (const int slot = MoneyModel::priceSlot(name); slot >= 0) {
        m_money.priceExit(slot);
    } else if (const int box = MoneyModel::codeBox(name); box >= 0) {
        m_money.codeExit(box);
    } else if (name == QLatin1String("EBase1")) {
        m_money.EBase1Exit();
        if (changed)
            display(); // every channel of base 1 is shown against it
    } else if (name == QLatin1String("Ebase2")) {
        if (m_money.Ebase2Exit())
            EHFUBMIN0Exit();
    } else if (const int k = ChannelGridModel::channelIndex(name, "Value"); k >= 0) {
        m_money.Value0Exit(k);
    } else if (const int k = ChannelGridModel::channelIndex(name, "Sub"); k >= 0) {
        if (m_money.Sub0Exit(k))
            EHFUBMIN0Exit();
    } else if (name == QLatin1String("LabeledEdit3") || name == QLatin1String("LabeledEdit4")) {
        // The limit box shows what its exit wrote; the rest of the form is unchanged.
        m_counters.limitExit(name == QLatin1String("LabeledEdit3") ? 1 : 2);
    } else {
        EHFUBMIN0Exit();
    }
}

bool EditorModel::click(const QString &name, QString *error)
{
    const Control *control = lookup(name, error);
    if (!control)
        return false;
    if (control->kind != ControlKind::Button && control->kind != ControlKind::Check &&
        control->kind != ControlKind::Image) {
        if (error)
            *error = name + QStringLiteral(" cannot be clicked: it is ") + kindName(control->kind);
        return false;
    }
    if (!canAct(*control, error))
        return false;
    if (ChannelGridModel::isEnableBox(name)) {
        m_s.controls.setChecked(name, !control->state.checked);
        EHFUBMIN0Change();
    } else if (clickSetting(name)) {
        display();
    } else if (name == QLatin1String("SpeedButton1")) {
        SpeedButton1Click();
    } else if (name == QLatin1String("SpeedButton8")) {
        SpeedButton8Click();
    } else if (name == QLatin1String("BtnWriteChanges")) {
        BtnWriteChangesClick();
    } else if (name == QLatin1String("SpeedButton2")) {
        SpeedButton2Click();
    } else if (name == QLatin1String("SpeedButton4")) {
        SpeedButton4Click();
    } else if (name == QLatin1String("BitBtn1")) {
        BitBtn1Click();
    } else if (name == QLatin1String("BtnOpenFile")) {
        BtnOpenFileClick();
    } else if (name == QLatin1String("BtnSaveFile")) {
        BtnSaveFileClick();
    } else if (name == QLatin1String("BtnInit")) {
        BtnInitClick();
    } else if (name == QLatin1String("BtnOutput")) {
        BtnOutputClick();
    } else if (name == QLatin1String("BtnCopy")) {
        BtnCopyClick();
    } else if (name == QLatin1String("BtnChanges")) {
        BtnChangesClick();
    } else if (name == QLatin1String("BtnPrint")) {
        BtnPrintClick();
    } else if (name == QLatin1String("BtnPdf")) {
        BtnPdfClick();
    } else if (name == QLatin1String("BtnValues")) {
        exclusive([&] {
            EHFUBMIN0Exit();
            if (m_services)
                m_services->editValueTable(*this);
        });
    } else if (name == QLatin1String("BtnHistory")) {
        BtnHistoryClick();
    } else if (name == QLatin1String("BtnSaved")) {
        exclusive([&] {
            EHFUBMIN0Exit();
            if (m_services)
                m_services->browseSavedValidators(*this);
        });
    } else if (name == QLatin1String("BtnBatch")) {
        exclusive([&] {
            EHFUBMIN0Exit();
            if (m_services)
                m_services->runBatch(*this);
        });
    } else if (isLearningButton(name)) {
        learningClick(name);
    } else if (name == QLatin1String("BtnTest")) {
        exclusive([&] { m_test.BtnTestClick(); });
    } else {
        if (error)
            *error = name + QStringLiteral(" does nothing when clicked");
        return false;
    }
    flush();
    return true;
}

bool EditorModel::pick(const QString &name, int item, QString *error)
{
    const Control *control = lookup(name, error);
    if (!control)
        return false;
    if (control->kind != ControlKind::Radio) {
        if (error)
            *error = name + QStringLiteral(" has no items: it is ") + kindName(control->kind);
        return false;
    }
    if (!canAct(*control, error))
        return false;
    if (item < 0 || item >= control->state.items.size()) {
        if (error)
            *error = name + QStringLiteral(" has no item %1").arg(item);
        return false;
    }
    if (name == QLatin1String("GroupType")) {
        pickType(item);
    } else if (name == QLatin1String("GroupTypeLight")) {
        // The short form of the same choice.
        pickType(item == 1 ? 2 : 0);
    } else if (name == QLatin1String("GroupSortie")) {
        m_options.pickOutlet(item);
        display();
    }
    flush();
    return true;
}

void EditorModel::pickType(int item)
{
    // "50 - " has no function of its own: it is "20 - Totalizer - video game".
    const int type = item == 5 ? 2 : item;
    m_money.loadTypeDefaults(type);
    m_options.applyType(type);
    m_s.flags.configModified = true;
    m_s.flags.editChanged = true;
    display();
}

// The switches of the options, the code table and the counters.
bool EditorModel::clickSetting(const QString &name)
{
    if (m_options.click(name)) {
        if (name == QLatin1String("ChkResetEx") && m_s.outputType() == 4) {
            // Price 3 becomes the reset width in seconds, or in steps of 10 ms.
            m_money.rescaleResetWidth(!(m_s.image.options[0] & 0x01));
            m_s.flags.editChanged = true;
        }
        return true;
    }
    if (name == QLatin1String("ChkCode"))
        m_money.ChkCodeClick();
    else if (m_s.controls.at(name).kind == ControlKind::Image)
        m_money.codeImageClick(name);
    else if (name == QLatin1String("CounterEnable"))
        m_counters.CounterEnableClick();
    else if (name == QLatin1String("RazEnable"))
        m_counters.RazEnableClick();
    else if (name == QLatin1String("Button1") || name == QLatin1String("Button2"))
        m_counters.resetClick(name == QLatin1String("Button1") ? 1 : 2);
    else
        return false;
    return true;
}
