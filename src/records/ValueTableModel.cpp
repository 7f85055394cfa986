#include "ValueTableModel.h"

#include "DirectoryRecords.h"

#include "EditorState.h"

#include "Encodings.h"
#include "Messages.h"
#include "TMonnayeur.h"
#include "UserPrompt.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

// The form's own texts, translated in the context "TFormValue".
const char *const kCaption = QT_TRANSLATE_NOOP("TFormValue", "Values Table");
const char *const kBaseGroup = QT_TRANSLATE_NOOP("TFormValue", "Base Value");
const char *const kChannelsFrom1 = QT_TRANSLATE_NOOP("TFormValue", "Channels 1 to ");
const char *const kChannels31To60 = QT_TRANSLATE_NOOP("TFormValue", "Channels 31 to 60 : ");
const char *const kRatio = QT_TRANSLATE_NOOP("TFormValue", "Ratio : ");
const char *const kName = QT_TRANSLATE_NOOP("TFormValue", "Name : ");
const char *const kDescription = QT_TRANSLATE_NOOP("TFormValue", "Description : ");
const char *const kCorner = QT_TRANSLATE_NOOP("TFormValue", "Channels");
const char *const kTableName = QT_TRANSLATE_NOOP("TFormValue", "Table name");
const char *const kDescriptionTitle = QT_TRANSLATE_NOOP("TFormValue", "Description");
const char *const kGridName = QT_TRANSLATE_NOOP("TFormValue", "Channel values");
const char *const kRecordsName = QT_TRANSLATE_NOOP("TFormValue", "Stored value tables");
const char *const kNavigatorName = QT_TRANSLATE_NOOP("TFormValue", "Record navigator");

struct ButtonText
{
    const char *name;
    const char *caption;
    const char *hint;
};
const ButtonText kButtons[] = {
    {"BitBtn7", QT_TRANSLATE_NOOP("TFormValue", "&Load"),
     QT_TRANSLATE_NOOP("TFormValue", "Load value table from validator")},
    {"BitBtn4", QT_TRANSLATE_NOOP("TFormValue", "&Transfert"),
     QT_TRANSLATE_NOOP("TFormValue", "Transfert de la table des valeurs dans le monnayeur")},
    {"BitBtn3", QT_TRANSLATE_NOOP("TFormValue", "&Apply"),
     QT_TRANSLATE_NOOP("TFormValue", "Aplly the value table")},
    {"BitBtn2", QT_TRANSLATE_NOOP("TFormValue", "&Save"),
     QT_TRANSLATE_NOOP("TFormValue", "Save a record")},
    {"BitBtn5", QT_TRANSLATE_NOOP("TFormValue", "&Open"),
     QT_TRANSLATE_NOOP("TFormValue", "Open a record")},
    {"BitBtn6", QT_TRANSLATE_NOOP("TFormValue", "&Reset"),
     QT_TRANSLATE_NOOP("TFormValue", "Reseting value table")},
    {"BitBtn1", QT_TRANSLATE_NOOP("TFormValue", "&Exit"), nullptr},
    {"DBNavigator1First", nullptr, QT_TRANSLATE_NOOP("TFormValue", "First record")},
    {"DBNavigator1Prior", nullptr, QT_TRANSLATE_NOOP("TFormValue", "Prior record")},
    {"DBNavigator1Next", nullptr, QT_TRANSLATE_NOOP("TFormValue", "Next record")},
    {"DBNavigator1Last", nullptr, QT_TRANSLATE_NOOP("TFormValue", "Last record")},
    {"DBNavigator1Delete", nullptr, QT_TRANSLATE_NOOP("TFormValue", "Delete record")},
};

QString tr(const char *source)
{
    return QCoreApplication::translate("TFormValue", source);
}

QString edit(int n)
{
    return QStringLiteral("LabeledEdit%1").arg(n);
}

QString editLabel(int n)
{
    return edit(n) + QStringLiteral("Label");
}

Word2 word(const ValueBlock &b, int at)
{
    return {b[std::size_t(at)], b[std::size_t(at + 1)]};
}

// The two bases as shown: base 2 without a value takes base 1's decimals and value.
struct Bases
{
    DecimalWord base1;
    DecimalWord base2;
};
Bases basesOf(const ValueBlock &b)
{
    Bases s{FormatDecimalWord(word(b, Val::Base1)), FormatDecimalWord(word(b, Val::Base2))};
    if (s.base2.text.isEmpty()) {
        s.base2.decimals = s.base1.decimals;
        s.base2.magnitude = s.base1.magnitude;
    }
    return s;
}

} // namespace

ValueTableModel::ValueTableModel(Editor editor, bool light, TMonnayeur *link, UserPrompt *prompt,
                                 RecordStore *store, bool directWrite)
    : m_editor(std::move(editor)), m_light(light), m_link(link), m_prompt(prompt), m_store(store),
      m_directWrite(directWrite)
{
    init();
}

ValueTableModel::ValueTableModel(Editor editor, bool light, TMonnayeur *link, UserPrompt *prompt,
                                 ValueTableStore *store, bool directWrite)
    : m_editor(std::move(editor)), m_light(light), m_link(link), m_prompt(prompt),
      m_own(store ? std::make_unique<DirectoryRecords>(store->module(), store->prompt()) : nullptr),
      m_store(m_own.get()), m_directWrite(directWrite)
{
    init();
}

ValueTableModel::~ValueTableModel() = default;

ValueTableModel::ValueTableModel(ValueBlock &editorBlock, bool *configModified, bool light,
                                 TMonnayeur *link, UserPrompt *prompt, ValueTableStore *store,
                                 bool directWrite)
    : ValueTableModel(Editor{[&editorBlock] { return editorBlock; },
                             [&editorBlock](const ValueBlock &b) { editorBlock = b; },
                             [configModified] {
                                 if (configModified)
                                     *configModified = true;
                             }},
                      light, link, prompt, store, directWrite)
{}

void ValueTableModel::init()
{
    ControlSet &c = m_controls;
    c.add(QStringLiteral("TFormValue"), ControlKind::Label);
    c.add(QStringLiteral("TableauValue"), ControlKind::Panel);
    c.add(QStringLiteral("GroupBox1"), ControlKind::Group);
    for (int n = 1; n <= 5; ++n) {
        const QString parent = n <= 3 ? QStringLiteral("GroupBox1") : QString();
        c.add(editLabel(n), ControlKind::Label, parent);
        c.add(edit(n), ControlKind::Edit, parent);
        c.setBuddy(edit(n), editLabel(n));
    }
    c.add(QStringLiteral("DBGrid1"), ControlKind::Panel);
    c.add(QStringLiteral("DBNavigator1"), ControlKind::Panel);
    for (const ButtonText &b : kButtons)
        c.add(QLatin1String(b.name), ControlKind::Button,
              QLatin1String(b.name).startsWith(QLatin1String("DBNavigator1"))
                  ? QStringLiteral("DBNavigator1")
                  : QString());
    FormCreate();
    c.takeChanged();
}

void ValueTableModel::retranslate()
{
    ControlSet &c = m_controls;
    c.setText(QStringLiteral("TFormValue"), tr(kCaption));
    c.setText(QStringLiteral("GroupBox1"), tr(kBaseGroup));
    // The label says 24 on the Light model, although that model has 25 channels.
    c.setText(editLabel(1),
              tr(kChannelsFrom1) + QString::number(m_light ? 24 : 30) + QStringLiteral(" : "));
    c.setText(editLabel(2), tr(kChannels31To60));
    c.setText(editLabel(3), tr(kRatio));
    c.setText(editLabel(4), tr(kName));
    c.setText(editLabel(5), tr(kDescription));
    for (int n = 1; n <= 5; ++n)
        c.setAccessibleName(edit(n), c.state(editLabel(n)).text.trimmed());
    c.setAccessibleName(QStringLiteral("TableauValue"), tr(kGridName));
    c.setAccessibleName(QStringLiteral("DBGrid1"), tr(kRecordsName));
    c.setAccessibleName(QStringLiteral("DBNavigator1"), tr(kNavigatorName));
    for (const ButtonText &b : kButtons) {
        const QString name = QLatin1String(b.name);
        if (b.caption)
            c.setText(name, tr(b.caption));
        if (b.hint)
            c.setToolTip(name, tr(b.hint));
        // The navigator's buttons show pictures only.
        if (!b.caption)
            c.setAccessibleName(name, tr(b.hint));
    }
    m_cells[0][0] = tr(kCorner);
    flush();
}

QStringList ValueTableModel::gridTitles() const
{
    return {tr(kTableName), tr(kDescriptionTitle)};
}

void ValueTableModel::FormCreate()
{
    retranslate();
    m_controls.setVisible(edit(2), !m_light);
    m_controls.setVisible(editLabel(2), !m_light);
    m_controls.setVisible(edit(3), !m_light);
    m_controls.setVisible(editLabel(3), !m_light);
    // Sending the table straight to the validator is for those who write directly.
    m_controls.setVisible(QStringLiteral("BitBtn4"), m_directWrite);
    m_controls.setEnabled(QStringLiteral("BitBtn4"), m_link != nullptr);
    m_controls.setEnabled(QStringLiteral("BitBtn7"), m_link != nullptr);
    for (const char *name : {"BitBtn2", "BitBtn5", "DBGrid1", "DBNavigator1"})
        m_controls.setEnabled(QLatin1String(name), m_store != nullptr);
    refreshRecords();
}

void ValueTableModel::FormActivate()
{
    m_copy = m_editor.block ? m_editor.block() : ValueBlock{};
    m_cells[0][0] = tr(kCorner);
    for (int col = 1; col < kColumns; ++col)
        m_cells[0][std::size_t(col)] = QString::asprintf("%3d", col);
    for (int row = 1; row < kRows; ++row)
        m_cells[std::size_t(row)][0] = QString::asprintf("%2d", (row - 1) * 10 + 1) + u'-' +
                                       QString::asprintf("%2d", row * 10);
    m_column = 1;
    m_row = 1;
    m_cellEntered = true;
    refreshRecords();
    ShowTable();
}

void ValueTableModel::ShowTable()
{
    const Bases b = basesOf(m_copy);
    setBaseEdit(edit(1), b.base1.text);
    setBaseEdit(edit(2), FormatDecimalWord(word(m_copy, Val::Base2)).text);
    Long4 ratio;
    std::copy_n(m_copy.begin() + Val::Conversion, 4, ratio.begin());
    setBaseEdit(edit(3), FormatExponentLong(ratio, b.base1.decimals, b.base2.decimals));
    for (int row = 1; row < rowCount(); ++row) {
        const DecimalWord &base = row <= 3 ? b.base1 : b.base2;
        for (int col = 1; col < kColumns; ++col) {
            const int i = (col - 1) + 10 * (row - 1);
            m_cells[std::size_t(row)][std::size_t(col)] = FormatChannelValue(
                base.decimals, 6, base.magnitude, m_copy[std::size_t(Val::Channel0 + i)]);
        }
    }
    m_changed = false;
    m_cellEntered = true;
    flush();
}

QString ValueTableModel::cellTip(int column, int row) const
{
    if (column < 1 || column >= kColumns || row < 1 || row >= rowCount())
        return {};
    const Bases b = basesOf(m_copy);
    return EditorState::amountTip(row <= 3 ? b.base1 : b.base2, true);
}

void ValueTableModel::setBaseEdit(const QString &name, const QString &text)
{
    m_controls.setText(name, text);
}

void ValueTableModel::tell(const QString &text, int kind) const
{
    if (m_prompt)
        m_prompt->tell(text, UserPrompt::Kind(kind));
}

bool ValueTableModel::refuse(const QString &box, const QString &text)
{
    // The entry stays as typed, and the focus goes back to it.
    tell(messageText(Msg::NotValidInteger, {text.trimmed()}), int(UserPrompt::Kind::Error));
    if (focusRequested)
        focusRequested(box);
    flush();
    return false;
}

bool ValueTableModel::storeBases()
{
    const QString text1 = m_controls.state(edit(1)).text;
    const auto base1 = ParseDecimalWord(text1);
    if (!base1)
        return refuse(edit(1), text1);
    std::copy(base1->begin(), base1->end(), m_copy.begin() + Val::Base1);
    const QString text2 = m_controls.state(edit(2)).text;
    const auto base2 = ParseDecimalWord(text2);
    if (!base2)
        return refuse(edit(2), text2);
    std::copy(base2->begin(), base2->end(), m_copy.begin() + Val::Base2);
    const Bases b = basesOf(m_copy);
    const QString text3 = m_controls.state(edit(3)).text;
    const auto ratio = ParseExponentLong(text3, b.base1.decimals, b.base2.decimals);
    if (!ratio)
        return refuse(edit(3), text3);
    std::copy(ratio->begin(), ratio->end(), m_copy.begin() + Val::Conversion);
    return true;
}

bool ValueTableModel::StoreCurrentCell()
{
    if (!storeBases())
        return false;
    const int i = (m_column - 1) + 10 * (m_row - 1);
    if (i >= 0 && i < kChannels) {
        const Bases b = basesOf(m_copy);
        const DecimalWord &base = i >= 30 ? b.base2 : b.base1;
        const QString text = cell(m_column, m_row);
        // An amount past the base's 252 steps is held at the largest, and said.
        const ChannelAmount amount = CheckChannelAmount(text, base.magnitude, base.decimals);
        if (amount.fit == AmountFit::NotAnAmount || amount.fit == AmountFit::Negative)
            return refuse(QStringLiteral("TableauValue"), text);
        if (amount.fit == AmountFit::OverMaximum)
            tell(messageText(Msg::ValueOverMaximum), int(UserPrompt::Kind::Warning));
        m_copy[std::size_t(Val::Channel0 + i)] = amount.byte;
    }
    ShowTable();
    configModified();
    return true;
}

void ValueTableModel::configModified()
{
    if (m_editor.modified)
        m_editor.modified();
}

void ValueTableModel::type(const QString &name, const QString &text)
{
    if (!m_controls.contains(name) || m_controls.state(name).text == text)
        return;
    m_controls.setText(name, text);
    if (name == edit(1) || name == edit(2) || name == edit(3))
        m_changed = true;
    flush();
}

void ValueTableModel::leave(const QString &name)
{
    if ((name == edit(1) || name == edit(2) || name == edit(3)) && m_changed)
        StoreCurrentCell();
}

void ValueTableModel::click(const QString &name)
{
    if (!m_controls.contains(name) || !m_controls.state(name).enabled ||
        !m_controls.state(name).visible)
        return;
    if (name == QLatin1String("BitBtn7"))
        BitBtn7Click();
    else if (name == QLatin1String("BitBtn4"))
        BitBtn4Click();
    else if (name == QLatin1String("BitBtn3"))
        BitBtn3Click();
    else if (name == QLatin1String("BitBtn1"))
        BitBtn1Click();
    else if (name == QLatin1String("BitBtn6"))
        BitBtn6Click();
    else if (name == QLatin1String("BitBtn2"))
        BitBtn2Click();
    else if (name == QLatin1String("BitBtn5"))
        BitBtn5Click();
    else if (name == QLatin1String("DBNavigator1First") && !m_records.isEmpty())
        recordClick(0);
    else if (name == QLatin1String("DBNavigator1Prior") && m_record > 0)
        recordClick(m_record - 1);
    else if (name == QLatin1String("DBNavigator1Next") && m_record + 1 < m_records.size())
        recordClick(m_record + 1);
    else if (name == QLatin1String("DBNavigator1Last") && !m_records.isEmpty())
        recordClick(int(m_records.size()) - 1);
    else if (name == QLatin1String("DBNavigator1Delete") && m_store && m_record >= 0 &&
             !m_store->canChangeValueTables())
        tell(m_store->errorString(), int(UserPrompt::Kind::Error));
    else if (name == QLatin1String("DBNavigator1Delete") && m_store && m_record >= 0 && m_prompt &&
             m_prompt->ask(messageText(Msg::DeleteRecord), UserPrompt::Kind::Confirmation,
                           UserPrompt::Buttons::OkCancel) == UserPrompt::Answer::Ok) {
        const int at = m_record;
        if (!m_store->removeValueTable(m_records.at(at).name))
            tell(m_store->errorString(), int(UserPrompt::Kind::Error));
        refreshRecords();
        m_record = std::min(at, int(m_records.size()) - 1);
        flush();
    }
}

void ValueTableModel::moveTo(int column, int row)
{
    const int c = std::clamp(column, 1, kColumns - 1);
    const int r = std::clamp(row, 1, rowCount() - 1);
    if (c != m_column || r != m_row)
        m_cellEntered = true;
    m_column = c;
    m_row = r;
    flush();
}

void ValueTableModel::gridType(const QString &text)
{
    QString &cellText = m_cells[std::size_t(m_row)][std::size_t(m_column)];
    cellText = m_cellEntered ? text : cellText + text;
    m_cellEntered = false;
    flush();
}

void ValueTableModel::gridKey(GridKey key)
{
    switch (key) {
    case GridKey::Tab:
    case GridKey::BackTab:
    case GridKey::Up:
    case GridKey::Down:
    case GridKey::PageUp:
    case GridKey::PageDown:
        if (!StoreCurrentCell())
            return; // the cell keeps what was typed, and the grid stays on it
        break;
    default:
        break;
    }
    const int lastRow = rowCount() - 1;
    switch (key) {
    case GridKey::Tab:
        if (m_column < kColumns - 1)
            moveTo(m_column + 1, m_row);
        else if (m_row < lastRow)
            moveTo(1, m_row + 1);
        break;
    case GridKey::BackTab:
        if (m_column > 1)
            moveTo(m_column - 1, m_row);
        else if (m_row > 1)
            moveTo(kColumns - 1, m_row - 1);
        break;
    case GridKey::Up:
        moveTo(m_column, m_row - 1);
        break;
    case GridKey::Down:
        moveTo(m_column, m_row + 1);
        break;
    case GridKey::PageUp:
        moveTo(m_column, 1);
        break;
    case GridKey::PageDown:
        moveTo(m_column, lastRow);
        break;
    case GridKey::Left:
        moveTo(m_column - 1, m_row);
        break;
    case GridKey::Right:
        moveTo(m_column + 1, m_row);
        break;
    case GridKey::Enter:
        m_cellEntered = true;
        break;
    case GridKey::Backspace: {
        QString &cellText = m_cells[std::size_t(m_row)][std::size_t(m_column)];
        cellText = m_cellEntered ? QString() : cellText.left(cellText.size() - 1);
        m_cellEntered = false;
        flush();
        break;
    }
    }
}

void ValueTableModel::gridClick(int column, int row)
{
    if (StoreCurrentCell())
        moveTo(column, row);
}

void ValueTableModel::recordClick(int row)
{
    if (row >= 0 && row < m_records.size())
        m_record = row;
    flush();
}

void ValueTableModel::recordDoubleClick(int row)
{
    recordClick(row);
    BitBtn5Click();
}

void ValueTableModel::refreshRecords()
{
    m_records = m_store ? m_store->valueTables() : QList<ValueTableStore::Entry>{};
    if (m_record >= m_records.size())
        m_record = int(m_records.size()) - 1;
    if (m_record < 0 && !m_records.isEmpty())
        m_record = 0;
    flush();
}

void ValueTableModel::BitBtn7Click()
{
    if (!m_link)
        return;
    while (!m_link->CheckPresence(false)) {
        if (!m_prompt ||
            m_prompt->ask(messageText(Msg::ConnectValidator), UserPrompt::Kind::Information,
                          UserPrompt::Buttons::OkCancel) != UserPrompt::Answer::Ok)
            return;
    }
    // The read is not checked: a slice that failed keeps what the buffer held.
    ValueTableBytes buffer;
    std::copy(m_copy.begin(), m_copy.end(), buffer.begin());
    m_link->ReadValueTable(buffer);
    std::copy_n(buffer.begin(), m_copy.size(), m_copy.begin());
    ShowTable();
}

void ValueTableModel::BitBtn4Click()
{
    if (!m_link)
        return;
    ValueTableBytes table;
    std::copy(m_copy.begin(), m_copy.end(), table.begin());
    if (m_link->WriteValueTable(table))
        tell(messageText(Msg::TableTransferred), int(UserPrompt::Kind::Information));
    else
        tell(messageText(Msg::FaultDuringSave), int(UserPrompt::Kind::Error));
}

bool ValueTableModel::BitBtn3Click()
{
    // An entry that does not convert stops here: nothing is applied and the form stays open.
    if (!StoreCurrentCell())
        return false;
    if (m_editor.apply)
        m_editor.apply(m_copy);
    configModified();
    ShowTable();
    return true;
}

void ValueTableModel::BitBtn1Click()
{
    if (BitBtn3Click() && closeRequested)
        closeRequested();
}

void ValueTableModel::BitBtn6Click()
{
    m_copy.fill(kNotSet);
    ShowTable();
}

void ValueTableModel::BitBtn2Click()
{
    const QString name = m_controls.state(edit(4)).text;
    if (name.trimmed().isEmpty()) {
        tell(messageText(Msg::IdentificationMustBeFilled), int(UserPrompt::Kind::Warning));
        if (focusRequested)
            focusRequested(edit(4));
        return;
    }
    if (!m_store)
        return;
    if (m_store->saveValueTable(m_copy, name, m_controls.state(edit(5)).text, m_light) ==
        ValueTableStore::Outcome::Saved) {
        refreshRecords();
        const auto at = std::find_if(m_records.begin(), m_records.end(), [&](const auto &e) {
            return e.name.compare(name.trimmed(), Qt::CaseInsensitive) == 0;
        });
        m_record = at == m_records.end() ? -1 : int(at - m_records.begin());
    }
    flush();
}

void ValueTableModel::BitBtn5Click()
{
    if (!m_store || m_record < 0 || m_record >= m_records.size())
        return;
    ValueTableStore::Entry entry;
    if (!m_store->openValueTable(m_records.at(m_record).name, m_copy, m_light, &entry))
        return;
    m_controls.setText(edit(4), entry.name);
    m_controls.setText(edit(5), entry.description);
    ShowTable();
}

void ValueTableModel::flush()
{
    const QStringList names = m_controls.takeChanged();
    if (changed)
        changed(names);
}
