// sheet: the printable configuration sheet of a configuration file, as the editor's "Save as
// PDF..." makes it.
#include "CliContext.h"
#include "ConfigImage.h"
#include "EditorModel.h"
#include "EditorServices.h"
#include "Languages.h"
#include "Settings.h"
#include "WindowsChartPainter.h"

#include <QGuiApplication>

namespace {

// The editor's questions answered from the command line: the PDF goes where -o says.
class SheetServices final : public DefaultEditorServices
{
public:
    explicit SheetServices(QString output) : m_output(std::move(output)) {}
    QString saveSheetFileName(const QString &) override { return m_output; }
    SheetChart sheetChart(const ConfigImage &image) override { return sheetWindowsChart(image); }

private:
    QString m_output;
};

struct SheetArguments
{
    QString file;
    QString output;
    QString identification;
    QString description;
    std::optional<QString> language;
};

bool parse(const QStringList &arguments, SheetArguments &a, QString &error)
{
    QStringList args = arguments;
    if (!takeOutputOption(args, a.output) || a.output.isEmpty()) {
        error = QStringLiteral("sheet needs -o OUT.pdf");
        return false;
    }
    for (int i = 0; i < args.size(); ++i) {
        const QString &word = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (word == QLatin1String("--identification") && hasValue)
            a.identification = args.at(++i);
        else if (word == QLatin1String("--description") && hasValue)
            a.description = args.at(++i);
        else if (word == QLatin1String("--language") && hasValue)
            a.language = args.at(++i).toUpper();
        else if (word.startsWith(u'-') || !a.file.isEmpty())
            return false;
        else
            a.file = word;
    }
    return !a.file.isEmpty();
}

int sheetCommand(CliContext &cli, const QStringList &arguments)
{
    SheetArguments a;
    QString error;
    if (!parse(arguments, a, error)) {
        if (!error.isEmpty())
            cli.err() << "tarvik-cli: " << error << Qt::endl;
        return kExitUsage;
    }
    // The language of the program's settings, unless the command line names another.
    const QString language = a.language.value_or([] {
        Settings settings;
        settings.load();
        return settings.language();
    }());
    const int index = Languages::indexOf(language);
    if (a.language && index == Languages::kLocal && language != QLatin1String("LOCAL")) {
        cli.err() << "tarvik-cli: --language takes FR, IT, EN, DE or LOCAL" << Qt::endl;
        return kExitUsage;
    }
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        cli.err() << "tarvik-cli: the sheet is drawn only by the program itself" << Qt::endl;
        return kExitFailed;
    }
    ConfigImage image = ConfigImage::blank();
    if (!readImageInput(cli, a.file, image))
        return kExitFailed;
    LanguageSwitcher switcher;
    if (index != Languages::kLocal && !switcher.load(index))
        cli.err() << "tarvik-cli: the translation " << language << " is missing; the sheet is "
                  << "in English" << Qt::endl;

    SheetServices services(a.output);
    EditorModel editor(&cli.prompt(), &services);
    editor.loadImage(image, false);
    // A configuration file carries no identification or description: the editor's boxes take
    // them from the command line.
    for (auto [box, text] :
         {std::pair{"EIdent", a.identification}, std::pair{"EDescription", a.description}}) {
        editor.type(QLatin1String(box), text);
        editor.leave(QLatin1String(box));
    }
    const qsizetype told = cli.prompt().told().size();
    if (!editor.click(QStringLiteral("BtnPdf"), &error)) {
        cli.err() << "tarvik-cli: " << error << Qt::endl;
        return kExitFailed;
    }
    return cli.prompt().told().size() == told ? kExitOk : kExitFailed;
}

} // namespace

void registerSheetCommands(CliCommandTable &table)
{
    table.insert(
        QStringLiteral("sheet"),
        {QStringLiteral("sheet FILE -o OUT.pdf [--identification TEXT] [--description TEXT] "
                        "[--language FR|IT|EN|DE|LOCAL]"),
         QStringLiteral("writes the printable configuration sheet of a configuration file as a "
                        "PDF, as the editor's \"Save as PDF...\" does, in the language of the "
                        "program's settings unless --language names another"),
         sheetCommand});
}
