#include "DisplayCheck.h"

#include <QByteArray>
#include <QList>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr const char *kAdvice =
    "tarvik-cli does the same work without windows; QT_QPA_PLATFORM=offscreen runs the windows "
    "without showing them.";

QtMessageHandler previous = nullptr;

struct Held
{
    QtMsgType type;
    QByteArray file, function, category;
    int line;
    QString text;
};
QList<Held> held;

// The platform's own complaints are held back: if the display cannot be opened they are
// replaced by one plain sentence, otherwise handed on.
void handler(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool platform = context.category && qstrncmp(context.category, "qt.qpa", 6) == 0;
    if (type == QtFatalMsg) {
        QString cause;
        for (const Held &h : std::as_const(held)) {
            if (h.text.contains(QLatin1String("connect to display")) ||
                h.text.contains(QLatin1String("platform plugin"))) {
                cause = h.text;
                break;
            }
        }
        std::fprintf(stderr, "tarvik: the display cannot be opened (%s). %s\n",
                     qPrintable(cause.isEmpty() ? text.section(QLatin1Char('\n'), 0, 0) : cause),
                     kAdvice);
        std::fflush(stderr);
        std::_Exit(1);
    }
    if (platform) {
        held.append(Held{type, QByteArray(context.file), QByteArray(context.function),
                         QByteArray(context.category), context.line, text});
        return;
    }
    if (previous)
        previous(type, context, text);
}

} // namespace

namespace DisplayCheck {

QString missingDisplay()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN) && !defined(Q_OS_ANDROID)
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        return QStringLiteral("tarvik: there is no display to open the windows on (DISPLAY, "
                              "WAYLAND_DISPLAY and QT_QPA_PLATFORM are not set). ") +
               QLatin1String(kAdvice);
    }
#endif
    return {};
}

void begin()
{
    previous = qInstallMessageHandler(handler);
}

void end()
{
    qInstallMessageHandler(previous);
    for (const Held &h : std::as_const(held)) {
        const QMessageLogContext context(h.file.constData(), h.line, h.function.constData(),
                                         h.category.constData());
        if (previous)
            previous(h.type, context, h.text);
        else
            qt_message_output(h.type, context, h.text);
    }
    held.clear();
}

} // namespace DisplayCheck
