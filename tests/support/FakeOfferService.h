#pragma once

#include "ScriptedServer.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <atomic>
#include <chrono>
#include <mutex>

// A scripted offer service on loopback with knobs for the wall's tests: how many
// offers exist, how slow the answers are, and which endpoints fail.
class FakeOfferService
{
public:
    // Its certificate authority is added to the client's.
    FakeOfferService();

    // Every knob back to its default, nothing recorded, and the client pointed here with
    // no targeting and its default time-out: where each test starts.
    void reset();

    ScriptedServer &server() { return m_server; }
    QString baseAddress() const { return m_server.baseAddress(); }

    void setTotalOffers(int total) { m_total = total; }
    // While held, offers answers wait; releasing lets every waiting answer go.
    void setOffersHeld(bool held) { m_offersHeld = held; }
    void setOffersDropped(bool dropped) { m_offersDropped = dropped; }
    // Offers requests get no answer at all.
    void setOffersStalled(bool stalled) { m_offersStalled = stalled; }
    void setProfileDropped(bool dropped) { m_profileDropped = dropped; }
    void setProfileHeld(bool held) { m_profileHeld = held; }
    void setCategoriesDropped(bool dropped) { m_categoriesDropped = dropped; }
    void setPayout(int payout) { m_payout = payout; }
    // The history's answer: a status and a JSON body; a dropped connection when dropped.
    void setHistory(int status, const QByteArray &body);
    void setHistoryDropped(bool dropped) { m_historyDropped = dropped; }
    void setHistoryHeld(bool held) { m_historyHeld = held; }
    // Ticket requests: answered 201 with a new id unless dropped; held while held.
    void setTicketsDropped(bool dropped) { m_ticketsDropped = dropped; }
    void setTicketsHeld(bool held) { m_ticketsHeld = held; }
    // The JSON bodies of every ticket received so far, oldest first.
    QList<QJsonObject> tickets() const;

    // Query pairs of every offers request so far, oldest first.
    QList<QMap<QString, QString>> offersQueries() const;
    int requestsTo(const std::string &pathSuffix) const;

private:
    ScriptedServer m_server;
    std::atomic<int> m_total{95};
    std::atomic<bool> m_offersDropped{false};
    std::atomic<bool> m_offersStalled{false};
    std::atomic<bool> m_offersHeld{false};
    std::atomic<bool> m_profileDropped{false};
    std::atomic<bool> m_categoriesDropped{false};
    std::atomic<int> m_payout{1500};
    std::atomic<bool> m_historyDropped{false};
    std::atomic<bool> m_historyHeld{false};
    std::atomic<bool> m_profileHeld{false};
    std::atomic<bool> m_ticketsDropped{false};
    std::atomic<bool> m_ticketsHeld{false};
    std::atomic<int> m_nextTicketId{1};
    mutable std::mutex m_historyMutex;
    int m_historyStatus = 200;
    std::string m_historyBody = R"({"transactions":[]})";
};
