#include "HelpKey.h"

#include "HelpTopics.h"
#include "HelpWindow.h"
#include "Languages.h"
#include "ResourceFiles.h"

#include <QKeyEvent>
#include <QWidget>

HelpKey::HelpKey(const LanguageSwitcher *languages, QString helpDirectory, QObject *parent)
    : QObject(parent), m_languages(languages),
      m_helpDirectory(helpDirectory.isEmpty() ? ResourceFiles::helpDirectory()
                                              : std::move(helpDirectory))
{}

HelpWindow *HelpKey::helpWindow() const
{
    return m_window;
}

bool HelpKey::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && watched->isWidgetType()) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier) {
            showHelpFor(static_cast<QWidget *>(watched)->window());
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void HelpKey::showHelpFor(QWidget *window)
{
    // The help window's own F1 keeps it where it is.
    if (m_window && window == m_window) {
        m_window->raise();
        return;
    }
    QStringList names{window->objectName()};
    for (const QMetaObject *meta = window->metaObject(); meta; meta = meta->superClass())
        names.append(QLatin1String(meta->className()));
    const QString language =
        m_languages ? Languages::fileSuffix(m_languages->current()) : QString();

    // A window of its own over the form, so that a modal form leaves it usable; it goes with the
    // form that asked last.
    if (!m_window)
        m_window = new HelpWindow(window);
    else if (m_window->parentWidget() != window)
        m_window->setParent(window, Qt::Window);
    m_window->setAttribute(Qt::WA_DeleteOnClose);
    m_window->showSection(HelpTopics::guideFile(m_helpDirectory, language),
                          HelpTopics::sectionFor(names));
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}
