#pragma once

#include <QByteArray>
#include <QList>

#include <sodium.h>

/// The maker of the program: has a key of its own and writes and signs feeds.
class Maker
{
public:
    Maker()
    {
        if (sodium_init() < 0 || crypto_sign_keypair(bytes(publicKey), bytes(m_secretKey)) != 0)
            qFatal("no key can be made");
    }

    QByteArray publicKey = QByteArray(crypto_sign_PUBLICKEYBYTES, '\0');

    QByteArray sign(QByteArrayView message) const
    {
        QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(bytes(signature), nullptr,
                             reinterpret_cast<const unsigned char *>(message.data()),
                             static_cast<unsigned long long>(message.size()),
                             reinterpret_cast<const unsigned char *>(m_secretKey.constData()));
        return signature;
    }

    /// A feed with its signature line.
    QByteArray sealed(const QByteArray &feed) const
    {
        return feed + "<!-- edSignature: " + sign(feed).toBase64() + " -->\n";
    }

    /// A version whose file lies at the address.
    QByteArray item(const QByteArray &version, const QByteArray &address, const QByteArray &file,
                    const QByteArray &more = {}) const
    {
        return "<item><c:version>" + version + "</c:version>" + more + "<enclosure url=\"" + address
            + "\" length=\"" + QByteArray::number(file.size()) + "\" c:edSignature=\""
            + sign(file).toBase64() + "\"/></item>\n";
    }

    static QByteArray withdrawn(const QByteArray &version)
    {
        return "<item><c:version>" + version + "</c:version><t:withdrawn/></item>\n";
    }

    static QByteArray feed(const QByteArray &items,
                           const QByteArray &date = "Mon, 02 Mar 2026 10:00:00 +0000",
                           const QByteArray &expiry = "Mon, 02 Mar 2099 10:00:00 +0000")
    {
        return "<rss version=\"2.0\" xmlns:t=\"urn:toolvane:feed\" "
               "xmlns:c=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel>\n"
               "<lastBuildDate>"
            + date + "</lastBuildDate>\n<t:expires>" + expiry + "</t:expires>\n" + items
            + "</channel></rss>\n";
    }

private:
    static unsigned char *bytes(QByteArray &array)
    {
        return reinterpret_cast<unsigned char *>(array.data());
    }

    QByteArray m_secretKey = QByteArray(crypto_sign_SECRETKEYBYTES, '\0');
};
