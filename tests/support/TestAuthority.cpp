#include "support/TestAuthority.h"

#include <QSslCertificate>
#include <QSslKey>

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

#include <memory>
#include <stdexcept>

namespace loom
{

namespace
{

template <auto Free>
struct Freeing {
    template <typename T>
    void operator()(T* object) const
    {
        Free(object);
    }
};
using Key = std::unique_ptr<EVP_PKEY, Freeing<EVP_PKEY_free>>;
using Certificate = std::unique_ptr<X509, Freeing<X509_free>>;
using Memory = std::unique_ptr<BIO, Freeing<BIO_free_all>>;

constexpr long day = 24L * 60 * 60;

struct Issued {
    Key key;
    Certificate certificate;
};

void check(bool isDone)
{
    if (!isDone)
        throw std::runtime_error("cannot make a certificate");
}

void extend(X509* certificate, int kind, const char* value)
{
    const std::unique_ptr<X509_EXTENSION, Freeing<X509_EXTENSION_free>> extension(
        X509V3_EXT_conf_nid(nullptr, nullptr, kind, value));
    check(extension && X509_add_ext(certificate, extension.get(), -1));
}

/// A certificate for `name`, signed by `issuer`, or by itself as an authority.
Issued issue(const char* name, const char* alternativeName, long lifetime, const Issued* issuer)
{
    static long serial = 0;
    Issued issued{.key = Key(EVP_EC_gen("P-256")), .certificate = Certificate(X509_new())};
    X509* const certificate = issued.certificate.get();
    check(issued.key && certificate);
    X509_set_version(certificate, 2);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate), ++serial);
    X509_gmtime_adj(X509_getm_notBefore(certificate), -2 * day);
    X509_gmtime_adj(X509_getm_notAfter(certificate), lifetime);
    X509_set_pubkey(certificate, issued.key.get());
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate), "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char*>(name), -1, -1, 0);
    const X509* const parent = issuer ? issuer->certificate.get() : certificate;
    X509_set_issuer_name(certificate, X509_get_subject_name(parent));
    if (issuer) {
        extend(certificate, NID_subject_alt_name, alternativeName);
        extend(certificate, NID_ext_key_usage, "serverAuth");
    } else {
        extend(certificate, NID_basic_constraints, "critical,CA:TRUE");
    }
    check(X509_sign(certificate, issuer ? issuer->key.get() : issued.key.get(), EVP_sha256()) > 0);
    return issued;
}

template <typename Write>
QByteArray pem(Write write)
{
    const Memory memory(BIO_new(BIO_s_mem()));
    check(memory && write(memory.get()));
    char* bytes = nullptr;
    const long size = BIO_get_mem_data(memory.get(), &bytes);
    return {bytes, size};
}

QSslCertificate toQt(const Issued& issued)
{
    return QSslCertificate(pem([&issued](BIO* to) { return PEM_write_bio_X509(to, issued.certificate.get()); }));
}

const Issued& trustedAuthority()
{
    static const Issued authority = [] {
        Issued made = issue("LOOMSTREET tests", "", day, nullptr);
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.addCaCertificate(toQt(made));
        QSslConfiguration::setDefaultConfiguration(configuration);
        return made;
    }();
    return authority;
}

} // namespace

QSslConfiguration serverConfiguration(Credentials credentials)
{
    const Issued foreign = issue("Somebody else", "", day, nullptr);
    const Issued leaf =
        issue("A test server", credentials == Credentials::OtherHost ? "DNS:elsewhere.example" : "DNS:localhost",
              credentials == Credentials::Expired ? -day : day,
              credentials == Credentials::ForeignAuthority ? &foreign : &trustedAuthority());
    QSslConfiguration configuration;
    configuration.setLocalCertificate(toQt(leaf));
    configuration.setPrivateKey(QSslKey(pem([&leaf](BIO* to) {
                                            return PEM_write_bio_PrivateKey(to, leaf.key.get(), nullptr, nullptr, 0,
                                                                            nullptr, nullptr);
                                        }),
                                        QSsl::Ec));
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    return configuration;
}

} // namespace loom
