// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "Certificates.h"

#include <arpa/inet.h>

#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <sstream>
#include <stdexcept>

namespace quorva::http {

namespace {
constexpr const char *kCaFile = "ca.pem";
constexpr const char *kServerCertFile = "server-cert.pem";
constexpr const char *kServerKeyFile = "server-key.pem";
constexpr const char *kCaKeyFile = "ca-key.pem";
constexpr const char *kNamesFile = "server-names.txt";
constexpr long kValiditySeconds = 10L * 365 * 24 * 3600;

template <auto Free>
struct Deleter { template <typename T> void operator()(T *p) const { Free(p); } };
using KeyPtr = std::unique_ptr<EVP_PKEY, Deleter<EVP_PKEY_free>>;
using CertPtr = std::unique_ptr<X509, Deleter<X509_free>>;
using BioPtr = std::unique_ptr<BIO, Deleter<BIO_free>>;

void check(bool ok, const char *what)
{
    if (!ok)
        throw std::runtime_error(std::string("certificate generation failed: ") + what);
}

KeyPtr newKey()
{
    KeyPtr key(EVP_EC_gen("P-256"));
    check(key != nullptr, "key");
    return key;
}

void addExtension(X509 *cert, X509 *issuer, int nid, const char *value)
{
    X509V3_CTX ctx;
    X509V3_set_ctx_nodb(&ctx);
    X509V3_set_ctx(&ctx, issuer, cert, nullptr, nullptr, 0);
    X509_EXTENSION *ext = X509V3_EXT_conf_nid(nullptr, &ctx, nid, value);
    check(ext != nullptr, "extension");
    X509_add_ext(cert, ext, -1);
    X509_EXTENSION_free(ext);
}

CertPtr newCertificate(EVP_PKEY *key, const char *commonName, long serial, X509 *issuer,
                       EVP_PKEY *issuerKey, bool isCa, const std::string &subjectAltNames = {})
{
    CertPtr cert(X509_new());
    check(cert != nullptr, "certificate");
    X509_set_version(cert.get(), 2);
    ASN1_INTEGER_set(X509_get_serialNumber(cert.get()), serial);
    X509_gmtime_adj(X509_getm_notBefore(cert.get()), -3600);
    X509_gmtime_adj(X509_getm_notAfter(cert.get()), kValiditySeconds);
    X509_set_pubkey(cert.get(), key);
    X509_NAME *name = X509_get_subject_name(cert.get());
    X509_NAME_add_entry_by_txt(name, "O", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char *>("QuorvaMedia Sandbox"), -1, -1, 0);
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char *>(commonName), -1, -1, 0);
    X509 *signer = issuer ? issuer : cert.get();
    X509_set_issuer_name(cert.get(), X509_get_subject_name(signer));
    if (isCa) {
        addExtension(cert.get(), signer, NID_basic_constraints, "critical,CA:TRUE");
        addExtension(cert.get(), signer, NID_key_usage, "critical,keyCertSign,cRLSign");
        addExtension(cert.get(), signer, NID_subject_key_identifier, "hash");
    } else {
        addExtension(cert.get(), signer, NID_basic_constraints, "critical,CA:FALSE");
        addExtension(cert.get(), signer, NID_authority_key_identifier, "keyid:always");
        addExtension(cert.get(), signer, NID_key_usage, "critical,digitalSignature,keyEncipherment");
        addExtension(cert.get(), signer, NID_ext_key_usage, "serverAuth");
        addExtension(cert.get(), signer, NID_subject_alt_name, subjectAltNames.c_str());
    }
    check(X509_sign(cert.get(), issuerKey, EVP_sha256()) > 0, "signature");
    return cert;
}

std::string pem(X509 *cert)
{
    BioPtr bio(BIO_new(BIO_s_mem()));
    PEM_write_bio_X509(bio.get(), cert);
    char *data = nullptr;
    const long size = BIO_get_mem_data(bio.get(), &data);
    return std::string(data, static_cast<std::size_t>(size));
}

std::string pem(EVP_PKEY *key)
{
    BioPtr bio(BIO_new(BIO_s_mem()));
    PEM_write_bio_PrivateKey(bio.get(), key, nullptr, nullptr, 0, nullptr, nullptr);
    char *data = nullptr;
    const long size = BIO_get_mem_data(bio.get(), &data);
    return std::string(data, static_cast<std::size_t>(size));
}

std::string readFile(const std::filesystem::path &path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void writeFile(const std::filesystem::path &path, const std::string &content)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << content;
    check(out.good(), "write");
}
} // namespace

std::string subjectAltNames(const std::vector<std::string> &extraNames)
{
    std::string names = "DNS:localhost,IP:127.0.0.1,IP:0:0:0:0:0:0:0:1";
    for (const std::string &name : extraNames) {
        in6_addr address{};
        const bool ip = inet_pton(AF_INET, name.c_str(), &address) == 1 || inet_pton(AF_INET6, name.c_str(), &address) == 1;
        const std::string entry = (ip ? "IP:" : "DNS:") + name;
        if (name.empty() || name.find(',') != std::string::npos || ("," + names + ",").find("," + entry + ",") != std::string::npos)
            continue;
        names += "," + entry;
    }
    return names;
}

namespace {
// A server certificate for the names, signed by the CA.
TlsMaterial issueServer(X509 *ca, EVP_PKEY *caKey, const std::string &caPem, const std::string &names)
{
    std::random_device random;
    KeyPtr serverKey = newKey();
    CertPtr server = newCertificate(serverKey.get(), "localhost", static_cast<long>(random() & 0x3fffffff) + 1, ca,
                                    caKey, false, names);
    return {pem(server.get()) + caPem, pem(serverKey.get())};
}

CertPtr certificateFrom(const std::string &text)
{
    BioPtr bio(BIO_new_mem_buf(text.data(), static_cast<int>(text.size())));
    return CertPtr(PEM_read_bio_X509(bio.get(), nullptr, nullptr, nullptr));
}

KeyPtr keyFrom(const std::string &text)
{
    BioPtr bio(BIO_new_mem_buf(text.data(), static_cast<int>(text.size())));
    return KeyPtr(PEM_read_bio_PrivateKey(bio.get(), nullptr, nullptr, nullptr));
}
} // namespace

GeneratedCertificates generateCertificates(const std::vector<std::string> &extraNames)
{
    // Each authority gets its own name and serials, so a client that trusts several
    // sandboxes (one per test, say) never confuses their chains.
    std::random_device random;
    const long serial = static_cast<long>(random() & 0x3fffffff) + 1;
    const std::string caName = "QuorvaMedia Sandbox CA " + std::to_string(serial);
    KeyPtr caKey = newKey();
    CertPtr ca = newCertificate(caKey.get(), caName.c_str(), serial, nullptr, caKey.get(), true);

    GeneratedCertificates result;
    result.caCertificatePem = pem(ca.get());
    result.caPrivateKeyPem = pem(caKey.get());
    result.server = issueServer(ca.get(), caKey.get(), result.caCertificatePem, subjectAltNames(extraNames));
    return result;
}

GeneratedCertificates loadOrCreateCertificates(const std::string &directory, const std::vector<std::string> &extraNames)
{
    namespace fs = std::filesystem;
    const fs::path dir(directory);
    fs::create_directories(dir);
    const std::string names = subjectAltNames(extraNames);
    auto keepPrivate = [&dir](const char *file) {
        fs::permissions(dir / file, fs::perms::owner_read | fs::perms::owner_write);
    };
    const bool haveCa = fs::exists(dir / kCaFile) && fs::exists(dir / kCaKeyFile);
    if (haveCa && fs::exists(dir / kServerCertFile) && fs::exists(dir / kServerKeyFile)
        && fs::exists(dir / kNamesFile) && readFile(dir / kNamesFile) == names) {
        GeneratedCertificates loaded;
        loaded.caCertificatePem = readFile(dir / kCaFile);
        loaded.caPrivateKeyPem = readFile(dir / kCaKeyFile);
        loaded.server.certificateChainPem = readFile(dir / kServerCertFile);
        loaded.server.privateKeyPem = readFile(dir / kServerKeyFile);
        return loaded;
    }
    GeneratedCertificates certificates;
    CertPtr ca = haveCa ? certificateFrom(readFile(dir / kCaFile)) : nullptr;
    KeyPtr caKey = haveCa ? keyFrom(readFile(dir / kCaKeyFile)) : nullptr;
    if (ca && caKey) {
        // The names changed: the clients keep trusting the same CA.
        certificates.caCertificatePem = readFile(dir / kCaFile);
        certificates.caPrivateKeyPem = readFile(dir / kCaKeyFile);
        certificates.server = issueServer(ca.get(), caKey.get(), certificates.caCertificatePem, names);
    } else {
        certificates = generateCertificates(extraNames);
        writeFile(dir / kCaFile, certificates.caCertificatePem);
        writeFile(dir / kCaKeyFile, certificates.caPrivateKeyPem);
        keepPrivate(kCaKeyFile);
    }
    writeFile(dir / kServerCertFile, certificates.server.certificateChainPem);
    writeFile(dir / kServerKeyFile, certificates.server.privateKeyPem);
    keepPrivate(kServerKeyFile);
    writeFile(dir / kNamesFile, names);
    return certificates;
}

} // namespace quorva::http
