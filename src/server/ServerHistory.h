#pragma once

#include "HistoryStore.h"

class ServerConnection;

// The history of each serial number on the server: one row per event, and each distinct
// configuration kept once (found again by the SHA-256 of its file form) however many events
// name it.
class ServerHistory final : public HistoryStore
{
public:
    explicit ServerHistory(ServerConnection &server) : m_server(server) {}
    Q_DISABLE_COPY_MOVE(ServerHistory)

    bool record(const HistoryEvent &event, QString *error = nullptr) override;
    std::optional<QList<HistoryEvent>> events(quint32 serial,
                                              QString *error = nullptr) const override;
    std::optional<QList<HistorySerial>> serials(QString *error = nullptr) const override;

private:
    ServerConnection &m_server;
};
