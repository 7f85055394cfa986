#include "TFormMain.h"

#include "DataSourceModel.h"
#include "TFormDataSource.h"

#include "DataDirectory.h"

#include "Captions.h"
#include "Encodings.h"
#include "Languages.h"
#include "Messages.h"
#include "Pictures.h"
#include "Settings.h"
#include "SoundPlayer.h"
#include "TMajFirmware.h"
#include "UserPrompt.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

// The language items in the order of their tags; each names itself.
struct LanguageItem
{
    const char *objectName;
    const char *caption; // empty: translated ("&Local")
};
constexpr LanguageItem kLanguageItems[Languages::kCount] = {
    {"Locale1", ""},
    {"Fran1", "&Fran\xc3\xa7"
              "ais"},
    {"Italiano1", "&Italiano"},
    {"English1", "&English"},
    {"Deutsch1", "&Deutsch"},
};

QDate buildDate()
{
    return QLocale::c().toDate(QString::fromLatin1(__DATE__).simplified(),
                               QStringLiteral("MMM d yyyy"));
}

} // namespace

TFormMain::TFormMain(ShellContext context, QWidget *parent)
    : QMainWindow(parent), m_context(std::move(context)), m_link(m_context.prompt),
      m_image1(new QLabel), m_lVersion(new QLabel), m_lDate(new QLabel), m_drapeau(new QLabel),
      m_bitBtn2(new QPushButton), m_bitBtn1(new QPushButton)
{
    setObjectName(QStringLiteral("TFormMain"));
    m_link.setBetweenExchanges([this] { m_pump.run(); });
    m_image1->setObjectName(QStringLiteral("Image1"));
    m_lVersion->setObjectName(QStringLiteral("LVersion"));
    m_lDate->setObjectName(QStringLiteral("Ldate"));
    m_drapeau->setObjectName(QStringLiteral("Drapeau"));
    m_bitBtn2->setObjectName(QStringLiteral("BitBtn2"));
    m_bitBtn1->setObjectName(QStringLiteral("BitBtn1"));
    m_image1->setPixmap(Pictures::load(Pictures::kMain));
    m_image1->setAlignment(Qt::AlignCenter);
    m_drapeau->setPixmap(Pictures::load(Pictures::flagFile(Languages::kLocal)));

    auto *client = new QFrame;
    client->setObjectName(QStringLiteral("Panel1"));
    client->setFrameShape(QFrame::StyledPanel);
    auto *clientLayout = new QVBoxLayout(client);
    clientLayout->addWidget(m_image1);
    auto *versions = new QHBoxLayout;
    versions->addWidget(m_lVersion);
    versions->addStretch();
    versions->addWidget(m_lDate);
    clientLayout->addLayout(versions);

    auto *bottom = new QFrame;
    bottom->setObjectName(QStringLiteral("Panel2"));
    auto *bottomLayout = new QHBoxLayout(bottom);
    bottomLayout->setContentsMargins(0, 0, 0, 0);
    bottomLayout->addWidget(m_drapeau);
    bottomLayout->addStretch();
    bottomLayout->addWidget(m_bitBtn2);
    bottomLayout->addWidget(m_bitBtn1);

    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    layout->addWidget(client);
    layout->addWidget(bottom);
    setCentralWidget(central);
    buildMenu();

    connect(m_bitBtn2, &QPushButton::clicked, this, &TFormMain::BitBtn2Click);
    connect(m_bitBtn1, &QPushButton::clicked, this, &TFormMain::BitBtn1Click);
    retranslateUi();
    ShowVersionTexts();
    // A single border: the window keeps the size of its contents.
    setFixedSize(sizeHint());
    setWindowTitle(QStringLiteral("Tarvik"));
}

TFormMain::~TFormMain() = default;

void TFormMain::buildMenu()
{
    menuBar()->setObjectName(QStringLiteral("MainMenu1"));
    m_parameters = menuBar()->addMenu(QString());
    m_parameters->setObjectName(QStringLiteral("Parametres1"));
    m_parameters->setToolTipsVisible(true);
    auto addSwitch = [this](const char *name, void (TFormMain::*handler)()) {
        QAction *action = m_parameters->addAction(QString());
        action->setObjectName(QLatin1String(name));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, handler);
        return action;
    };
    m_son1 = addSwitch("Son1", &TFormMain::Son1Click);
    m_ajustementauto1 = addSwitch("Ajustementauto1", &TFormMain::Ajustementauto1Click);
    m_ecrituredirecte1 = addSwitch("Ecrituredirecte1", &TFormMain::Ecrituredirecte1Click);
    m_verifyafterwrite1 = addSwitch("Verifyafterwrite1", &TFormMain::Verifyafterwrite1Click);
    m_backupbeforecloning1 =
        addSwitch("Backupbeforecloning1", &TFormMain::Backupbeforecloning1Click);
    m_parameters->addSeparator();
    m_langage = m_parameters->addMenu(QString());
    m_langage->setObjectName(QStringLiteral("Langage1"));
    for (int tag = 0; tag < Languages::kCount; ++tag) {
        QAction *item = m_langage->addAction(QString::fromUtf8(kLanguageItems[tag].caption));
        item->setObjectName(QLatin1String(kLanguageItems[tag].objectName));
        item->setData(tag);
        connect(item, &QAction::triggered, this, [this, item] { Fran1Click(item); });
        m_languageItems.append(item);
    }
    m_porttimeout1 = m_parameters->addAction(QString());
    m_porttimeout1->setObjectName(QStringLiteral("Porttimeout1"));
    connect(m_porttimeout1, &QAction::triggered, this, &TFormMain::Porttimeout1Click);
    m_parameters->addSeparator();
    m_firmware1 = m_parameters->addAction(QString());
    m_firmware1->setObjectName(QStringLiteral("Firmware1"));
    connect(m_firmware1, &QAction::triggered, this, &TFormMain::Firmware1Click);
    m_repairtables1 = m_parameters->addAction(QString());
    m_repairtables1->setObjectName(QStringLiteral("Repairtables1"));
    m_repairtables1->setEnabled(bool(m_context.repairTables));
    connect(m_repairtables1, &QAction::triggered, this, &TFormMain::Repairtables1Click);
    m_datasource1 = m_parameters->addAction(QString());
    m_datasource1->setObjectName(QStringLiteral("Datasource1"));
    m_datasource1->setEnabled(m_context.createDataModule && m_context.settings && m_context.prompt);
    connect(m_datasource1, &QAction::triggered, this, &TFormMain::Datasource1Click);
}

void TFormMain::retranslateUi()
{
    m_parameters->setTitle(tr("&Parameters"));
    m_son1->setText(tr("&Sound"));
    m_ajustementauto1->setText(tr("&Auto adjust"));
    m_ecrituredirecte1->setText(tr("&Direct write"));
    // The hint stays the program's own; the status line says what the switch does.
    m_ecrituredirecte1->setToolTip(tr("Only for calibration"));
    m_ecrituredirecte1->setStatusTip(
        tr("Only for calibration: leaving a window, value, substitute or enable box of a channel "
           "writes that channel's change to the validator at once and checks it"));
    m_verifyafterwrite1->setText(tr("&Verify after write"));
    m_verifyafterwrite1->setToolTip(
        tr("Reads the validator back after each write and lists what it does not hold"));
    m_verifyafterwrite1->setStatusTip(m_verifyafterwrite1->toolTip());
    m_backupbeforecloning1->setText(tr("&Back up before cloning"));
    m_backupbeforecloning1->setToolTip(tr("Reads the validator a clone writes to and keeps its "
                                          "own configuration among the backups first"));
    m_backupbeforecloning1->setStatusTip(m_backupbeforecloning1->toolTip());
    m_langage->setTitle(tr("&Langage"));
    m_languageItems.at(Languages::kLocal)->setText(tr("&Local"));
    m_porttimeout1->setText(tr("Port &time-out..."));
    m_porttimeout1->setToolTip(tr("How long to wait for the validator's first byte: raise it "
                                  "for Bluetooth or radio serial adapters"));
    m_porttimeout1->setStatusTip(m_porttimeout1->toolTip());
    m_firmware1->setText(tr("Firmware upgrade..."));
    m_repairtables1->setText(captionText(Cap::RepairTables));
    m_datasource1->setText(captionText(Cap::DataSourceItem));
    m_bitBtn2->setText(tr("&Back"));
    m_bitBtn1->setText(tr("&Exit"));
}

void TFormMain::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QMainWindow::changeEvent(event);
}

void TFormMain::ShowVersionTexts()
{
    // The program's own version and build date, whatever the language.
    m_lVersion->setText(QStringLiteral("Version ") + QStringLiteral(TARVIK_VERSION));
    m_lDate->setText(FormatUserDate(buildDate()));
}

QAction *TFormMain::languageItem(int index) const
{
    return m_languageItems.value(index);
}

void TFormMain::markLanguage(int index)
{
    // The default item of the menu shows in bold.
    for (QAction *item : std::as_const(m_languageItems)) {
        QFont font = item->font();
        font.setBold(item->data().toInt() == index);
        item->setFont(font);
    }
}

void TFormMain::showCaption()
{
    setWindowTitle(QStringLiteral("Tarvik (Com%1)").arg(m_link.comPortNumber()));
}

bool TFormMain::FormCreate()
{
    // The settings come first: they name the data directory.
    Settings &settings = *m_context.settings;
    const bool unreadable = settings.load() == Settings::LoadState::Unreadable;
    DataDirectory::ignoreConfigured(!settings.unreadableFile().isEmpty());
    if (m_context.createDataModule)
        m_dataModule = m_context.createDataModule();
    if (unreadable && m_context.prompt) {
        const QString tables = DataDirectory::resolve();
        const QString text =
            settings.unreadableFile().isEmpty() ? messageText(Msg::SettingsUnreadable)
            : settings.keptAs().isEmpty()
                ? messageText(Msg::SettingsFileLeft, {settings.unreadableFile(), tables})
                : messageText(Msg::SettingsFileKeptAside,
                              {settings.unreadableFile(), settings.keptAs(), tables});
        m_context.prompt->tell(text, UserPrompt::Kind::Warning);
    }
    setEncodingSettings(settings.encodingSettings());
    const int language = Languages::indexOf(settings.language());

    ShowVersionTexts();
    if (language != Languages::kLocal && m_context.languages &&
        m_context.languages->load(language)) {
        retranslateUi();
        ShowVersionTexts();
        m_drapeau->setPixmap(Pictures::load(Pictures::flagFile(language)));
        m_shownLanguage = language;
    }

    m_son1->setChecked(settings.soundOn());
    m_ajustementauto1->setChecked(settings.autoAdjust());
    m_ecrituredirecte1->setChecked(settings.directWrite());
    m_verifyafterwrite1->setChecked(settings.verifyAfterWrite());
    m_backupbeforecloning1->setChecked(settings.backupBeforeCloning());
    m_link.setPortTimeout(settings.portTimeoutMs());

    if (settings.soundOn() && m_context.sounds)
        m_context.sounds->play(Sound::Chimes);

    if (const QScreen *screen = this->screen())
        move(screen->availableGeometry().center() - rect().center());
    show();
    markLanguage(language);

    m_editorActive = true;
    if (!m_context.linkSource || !m_link.open(*m_context.linkSource))
        return false;
    showCaption();
    Q_EMIT linkOpened();
    showEditor();
    return true;
}

void TFormMain::showEditor()
{
    if (m_context.showEditor)
        m_context.showEditor(m_link, this);
}

void TFormMain::BitBtn2Click()
{
    m_link.close();
    if (!m_context.linkSource || !m_link.open(*m_context.linkSource)) {
        close();
        return;
    }
    m_editorActive = true;
    showCaption();
    Q_EMIT linkOpened();
    showEditor();
}

void TFormMain::BitBtn1Click()
{
    m_dataModule.reset();
    close();
}

void TFormMain::closeEvent(QCloseEvent *event)
{
    m_link.close();
    QMainWindow::closeEvent(event);
    Q_EMIT formClosed();
}

void TFormMain::Son1Click()
{
    m_context.settings->setSoundOn(m_son1->isChecked());
}

void TFormMain::Ajustementauto1Click()
{
    m_context.settings->setAutoAdjust(m_ajustementauto1->isChecked());
}

void TFormMain::Ecrituredirecte1Click()
{
    m_context.settings->setDirectWrite(m_ecrituredirecte1->isChecked());
}

void TFormMain::Verifyafterwrite1Click()
{
    m_context.settings->setVerifyAfterWrite(m_verifyafterwrite1->isChecked());
}

void TFormMain::Backupbeforecloning1Click()
{
    m_context.settings->setBackupBeforeCloning(m_backupbeforecloning1->isChecked());
}

void TFormMain::Fran1Click(QAction *item)
{
    const int index = item->data().toInt();
    markLanguage(index);
    m_context.settings->setLanguage(Languages::code(index));
    if (index == Languages::kLocal) {
        // The program's own texts come back only with the next start.
        if (m_context.prompt)
            m_context.prompt->tell(messageText(Msg::NextStart));
        return;
    }
    if (m_context.languages && m_context.languages->load(index)) {
        ShowVersionTexts();
        m_drapeau->setPixmap(Pictures::load(Pictures::flagFile(index)));
        m_shownLanguage = index;
    }
}

void TFormMain::Porttimeout1Click()
{
    QInputDialog dialog(this);
    dialog.setObjectName(QStringLiteral("PortTimeoutDialog"));
    dialog.setAccessibleName(tr("Port time-out"));
    dialog.setWindowTitle(tr("Port time-out"));
    dialog.setInputMode(QInputDialog::IntInput);
    dialog.setLabelText(
        tr("Wait for a count echo or a reply's first byte, in milliseconds (%1 by default):")
            .arg(Transport::kDefaultReadTimeoutMs));
    dialog.setIntRange(Transport::kMinReadTimeoutMs, Transport::kMaxReadTimeoutMs);
    dialog.setIntStep(10);
    dialog.setIntValue(m_context.settings->portTimeoutMs());
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_context.settings->setPortTimeoutMs(dialog.intValue());
    m_link.setPortTimeout(dialog.intValue());
}

void TFormMain::Datasource1Click()
{
    if (!m_datasource1->isEnabled())
        return;
    DataSourceModel model(*m_context.settings, *m_context.prompt);
    TFormDataSource form(model, this);
    if (form.exec() != QDialog::Accepted)
        return;
    // The records come from the new source at once.
    m_dataModule.reset();
    m_dataModule = m_context.createDataModule();
}

void TFormMain::Repairtables1Click()
{
    if (m_context.repairTables)
        m_context.repairTables(this);
}

void TFormMain::Firmware1Click()
{
    if (m_link.isOpen() && m_context.prompt)
        TMajFirmware::chooseAndRun(this, m_link.transport(), *m_context.prompt);
}
