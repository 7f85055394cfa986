#include "HelpWindow.h"

#include "Captions.h"
#include "HelpTopics.h"
#include "Messages.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

HelpWindow::HelpWindow(QWidget *parent)
    : QWidget(parent, Qt::Window), m_browser(new QTextBrowser), m_contents(new QPushButton),
      m_previous(new QPushButton), m_next(new QPushButton), m_close(new QPushButton)
{
    setObjectName(QStringLiteral("HelpWindow"));
    m_browser->setObjectName(QStringLiteral("HelpBrowser"));
    m_contents->setObjectName(QStringLiteral("BtnContents"));
    m_previous->setObjectName(QStringLiteral("BtnPrevious"));
    m_next->setObjectName(QStringLiteral("BtnNext"));
    m_close->setObjectName(QStringLiteral("BtnClose"));
    m_browser->setOpenExternalLinks(true);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_contents);
    buttons->addWidget(m_previous);
    buttons->addWidget(m_next);
    buttons->addStretch();
    buttons->addWidget(m_close);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(m_browser);

    m_previous->setEnabled(false);
    m_next->setEnabled(false);
    connect(m_browser, &QTextBrowser::backwardAvailable, m_previous, &QWidget::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, m_next, &QWidget::setEnabled);
    connect(m_previous, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(m_next, &QPushButton::clicked, m_browser, &QTextBrowser::forward);
    connect(m_contents, &QPushButton::clicked, this,
            [this] { showSection(m_guideFile, HelpTopics::kContents); });
    connect(m_close, &QPushButton::clicked, this, &QWidget::close);

    retranslateUi();
    resize(760, 560);
}

void HelpWindow::showSection(const QString &guideFile, const QString &section)
{
    m_guideFile = guideFile;
    if (!QFileInfo::exists(guideFile)) {
        m_missingFile = guideFile;
        m_browser->clearHistory();
        m_browser->setPlainText(messageText(Msg::GuideMissing, {guideFile}));
        return;
    }
    m_missingFile.clear();
    QUrl url = QUrl::fromLocalFile(guideFile);
    url.setFragment(section);
    m_browser->setSource(url);
}

QString HelpWindow::section() const
{
    return m_missingFile.isEmpty() ? m_browser->source().fragment() : QString();
}

void HelpWindow::retranslateUi()
{
    setWindowTitle(captionText(Cap::HelpTitle));
    m_contents->setText(captionText(Cap::HelpContents));
    m_previous->setText(captionText(Cap::HelpPrevious));
    m_next->setText(captionText(Cap::HelpNext));
    m_close->setText(captionText(Cap::CloseButton));
    m_browser->setAccessibleName(captionText(Cap::HelpTitle));
    if (!m_missingFile.isEmpty())
        m_browser->setPlainText(messageText(Msg::GuideMissing, {m_missingFile}));
}

void HelpWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}
