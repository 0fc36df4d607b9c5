// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "HttpServer.h"

#include <string>
#include <vector>

namespace quorva::http {

struct GeneratedCertificates
{
    std::string caCertificatePem;   // what a client must trust
    std::string caPrivateKeyPem;    // kept beside it, to sign a server certificate anew
    TlsMaterial server;             // leaf for the names below, signed by the CA
};

// The names every server certificate carries: localhost, 127.0.0.1 and ::1.
// extraNames adds host names and IP addresses (a laptop's address on the local network,
// its name there), so a phone on that network can reach the sandbox over TLS.
std::string subjectAltNames(const std::vector<std::string> &extraNames);

// Makes a private certificate authority and a server certificate for the names.
GeneratedCertificates generateCertificates(const std::vector<std::string> &extraNames = {});

// Loads the CA and the server certificate from directory, or generates and writes them
// when absent, so a restarted server keeps the CA its clients already trust. When the
// names differ from the stored certificate's, the server certificate is made anew under
// the same CA (a folder from before the CA's key was kept gets a new CA).
GeneratedCertificates loadOrCreateCertificates(const std::string &directory,
                                               const std::vector<std::string> &extraNames = {});

} // namespace quorva::http
