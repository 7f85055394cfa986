#include "DataSourceModel.h"

#include "Captions.h"
#include "DataDirectory.h"
#include "DataSource.h"
#include "Messages.h"
#include "ServerConnection.h"
#include "Settings.h"
#include "UserPrompt.h"

#include <QUrl>

namespace {

const QString kSource = QStringLiteral("RGSource");
const QString kDirectory = QStringLiteral("EDirectory");
const QString kServer = QStringLiteral("EServer");
const QString kStatus = QStringLiteral("LStatus");

bool reach(const QString &address, QString *error)
{
    SilentPrompt quiet;
    DataSource source;
    if (!source.open(address, quiet)) {
        *error = source.errorString();
        return false;
    }
    return source.test(error);
}

} // namespace

DataSourceModel::DataSourceModel(Settings &settings, UserPrompt &prompt)
    : test(reach), m_settings(settings), m_prompt(prompt)
{
    ControlSet &c = m_controls;
    c.add(QStringLiteral("TFormDataSource"), ControlKind::Label);
    c.add(kSource, ControlKind::Radio);
    c.add(QStringLiteral("LDirectory"), ControlKind::Label);
    c.add(kDirectory, ControlKind::Edit);
    c.setBuddy(kDirectory, QStringLiteral("LDirectory"));
    c.add(QStringLiteral("LServer"), ControlKind::Label);
    c.add(kServer, ControlKind::Edit);
    c.setBuddy(kServer, QStringLiteral("LServer"));
    c.add(QStringLiteral("BtnTest"), ControlKind::Button);
    c.add(kStatus, ControlKind::Label);
    c.add(QStringLiteral("BtnOK"), ControlKind::Button);
    c.add(QStringLiteral("BtnCancel"), ControlKind::Button);
    const QString server = settings.dataSource();
    c.setText(kDirectory, settings.dataDirectory().isEmpty() ? DataDirectory::resolve()
                                                             : settings.dataDirectory());
    c.setText(kServer, server);
    c.setItemIndex(kSource, ServerAddress::isServer(server) ? 1 : 0);
    retranslate();
    showChoice();
}

void DataSourceModel::retranslate()
{
    ControlSet &c = m_controls;
    c.setText(QStringLiteral("TFormDataSource"), captionText(Cap::DataSourceTitle));
    c.setItems(kSource,
               {captionText(Cap::DataSourceDirectory), captionText(Cap::DataSourceServer)});
    c.setAccessibleName(kSource, captionText(Cap::DataSourceTitle));
    c.setText(QStringLiteral("LDirectory"), captionText(Cap::DataSourceDirectoryLabel));
    c.setText(QStringLiteral("LServer"), captionText(Cap::DataSourceAddressLabel));
    c.setText(QStringLiteral("BtnTest"), captionText(Cap::DataSourceTest));
    c.setText(QStringLiteral("BtnOK"), captionText(Cap::CodeOk));
    c.setText(QStringLiteral("BtnCancel"), captionText(Cap::CancelChoice));
}

void DataSourceModel::showChoice()
{
    const bool server = m_controls.state(kSource).itemIndex == 1;
    m_controls.setEnabled(kDirectory, !server);
    m_controls.setEnabled(kServer, server);
    m_controls.setEnabled(QStringLiteral("BtnTest"),
                          server && !m_controls.state(kServer).text.trimmed().isEmpty());
}

void DataSourceModel::pick(int item)
{
    m_controls.setItemIndex(kSource, item == 1 ? 1 : 0);
    m_controls.setText(kStatus, QString());
    showChoice();
}

void DataSourceModel::type(const QString &name, const QString &text)
{
    if (name != kDirectory && name != kServer)
        return;
    m_controls.setText(name, text);
    m_controls.setText(kStatus, QString());
    showChoice();
}

void DataSourceModel::BtnTestClick()
{
    const QString address = m_controls.state(kServer).text.trimmed();
    ServerAddress parsed;
    QString error;
    if (!ServerAddress::parse(address, parsed, &error) || !test(address, &error)) {
        m_controls.setText(kStatus, error);
        return;
    }
    m_controls.setText(kStatus, captionText(Cap::DataSourceConnected, {parsed.display()}));
}

bool DataSourceModel::BtnOKClick()
{
    if (m_controls.state(kSource).itemIndex == 0) {
        m_settings.setDataSource(QString());
        m_settings.setDataDirectory(m_controls.state(kDirectory).text.trimmed());
        return true;
    }
    const QString address = m_controls.state(kServer).text.trimmed();
    ServerAddress parsed;
    QString error;
    if (!ServerAddress::parse(address, parsed, &error)) {
        m_prompt.tell(error, UserPrompt::Kind::Error);
        return false;
    }
    m_settings.setDataSource(address);
    if (DataSource::withoutPassword(address) != address)
        m_prompt.tell(messageText(Msg::ServerPasswordNotKept), UserPrompt::Kind::Information);
    return true;
}
