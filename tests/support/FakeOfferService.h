// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ScriptedServer.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <array>
#include <atomic>
#include <mutex>

class QuorvaRestAPI;
// Sets the client's targeting (gender, age range, sub ids 2 to 4, in that order); those not
// given are cleared, so that the shared client carries no test's values into the next.
void setTargeting(QuorvaRestAPI *api, const QStringList &values = {});

// A scripted offer service on loopback with knobs for the wall's tests: how many
// offers exist, and which endpoints drop their connections or hold their answers.
class FakeOfferService
{
public:
    enum Endpoint { Offers, Profile, Categories, History, Tickets, EndpointCount };

    // Its certificate authority is added to the client's.
    FakeOfferService();

    // Every knob back to its default, nothing recorded, and the client pointed here with
    // no targeting and its default time-out: where each test starts.
    void reset();

    ScriptedServer &server() { return m_server; }
    QString baseAddress() const { return m_server.baseAddress(); }

    void setTotalOffers(int total) { m_total = total; }
    void setPayout(int payout) { m_payout = payout; }
    // A dropped endpoint closes the connection instead of answering.
    void setDropped(Endpoint endpoint, bool dropped) { m_dropped[endpoint] = dropped; }
    // While held, an endpoint's answers wait; releasing lets every waiting answer go.
    void setHeld(Endpoint endpoint, bool held) { m_held[endpoint] = held; }
    // Offers requests get no answer at all.
    void setOffersStalled(bool stalled) { m_offersStalled = stalled; }
    // The history's answer: a status and a JSON body.
    void setHistory(int status, const QByteArray &body);
    // A history reply of these rows, "name:amount" separated by commas, newest first.
    static QByteArray historyOf(const QString &rows);
    // The JSON bodies of every ticket received so far (each answered 201 with a new id),
    // oldest first.
    QList<QJsonObject> tickets() const;

    // Query pairs of every offers request so far, oldest first.
    QList<QMap<QString, QString>> offersQueries() const;
    int requestsTo(const std::string &pathSuffix) const;
    // Requests the client made to an endpoint: a dropped one that it sent once more, as a
    // GET lost on a kept connection is, counts once.
    int callsTo(Endpoint endpoint) const;

private:
    quorva::http::HttpResponse offersPage(const quorva::http::HttpRequest &request) const;

    ScriptedServer m_server;
    std::atomic<int> m_total{95};
    std::atomic<int> m_payout{1500};
    std::array<std::atomic<bool>, EndpointCount> m_dropped{};
    std::array<std::atomic<bool>, EndpointCount> m_held{};
    std::array<std::atomic<int>, EndpointCount> m_resent{};
    std::atomic<bool> m_offersStalled{false};
    const bool m_closeKeptAtRandom; // scripts/stress sets QUORVA_TEST_CLOSE_KEPT
    std::atomic<int> m_nextTicketId{1};
    mutable std::mutex m_historyMutex;
    int m_historyStatus = 200;
    std::string m_historyBody = R"({"transactions":[]})";
};
