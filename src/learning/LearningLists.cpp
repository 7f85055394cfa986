#include "LearningLists.h"

#include "Messages.h"

namespace {

const QString kList = QStringLiteral("ListBox1");
const QString kCount = QStringLiteral("Label1");
const QString kOkButton = QStringLiteral("BtnOK");

} // namespace

// ---- overlapped channels ------------------------------------------------------------------

SuperpositionModel::SuperpositionModel(const ConfigImage &image, UserPrompt *prompt)
    : FormModel("TFormSuperposition", prompt), m_chart(image)
{
    c().add(QStringLiteral("TFormSuperposition"), ControlKind::Label);
    addList(kList);
    // The list's lines and the chart's pairs are the same pairs in the same order.
    QStringList lines;
    for (const ChannelPair &pair : m_chart.overlaps())
        lines.append(overlapLine(int(lines.size()) + 1, pair));
    c().setItems(kList, lines);
    // The window opens with the first pair picked out.
    if (!lines.isEmpty()) {
        c().setItemIndex(kList, 0);
        m_chart.highlight(pairAt(0));
    }
    c().add(kCount, ControlKind::Label);
    c().add(kOkButton, ControlKind::Button);
    retranslate();
}

void SuperpositionModel::retranslate()
{
    caption(QStringLiteral("TFormSuperposition"),
            QT_TRANSLATE_NOOP("TFormSuperposition", "Overlapped channels list"));
    caption(kOkButton, QT_TRANSLATE_NOOP("TFormSuperposition", "&OK"));
    c().setText(kCount,
                messageText(Msg::Overlapping, {QString::number(control(kList).items.size())}));
    flush();
}

void SuperpositionModel::clicked(const QString &name)
{
    if (name == kOkButton)
        close(true);
}

std::optional<ChannelPair> SuperpositionModel::pairAt(int line) const
{
    if (line < 0 || line >= m_chart.overlaps().size())
        return std::nullopt;
    return m_chart.overlaps()[line];
}

void SuperpositionModel::picked(const QString &name, int item)
{
    FormModel::picked(name, item);
    if (name == kList) {
        m_chart.highlight(pairAt(item));
        markChanged(chartName());
    }
}

// ---- analysis -----------------------------------------------------------------------------

const QString &AnalyseModel::headerLine1()
{
    static const QString line = QStringLiteral(
        "               |  HFU BAS  | HFU HAUT  |     LF    |    DIM    | HFL HAUT  |  HFL BAS  "
        "|   HFL AMP ");
    return line;
}

const QString &AnalyseModel::headerLine2()
{
    static const QString line = QString::fromUtf8(
        "N° |Canal|Canal|Min|Nom|Max|Min|Nom|Max|Min|Nom|Max|Min|Nom|Max|Min|Nom|Max|Min|Nom|Max|"
        "Min|Nom|Max");
    return line;
}

AnalyseModel::AnalyseModel(const QStringList &lines, UserPrompt *prompt)
    : FormModel("TTarvikAnalyse", prompt)
{
    c().add(QStringLiteral("TTarvikAnalyse"), ControlKind::Label);
    c().add(QStringLiteral("Header1"), ControlKind::Label);
    c().add(QStringLiteral("Header2"), ControlKind::Label);
    c().setText(QStringLiteral("Header1"), headerLine1());
    c().setText(QStringLiteral("Header2"), headerLine2());
    addList(kList);
    c().setItems(kList, lines);
    c().add(kCount, ControlKind::Label);
    c().add(kOkButton, ControlKind::Button);
    retranslate();
}

void AnalyseModel::retranslate()
{
    caption(QStringLiteral("TTarvikAnalyse"), QT_TRANSLATE_NOOP("TTarvikAnalyse", "Analyse"));
    caption(kOkButton, QT_TRANSLATE_NOOP("TTarvikAnalyse", "&OK"));
    c().setText(kCount,
                messageText(Msg::Superpositions, {QString::number(control(kList).items.size())}));
    flush();
}

void AnalyseModel::clicked(const QString &name)
{
    if (name == kOkButton)
        close(true);
}

// ---- reference channel notice -------------------------------------------------------------

RefChannelModel::RefChannelModel(UserPrompt *prompt) : FormModel("TFormRefChannel", prompt)
{
    c().add(QStringLiteral("TFormRefChannel"), ControlKind::Label);
    addList(QStringLiteral("Memo1"));
    c().setReadOnly(QStringLiteral("Memo1"), true);
    c().add(kOkButton, ControlKind::Button);
    retranslate();
}

void RefChannelModel::retranslate()
{
    caption(QStringLiteral("TFormRefChannel"),
            QT_TRANSLATE_NOOP("TFormRefChannel", "Reference Channel"));
    const char *lines[] = {
        QT_TRANSLATE_NOOP("TFormRefChannel", "Reference channel is empty"),
        QT_TRANSLATE_NOOP("TFormRefChannel", "Use the reference set of tokens."),
        QT_TRANSLATE_NOOP("TFormRefChannel", "- Insert 5 golden tokens."),
        QT_TRANSLATE_NOOP("TFormRefChannel", "- Ok"),
        QT_TRANSLATE_NOOP("TFormRefChannel", "- Insert 5 silver tokens."),
        QT_TRANSLATE_NOOP("TFormRefChannel", "- Ok"),
    };
    QStringList text;
    for (const char *line : lines)
        text.append(tr(line));
    c().setItems(QStringLiteral("Memo1"), text);
    caption(kOkButton, QT_TRANSLATE_NOOP("TFormRefChannel", "&OK"));
    flush();
}

void RefChannelModel::clicked(const QString &name)
{
    if (name == kOkButton)
        close(true);
}
