#pragma once

#include "HttpServer.h"

#include <string>

namespace quorva::http {

struct GeneratedCertificates
{
    std::string caCertificatePem;   // what a client must trust
    TlsMaterial server;             // leaf for localhost, 127.0.0.1 and ::1, signed by the CA
};

// Makes a private certificate authority and a server certificate for loopback names.
GeneratedCertificates generateLoopbackCertificates();

// Loads the three PEM files from directory, or generates and writes them when absent,
// so a restarted server keeps the CA its clients already trust.
GeneratedCertificates loadOrCreateLoopbackCertificates(const std::string &directory);

} // namespace quorva::http
