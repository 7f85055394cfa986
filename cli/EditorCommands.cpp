// show and edit: the editor model over a configuration file, without a window.
#include "CliContext.h"
#include "ConfigImage.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "Encodings.h"
#include "HistoryRecorder.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject controlJson(const Control &control)
{
    QJsonObject o;
    o.insert(QStringLiteral("text"), control.state.text);
    o.insert(QStringLiteral("visible"), control.state.visible);
    o.insert(QStringLiteral("enabled"), control.state.enabled);
    if (control.kind == ControlKind::Check)
        o.insert(QStringLiteral("checked"), control.state.checked);
    if (control.kind == ControlKind::Radio)
        o.insert(QStringLiteral("itemIndex"), control.state.itemIndex);
    return o;
}

// Answers as a script would; the Changes window is its lines on stderr, so that stdout keeps
// the configuration written.
class CliEditorServices final : public DefaultEditorServices
{
public:
    explicit CliEditorServices(CliContext &cli) : m_cli(cli) {}
    void showChanges(ChangesModel &changes) override
    {
        // The changes indented under their group's name.
        const bool any = !changes.changes().isEmpty();
        m_cli.err() << changes.since() << '\n';
        for (const ChangesModel::Line &line : changes.lines())
            m_cli.err() << (any && !line.heading ? "  " : "") << line.text << '\n';
        m_cli.err() << Qt::flush;
    }
    // A read or a write over the link goes into the validator's history.
    void validatorEvent(const ValidatorEvent &event) override
    {
        keepValidatorEvent(event, &m_cli.prompt());
    }

private:
    CliContext &m_cli;
};

// The editor over a file, with the link when the command line names one.
struct FileEditor
{
    FileEditor(CliContext &cli, TMonnayeur *link)
        : services(cli), model(&cli.prompt(), &services, link)
    {
        // Close asks what closing the window asks.
        model.closeRequested = [this] { model.FormCloseQuery(); };
    }
    CliEditorServices services;
    EditorModel model;
};

bool hasLinkOption(const GlobalOptions &o)
{
    return o.simulate || !o.device.isEmpty() || !o.port.isEmpty();
}

int showCommand(CliContext &cli, const QStringList &args)
{
    if (args.isEmpty())
        return kExitUsage;
    ConfigImage image = ConfigImage::blank();
    if (!readImageInput(cli, args.first(), image))
        return kExitFailed;
    FileEditor editor(cli, nullptr);
    editor.model.loadImage(image, false);

    QJsonObject out;
    const QStringList names = args.mid(1);
    for (const QString &name : names) {
        if (!editor.model.has(name)) {
            cli.err() << "tarvik-cli: no control " << name << Qt::endl;
            return kExitUsage;
        }
    }
    for (const Control &control : editor.model.controls().all()) {
        if (names.isEmpty() || names.contains(control.name))
            out.insert(control.name, controlJson(control));
    }
    cli.out() << QString::fromUtf8(QJsonDocument(out).toJson(QJsonDocument::Indented)) << Qt::flush;
    return kExitOk;
}

// One action as a technician would do it: NAME=TEXT types into a box and leaves it, NAME#N
// picks item N of a radio group, NAME clicks.
// Transfert=S:D[:clear][:values]: the channel copy dialog's "&Transfert" in one action.
bool transfert(EditorModel &model, const QString &text, QString &error)
{
    QStringList parts = text.split(u':');
    ChannelCopyModel &copy = model.channelCopy();
    copy.open();
    bool okS = false, okD = false;
    const int source = parts.value(0).toInt(&okS);
    const int destination = parts.value(1).toInt(&okD);
    const bool clear = parts.mid(2).contains(QStringLiteral("clear"));
    const bool values = parts.mid(2).contains(QStringLiteral("values"));
    const int flags = int(clear) + int(values);
    if (!okS || !okD || parts.size() != 2 + flags || source < 1 || destination < 1 ||
        source > copy.maximum() || destination > copy.maximum()) {
        error = QStringLiteral("Transfert takes S:D[:clear][:values] with channels 1 to %1")
                    .arg(copy.maximum());
        return false;
    }
    model.EHFUBMIN0Exit();
    copy.Transfert(source, destination, clear, values);
    return true;
}

// An amount the box's base cannot hold is a mistake in the command line, not something to
// correct quietly: the editor would hold it at the base's maximum, or refuse it when negative.
bool amountFits(const EditorModel &model, const QString &name, const QString &text, QString &error)
{
    const std::optional<DecimalWord> base = model.amountBase(name);
    if (!base)
        return true;
    const ChannelAmount amount = CheckChannelAmount(text, base->magnitude, base->decimals);
    if (amount.fit == AmountFit::OverMaximum)
        error = QStringLiteral("%1=%2: the base %3 holds at most %4")
                    .arg(name, text, ChannelValueStep(base->magnitude, base->decimals).trimmed(),
                         ChannelValueMaximum(base->magnitude, base->decimals).trimmed());
    else if (amount.fit == AmountFit::Negative)
        error = QStringLiteral("%1=%2: an amount cannot be negative").arg(name, text);
    else
        return true;
    return false;
}

bool applyAction(EditorModel &model, const QString &action, QString &error)
{
    if (action.startsWith(QLatin1String("Transfert=")))
        return transfert(model, action.mid(10), error);
    const qsizetype eq = action.indexOf(u'=');
    if (eq > 0) {
        const QString name = action.left(eq);
        const QString text = action.mid(eq + 1);
        return model.type(name, text, &error) && model.leave(name, &error);
    }
    const qsizetype hash = action.lastIndexOf(u'#');
    if (hash > 0) {
        bool ok = false;
        const int item = action.mid(hash + 1).toInt(&ok);
        if (!ok) {
            error = action + QStringLiteral(": the item after # must be a number");
            return false;
        }
        return model.pick(action.left(hash), item, &error);
    }
    return model.click(action, &error);
}

int editCommand(CliContext &cli, const QStringList &arguments)
{
    QStringList args = arguments;
    QString output;
    if (!takeOutputOption(args, output))
        return kExitUsage;
    UserPrompt::Answer answer = UserPrompt::Answer::No;
    const qsizetype at = args.indexOf(QStringLiteral("--answer"));
    if (at >= 0) {
        const QString word = args.value(at + 1);
        if (word != QLatin1String("yes") && word != QLatin1String("no")) {
            cli.err() << "tarvik-cli: --answer takes yes or no" << Qt::endl;
            return kExitUsage;
        }
        answer = word == QLatin1String("yes") ? UserPrompt::Answer::Yes : UserPrompt::Answer::No;
        args.remove(at, 2);
    }
    if (args.isEmpty())
        return kExitUsage;
    ConfigImage image = ConfigImage::blank();
    const QString input = args.takeFirst();
    if (!readImageInput(cli, input, image))
        return kExitFailed;

    TMonnayeur *link = nullptr;
    if (hasLinkOption(cli.options())) {
        link = cli.openLink();
        if (!link)
            return kExitFailed;
    }
    cli.prompt().setAnswer(answer);
    FileEditor editor(cli, link);
    editor.model.loadImage(image, false, BaselineSource::Kind::File, QFileInfo(input).fileName());
    for (const QString &action : args) {
        QString error;
        // Checked when its turn comes, against the bases and type the actions before it left.
        const qsizetype eq = action.indexOf(u'=');
        if (eq > 0 && !amountFits(editor.model, action.left(eq), action.mid(eq + 1), error)) {
            cli.err() << "tarvik-cli: " << error << "; nothing more was done" << Qt::endl;
            return kExitTrouble;
        }
        if (!applyAction(editor.model, action, error)) {
            cli.err() << "tarvik-cli: " << error << Qt::endl;
            return kExitUsage;
        }
    }
    // Whatever box was typed into last is left before the file is written.
    editor.model.EHFUBMIN0Exit();
    return writeImageOutput(cli, editor.model.image(), output);
}

} // namespace

void registerEditorCommands(CliCommandTable &table)
{
    table.insert(QStringLiteral("show"),
                 {QStringLiteral("show FILE [NAME...]"),
                  QStringLiteral("prints, as JSON keyed by control name, what the editor shows "
                                 "for a configuration file (text, visible, enabled, checked or "
                                 "itemIndex); with names, only those controls"),
                  showCommand});
    table.insert(
        QStringLiteral("edit"),
        {QStringLiteral("edit FILE [-o OUT] [--answer yes|no] ACTION..."),
         QStringLiteral("runs the editor over a configuration file and writes the result (stdout "
                        "without -o): NAME=TEXT types TEXT into box NAME and leaves it, NAME "
                        "clicks it (BtnChanges prints the Changes window on stderr), NAME#N picks "
                        "item N of a radio group, "
                        "Transfert=S:D[:clear][:values] copies channel S onto D; questions "
                        "take --answer (default no)"),
         editCommand});
}
