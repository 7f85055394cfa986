// learn, calibrate and overlap: coin learning and the reference calibration on the validator,
// and the overlap check of a configuration file, with its windows chart as a picture.
#include "Captions.h"
#include "CliContext.h"
#include "Commands.h"
#include "ConfigFile.h"
#include "Encodings.h"
#include "Messages.h"
#include "ReadSequence.h"
#include "ReferenceCalibration.h"
#include "WholeFile.h"
#include "WindowsChartPainter.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

namespace {

// Options of the form --name VALUE, taken out of args.
bool takeValue(QStringList &args, const QString &name, QString &value)
{
    const qsizetype at = args.indexOf(name);
    if (at < 0)
        return true;
    if (at + 1 >= args.size())
        return false;
    value = args.at(at + 1);
    args.remove(at, 2);
    return true;
}

bool takeAnswer(CliContext &cli, QStringList &args)
{
    QString answer = QStringLiteral("no");
    if (!takeValue(args, QStringLiteral("--answer"), answer) ||
        (answer != QLatin1String("yes") && answer != QLatin1String("no")))
        return false;
    cli.prompt().setAnswer(answer == QLatin1String("yes") ? UserPrompt::Answer::Yes
                                                          : UserPrompt::Answer::No);
    return true;
}

// A poll that failed because the port itself went away (the adapter pulled out, its driver gone)
// ends the collection at once with the link's message: no coin can come any more.
bool portLost(CliContext &cli, const TMonnayeur &link, int got, int count)
{
    const Transport *port = link.transport();
    if (!port || port->isOpen())
        return false;
    cli.prompt().tell(link.LastLinkError(), UserPrompt::Kind::Error);
    cli.err() << "tarvik-cli: the port was lost after " << got << " of " << count << " samples ("
              << port->errorString() << "); nothing was written" << Qt::endl;
    return true;
}

// Waits for count samples; each one is printed with the channel it matches. False when the
// time ran out first.
bool collectSamples(CliContext &cli, TMonnayeur &link, const ConfigImage &image,
                    LearningSession &session, int count, int timeoutSeconds)
{
    QElapsedTimer clock;
    clock.start();
    while (session.coinCount() < count) {
        if (clock.elapsed() > qint64(timeoutSeconds) * 1000) {
            cli.err() << "tarvik-cli: " << session.coinCount() << " of " << count
                      << " samples before the time-out; nothing was written" << Qt::endl;
            return false;
        }
        const auto sample = session.poll(link, image.longForm());
        if (!sample && portLost(cli, link, session.coinCount(), count))
            return false;
        if (!sample)
            continue;
        const LearningSession::Coin coin = session.addSample(*sample, image);
        QStringList readings;
        for (const quint8 m : coin.sample)
            readings.append(QString::number(m));
        cli.out() << "sample " << session.coinCount() << ": " << readings.join(u' ') << "  "
                  << (coin.matchedChannel
                          ? QStringLiteral("matches channel %1").arg(coin.matchedChannel)
                          : QStringLiteral("matches no channel"))
                  << Qt::endl;
    }
    return true;
}

// "Number of coins is less than %d. Proceed?" when fewer samples than the minimum are asked.
bool enoughSamples(CliContext &cli, const LearningSession &session, int count)
{
    if (count >= session.minimumSamples())
        return true;
    return cli.prompt().ask(
               messageText(Msg::NumberOfCoinsLess, {QString::number(session.minimumSamples())}),
               UserPrompt::Kind::Confirmation,
               UserPrompt::Buttons::YesNo) == UserPrompt::Answer::Yes;
}

bool parseTolerances(const QString &text, Tolerances &tolerances)
{
    const QStringList parts = text.split(u',');
    if (parts.size() != 14)
        return false;
    for (int i = 0; i < 14; ++i) {
        bool ok = false;
        const int v = parts[i].trimmed().toInt(&ok);
        if (!ok)
            return false;
        tolerances.values[std::size_t(i)] = quint8(v & 0xFF); // the low eight bits, as typed
    }
    return true;
}

int learnCommand(CliContext &cli, const QStringList &arguments)
{
    QStringList args = arguments;
    QString output, samplesText = QStringLiteral("10"), tolerancesText, substituteText, valueText,
                    config, timeoutText = QStringLiteral("120");
    if (!takeOutputOption(args, output) || !takeAnswer(cli, args) ||
        !takeValue(args, QStringLiteral("--samples"), samplesText) ||
        !takeValue(args, QStringLiteral("--tolerances"), tolerancesText) ||
        !takeValue(args, QStringLiteral("--substitute"), substituteText) ||
        !takeValue(args, QStringLiteral("--value"), valueText) ||
        !takeValue(args, QStringLiteral("--config"), config) ||
        !takeValue(args, QStringLiteral("--timeout"), timeoutText))
        return kExitUsage;
    const bool disable = args.removeAll(QStringLiteral("--disable")) > 0;
    bool ok = args.size() == 1;
    const int channel = ok ? args.first().toInt(&ok) : 0;
    const int samples = samplesText.toInt();
    const int timeout = timeoutText.toInt();
    const int substitute = substituteText.isEmpty() ? 0 : substituteText.toInt();
    LearningSession session;
    if (!ok || channel < 1 || channel > kChannels || samples < 1 || timeout < 1 || substitute < 0 ||
        substitute > 31 ||
        (!tolerancesText.isEmpty() && !parseTolerances(tolerancesText, session.tolerances))) {
        cli.err() << "tarvik-cli: learn takes a channel 1-60, --samples and --timeout above 0, "
                     "--substitute 0-31 and 14 numbers for --tolerances"
                  << Qt::endl;
        return kExitUsage;
    }

    ConfigImage image = ConfigImage::blank();
    if (!config.isEmpty() && !readImageInput(cli, config, image))
        return kExitFailed;
    const int k = channel - 1;
    std::optional<quint8> value;
    // The channel and its value against the validator's base: from --config before the port is
    // opened, else from a read of the validator, before any coin is asked for or anything
    // written.
    auto channelAndValue = [&]() {
        if (channel > image.channelCount()) {
            cli.err() << "tarvik-cli: this validator has " << image.channelCount() << " channels"
                      << Qt::endl;
            return false;
        }
        value = image.valueByte(k);
        if (valueText.isEmpty())
            return true;
        const int at = k < 30 ? Val::Base1 : Val::Base2;
        const DecimalWord base =
            FormatDecimalWord({image.values[std::size_t(at)], image.values[std::size_t(at + 1)]});
        const ChannelAmount amount = CheckChannelAmount(valueText, base.magnitude, base.decimals);
        value = amount.byte;
        switch (amount.fit) {
        case AmountFit::Fits:
            return true;
        case AmountFit::NotAnAmount:
            cli.err() << "tarvik-cli: --value " << valueText << " is not an amount" << Qt::endl;
            break;
        case AmountFit::Negative:
            cli.err() << "tarvik-cli: --value " << valueText
                      << " is negative; an amount is 0 or more" << Qt::endl;
            break;
        case AmountFit::OverMaximum:
            cli.err() << "tarvik-cli: --value " << valueText << " is more than channel " << channel
                      << " can hold: its base "
                      << ChannelValueStep(base.magnitude, base.decimals).trimmed()
                      << " holds at most "
                      << ChannelValueMaximum(base.magnitude, base.decimals).trimmed()
                      << "; nothing was written" << Qt::endl;
            break;
        }
        return false;
    };
    // A channel or an amount the validator cannot hold is the command line's trouble: exit 2,
    // without the usage line.
    if (!config.isEmpty() && !channelAndValue())
        return kExitTrouble;
    TMonnayeur *link = cli.openLink();
    if (!link)
        return kExitFailed;
    if (config.isEmpty()) {
        if (readValidator(*link, image, false) != ReadOutcome::Done)
            return kExitFailed;
        if (!channelAndValue())
            return kExitTrouble;
    }

    cli.err() << "Insert " << samples << " sample coins for channel " << channel << Qt::endl;
    if (!collectSamples(cli, *link, image, session, samples, timeout))
        return kExitFailed;
    if (session.tooFewSamples() && !enoughSamples(cli, session, samples))
        return kExitFailed;
    storeLearnedChannel(image, k, session.result(quint8(substitute)), *value, !disable);
    if (!LearningSession::saveToValidator(*link, image, k, &cli.prompt()))
        return kExitFailed;
    return writeImageOutput(cli, image, output);
}

int calibrateCommand(CliContext &cli, const QStringList &arguments)
{
    QStringList args = arguments;
    QString tokensText = QStringLiteral("5"), timeoutText = QStringLiteral("120");
    if (!takeAnswer(cli, args) || !takeValue(args, QStringLiteral("--tokens"), tokensText) ||
        !takeValue(args, QStringLiteral("--timeout"), timeoutText) || !args.isEmpty())
        return kExitUsage;
    const int tokens = tokensText.toInt();
    const int timeout = timeoutText.toInt();
    if (tokens < 1 || timeout < 1)
        return kExitUsage;

    TMonnayeur *link = cli.openLink();
    if (!link)
        return kExitFailed;
    if (!link->CheckPresence(false)) {
        cli.prompt().tell(messageText(Msg::ConnectValidator), UserPrompt::Kind::Information);
        return kExitFailed;
    }
    ConfigImage image = ConfigImage::blank();
    if (!link->ReadBlock(Cmd::ReadVersion, image.version.data()))
        return kExitFailed;
    const std::optional<bool> door = ReferenceCalibration::doorOpen(*link);
    if (!door)
        return kExitFailed;
    if (*door) {
        cli.prompt().tell(messageText(Msg::DoorOpen), UserPrompt::Kind::Warning);
        return kExitFailed;
    }

    ChannelBytes reference;
    reference.fill(255);
    for (const TokenSet set : {TokenSet::Golden, TokenSet::Silver}) {
        const bool golden = set == TokenSet::Golden;
        cli.prompt().tell(messageText(golden ? Msg::PrepareGoldenTokens : Msg::PrepareSilverTokens),
                          UserPrompt::Kind::Information);
        cli.err() << messageText(golden ? Msg::InsertGoldenTokens : Msg::InsertSilverTokens)
                  << Qt::endl;
        LearningSession session = ReferenceCalibration::tokenSession();
        if (!collectSamples(cli, *link, image, session, tokens, timeout))
            return kExitFailed;
        if (session.tooFewSamples() && !enoughSamples(cli, session, tokens))
            return kExitFailed;
        takeReferenceWindows(reference, session.result(255), set);
    }
    return ReferenceCalibration::writeReference(*link, image, reference, &cli.prompt())
               ? kExitOk
               : kExitFailed;
}

// The size of the chart's picture, in pixels (an SVG's view box).
constexpr QSize kChartSize(1200, 800);

// Draws the windows chart of the configuration into a PNG or an SVG file.
bool writeChart(CliContext &cli, const QString &path, const ConfigImage &image)
{
    // Its texts need fonts, which only a graphical application has (main makes one, offscreen).
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        cli.err() << "tarvik-cli: the chart cannot be drawn here" << Qt::endl;
        return false;
    }
    const WindowsChartModel model(image);
    const QRectF area(QPointF(0, 0), kChartSize);
    // Drawn in memory, then written whole: a full disk leaves the file that was there.
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    bool drawn = false;
    if (QFileInfo(path).suffix().compare(QLatin1String("svg"), Qt::CaseInsensitive) == 0) {
        QSvgGenerator svg;
        svg.setOutputDevice(&buffer);
        svg.setSize(kChartSize);
        svg.setViewBox(area);
        svg.setTitle(captionText(Cap::ChartTitle));
        QPainter painter;
        if (painter.begin(&svg)) {
            paintWindowsChart(painter, area, model);
            drawn = painter.end() && !bytes.isEmpty();
        }
    } else {
        QImage picture(kChartSize, QImage::Format_RGB32);
        QPainter painter(&picture);
        paintWindowsChart(painter, area, model);
        painter.end();
        drawn = picture.save(&buffer, "PNG");
    }
    if (!drawn) {
        cli.err() << "tarvik-cli: the chart cannot be drawn" << Qt::endl;
        return false;
    }
    QString error;
    if (!WholeFile::write(path, bytes, &error)) {
        cli.err() << "tarvik-cli: " << error << Qt::endl;
        return false;
    }
    return true;
}

int overlapCommand(CliContext &cli, const QStringList &arguments)
{
    QStringList args = arguments;
    QString chart;
    const bool charted = args.contains(QLatin1String("--chart"));
    if (!takeValue(args, QStringLiteral("--chart"), chart) || args.size() != 1)
        return kExitUsage;
    const QString suffix = QFileInfo(chart).suffix().toLower();
    if (charted && suffix != QLatin1String("png") && suffix != QLatin1String("svg")) {
        cli.err() << "tarvik-cli: --chart writes a .png or a .svg file, not \"" << chart << "\""
                  << Qt::endl;
        return kExitUsage;
    }
    ConfigImage image = ConfigImage::blank();
    if (!readImageInput(cli, args.first(), image))
        return kExitFailed;
    const QStringList lines = overlapLines(image);
    if (lines.isEmpty()) {
        cli.out() << messageText(Msg::NoOverlapping) << Qt::endl;
    } else {
        for (const QString &line : lines)
            cli.out() << line << Qt::endl;
        cli.out() << messageText(Msg::Overlapping, {QString::number(lines.size())}) << Qt::endl;
    }
    if (charted && !writeChart(cli, chart, image))
        return kExitFailed;
    return kExitOk;
}

} // namespace

void registerLearnCommands(CliCommandTable &table)
{
    table.insert(
        QStringLiteral("learn"),
        {QStringLiteral("learn CHANNEL [--samples N] [--tolerances T1,...,T14] [--substitute S] "
                        "[--value TEXT] [--disable] [--config FILE] [-o OUT] [--timeout "
                        "SECONDS] [--answer yes|no]"),
         QStringLiteral("teaches a channel from N sample coins (default 10), widens its windows "
                        "by the tolerances, writes it to the validator at once and the "
                        "configuration to OUT (stdout without -o)"),
         learnCommand});
    table.insert(QStringLiteral("calibrate"),
                 {QStringLiteral("calibrate [--tokens N] [--timeout SECONDS] [--answer yes|no]"),
                  QStringLiteral("calibrates the reference channel with N golden then N silver "
                                 "tokens (default 5)"),
                  calibrateCommand});
    table.insert(QStringLiteral("overlap"),
                 {QStringLiteral("overlap FILE [--chart OUT.png|OUT.svg]"),
                  QStringLiteral("lists the pairs of channels of a configuration file whose "
                                 "windows overlap; --chart also draws every channel's windows "
                                 "with the overlapping ones marked into a PNG or SVG picture"),
                  overlapCommand});
}
